# CPack runs this before it makes a package: a program that finds the mark beside it leaves its
# updates to the system's package manager. What is merely installed from the sources has none.
file(WRITE
     ${CPACK_TEMPORARY_DIRECTORY}${CPACK_PACKAGING_INSTALL_PREFIX}/share/velvetnook/packaged
     "The system's package manager installed this and updates it.\n")

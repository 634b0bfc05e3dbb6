// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "tests/Store/FaultVfs.h"

#include <sqlite3.h>

#include <atomic>
#include <cstring>
#include <new>

namespace
{

constexpr const char *kName = "kest-fault";

std::atomic<FaultVfs::Fault> armedFault{};
std::atomic<int> callsLeft{0}; // 0: disarmed
std::atomic<bool> struck{false};

bool strikes(FaultVfs::Fault fault)
{
    if (armedFault != fault || callsLeft == 0) {
        return false;
    }
    --callsLeft;
    if (callsLeft == 0) {
        struck = true;
        return true;
    }
    return false;
}

// SQLite allocates this and, behind it, the real layer's file.
struct FaultFile {
    sqlite3_file base;

    sqlite3_file *real() { return reinterpret_cast<sqlite3_file *>(this + 1); }
};

sqlite3_vfs *realVfs() { return sqlite3_vfs_find("unix"); }

sqlite3_file *realOf(sqlite3_file *file) { return reinterpret_cast<FaultFile *>(file)->real(); }

int closeFile(sqlite3_file *file) { return realOf(file)->pMethods->xClose(realOf(file)); }

int readFile(sqlite3_file *file, void *buffer, int size, sqlite3_int64 offset)
{
    if (strikes(FaultVfs::Fault::shortRead)) {
        std::memset(buffer, 0, static_cast<std::size_t>(size));
        return SQLITE_IOERR_SHORT_READ;
    }
    return realOf(file)->pMethods->xRead(realOf(file), buffer, size, offset);
}

int writeFile(sqlite3_file *file, const void *buffer, int size, sqlite3_int64 offset)
{
    if (strikes(FaultVfs::Fault::diskFull)) {
        return SQLITE_FULL;
    }
    if (strikes(FaultVfs::Fault::writeFailed)) {
        return SQLITE_IOERR_WRITE;
    }
    return realOf(file)->pMethods->xWrite(realOf(file), buffer, size, offset);
}

int syncFile(sqlite3_file *file, int flags)
{
    if (strikes(FaultVfs::Fault::syncFailed)) {
        return SQLITE_IOERR_FSYNC;
    }
    return realOf(file)->pMethods->xSync(realOf(file), flags);
}

// Everything else goes straight through.
template <auto Method, class... Args>
int passOn(sqlite3_file *file, Args... args)
{
    return (realOf(file)->pMethods->*Method)(realOf(file), args...);
}

void barrier(sqlite3_file *file) { realOf(file)->pMethods->xShmBarrier(realOf(file)); }

using M = sqlite3_io_methods;

const sqlite3_io_methods kMethods{
    .iVersion = 2, // no memory-mapped reads, which faults could not reach
    .xClose = closeFile,
    .xRead = readFile,
    .xWrite = writeFile,
    .xTruncate = passOn<&M::xTruncate, sqlite3_int64>,
    .xSync = syncFile,
    .xFileSize = passOn<&M::xFileSize, sqlite3_int64 *>,
    .xLock = passOn<&M::xLock, int>,
    .xUnlock = passOn<&M::xUnlock, int>,
    .xCheckReservedLock = passOn<&M::xCheckReservedLock, int *>,
    .xFileControl = passOn<&M::xFileControl, int, void *>,
    .xSectorSize = passOn<&M::xSectorSize>,
    .xDeviceCharacteristics = passOn<&M::xDeviceCharacteristics>,
    .xShmMap = passOn<&M::xShmMap, int, int, int, void volatile **>,
    .xShmLock = passOn<&M::xShmLock, int, int, int>,
    .xShmBarrier = barrier,
    .xShmUnmap = passOn<&M::xShmUnmap, int>,
    .xFetch = nullptr,
    .xUnfetch = nullptr,
};

int openFile(sqlite3_vfs *, const char *name, sqlite3_file *file, int flags, int *outFlags)
{
    file->pMethods = nullptr;
    auto *faulty = reinterpret_cast<FaultFile *>(file);
    std::memset(faulty->real(), 0, static_cast<std::size_t>(realVfs()->szOsFile));
    const int code = realVfs()->xOpen(realVfs(), name, faulty->real(), flags, outFlags);
    if (code == SQLITE_OK) {
        file->pMethods = &kMethods;
    }
    return code;
}

sqlite3_vfs faultVfs{};

} // namespace

FaultVfs::FaultVfs()
{
    faultVfs = *realVfs();
    faultVfs.zName = kName;
    faultVfs.pNext = nullptr;
    faultVfs.szOsFile += static_cast<int>(sizeof(FaultFile));
    faultVfs.xOpen = openFile;
    sqlite3_vfs_register(&faultVfs, 1);
}

FaultVfs::~FaultVfs()
{
    disarm();
    sqlite3_vfs_unregister(&faultVfs);
    sqlite3_vfs_register(realVfs(), 1);
}

void FaultVfs::arm(Fault fault, int call)
{
    armedFault = fault;
    struck = false;
    callsLeft = call;
}

void FaultVfs::disarm() { callsLeft = 0; }

bool FaultVfs::hasStruck() const { return struck; }

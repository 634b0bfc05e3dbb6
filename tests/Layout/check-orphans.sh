#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Velvetnook developers
# SPDX-License-Identifier: MIT
# check-orphans.sh ROOT COMPILE_COMMANDS: every C++ file is compiled and every test script runs.
# A test that no list names looks as if it passed for ever.
set -euo pipefail
root=$1
commands=$2
cd "$root"

faults=0
refuse() {
    echo "$1"
    faults=$((faults + 1))
}

# A script runs if the folder's list or another script beside it names it.
is_named() {
    local script=$1 folder name
    folder=$(dirname "$script")
    name=$(basename "$script")
    find "$folder" -maxdepth 1 \( -name CMakeLists.txt -o -name '*.sh' \) ! -name "$name" \
        -exec grep -hv '^[[:space:]]*#' '{}' + | grep -wF -- "$name" >/dev/null
}

while read -r source; do
    grep -qF "\"file\": \"$root/$source\"" "$commands" ||
        refuse "$source: no CMakeLists.txt names it"
done < <(
    find . \( -path ./build -o -path ./node_modules -o -path './.*' \) -prune \
        -o -name '*.cpp' -printf '%P\n'
)

while read -r script; do
    is_named "$script" || refuse "$script: no CMakeLists.txt names it"
done < <(find tests -name '*.sh')
[[ $faults -eq 0 ]]

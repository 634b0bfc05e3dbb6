#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Velvetnook developers
# SPDX-License-Identifier: MIT
# check-layers.sh ROOT: each module includes only what lies below it, and no core module Qt.
set -euo pipefail
cd "$1"

# A module, and what it may include from.
declare -A below=(
    [Base]="Base"
    [PrayerCore]="Base PrayerCore"
    [KestCore]="Base PrayerCore KestCore"
    [SecretService]="Base SecretService"
    [HttpTransport]="Base HttpTransport"
    [MediaPlayers]="Base KestCore MediaPlayers"
    [CalendarFiles]="Base KestCore CalendarFiles"
    [BrowserBridge]="Base KestCore BrowserBridge"
    [Assistants]="Base KestCore Assistants"
    [MonitorCore]="Base MonitorCore"
    [MonitorLinux]="Base MonitorCore MonitorLinux"
)
# What may include from every module.
tops=" cli Velvetnook tests bench fuzz "

faults=0
refuse() {
    echo "$1"
    faults=$((faults + 1))
}

# Every include of a folder as "file:line name", without quotes or angle brackets.
includes_of() {
    grep -rnE --include='*.h' --include='*.cpp' '^[[:space:]]*#[[:space:]]*include[[:space:]]' "$1" |
        sed -E 's/^([^:]+:[0-9]+):[^"<]*["<]([^">]+)[">].*/\1 \2/'
}

check_include() {
    local module=$1 place=$2 name=$3 folder=${3%%/*}
    if [[ $name == *..* ]]; then
        refuse "$place: $name goes round the layers; name the module"
    elif [[ -n ${below[$folder]:-} || $tops == *" $folder "* ]]; then
        if [[ " ${below[$module]} " != *" $folder "* ]]; then
            refuse "$place: $module must not include $name; it may see: ${below[$module]}"
        fi
    elif [[ $name =~ ^Q(t|[A-Z]) ]]; then
        refuse "$place: $module is below the application and must not include Qt's $name"
    fi
}

while read -r folder; do
    if [[ -n ${below[$folder]:-} ]]; then
        while read -r place name; do
            check_include "$folder" "$place" "$name"
        done < <(includes_of "$folder")
    elif [[ $tops != *" $folder "* ]]; then
        refuse "$folder: a folder of code that $(basename "$0") does not know"
    fi
done < <(
    find . \( -path ./build -o -path ./node_modules -o -path './.*' \) -prune \
        -o -path './*/*' \( -name '*.h' -o -name '*.cpp' \) -print | cut -d/ -f2 | sort -u
)
[[ $faults -eq 0 ]]

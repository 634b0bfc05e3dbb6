#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Velvetnook developers
# SPDX-License-Identifier: MIT
# check-manual.sh KEST PAGE: the manual page has every command and option that kest --help has,
# those of its subcommands included.
set -euo pipefail
kest=$1
page=$2

faults=0
refuse() {
    echo "$1"
    faults=$((faults + 1))
}

commands_of() {
    "$kest" "$@" --help | sed -nE '/^Subcommands:/,$ s/^  ([a-z][a-z-]*) .*/\1/p'
}

# Long options without their dashes.
options_of() {
    "$kest" "$@" --help | sed -nE 's/^  (-[a-z],)?--([a-z-]+).*/\2/p'
}

check_command() {
    local words="$*" option
    grep -qE "^\.It Cm $words( |\$)" "$page" || refuse "$words: the manual lacks this command"
    while read -r option; do
        grep -qE "Fl (h , Fl )?-$option( |\$)" "$page" ||
            refuse "$words --$option: the manual lacks this option"
    done < <(options_of "$@")
}

seen=0
while read -r command; do
    seen=$((seen + 1))
    check_command "$command"
    while read -r sub; do
        check_command "$command" "$sub"
    done < <(commands_of "$command")
done < <(commands_of)
while read -r option; do
    grep -qE "^\.It .*Fl -$option( |\$)" "$page" || refuse "--$option: the manual lacks it"
done < <(options_of)
if [[ $seen -eq 0 ]]; then
    refuse "kest --help lists no command at all"
fi
[[ $faults -eq 0 ]]

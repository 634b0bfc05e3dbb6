#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Velvetnook developers
# SPDX-License-Identifier: MIT
# Plants faults in a small tree and looks whether the layout checks find each one.
# shellcheck disable=SC2317 # `finds` calls functions by their names
set -euo pipefail
checks=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
tree=$scratch/tree
failed=0

# A tree without faults: two layers, one program above them, one test and one script.
make_tree() {
    rm -rf "$tree"
    mkdir -p "$tree"/{Base,KestCore/Store,cli,tests/Base,.ci}
    echo '#include "Base/Text.h"' >"$tree/Base/Text.cpp"
    echo '#include "Base/Text.h"' >"$tree/KestCore/Store/Store.h"
    printf '%s\n' '#include "KestCore/Store/Store.h"' '#include <QObject>' >"$tree/cli/main.cpp"
    echo '#include <gtest/gtest.h>' >"$tree/tests/Base/TextTest.cpp"
    echo 'add_test(NAME Started COMMAND bash started.sh)' >"$tree/tests/Base/CMakeLists.txt"
    touch "$tree/tests/Base/started.sh"
    list_as_compiled Base/Text.cpp cli/main.cpp tests/Base/TextTest.cpp
}

list_as_compiled() {
    local source
    for source in "$@"; do
        echo "  \"file\": \"$tree/$source\""
    done >"$scratch/compile_commands.json"
}

# A kest whose help is this text, and a page for the sound one.
make_program() {
    cat >"$scratch/kest" <<'END'
#!/usr/bin/env bash
[[ $1 == notes ]] && printf '%s\n' 'Options:' '  -h,--help  Help' '  --all  All of them' ||
    printf '%s\n' 'Options:' '  --json  JSON' '' 'Subcommands:' '  notes  Lists notes'
END
    chmod +x "$scratch/kest"
    printf '%s\n' '.It Fl h , Fl -help' '.It Fl -json' '.It Cm notes Op Fl -all' >"$scratch/page"
}

layers() { bash "$checks/check-layers.sh" "$tree"; }
orphans() { bash "$checks/check-orphans.sh" "$tree" "$scratch/compile_commands.json"; }
manual() { bash "$checks/check-manual.sh" "$scratch/kest" "$scratch/page"; }

fail() {
    echo "planted-faults: $1"
    failed=1
}

# finds CHECK TEXT FAULT: the check passes without the fault, and with it fails and says TEXT.
finds() {
    local check=$1 text=$2 fault=$3 said
    make_tree
    make_program
    said=$("$check") || fail "$check refuses what is sound: $said"
    (cd "$tree" && eval "$fault")
    if said=$("$check"); then
        fail "$check does not see: $fault"
    elif [[ $said != *"$text"* ]]; then
        fail "$check sees \"$fault\" but says: $said"
    fi
}

include() { echo "#include $1" >>"$2"; }

finds layers "Base must not include KestCore/Store/Store.h" \
    'include "\"KestCore/Store/Store.h\"" Base/Text.cpp'
finds layers "Base must not include cli/Console.h" 'include "<cli/Console.h>" Base/Text.cpp'
finds layers "must not include Qt's QString" 'include "<QString>" KestCore/Store/Store.h'
finds layers "must not include Qt's QtCore/QString" 'include "<QtCore/QString>" Base/Text.cpp'
finds layers "goes round the layers" 'include "\"../KestCore/Store/Store.h\"" Base/Text.cpp'
finds layers "KestCore must not include MonitorCore/Rates.h" \
    'echo "  #  include \"MonitorCore/Rates.h\"" >>KestCore/Store/Store.h'
finds layers "Gadgets: a folder of code" 'mkdir Gadgets && touch Gadgets/Gadget.h'
finds orphans "tests/Base/ForgottenTest.cpp: no CMakeLists.txt" \
    'touch tests/Base/ForgottenTest.cpp'
finds orphans "Base/Forgotten.cpp: no CMakeLists.txt" 'touch Base/Forgotten.cpp'
finds orphans "tests/Base/started.sh: no CMakeLists.txt" \
    'sed -i "s/^/# /" tests/Base/CMakeLists.txt'
finds manual "notes: the manual lacks this command" 'sed -i /notes/d ../page'
finds manual "notes --all: the manual lacks" 'sed -i "s/ Op Fl -all//" ../page'
finds manual "--json: the manual lacks" 'sed -i /json/d ../page'
finds manual "no command at all" 'echo "#!/bin/sh" >../kest'

exit "$failed"

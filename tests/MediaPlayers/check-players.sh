#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Velvetnook developers
# SPDX-License-Identifier: MIT
# check-players.sh KEST PLAYER: playback with real players on a real bus, each bus of its own.
# shellcheck disable=SC2317 # `on_bus` calls functions by their names
set -euo pipefail
kest=$1
player=$2
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)/$(basename "${BASH_SOURCE[0]}")
players=()

# A file, as a variable that is set in a subshell is lost behind it.
fail() {
    echo "check-players: $*" >&2
    touch "$HOME/failed"
}

# says STATUS TEXT WORD...: kest playback ends so, and prints or complains so.
says() {
    local status=$1 text=$2 code=0 said
    shift 2
    said=$(timeout 60 "$kest" playback "$@" 2>&1 </dev/null) || code=$?
    [[ $code -eq $status ]] || fail "$*: ended with $code: $said"
    [[ $said == *"$text"* ]] || fail "$*: said: $said"
}

# start NAME KIND: a player, from when it has its name on the bus.
start() {
    "$player" "$1" "$2" >"$HOME/$1.log" &
    players+=("$!")
    for _ in {1..400}; do
        if grep -qs ready "$HOME/$1.log"; then
            return
        fi
        sleep 0.05
    done
    fail "the player $1 did not start"
}

# heard NAME LINE: the player's last call was this.
heard() {
    [[ $(tail -n 1 "$HOME/$1.log") == "$2" ]] || fail "$1 heard: $(tail -n 1 "$HOME/$1.log")"
}

check_none() {
    says 0 "Nothing is there to play." read
    says 0 "null" read --json
    says 0 "[]" players --json
    says 1 "kest: There is no player, and no connected tab with a medium." play-pause
    says 1 'kest: No player is called "x"' read --player x
}

song() {
    echo "{\"title\":\"Song $1\",\"artist\":\"One, Two\",\"playing\":$2,\"position\":$3,\
\"duration\":200,\"volume\":$4,\"canSeek\":true,\"canNext\":true,\"canPrevious\":true}"
}

check_sound() {
    start sound.instance1 sound
    says 0 "$(song 1 false 30 0.5)" read --json
    says 0 "0:30 of 3:20, volume 50 %, in The Test Player" read
    says 0 "$(song 1 true 30 0.5)" play-pause --json
    heard sound.instance1 PlayPause
    says 0 "$(song 2 true 0 0.5)" next --json
    says 0 "$(song 1 true 0 0.5)" previous --json --player SOUND
    says 0 '"position":61.25' seek 61.25 --json
    heard sound.instance1 "SetPosition /track/1 61250000"
    says 0 '"position":0,' seek --json -- -5
    says 0 '"position":200,' seek 1e300 --json
    heard sound.instance1 "SetPosition /track/1 200000000"
    says 0 '"volume":0.25' volume 0.25 --json
    says 0 '"volume":1,' volume 2 --json
    heard sound.instance1 "Volume 1.000000"
    says 2 "is no number" seek nan
    says 2 "is no number" volume inf
    says 2 "" volume
}

# Wrong types are read all the same, and what it says cannot drive the terminal.
check_wild() {
    start wild wild
    says 0 'by One ·[31mText' read --player wild
    says 0 '"duration":90,"volume":1,"canSeek":true,"canNext":false' read --player wild --json
    says 0 '"position":45.5' seek 45.5 --player wild --json
    heard wild "Seek 15500000"
    says 0 '"title":"Song 1"' next --player wild --json
    heard wild "Seek 15500000"
}

check_order() {
    start b sound
    start a sound
    says 0 '[{"name":"a","identity":"The Test Player","status":"paused"' players --json
    says 0 '"playing":true' play-pause --player b --json
    says 0 '[{"name":"b"' players --json
    says 0 '"playing":false' play-pause --json
    heard b PlayPause
    says 0 '[{"name":"b"' players --json # paused like the other, and controlled last
    heard a ready
}

check_refusing() {
    start bare bare
    says 0 "bare" read
    says 1 'kest: The player "bare" cannot do this: not today' play-pause
    says 1 'kest: The player "bare" cannot do this: ' volume 0.5
    says 1 'kest: The player "bare" cannot do this: ' previous
    says 0 '"canNext":false' next --json
    heard bare PlayPause
}

check_deaf() {
    start deaf1 deaf
    start deaf2 deaf
    start sound sound
    says 0 '"title":"Song 1"' read --json
    says 1 'kest: No player is called "deaf1"' read --player deaf1
}

# on_bus WORD: runs that check again on a bus of its own that starts no services.
on_bus() {
    timeout --kill-after=5 180 dbus-run-session --config-file="${here%/*}/../session-bus.conf" -- \
        bash "$here" "$kest" "$player" "$1" 2>&1 | { grep -v 'fd limit' || true; }
}

if [[ $# -gt 2 ]]; then
    export KEST_DATA_DIR=$HOME/$3
    trap 'kill "${players[@]}" 2>/dev/null || true' EXIT
    "check_$3"
    touch "$HOME/$3.done"
    exit
fi

HOME=$(mktemp -d)
trap 'rm -rf "$HOME"' EXIT
export HOME XDG_RUNTIME_DIR=$HOME/run LC_ALL=C.UTF-8 KEST_DATA_DIR=$HOME/kest
unset DISPLAY WAYLAND_DISPLAY DBUS_SESSION_BUS_ADDRESS
mkdir -m 700 "$XDG_RUNTIME_DIR"
says 1 "kest: There is no session bus here" read
says 1 "kest: There is no session bus here" players
for check in none sound wild order refusing deaf; do
    on_bus "$check"
    [[ -e $HOME/$check.done ]] || fail "$check did not come to its end"
done
[[ ! -e $HOME/failed ]]

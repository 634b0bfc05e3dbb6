#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Velvetnook developers
# SPDX-License-Identifier: MIT
# check-keyring.sh KEST SERVER: the commands that keep secrets, with a real keyring that is open,
# locked or not there. Each keyring lives on a message bus and in a home of its own. SERVER
# answers in the place of the insights' providers.
# shellcheck disable=SC2317 # `inside` calls functions by their names
set -euo pipefail
kest=$1
server=$2
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)/$(basename "${BASH_SOURCE[0]}")

keyring=
# A file, as a variable that is set in a pipeline is lost behind it.
fail() {
    echo "check-keyring: $*" >&2
    touch "$HOME/failed"
}

# says STATUS TEXT WORD...: kest ends so, and prints or complains so.
says() {
    local status=$1 text=$2 code=0 said
    shift 2
    said=$(timeout 30 "$kest" "$@" 2>&1 </dev/null) || code=$?
    [[ $code -eq $status ]] || fail "$*: ended with $code: $said"
    [[ $said == *"$text"* ]] || fail "$*: said: $said"
}

add() { timeout 30 "$kest" clipboard add --json || fail "add: status $?"; }

id_of() { sed -E 's/^\[\{"id":"([0-9A-F-]{36})".*/\1/'; }

nothing_kept() { [[ ! -e $KEST_DATA_DIR ]] || fail "$1: something was put on the disk"; }

ask_bus() { dbus-send --session --print-reply "$@" 2>/dev/null; }

has_service() {
    ask_bus --dest=org.freedesktop.DBus / org.freedesktop.DBus.NameHasOwner \
        string:org.freedesktop.secrets | grep -q true
}

has_collection() {
    has_service && ask_bus --dest=org.freedesktop.secrets /org/freedesktop/secrets \
        org.freedesktop.Secret.Service.ReadAlias string:default | grep -q '"/org'
}

# start_keyring READY OPTION...: starts one and waits until it is ready.
start_keyring() {
    local ready=$1
    shift
    printf 'the password' | gnome-keyring-daemon --foreground --components=secrets \
        --control-directory="$HOME/control" "$@" >"$HOME/keyring.log" 2>&1 &
    keyring=$!
    for _ in {1..200}; do
        if "$ready"; then
            return
        fi
        sleep 0.05
    done
    fail "the keyring did not start: $(cat "$HOME/keyring.log")"
}

# on_terminal WORD...: what kest prints on a terminal.
on_terminal() { script -qec "'$kest' $*" /dev/null </dev/null; }

stop_keyring() {
    if [[ -n $keyring ]]; then
        kill "$keyring" 2>/dev/null || true
        wait "$keyring" || true
        keyring=
    fi
}

check_absent() {
    says 1 "kest: There is no keyring" clipboard list
    says 1 "kest: There is no keyring" clipboard clear --yes
    says 1 "kest: There is no keyring" insights disconnect stripe
    connect 1 "kest: There is no keyring" rk_test_1 stripe
    if printf 'a secret' | timeout 30 "$kest" clipboard add >/dev/null 2>&1; then
        fail "add works without a keyring"
    fi
    nothing_kept "without a keyring"
}

check_without_collection() {
    start_keyring has_service
    says 1 "kest: There is no default keyring" clipboard list
    nothing_kept "without a collection"
    stop_keyring
}

check_open() {
    local id link
    start_keyring has_collection --unlock
    says 0 "The clipboard history is empty." clipboard list
    id=$(printf 'a\033[31msecret\nwords' | add | id_of)
    link=$(printf 'https://example.org/' | add | id_of)
    says 0 "[{\"id\":\"$link\",\"kind\":\"link\"" clipboard list --json
    says 0 '"byteCount":18,"favourite":false,"display":"a\u001b[31msecret\nwords"}]' \
        clipboard list --json
    says 0 'a·[31msecret·words' clipboard search SECRET
    says 1 'has the id "no id like that"' clipboard show "no id like that"
    says 0 "${id:0:8}" clipboard list
    says 1 "kest: Write the words to look for" clipboard search ""
    says 0 '{"check":"clipboard history","state":"full","detail":"2 entries"}' doctor --json
}

check_entries() {
    local id link found
    found=$("$kest" clipboard list --json)
    link=$(id_of <<<"$found")
    id=$(sed -E 's/.*"id":"([0-9A-F-]{36})".*/\1/' <<<"$found")
    cmp <(printf 'a\033[31msecret\nwords') <("$kest" clipboard show "${id:0:8}") ||
        fail "show does not print what was added"
    [[ $(on_terminal clipboard show "$id" | tr -d '\r') == $'a·[31msecret\nwords' ]] ||
        fail "show drives the terminal"
    says 0 '"kind":"link","text":"https://example.org/"' clipboard show --json "$link"
    says 0 "*" clipboard favourite "${id,,}"
    says 1 "kest: Confirm with --yes" clipboard clear
    says 0 "$id" clipboard clear --yes --json
    says 1 "kest: No clipboard entry has the id" clipboard show "$link"
    if grep -rqaF -e secret -e example.org "$HOME/data" "$KEST_DATA_DIR"; then
        fail "content stands in the clear on the disk"
    fi
    grep -rqaF "$id" "$KEST_DATA_DIR" || fail "the search of the disk finds nothing at all"
    says 0 "[]" clipboard search --json "https"
}

refuse_wrong_input() {
    local id
    says 1 "kest: Invalid clipboard text" clipboard add
    if head -c 100001 /dev/zero | tr '\0' x | "$kest" clipboard add >/dev/null 2>&1; then
        fail "add takes more than 100,000 bytes"
    fi
    id=$(head -c 100000 /dev/zero | tr '\0' x | add | id_of)
    # More than the pipe holds, and nobody reads it yet.
    "$kest" clipboard show "$id" | {
        head -c 1 >/dev/null
        says 0 "" count
        [[ $(wc -c) -eq 99999 ]] || fail "show does not print all"
    }
    says 2 "" clipboard
    says 2 "" clipboard show
}

# A keyring that was there before but that nobody has unlocked.
check_locked() {
    stop_keyring
    local before
    before=$(md5sum "$KEST_DATA_DIR"/*)
    start_keyring has_collection
    says 1 "kest: The keyring is locked." clipboard list
    says 1 "kest: The keyring is locked." clipboard remove x
    [[ $(md5sum "$KEST_DATA_DIR"/*) == "$before" ]] || fail "a locked keyring: data changed"
    says 0 '"check":"keyring","state":"degraded","detail":"The keyring is locked.' doctor --json
    rm -r "$KEST_DATA_DIR"
    says 1 "kest: The keyring is locked." clipboard list
    nothing_kept "with a locked keyring"
    stop_keyring
}

# Each round with a new keyring and new data, several at once are the first to want the key.
check_first_uses() {
    local round n said adding
    for round in 1 2 3; do
        export XDG_DATA_HOME=$HOME/first-$round KEST_DATA_DIR=$HOME/first-$round/kest
        mkdir -m 700 "$XDG_DATA_HOME"
        start_keyring has_collection --unlock
        adding=()
        for n in 1 2 3 4; do
            printf 'entry %s' "$n" | add >/dev/null &
            adding+=("$!")
        done
        wait "${adding[@]}"
        said=$("$kest" clipboard list)
        for n in 1 2 3 4; do
            [[ $said == *"entry $n"* ]] || fail "first uses at once: $n is lost: $said"
        done
        stop_keyring
    done
}

# start_server: prints its address in $HOME/asked first, then what it is asked.
start_server() {
    local url=
    mkfifo "$HOME/hold"
    "$server" <"$HOME/hold" >"$HOME/asked" &
    exec 9>"$HOME/hold" # it ends when this is closed, so at the latest with this script
    for _ in {1..200}; do
        if [[ -s $HOME/asked ]]; then
            read -r url <"$HOME/asked"
            break
        fi
        sleep 0.05
    done
    [[ $url == http://127.0.0.1:* ]] || fail "the server did not start"
    export KEST_STRIPE_URL=$url KEST_DATAFAST_URL=$url/
}

# connect STATUS TEXT KEY WORD...: takes the key from standard input, or refuses it.
connect() {
    local status=$1 text=$2 key=$3 code=0 said
    shift 3
    said=$(printf '%s\n' "$key" | timeout 30 "$kest" insights connect "$@" 2>&1) || code=$?
    [[ $code -eq $status && $said == *"$text"* ]] || fail "connect $*: $code: $said"
    [[ -z $key || $said != *"$key"* ]] || fail "connect $*: says the key"
}

times_asked() { grep -c "$1" "$HOME/asked" || true; }

check_stripe() {
    local said
    says 1 "kest: Stripe is not connected; kest insights connect stripe takes a key." \
        insights stripe
    connect 1 "kest: This is a secret Stripe key" sk_live_1234 stripe
    connect 1 "kest: A key is one word" "rk_live_1 2" stripe
    connect 1 "kest: No key on standard input" "" stripe
    connect 1 "kest: The key is too long" "$(printf '%0600d' 0)" stripe
    says 1 "kest: Stripe is not connected" insights stripe
    connect 0 "Stripe is connected." " rk_test_good " stripe
    said=$("$kest" insights stripe) || fail "insights stripe: $said"
    for text in "Gross payments    1,234.50 EUR" "Refunds              20.00 EUR" \
        "Net payments      1,178.40 EUR" "-20.00 EUR  Refund" "Order ·[31m2" \
        "Stripe test mode · Payment balance activity, not profit."; do
        [[ $said == *"$text"* ]] || fail "insights stripe lacks \"$text\": $said"
    done
    [[ $(times_asked first) -eq 1 && $(times_asked second) -eq 1 ]] || fail "pages: wrong"
    says 0 '"provider":"stripe","rows":[{"id":"eur-gross","label":"Gross payments","value":1234.5,' \
        insights stripe --period year --json
    says 0 '"recent":[{"id":"txn_2","title":"Order \u001b[31m2","value":"1,234.50 EUR","date":"2026-11-21T16:53:20Z"},' \
        insights stripe --json
    says 1 'kest: There is no period "decade"; choose one of today, 7d, 30d, 90d, month, year' \
        insights stripe --period decade
    "$kest" settings set revenue.period never >"$HOME/out"
    says 1 'kest: There is no period "never"' insights stripe
    "$kest" settings unset revenue.period >"$HOME/out"
    connect 0 "" rk_live_wrong stripe
    says 1 "kest: This Stripe key has expired or is invalid. Replace it in Connections." \
        insights stripe
}

# What the provider asks for binds the next run as well, until there is another key.
check_waiting() {
    connect 0 "" rk_live_busy stripe
    says 1 "Wait a moment, then refresh. It asks for 60 s." insights stripe
    says 1 "kest: The provider is limiting requests." insights stripe
    [[ $(times_asked busy) -eq 1 ]] || fail "the provider is asked while it wants to rest"
    connect 0 "" rk_test_good stripe
    says 0 "Net payments" insights stripe
}

check_datafast() {
    connect 1 "kest: Only DataFast asks for a website" rk_test_good stripe --website site1
    connect 0 "DataFast is connected." df_good datafast
    says 1 "kest: Check the DataFast key and website selection (HTTP 404)." insights datafast
    says 0 "1,234  /start" insights datafast --website site1 --period today
    connect 0 '{"provider":"datafast","connected":true}' df_good --json datafast --website site1
    says 0 "Attributed revenue     99.50 USD" insights datafast
    says 0 "Unavailable" insights datafast
    says 0 "Online now: 1234" insights datafast
}

check_insights() {
    start_server
    start_keyring has_collection --unlock
    check_stripe
    check_waiting
    check_datafast
    KEST_STRIPE_URL=http://example.invalid \
        says 1 "kest: The address of Stripe must be https:// and a host name." insights stripe
    KEST_STRIPE_URL=http://127.0.0.1:1 \
        says 1 "kest: Stripe did not answer. Check the connection" insights stripe
    if grep -rqaE -e '(rk_test|df)_good' "$XDG_DATA_HOME" "$KEST_DATA_DIR"; then
        fail "a key stands in the clear on the disk"
    fi
    grep -rqaF analytics.website "$KEST_DATA_DIR" || fail "the search finds nothing at all"
    says 0 "Stripe is disconnected." insights disconnect stripe
    says 0 '{"provider":"stripe","connected":false}' insights disconnect stripe --json
    says 1 "kest: Stripe is not connected" insights stripe
    says 0 "Online now: 1234" insights datafast
    stop_keyring
    start_keyring has_collection
    says 1 "kest: The keyring is locked." insights datafast
    says 1 "kest: The keyring is locked." insights disconnect datafast
    connect 1 "kest: The keyring is locked." df_other datafast
}

inside() {
    trap stop_keyring EXIT
    "$@"
}

# on_bus WORD...: runs this script again on a bus of its own that starts no services.
on_bus() {
    timeout --kill-after=5 120 dbus-run-session --config-file="${here%/*}/../session-bus.conf" -- \
        bash "$here" "$kest" "$server" "$@" 2>&1 | { grep -v 'fd limit' || true; }
}

if [[ $# -gt 2 ]]; then
    case $3 in
    absent) inside check_absent ;;
    bare) inside check_without_collection ;;
    first) inside check_first_uses ;;
    insights) inside check_insights ;;
    *)
        all() {
            check_open
            check_entries
            refuse_wrong_input
            check_locked
        }
        inside all
        ;;
    esac
    exit
fi

HOME=$(mktemp -d)
trap 'rm -rf "$HOME"' EXIT
export HOME XDG_RUNTIME_DIR=$HOME/run XDG_DATA_HOME=$HOME/data XDG_CONFIG_HOME=$HOME/config
export XDG_CACHE_HOME=$HOME/cache KEST_DATA_DIR=$HOME/kest LC_ALL=C.UTF-8
unset DISPLAY WAYLAND_DISPLAY DBUS_SESSION_BUS_ADDRESS
mkdir -m 700 "$XDG_RUNTIME_DIR" "$XDG_DATA_HOME" "$HOME/control"
check_absent # without even a bus
on_bus absent
on_bus bare
on_bus open
on_bus first
export KEST_DATA_DIR=$HOME/insights XDG_DATA_HOME=$HOME/data-insights
mkdir -m 700 "$XDG_DATA_HOME"
on_bus insights
[[ ! -e $HOME/failed ]]

#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Velvetnook developers
# SPDX-License-Identifier: MIT
# with-x-server.sh PROGRAM [ARGUMENT ...]: runs the program on an X server of its own, which
# nobody sees.
set -euo pipefail
exec {shown}<> <(:)
Xvfb -displayfd "$shown" -screen 0 1280x800x24 -nolisten tcp >/dev/null 2>&1 &
server=$!
trap 'kill "$server"' EXIT
read -r -t 20 -u "$shown" display
DISPLAY=":$display" "$@"

#!/usr/bin/env bash
# Runs a command on a virtual display of its own, which ends with it: on-display.sh COMMAND [ARGUMENT...]
set -eu
exec 4< <(exec Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>&1 1>/dev/null 2>/dev/null)
server=$!
trap 'kill $server 2>/dev/null || :' EXIT
# The server writes its number once it can be reached.
read -r number <&4
export DISPLAY=:$number QT_QPA_PLATFORM=xcb
# The engine's sandbox can't be had by root.
[ "$(id -u)" != 0 ] || export QTWEBENGINE_DISABLE_SANDBOX=1
"$@"

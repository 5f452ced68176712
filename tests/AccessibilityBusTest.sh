#!/usr/bin/env bash
# Plays through a real accessibility bus, as a screen reader meets the game. Argument: the game
# program.
set -euo pipefail

if [ -z "${OWN_SESSION_BUS:-}" ]; then
    OWN_SESSION_BUS=1 exec dbus-run-session -- "$0" "$@"
fi
Game=$(realpath "$1")
Player=$(realpath "$(dirname "$0")/AccessibilityBusTest.py")
. "$(dirname "$0")/VirtualDisplay.sh"
# The bus keeps its socket in the user's folders.
export HOME=$Folder XDG_RUNTIME_DIR=$Folder
start_display 1280x1024
gdbus call --session --dest org.a11y.Bus --object-path /org/a11y/bus \
    --method org.freedesktop.DBus.Properties.Set org.a11y.Status IsEnabled '<true>' >/dev/null
"$Game" &
Started+=($!)
timeout 60 /usr/bin/python3 "$Player" || fail "the game was not played"

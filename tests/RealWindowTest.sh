#!/usr/bin/env bash
# Plays on a real X server, under a window manager: with a real mouse, since the offscreen tests know
# no grab, no stacking and no window manager, and as a screen reader does, over a real accessibility
# bus. Argument: the game program.
# The places that at prints are two words; the stories are called by their names.
# shellcheck disable=SC2046,SC2317
set -euo pipefail

Game=$(realpath "$1")
Here=$(realpath "$(dirname "$0")")
. "$(dirname "$0")/ShellTest.sh"

# ---- One display and one session for all stories ----

start() { "$@" >/dev/null 2>&1 & Started+=($!); }

start_session() {
    export DBUS_SESSION_BUS_ADDRESS=unix:path=$Folder/bus
    start dbus-daemon --session --address="$DBUS_SESSION_BUS_ADDRESS" --nofork
    start Xvfb -displayfd 3 -screen 0 1280x1024x24 3>display
    wait_for "the display and the bus" test -s display -a -S bus
    DISPLAY=:$(<display)
    export DISPLAY
    start openbox
    wait_for "the window manager" eval 'xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 0x'
}

# tell STORY: a function, with a home of its own. The picture of a failure stays.
tell() {
    Story=$1
    enter_home "$Folder/$Story"
    { trap 'end_story $?' EXIT; "$Story"; } &
    wait $! || Status=1
}

end_story() {
    [ "$1" -eq 0 ] || import -window root "${BRASTEL_WRITABLE:-.}/RealWindow-$Story.png"
    echo "$Story ended with status $1"
    kill $(jobs -p) 2>/dev/null || true
    exit "$1"
}

# ---- Windows ----

is_focused() { [ "$(xdotool getwindowfocus getwindowname 2>/dev/null)" = "$1" ]; }
is_menu_open() { [ "$(xdotool search --onlyvisible --class brastel | wc -l)" -eq 2 ]; }

geometry() { xwininfo -id "$1" | awk '/Absolute|Width|Height/ {print $NF}' | xargs; }

# Where a window lies without its frame, and the board below the menu bar of the game's.
find_window() {
    wait_for "the window $1" is_focused "$1"
    Window=$(xdotool getwindowfocus)
    read -r Left Top _ Height < <(geometry "$Window")
    FormTop=$((Top + Height - 778))
}

# The room left of and above the game's frame is that on the other side, but for an odd pixel.
is_centred() {
    local frame x y width height
    find_window Brastel
    frame=$(xwininfo -tree -id "$Window" | awk '/Parent/ {print $4}')
    read -r x y width height < <(geometry "$frame")
    [[ "$((2 * x + width)) $((2 * y + height))" =~ ^(1279|128[01])\ 102[345]$ ]]
}

# choose_option KEY TITLE: by its access key, and the dialog that opens.
choose_option() {
    xdotool key alt+o
    wait_for "the menu" is_menu_open
    xdotool key "$1"
    find_window "$2"
}

# ---- Board ----

at() { echo $((Left + 40 + 40 * (($1 - 1) % 8))) $((FormTop + 40 + 40 * (($1 - 1) / 8))); }

# drag FROM TO: a piece that is held is tinted.
drag() {
    Before=$(look)
    xdotool mousemove $(at "$1") mousedown 1
    wait_for "a tinted piece" eval "! shows $1 '#FF07FF'"
    xdotool mousemove $(at "$2") mouseup 1
}

# The board as seen: a line with the colour of each of its 112 squares.
look() { pixels "320x560+$((Left + 20))+$((FormTop + 20))" '8x14!'; }
pixels() {
    import -window root -crop "$1" +repage png:- | convert - -sample "$2" -depth 8 txt:- |
        grep -oE '#[0-9A-F]{6}'
}
is_as_before() { [ "$(look)" = "$Before" ]; }
shows() { [ "$(look | sed -n "$1p")" = "$2" ]; }
count_is() { [ "$(look | grep -c "$2")" = "$1" ]; }
is_reds_turn() { [ "$(pixels "1x1+$((Left + 662))+$((FormTop + 255))" 1x1)" = '#000000' ]; }
differs_by() { [ "$(diff <(echo "$Before") <(look) | grep -c '^>')" -ge "$1" ]; }

# ---- The stories ----

does_not_start() {
    Program=/usr/bin/env
    expect 1 '' '*"nowhere"*' QT_QPA_PLATFORM=nowhere "$Game"
    # 120 MB of address space: the libraries are loaded, and little is left. Sanitizers need
    # terabytes.
    grep -q __ubsan "$Game" && return
    ulimit -v 120000
    expect 1 '' '*no memory left' "$Game"
}

real_mouse() {
    "$Game" -platform nowhere &
    find_window Brastel
    xprop -id "$Window" _NET_WM_ICON | grep 'Icon (128 x 128)' >/dev/null || fail "no icon"
    wait_for "a window in the middle" is_centred
    xdotool windowmove --sync "$Window" 40 30

    choose_option c 'About Orvel Geme'
    xdotool mousemove $((Left + 221)) $((Top + 211)) click 1
    wait_for "a window in the middle again" is_centred
    wait_for "the standard layout" count_is 8 '#FF07FF'
    xdotool mousemove $(at 69) click --repeat 2 --delay 80 1
    wait_for "Blue's ring" is_reds_turn
    drag 67 59
    wait_for "Red's move" shows 59 '#FF07FF'
    wait_for "Blue's move" differs_by 3
    wait_for "the end of Blue's turn" is_reds_turn
    count_is 8 '#FF07FF' && count_is 8 '#07FFFF' && shows 67 '#C0C0C0' || fail "a wrong board"
    drag 59 1000
    wait_for "no move by a drop outside the window" is_as_before
    cp "$Here/data/good/03-example.txt" game
    choose_option l '開く'
    xdotool type game
    xdotool key Return
    find_window Brastel
    wait_for "the loaded game" shows 67 '#FF07FF'
    xdotool key alt+F4
    wait %1 || fail "the program ended with status $?"
}

screen_reader() {
    gdbus call --session --dest org.a11y.Bus --object-path /org/a11y/bus --method \
        org.freedesktop.DBus.Properties.Set org.a11y.Status IsEnabled '<true>' >/dev/null
    "$Game" &
    # Keys get lost until the window has the focus.
    find_window Brastel
    timeout 60 /usr/bin/python3 "$Here/AccessibilityBusTest.py"
}

Status=0
start_session
for story in does_not_start real_mouse screen_reader; do tell $story; done
exit $Status

#!/usr/bin/env bash
# Drags a piece about at the usual densities of screens: its outline must leave nothing behind.
# Argument: the game program.
set -euo pipefail

Game=$(realpath "$1")
. "$(dirname "$0")/VirtualDisplay.sh"
start_display 3000x2600

window() { xdotool search --onlyvisible --name '^Brastel$' 2>/dev/null | head -n 1; }
height() { xwininfo -id "$Window" | awk '/Height:/ {print $2}'; }
# Takes a picture when nothing changes any more.
look() {
    import -window "$Window" "$1-$Ratio.png"
    wait_for "a picture that stays" stays "$1"
}
stays() {
    mv "$1-$Ratio.png" "last-$Ratio.png"
    sleep 0.1
    import -window "$Window" "$1-$Ratio.png"
    [ "$(differing last "$1")" = 0 ]
}
differing() { compare -metric AE "$1-$Ratio.png" "$2-$Ratio.png" null: 2>&1 || true; }

# Points of the inner area, one a line in logical pixels, as commands of xdotool.
pointer_at() {
    awk -v ratio="$Ratio" -v height="$(height)" -v window="$Window" '{
        menu = height - int(778 * ratio + 0.5)
        print "mousemove --window", window, int($1 * ratio + 0.5), int($2 * ratio + 0.5) + menu
    }' | tr '\n' ' '
}
do_at() {
    # shellcheck disable=SC2046  # one word, one argument
    xdotool $(echo "$1" "$2" | pointer_at) "${@:3}"
}
click() { do_at "$1" "$2" click 1 sleep 0.1; }
double_click() { do_at "$1" "$2" click --repeat 2 --delay 60 1 sleep 0.2; }

# A free setup: two pieces a side, and the rings.
set_up() {
    click 160 360
    click 200 360
    double_click 160 360
    click 160 240
    click 200 240
    double_click 160 240
    do_at 500 700 sleep 0.2
}

# Over lines, pieces, circles, text and buttons, and over each fraction of a pixel.
drag_about() {
    do_at 163 357 mousedown 1
    # shellcheck disable=SC2046  # one word, one argument
    xdotool $(for ((n = 0; n < 90; n++)); do
        echo "$((163 + n * 7)).$((n % 10)) $((347 + (n * 37) % 211 - 60)).$((n * 3 % 10))"
    done | pointer_at)
    sleep 0.2
    look dragging
    xdotool key Escape mouseup 1
    do_at 500 700 sleep 0.2
}

for Ratio in 1 1.25 1.5 2 3; do
    QT_SCALE_FACTOR=$Ratio "$Game" &
    Started+=($!)
    wait_for "the window" eval '[ -n "$(window)" ]'
    sleep 0.5
    Window=$(window)
    set_up
    look before
    drag_about
    look after
    keep ./*.png
    [ "$(differing before dragging)" != 0 ] || fail "at ratio $Ratio no outline is seen"
    stale=$(differing before after)
    [ "$stale" = 0 ] || fail "at ratio $Ratio $stale pixels are left behind"
    kill "${Started[-1]}"
    wait "${Started[-1]}" || true
done
echo "Nothing is left behind."

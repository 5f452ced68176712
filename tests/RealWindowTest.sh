#!/usr/bin/env bash
# Plays on a real X server, under a window manager, with a real mouse: the offscreen tests know no
# grab, no stacking and no window manager. Argument: the game program.
set -euo pipefail

Game=$(realpath "$1")
. "$(dirname "$0")/VirtualDisplay.sh"
start_display 1280x1024

# ---- Windows ----

window_named() { xdotool search --onlyvisible --name "^$1\$" 2>/dev/null | head -n 1; }
is_shown() { [ -n "$(window_named "$1")" ]; }
geometry() { xwininfo -id "$(window_named "$1")" | awk -v key="$2" -F: '$1 ~ key {print $2 + 0}'; }

# Remembers where the inner area of the game's window lies, below its menu bar.
find_form() {
    wait_for "the main window" is_shown Brastel
    sleep 0.3
    FormLeft=$(geometry Brastel 'Absolute upper-left X')
    FormTop=$(($(geometry Brastel 'Absolute upper-left Y') + $(geometry Brastel Height) - 778))
}

# The room left of and above the game's frame is that on the other side, but for an odd pixel.
is_centred() {
    local left right top bottom x y
    y=$((2 * $(geometry Brastel 'Absolute upper-left Y') + $(geometry Brastel Height) - 1024))
    IFS=', ' read -r left right top bottom \
        < <(xprop -id "$(window_named Brastel)" _NET_FRAME_EXTENTS | sed 's/.*= //')
    x=$((2 * FormLeft + $(geometry Brastel Width) + right - left - 1280))
    y=$((y + bottom - top))
    [[ $x =~ ^(-1|0|1)$ && $y =~ ^(-1|0|1)$ ]]
}

# ---- Board ----

column_x() { echo $((FormLeft + 40 + 40 * (($1 - 1) % 8))); }
row_y() { echo $((FormTop + 40 + 40 * (($1 - 1) / 8))); }
double_click() {
    xdotool mousemove "$(column_x "$1")" "$(row_y "$1")" click --repeat 2 --delay 80 1
}
drag() {
    xdotool mousemove "$(column_x "$1")" "$(row_y "$1")" mousedown 1 \
        mousemove "$(column_x "$2")" "$(row_y "$2")" mouseup 1
}

# The board as seen: a line of square number and colour for each of its 112 squares.
look() {
    import -window root -crop "320x560+$((FormLeft + 20))+$((FormTop + 20))" +repage png:- |
        convert - -sample '8x14!' -depth 8 txt:- |
        sed -nE 's/^([0-9]+),([0-9]+): .*#([0-9A-F]{6}).*/\1 \2 \3/p' |
        awk '{print 8 * $2 + $1 + 1, $3}'
}
# A piece keeps its tint until the window is painted again.
is_as_before() { [ "$(look)" = "$before" ]; }
shows() { look | grep -qx "$1 $2"; }
count_shown() { look | grep -c " $1\$" || true; }
turn_color() {
    import -window root -crop "1x1+$((FormLeft + $1))+$((FormTop + 255))" +repage -depth 8 txt:- |
        grep -o '#[0-9A-F]\{6\}'
}
is_reds_turn() { [ "$(turn_color 662)" = '#000000' ]; }

readonly Red=FF07FF Blue=07FFFF Empty=C0C0C0

# ---- The story ----

status=0
said=$(QT_QPA_PLATFORM=nowhere "$Game" 2>&1) || status=$?
[[ $status = 1 && $said = *'"nowhere"'* ]] || fail "without a platform: status $status, $said"
# 120 MB of address space: the libraries are loaded, and little is left. Sanitizers need terabytes.
status=0
said=$(ulimit -v 120000 && "$Game" 2>&1) || status=$?
grep -q __ubsan "$Game" || [[ $status = 1 && $said = *'no memory left' ]] ||
    fail "without memory: status $status, $said"

"$Game" &
GameProcess=$!
Started+=("$GameProcess")
find_form
[ "$(count_shown $Empty)" -eq 112 ] || fail "the first board is not empty"
is_centred || fail "the first window is not in the middle"
xdotool windowmove "$(window_named Brastel)" 40 30

xdotool key alt+o
sleep 0.3
xdotool key c
wait_for "the piece-number dialog" is_shown 'About Orvel Geme'
sleep 0.3
xdotool mousemove $(($(geometry 'About Orvel Geme' 'Absolute upper-left X') + 221)) \
    $(($(geometry 'About Orvel Geme' 'Absolute upper-left Y') + 211)) click 1
find_form
[ "$(count_shown $Red) $(count_shown $Blue)" = '8 8' ] || fail "the standard layout is not shown"
is_centred || fail "the window built anew is not in the middle"

before=$(look)
drag 68 60
sleep 0.3
wait_for "no move before the rings are placed" is_as_before

double_click 69
wait_for "Blue's ring" is_reds_turn
drag 67 59
wait_for "Red's move" shows 59 $Red
wait_for "Blue's answer" is_reds_turn
shows 67 $Empty || fail "the moved piece is still seen where it was"
moved=$(diff <(echo "$before") <(look) | grep -c '^>' || true)
[ "$moved" -ge 3 ] || fail "Blue's answer is not seen"
[ "$(count_shown $Red) $(count_shown $Blue)" = '8 8' ] || fail "pieces were lost on the way"

before=$(look)
drag 59 1000
wait_for "no move by a drop outside the window" is_as_before

# A game is loaded through the dialog, stepped to its end and saved under a new name.
{
    printf ' 2  2 \r\n 4 \r\n 68 \r\n 69 \r\n 109 \r\n 44 \r\n 45 \r\n'
    printf ' 4 \r\n 68  0 \r\n 45  0 \r\n 68  60 \r\n 44  52 \r\n'
} >game
xdotool key alt+o
sleep 0.3
xdotool key l
wait_for "the load dialog" is_shown '開く'
sleep 0.3
xdotool type game
xdotool key Return
find_form
[ "$(count_shown $Red) $(count_shown $Blue)" = '2 2' ] || fail "the loaded game is not shown"
for _ in 1 2 3 4; do
    xdotool mousemove $((FormLeft + 790)) $((FormTop + 350)) click 1
    sleep 0.3
done
shows 60 $Red && shows 52 $Blue && shows 68 $Empty || fail "the loaded game was not played"
xdotool key alt+o
sleep 0.3
xdotool key s
wait_for "the save dialog" is_shown '新規保存'
sleep 0.3
xdotool type "$Folder/copy"
xdotool key Return
wait_for "the saved file" cmp -s game copy

xdotool key alt+F4
wait_for "the end of the program" eval '! kill -0 $GameProcess 2>/dev/null'
wait $GameProcess || fail "the program ended with status $?"
echo "The real window works."

#!/usr/bin/env bash
# brastel-record as people call it: statuses, where its words go, and files it must not touch.
# Arguments: the program and the folder with the test files.
# Words are compared with patterns.
# shellcheck disable=SC2053
set -euo pipefail

Program=$(realpath "$1")
Data=$(realpath "$2")
. "$(dirname "$0")/ScratchFolder.sh"
cp "$Data/good/03-example.txt" game
cp "$Data/good/06-passes.txt" broken
cp "$Data/damaged/05-square-113.txt" damaged
echo kept >old

Faults=0
# expect STATUS OUT ERR ARGUMENT...: patterns of bash for what standard output and error hold.
expect() {
    local status=$1 out=$2 err=$3 found=0
    shift 3
    "$Program" "$@" >out 2>err || found=$?
    if [ $found -ne "$status" ] || [[ $(<out) != $out ]] || [[ $(<err) != $err ]]; then
        echo "brastel-record $*: status $found, not $status, or other words:"
        cat out err
        Faults=$((Faults + 1))
    fi
}

expect 0 'game: 3 entries, Blue to move' '' game
expect 1 'game: 3*broken:23: entry 3 *damaged:10: error 5: *' '' game broken damaged
expect 2 'game: 3*' 'brastel-record: missing: No such file or directory' missing game
expect 0 'game: *   3. Red piece 1 from row 9, column 2 to row 8, column 2' '' --moves game
expect 1 'damaged:10: error 5: *' '' --moves damaged
expect 0 'After entry 3: Blue to move*' '' --at end game
expect 0 'At the start: Red places its ring*' '' --at 0 game
expect 0 '<svg *</svg>' '' --at 3 --svg game
expect 1 'After entry 6*' 'broken:23: entry 3 *' --at 6 broken
expect 1 '' 'damaged:10: *' --at 1 damaged
expect 2 '' 'brastel-record: game: no position after entry 4: the last entry is 3' --at 4 game
expect 2 '' '*see --help' --at -1 game
expect 2 '' '*see --help' --at 201 game
expect 2 '' '*see --help' --svg game
expect 2 '' '*see --help' --moves --at 1 game
expect 2 '' '*see --help' --force game
expect 2 '' '*see --help'
expect 2 '' '*name one file' --at 1 game broken
expect 2 '' '*old: exists; --force overwrites it' --at 1 -o old game
expect 2 '' '*game: that is the record itself' --force -o game game
expect 2 '' '*missing/new: No such file or directory' -o missing/new game
expect 2 '' '*exists*' -o . game
expect 2 '' '*: Is a directory' --force -o . game
expect 2 '' '*: File name too long' --force -o "$(printf '%300s' x)" game
expect 2 '' '*no position after entry 9*' --at 9 --force -o old game
[ "$(cat old)" = kept ] || { echo "An old file was emptied for nothing."; Faults=1; }
expect 0 '' '' -o new game
expect 0 '' '' --force -o old game
expect 0 '*Examples:*Status:*' '' --help

cmp -s game "$Data/good/03-example.txt" || { echo "A record was changed."; Faults=1; }
[ "$(cat new)" = "$(cat old)" ] && [ "$(cat new)" = 'game: 3 entries, Blue to move' ] ||
    { echo "The output file holds something else."; Faults=1; }
# A reader that leaves early is no fault to speak of.
mapfile -t many < <(yes game | head -n 2000)
{ "$Program" --moves "${many[@]}" 2>err || true; } | head -n 1 >out
[ "$(cat out)" = 'game: 3 entries, Blue to move' ] && [ ! -s err ] ||
    { echo "A closed pipe:"; cat out err; Faults=1; }
status=0
"$Program" game >/dev/full 2>err || status=$?
[ $status -eq 2 ] && grep -q 'standard output' err || { echo "A full disk was not told."; Faults=1; }
"$Program" --help >/dev/full 2>err && { echo "Help on a full disk."; Faults=1; }
# A record ends within a megabyte; a gigabyte took many seconds, and no interrupt ended them.
truncate -s 1G long
expect 1 'long:1: error 10: *' '' long
# A name can hold what a terminal obeys, such as the line of another verdict.
name=$'a\e[2J\n\x9b\xe2\x80\xaeb'
shown='a\\x1b\[2J\\x0a\\x9b\\xe2\\x80\\xaeb'
expect 2 '' "brastel-record: $shown: No such file or directory" "$name"
expect 2 '' "brastel-record: *--$shown; see --help" "--$name" game
cp game "$name"
expect 0 "$shown: 3 entries*" '' "$name"
expect 2 '' "brastel-record: $shown: exists*" -o "$name" game
status=0
told=$( (ulimit -f 0; exec "$Program" --force -o old game 2>&1) ) || status=$?
[ "$status $told" = '2 brastel-record: old: File too large' ] && cmp -s old new ||
    { echo "A file that could not grow: $status $told"; Faults=1; }
cp game '[game,broken]'
expect 0 './\[game,broken\]: 3 entries, Blue to move' '' '[game,broken]'
exit $((Faults > 0))

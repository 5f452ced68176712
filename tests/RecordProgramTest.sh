#!/usr/bin/env bash
# brastel-record as people call it: statuses, where its words go, and files it must not touch.
# Argument: the program.
set -euo pipefail

Program=$(realpath "$1")
Data=$(realpath "$(dirname "$0")/data")
. "$(dirname "$0")/ShellTest.sh"
cp "$Data/good/03-example.txt" game
cp "$Data/good/06-passes.txt" broken
cp "$Data/damaged/05-square-113.txt" damaged
echo 2 2 4 20 68 109 16 44 3 20 0 44 0 20 12 >won
echo 2 2 4 20 68 109 16 44 6 20 0 44 0 20 28 44 52 0 0 28 36 >unlawful
echo 2 2 4 20 68 109 16 44 3 20 0 44 0 20 28 >blunder
echo kept >old

expect 0 'game: 3 entries, Blue to move' '' game
expect 1 'game: 3*broken:23: entry 3 *damaged:10: error 5: *' '' game broken damaged
printf '1 1\r\n\n\r 4 x' >lines
expect 2 'lines:4: error 4: this is no number
*:23: error 3: the file ends before its last value
*/00-free-setup-before-the-pieces.txt: 0 entries, Red to move' '*/data: Is a directory' \
    lines "$Data"/damaged/03-half*missing.txt "$Data"/good/00-free*.txt "$Data"
expect 2 'game: 3*' 'brastel-record: missing: No such file or directory' missing game
expect 1 'damaged:10: error 5: *' '' --moves damaged
expect 0 'won: 3 entries, Red wins
   1. Red piece 1 takes the ring on row 3, column 4; Blue piece 1 comes back on row 2, column 7
   2. Blue piece 2 takes the ring on row 6, column 4
   3. Red piece 1 from row 3, column 4 to row 2, column 4
      Red wins' '' --moves won
# What fits is played even so; what does not is the end.
expect 1 'unlawful:1: entry 5 (0 0) breaks the rules: a side that can move may not pass
*   5. Red passes
      \*\*\* breaks the rules: a side that can move may not pass
      the game cannot be played on from here' '' --moves unlawful
expect 0 'At the start: Red places its ring*     1     2    3    4    5    6    7     8
  1                 ( )  goal
        +----------          ----------+
  2     |  .    .    .    .    .    .  |  B1
  3     |  .    .    R1   .    .    .  |*
Outside: Blue piece 1 on row 2, column 8' '' --at 0 won
expect 0 'After entry 1: Blue places its ring*  3     |  .    .   (R1)  .  *' '' --at 1 won
expect 0 'After entry 3: Red wins*' '' --at end won
expect 0 '<svg *<title>After entry 1: *row 14, column 5: Blue?s goal, a ring</title>*</svg>' '' --at 1 --svg won
expect 1 'After entry 6: Red to move*' 'broken:23: entry 3 *' --at 6 broken
expect 1 '' 'damaged:10: *' --at 1 damaged
expect 2 '' 'brastel-record: game: no position after entry 4, the last one is after entry 3' --at 4 game
expect 0 'standard input: 3 entries*' '' -o - - <game
expect 1 '*: 3 entries, *standard input:1: error 10: *' '' <(cat game) - </dev/zero
# A file name after --review is no strength.
mistake='   3. Red   3,4-4,4 *-4.0   3,4-2,? *Red wins   104.0 \*'
expect 0 "*Easy*$mistake*Entry 3 loses 104.0 points: Red piece 1 from *Better: *" '' --review eAsY blunder
expect 0 '*King*Red lost 0.0 points.*Blue lost 0.0 points.*' '' --review won
expect 0 '*"depth": 2,*"played": \[44, 0\]},*"best_value": 10000.00, *"worst": true}*' '' \
    --review=2 --json blunder
expect 0 '<svg *<title>Entry 3 loses *</svg>' '' --review --svg blunder
expect 1 '*   4. Blue *' 'unlawful:1: entry 5 *' unlawful --review
expect 1 '' 'damaged:10: *' --review damaged
expect 2 '' '*name one file' --review Kong game
for bad in '--at -1' '--at 201' '--moves --at 1' --force --json '--review --moves'; do
    # shellcheck disable=SC2086
    expect 2 '' '*see --help' $bad game
done
expect 2 '' '*see --help'
expect 2 '' '*see --help' --svg game
expect 2 '' '*name one file' --at 1 game broken
expect 2 '' '*old: exists; --force overwrites it' --at 1 -o old game
expect 2 '' '*game: the output file is a record to read' --force -o game game
expect 2 '' '*missing/new: No such file or directory' -o missing/new game
expect 2 '' '*exists*' -o . game
expect 2 '' '*: Is a directory' --force -o . game
expect 2 '' '*: File name too long' --force -o "$(printf '%300s' x)" game
expect 2 '' '*no position after entry 9*' --at 9 --force -o old game
[ "$(<old)" = kept ] || fail "an old file was emptied for nothing"
expect 0 '' '' -o new game
expect 0 '' '' --force -o old game
expect 0 '*Examples:*Status:*' '' --help

cmp game "$Data/good/03-example.txt" || fail "a record was changed"
[ "$(cat new; cmp new old)" = 'game: 3 entries, Blue to move' ] || fail "other words in a file"
# A reader that leaves early is no fault to speak of.
mapfile -t many < <(yes game | head -n 2000)
{ "$Program" --moves "${many[@]}" 2>err || true; } | head -n 1 >out
[ "$(<out)$(<err)" = 'game: 3 entries, Blue to move' ] || fail "a closed pipe: $(cat out err)"
expect_full game
expect_full --help
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
expect_too_large 'brastel-record: old' --force -o old game
cmp old new || fail "an old file was lost to one that could not grow"
cp game '[game,broken]'
expect 0 './\[game,broken\]: 3 entries, Blue to move' '' '[game,broken]'

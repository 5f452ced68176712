#!/usr/bin/env bash
# The command line of brastel-match: what it refuses, what it writes and how it ends. Arguments: the
# program, and brastel-record.
# Arguments in one text are split. What is set for one call is not yet seen in its arguments.
# shellcheck disable=SC2086,SC2097,SC2098
set -euo pipefail

Program=$(realpath "$1")
Record=$(realpath "$2")
. "$(dirname "$0")/ShellTest.sh"

# ---- Bad arguments and paths: nothing is played ----

touch file
for bad in "--red 12" "--blue nobody" "--blue" "--pieces 7" "--pieces 0" "--games 0" "--games 0x1" \
    "--seed -1" "--random-moves 11" "--jobs 257" "--red 1 --red 2" "--resume" "--unknown" "file" \
    "--games 100001"; do
    last=${bad##*--}
    expect 2 '' "*${last%% *}*" $bad
done
expect 2 '' '*--save*' --save ''
expect 2 '' '*flag override*' --no-alternate=no
expect 2 '' '*file: Not a directory*' --csv new --save file
expect 2 '' '*file exists*' --csv file
expect 2 '' '*no\\x1b\\xc2\\x9bne/t: No such file or directory*' --save $'no\e\xc2\x9bne/t'
[ "$(echo *)$(<file)" = "err file out run" ] || fail "left behind: $(echo *)"

# ---- A match; there is no progress where nobody looks ----

six="--red easy --blue MEDIUM --games 6 --jobs 0"
expect 0 '*| games *| *6 |*' '' $six --save games
[ "$(cd games && echo *)" = "0001-Easy-Medium.txt 0002-Medium-Easy.txt 0003-Easy-Medium.txt \
0004-Medium-Easy.txt 0005-Easy-Medium.txt 0006-Medium-Easy.txt" ] || fail "$(ls games)"
expect 2 '' '*0001-Easy-Medium.txt exists*' $six --save games
expect 0 '*' '' $six --save games --force
# A game and its twin with the other colours share their two rings and two moves of each side.
"$Program" --red 2 --blue 3 --games 6 --save games2 --seed 2 >/dev/null
openings=$(for game in games*/*; do sed -n 21,26p "$game" | xargs; done)
[ "$(uniq -c <<<"$openings" | grep -c ' 2 ') $(sort -u <<<"$openings" | wc -l)" = '6 6' ] ||
    fail "$openings"
# Difficult mostly beats Easy, whichever colour it has.
for how in '' --no-alternate; do
    "$Program" --red 3 --blue 1 --games 60 $how --jobs 1 --save one$how >out
    "$Program" --red 3 --blue 1 --games 60 $how --jobs 4 --save four$how >/dev/null
    diff -r one$how four$how || fail "the games depend on the number of processes"
    awk -F '|' '/ wins  / {exit $3 <= 2 * $4}' out || fail "$how: $(<out)"
    reds=$("$Record" one$how/* | grep -c 'Red wins$')
    awk -F '|' -v reds=$reds '/ wins as Red / {exit $3 + $4 != reds}' out || fail "$reds saved games are won by Red, but $(<out)"
done
expect_full --red 1 --blue 1 --games 2
expect_full --help
expect 2 '*' '*cannot write /dev/full: No space*' --csv /dev/full --force
# One file may be open besides the standard ones, so that libraries are found and no pipe is made.
# The sanitizers need pipes themselves.
no_pipe='exec 3>&- 4>&- 5>&- 6>&- 7>&- 8>&- 9>&-; ulimit -n 4; exec "$0" --red 1 --blue 1 --games 2'
grep -q __ubsan "$Program" || Program=bash expect 3 '*' '*' -c "$no_pipe" "$Program"

# ---- A match that was stopped prints its results, and goes on to those of a whole match ----

"$Program" $six --csv six >/dev/null
expect 2 '' '*six is not from this match*' --csv six --resume
sed -i '5s|,[^,]*$||' six
expect 2 '' '*six:5: the line is damaged*' $six --csv six --resume
for signal in INT TERM HUP KILL; do
    "$Program" --red 1 --blue 1 --games 100000 --jobs 2 --csv $signal.csv >out 2>err &
    wait_for "a game" grep -qs '^1,' $signal.csv
    status=0
    kill -$signal $!
    wait $! 2>/dev/null || status=$?
    played=$(grep -c '^[1-9].*,' $signal.csv)
    [ $status = $((128 + $(kill -l $signal))) ] || fail "status $status after SIG$signal"
    [[ $signal = KILL || "$(<err) $(<out)" = *"after $played of 100000 games"*"| games "*" $played |"* ]] ||
        fail "$played games are in $signal.csv, but $(cat out err)"
    # As a program leaves it that is killed while it writes.
    echo -n "7,Easy" >>$signal.csv
    games="--red 1 --blue 1 --games $((played + 100))"
    "$Program" $games --csv $signal.csv --resume >out
    "$Program" $games | diff <(grep -v time out) <(grep -v time -) || fail "not as a whole match: SIG$signal"
    expect 0 "$(<out)" '' $games --csv $signal.csv --resume
done
# Ctrl+C ends a shell loop, because the shell sees a program that died by SIGINT.
set -m
bash -c 'for n in 1 2; do "$0" --red 1 --blue 1 --games 100000 --csv loop$n; done' "$Program" >out 2>err &
wait_for "a game of the loop" grep -qs '^1,' loop1
kill -INT -- -$!
status=0
wait $! || status=$?
[ $status = 130 ] && [ ! -e loop2 ] || fail "the loop goes on: status $status"

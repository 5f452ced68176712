#!/usr/bin/env bash
# The command line of brastel-match: what it refuses, what it writes and how it ends. Argument: the
# program.
# The names of the games are plain; arguments in one text are split.
# shellcheck disable=SC2012
set -euo pipefail

Program=$(realpath "$1")
. "$(dirname "$0")/ScratchFolder.sh"

fail() {
    echo "FAILED: $*" >&2
    cat out err >&2
    exit 1
}

# Runs the program, whose status must be the one given.
expect() {
    local status=$1 got=0
    shift
    "$Program" "$@" >out 2>err || got=$?
    [ "$got" -eq "$status" ] || fail "$* ended with status $got"
}

# Runs it in vain: nothing is played, and the complaint contains a text.
refuse() {
    local status=$1 text=$2
    shift 2
    expect "$status" "$@"
    [ ! -s out ] || fail "$* wrote something"
    grep -qF -- "$text" err || fail "$* does not complain of $text"
}

# ---- Bad arguments and paths ----

touch file table
ln table other
for bad in "--red 12" "--blue nobody" "--blue" "--pieces 7" "--pieces 0" "--games 0" "--games 1.5" \
    "--seed -1" "--random-moves 11" "--jobs 0" "--red 1 --red 2" "--ladder --red 3" \
    "--ladder --alternate" "--from 2" "--table t" "--chart c" "--join file" \
    "--ladder --from 5 --to 5" "--unknown" "file" "--games 100001"; do
    last=${bad##*--}
    # shellcheck disable=SC2086
    refuse 2 "${last%% *}" $bad
done
for bad in "--from 2" "--to 4" "--games 9" "--pieces 8" "--seed 2" "--random-moves 1" "--jobs 2" \
    "--save new"; do
    # shellcheck disable=SC2086
    refuse 2 "${bad%% *}" --ladder --join file $bad
done
refuse 2 "--save" --save ""
refuse 2 "flag override" --ladder=false
refuse 2 "file: Not a directory" --save file
refuse 2 "none/games: No such file or directory" --save none/games
refuse 2 'no\x1b\xc2\x9bne/t: No such file or directory' --ladder --table $'no\e\xc2\x9bne/t'
refuse 2 "none/c: No such file or directory" --ladder --chart none/c
refuse 2 "cannot read none" --ladder --join none
refuse 2 "cannot read ." --ladder --join .
refuse 2 "file cannot be joined: there is no ladder in it" --ladder --join file
refuse 2 "cannot read ./[file,table]" --ladder --join "[file,table]"
refuse 2 "cannot read ./[file,table]" --ladder --join="[file,table]"
refuse 2 "cannot read /dev/zero: File too large" --ladder --join /dev/zero
refuse 2 "name the same file" --ladder --table new --chart ./new
refuse 2 "name the same file" --ladder --table table --chart other
refuse 2 "none/c" --ladder --table new --chart none/c --save games
refuse 2 "Not a directory" --ladder --table new --save file
[ "$(echo *)" = "err file other out table" ] || fail "left behind: $(echo *)"

# ---- A match ----

expect 0 --red easy --blue MEDIUM --games 6 --alternate --save games --jobs 2
[ ! -s err ] || fail "there is progress where nobody looks"
grep -q '^| games  *| *6 |$' out || fail "there are not six games"
[ "$(ls games | tr '\n' ' ')" = "0001-Easy-Medium.txt 0002-Medium-Easy.txt 0003-Easy-Medium.txt \
0004-Medium-Easy.txt 0005-Easy-Medium.txt 0006-Medium-Easy.txt " ] || fail "$(ls games)"
refuse 2 "0001-Easy-Medium.txt exists" --red 1 --blue 2 --games 6 --alternate --save games
"$Program" --red 1 --blue 1 --games 2 >/dev/full 2>err && fail "a full disk is not noticed"
grep -q "cannot write standard output" err || fail "a full disk is not told"
"$Program" --help >/dev/full 2>err && fail "a full disk is not noticed"
# One file may be open besides the standard ones, so that libraries are found and no pipe is made.
# The sanitizers need pipes themselves.
status=0
grep -q __ubsan "$Program" && status=3 || (
    exec 3>&- 4>&- 5>&- 6>&- 7>&- 8>&- 9>&-
    ulimit -n 4
    exec timeout 60 "$Program" --red 1 --blue 1 --games 2
) >out 2>err || status=$?
[ $status -eq 3 ] || fail "status $status without a pipe"

# ---- The ladder ----

expect 0 --ladder --to 3 --games 4 --table table.md --chart chart.svg
[ "$(grep -c '^| *[1-3] |' table.md)" -eq 3 ] || fail "$(cat table.md)"
grep -q '</svg>' chart.svg || fail "$(cat chart.svg)"
expect 0 --ladder --join table.md
cmp out table.md || fail "a ladder is not read as it was written"
status=0
told=$( (ulimit -f 0; exec "$Program" --ladder --to 2 --games 2 --table table.md 2>&1) ) || status=$?
[ "$status $told" = "2 brastel-match: cannot write table.md: File too large" ] || fail "$status $told"
cmp out table.md || fail "an old table is lost"
"$Program" --ladder --join table.md --table /dev/stdout | cmp - table.md || fail "no table in a pipe"

# ---- Interrupts: the results so far ----

for signal in INT TERM HUP; do
    "$Program" --red 1 --blue 1 --games 100000 --jobs 2 --save "stopped$signal" >out 2>err &
    until [ -n "$(ls "stopped$signal" 2>/dev/null)" ]; do
        kill -0 $! || fail "the program ended by itself"
        sleep 0.05
    done
    status=0
    kill -$signal $!
    wait $! || status=$?
    [ $status -eq 130 ] || fail "status $status after SIG$signal"
    saved=$(ls "stopped$signal" | wc -l)
    grep -q "interrupted after $saved of 100000 games" err || fail "$saved games are saved"
    grep -q "^| games  *| *$saved |\$" out || fail "$saved games are saved"
done

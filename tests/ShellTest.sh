# shellcheck shell=bash
# What the shell tests share; to be sourced under set -e. A scratch folder is the working folder and
# the home folder, and gone at the end with all that is in Started. Without one the test ends.
# The program is the test's.
# shellcheck disable=SC2154

Folder=$(mktemp -d)
readonly Folder
Started=()
trap 'kill "${Started[@]}" 2>/dev/null || true; rm -rf "${Folder:?}"' EXIT

# enter_home FOLDER: from now on no program finds anything of the user's, such as the configuration
# of a window manager.
enter_home() {
    (umask 077; mkdir -p "${1:?}/run")
    cd "$1" || exit
    unset "${!XDG_@}"
    export HOME=$PWD XDG_RUNTIME_DIR=$PWD/run
}
enter_home "$Folder"

fail() { echo "FAILED: $*" >&2; exit 1; }

# wait_for WHAT COMMAND...: until the command succeeds. Twenty seconds are much on any machine.
wait_for() {
    local end=$((SECONDS + 20))
    until "${@:2}"; do
        [ $SECONDS -lt $end ] || fail "waited in vain for $1"
        sleep 0.05
    done
}

# expect STATUS OUT ERR ARGUMENT...: how the test's $Program ends, and patterns of bash for what it writes.
expect() {
    local found=0
    "$Program" "${@:4}" >out 2>err || found=$?
    # shellcheck disable=SC2053
    [[ $found = "$1" && $(<out) = $2 && $(<err) = $3 ]] && return
    cat out err
    fail "${*:4}: status $found, not $1, or other words than \"$2\", \"$3\""
}

# expect_full ARGUMENT...: a full disk below standard output is told.
expect_full() {
    local found=0
    "$Program" "$@" >/dev/full 2>err || found=$?
    [[ "$found $(<err)" = '2 '*'standard output'* ]] || fail "full disk, $*: status $found"
}

# expect_too_large TEXT ARGUMENT...: a file that may not grow is told, where no file may.
expect_too_large() {
    local told
    told=$( (ulimit -f 0; "$Program" "${@:2}" 2>&1; echo " $?") )
    [[ $told = "$1: File too large"*' 2' ]] || fail "a file that could not grow: $told"
}

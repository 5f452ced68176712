# shellcheck shell=bash
# A display of its own for a test with a real window, in a scratch folder; to be sourced by bash. All
# that is put into Started ends with the test.

. "${BASH_SOURCE%/*}/ScratchFolder.sh"
Started=()
trap 'kill "${Started[@]}" 2>/dev/null || true; remove_folder' EXIT

# Copies pictures to where they stay after the test, if it has been told a folder for them.
keep() { [ -z "${BRASTEL_WRITABLE:-}" ] || cp "$@" "$BRASTEL_WRITABLE"; }

fail() {
    echo "FAILED: $*; screenshot: ${BRASTEL_WRITABLE:-none}" >&2
    import -window root failed.png && keep failed.png
    exit 1
}

# Runs a command until it succeeds, for at most ten seconds.
wait_for() {
    local what=$1 n
    shift
    for ((n = 0; n < 100; n++)); do
        "$@" && return
        sleep 0.1
    done
    fail "waited in vain for $what"
}

# Starts a display of this size, in pixels, with a window manager.
start_display() {
    Xvfb -displayfd 3 -screen 0 "$1x24" 3>"$Folder/display" >/dev/null 2>&1 &
    Started+=($!)
    wait_for "the display" test -s "$Folder/display"
    DISPLAY=:$(cat "$Folder/display")
    export DISPLAY
    openbox >/dev/null 2>&1 &
    Started+=($!)
    wait_for "the window manager" eval 'xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 0x'
}

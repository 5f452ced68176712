#!/usr/bin/env bash
# What keeps the other tests from doing damage. Argument: the program in_sandbox.
set -euo pipefail

InSandbox=$(realpath "$1")
Helper=$(realpath "$(dirname "$0")/ShellTest.sh")
. "$(dirname "$0")/ShellTest.sh"

TMPDIR=$Folder/none bash -euc ". '$Helper'; true" 2>/dev/null &&
    fail "a test goes on without a scratch folder"

"$InSandbox" --required true || exit 77
mkdir 'to keep'
export BRASTEL_WRITABLE="to keep" BRASTEL_SANDBOX="another one"
"$InSandbox" sh -ec 'cd /; echo kept >"$BRASTEL_WRITABLE/file"; echo lost | tee /dev/null >/tmp/file'
[ "$(cat 'to keep/file')" = kept ] || fail "nothing can be kept"

# only_at OPTION PLACE...: all mounts of a sandbox have the option, but for these, in order.
only_at() {
    local found
    found=$("$InSandbox" awk -v option="$1" '$6 !~ option {print $5}' /proc/self/mountinfo)
    [ "$(sort -u <<<"$found")" = "$(printf '%s\n' "${@:2}")" ] || fail "no $1 at: $found"
}
devices=(/dev/{full,null,pts,random,shm,tty,urandom,zero})
only_at '^ro' "${devices[@]}" /tmp "${Folder// /\\040}/to\\040keep" /var/tmp
only_at nodev "${devices[@]}"

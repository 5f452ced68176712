# shellcheck shell=bash
# Makes a scratch folder the working folder and removes it at the end; to be sourced by a test under
# set -e, which ends the test if there can be no folder. A trap of the test's own must call
# remove_folder.

Folder=$(mktemp -d)
readonly Folder
remove_folder() { rm -rf "${Folder:?}"; }
trap remove_folder EXIT
cd "${Folder:?}" || exit

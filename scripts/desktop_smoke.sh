#!/usr/bin/env bash
# Uses the desktop program as a person would: on a virtual display it opens a picture, makes its
# stereogram, saves it and leaves. Arguments: the folder of the two programs, that of the samples, and
# one for screenshots (optional).
set -euo pipefail
bin=$1
samples=$2
pictures=${3:-}
NAME=desktop
. "$(dirname "$0")/virtual_desktop.sh"

picture() {
  [ -z "$pictures" ] || import -window root "$pictures/$1.png"
}

start_program "$bin/plenovia"
keys alt+f o
wait_for "the open dialog" has_window '^Open$'
xdotool type "$samples/island.png"
keys Return
wait_for "the open dialog to go" has_no_window '^Open$'
sleep 1
picture opened

keys alt+g m
sleep 2
picture made

keys ctrl+s
wait_for "the save dialog" has_window '^Save$'
xdotool type "$work/made.gif"
keys Return
wait_for "the saved stereogram" test -s "$work/made.gif"
sleep 1
"$bin/sirds" make "$samples/island.png" -o "$work/expected.gif" -q
cmp "$work/made.gif" "$work/expected.gif" ||
  fail "the saved stereogram is not that of the command line"

leave_program
grep -q '^X2' "$XDG_CONFIG_HOME/plenovia/PLENOVIA.INI" || fail "the settings were not written"
echo "desktop: opened, made, saved and left"

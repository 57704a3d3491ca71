#!/usr/bin/env bash
# Kills the desktop program while a depth map is being drawn, on a virtual display, and looks whether the
# next start offers the map as it was. Arguments: the folder of the two programs, and one for screenshots
# (optional).
set -euo pipefail
bin=$1
pictures=${2:-}
NAME=crash
. "$(dirname "$0")/virtual_desktop.sh"

picture() {
  [ -z "$pictures" ] || import -window root "$pictures/$1.png"
}
# drag TOOL X Y X Y: places of the display.
drag() {
  keys "$1"
  xdotool mousemove "$2" "$3" mousedown 1 mousemove $((($2 + $4) / 2)) $((($3 + $5) / 2)) \
    mousemove "$4" "$5" mouseup 1
  sleep 0.3
}

start_program "$bin/plenovia"
keys ctrl+n
drag b 400 350 500 450
drag e 420 370 480 430
sleep 4.5 # every change is in a file within five seconds
picture drawn
kill -9 "$program"
wait "$program" 2>/dev/null || true
: >"$work/log" # the shell tells of the kill

start_program "$bin/plenovia"
wait_for "the offer" has_window '^Recovery$'
picture offered
keys alt+y
wait_for "the offer to go" has_no_window '^Recovery$'
sleep 1
picture recovered
keys ctrl+s
wait_for "the save dialog" has_window '^Save$'
xdotool type "$work/again.rds"
keys Return
wait_for "the saved map" test -s "$work/again.rds"
sleep 1
"$bin/sirds" info "$work/again.rds" | grep -qx 'objects: 3' || fail "shapes are missing"
leave_program
[ -z "$(ls -A "$XDG_DATA_HOME/plenovia/recovery")" ] || fail "files are left behind"

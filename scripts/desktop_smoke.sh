#!/usr/bin/env bash
# Uses the desktop program as a person would: on a virtual display with a window manager it opens a
# picture, makes its stereogram, saves it and leaves. Arguments: the folder of the two programs, and
# a folder for screenshots (optional).
set -euo pipefail
bin=$1
pictures=${2:-}
root=$(cd "$(dirname "$0")/.." && pwd)

work=$(mktemp -d)
mkdir -m 700 "$work/config" "$work/runtime"
export XDG_CONFIG_HOME=$work/config XDG_DATA_HOME=$work/data XDG_RUNTIME_DIR=$work/runtime
cleanup() {
  kill $(jobs -p) 2>/dev/null || true
  wait 2>/dev/null || true
  rm -rf "$work"
}
trap cleanup EXIT

mkfifo "$work/display"
Xvfb -displayfd 3 -screen 0 1280x1000x24 3>"$work/display" >/dev/null 2>&1 &
read -r number <"$work/display"
export DISPLAY=:$number

# wait_for WHAT COMMAND...: until the command succeeds, at most half a minute.
wait_for() {
  local what=$1
  shift
  for _ in $(seq 150); do
    if "$@" >/dev/null 2>&1; then return 0; fi
    sleep 0.2
  done
  echo "desktop: waited in vain for $what" >&2
  exit 1
}
has_window() { [ -n "$(xdotool search --onlyvisible --name "$1")" ]; }
has_no_window() { ! has_window "$1"; }
picture() {
  [ -z "$pictures" ] || import -window root "$pictures/$1.png"
}
keys() {
  local key
  for key in "$@"; do
    xdotool key --clearmodifiers "$key"
    sleep 0.3
  done
}

openbox >/dev/null 2>&1 &
wait_for "the window manager" xdotool get_num_desktops
"$bin/plenovia" >"$work/log" 2>&1 &
program=$!
wait_for "the frame" has_window '^Plenovia$'
xdotool windowactivate --sync "$(xdotool search --onlyvisible --name '^Plenovia$' | tail -1)"
sleep 1

keys alt+f o
wait_for "the open dialog" has_window '^Open$'
xdotool type "$root/samples/island.png"
keys Return
wait_for "the open dialog to go" has_no_window '^Open$'
sleep 1
picture opened

keys alt+g m
sleep 2
picture made

# Two items of the menu begin with S.
keys alt+f s Return
wait_for "the save dialog" has_window '^Save$'
xdotool type "$work/made.gif"
keys Return
wait_for "the saved stereogram" test -s "$work/made.gif"
sleep 1
"$bin/sirds" make "$root/samples/island.png" -o "$work/expected.gif" -q
cmp "$work/made.gif" "$work/expected.gif" ||
  { echo "desktop: the saved stereogram is not that of the command line" >&2; exit 1; }

keys alt+f x
wait_for "the program to end" bash -c "! kill -0 $program"
wait "$program"
grep -q '^X2' "$XDG_CONFIG_HOME/plenovia/PLENOVIA.INI" ||
  { echo "desktop: the settings were not written" >&2; exit 1; }
if [ -s "$work/log" ]; then
  echo "desktop: the program complained:" >&2
  cat "$work/log" >&2
  exit 1
fi
echo "desktop: opened, made, saved and left"

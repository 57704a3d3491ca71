# Sourced by the scripts that use the desktop program as a person would: starts a virtual display with
# a window manager, for a user with no settings yet. Everything is gone when the script ends.
#   work           a folder for the script's files
#   NAME           of the check, for its messages

work=$(mktemp -d)
mkdir -m 700 "$work/config" "$work/runtime"
export XDG_CONFIG_HOME=$work/config XDG_DATA_HOME=$work/data XDG_RUNTIME_DIR=$work/runtime
cleanup() {
  kill $(jobs -p) 2>/dev/null || true
  wait 2>/dev/null || true
  rm -rf "$work"
}
trap cleanup EXIT

fail() {
  echo "$NAME: $1" >&2
  exit 1
}

# wait_for WHAT COMMAND...: until the command succeeds, at most half a minute.
wait_for() {
  local what=$1
  shift
  for _ in $(seq 150); do
    if "$@" >/dev/null 2>&1; then return 0; fi
    sleep 0.2
  done
  fail "waited in vain for $what"
}
has_window() { [ -n "$(xdotool search --onlyvisible --name "$1")" ]; }
has_no_window() { ! has_window "$1"; }
has_ended() { ! kill -0 "$1"; }
keys() {
  local key
  for key in "$@"; do
    xdotool key --clearmodifiers "$key"
    sleep 0.3
  done
}

# start_program PROGRAM [ARGUMENT...]: until its frame is there and hears the keyboard.
start_program() {
  "$@" >>"$work/log" 2>&1 &
  program=$!
  wait_for "the frame" has_window '^Plenovia$'
  xdotool windowactivate --sync "$(xdotool search --onlyvisible --name '^Plenovia$' | tail -1)"
  sleep 1
}

# It must end well and must have complained of nothing.
leave_program() {
  keys alt+f x
  wait_for "the program to end" has_ended "$program"
  wait "$program"
  if [ -s "$work/log" ]; then
    cat "$work/log" >&2
    fail "the program complained"
  fi
}

mkfifo "$work/display"
# Without -noreset it starts anew when the first question has been answered, and may miss the next.
Xvfb -noreset -displayfd 3 -screen 0 1280x1000x24 3>"$work/display" >/dev/null 2>&1 &
read -r number <"$work/display"
export DISPLAY=:$number
openbox >/dev/null 2>&1 &
wait_for "the window manager" xdotool get_num_desktops

#!/usr/bin/env bash
# on_display.sh PROGRAM [ARGUMENT...]: runs a test on a virtual display with a window manager. Exit
# status 77 where there are no such programs.
set -euo pipefail
for needed in Xvfb openbox xdotool; do
  command -v "$needed" >/dev/null || exit 77
done
NAME=$(basename "$1")
. "$(dirname "$0")/virtual_desktop.sh"
"$@"

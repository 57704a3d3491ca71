#!/usr/bin/env bash
# Builds the program and opens it; arguments go to it. Without a display it makes a sample
# stereogram instead and says where. Installs what it needs.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/packages.sh
has_display=
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  has_display=yes
fi

# build PRESET [OPTION...]: quietly, with a log to look at when it fails.
build() {
  local preset=$1 log=build/run.log
  mkdir -p build
  echo "Building (the first time takes some minutes; the log is $log) ..."
  if ! { cmake --preset "$@" && cmake --build --preset "$preset"; } >"$log" 2>&1; then
    tail -n 30 "$log" >&2
    echo "The build failed." >&2
    exit 1
  fi
}

if [ "$has_display" ]; then
  need_packages "${build_packages[@]}"
  build run
  exec build/run/bin/plenovia "$@"
fi

need_packages "${core_packages[@]}"
build headless -DPLENOVIA_TESTS=OFF
sirds=build/headless/bin/sirds
sample=samples/island.png
result=build/sample-stereogram.png
"$sirds" make "$sample" -o "$result"
echo "There is no display to open the program on, but here is what it makes:"
echo "A stereogram of $sample is in $PWD/$result"
echo "Look through it, as at something far behind the screen, until the two squares become three."
echo "More: $sirds --help"

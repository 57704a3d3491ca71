#!/usr/bin/env bash
# Builds the program and makes a sample stereogram with it. Installs what it needs.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/packages.sh
need_packages "${build_packages[@]}"

log=build/run.log
mkdir -p build
echo "Building (the first time takes a minute; the log is $log) ..."
if ! { cmake --preset headless -DPLENOVIA_TESTS=OFF && cmake --build --preset headless; } >"$log" 2>&1; then
  tail -n 30 "$log" >&2
  echo "The build failed." >&2
  exit 1
fi

sirds=build/headless/bin/sirds
sample=samples/island.png
result=build/sample-stereogram.png
"$sirds" make "$sample" -o "$result"
echo "A stereogram of $sample is in $PWD/$result"
echo "Look through it, as at something far behind the screen, until the two squares become three."
echo "More: $sirds --help"

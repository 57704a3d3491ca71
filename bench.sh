#!/usr/bin/env bash
# Builds and runs every benchmark and prints their figures. Installs what it needs.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/packages.sh
need_packages "${build_packages[@]}" "${test_packages[@]}"

mkdir -p build
log=build/bench.log
if ! { cmake --preset release && cmake --build --preset release; } >"$log" 2>&1; then
  tail -n 30 "$log" >&2
  exit 1
fi
for program in scan_methods make depth_map map_picture figures reveal colour_reducer; do
  build/release/bench/bench_$program
  echo
done

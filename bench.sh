#!/usr/bin/env bash
# Builds and runs every benchmark and prints their figures as one Markdown table. Installs what it
# needs. Takes some minutes, and a machine that does nothing else.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/packages.sh
need_packages "${build_packages[@]}" "${test_packages[@]}"

mkdir -p build
log=build/bench.log
if ! { cmake --preset release -DPLENOVIA_BENCH=ON && cmake --build --preset release; } >"$log" 2>&1; then
  tail -n 30 "$log" >&2
  exit 1
fi
: >"$log"
if [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  export QT_QPA_PLATFORM=offscreen
fi
# The desktop program starts as it does for a new user, and leaves no settings behind.
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
export XDG_CONFIG_HOME=$home XDG_DATA_HOME=$home

echo "| what | figure | compared with | figure | ratio |"
echo "|---|---:|---|---:|---|"
for program in desktop_start waits desktop_runs live_view scan_methods make depth_map map_picture figures \
  reveal colour_reducer; do
  build/release/bench/bench_$program 2>>"$log"
done

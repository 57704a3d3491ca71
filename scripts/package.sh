#!/usr/bin/env bash
# Makes the Debian package of the programs and says where it is. Installs what it needs.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh
need_packages "${build_packages[@]}" "${package_packages[@]}"

mkdir -p build
log=build/package.log
if ! { cmake --preset run && cmake --build --preset run &&
  cpack --config build/run/CPackConfig.cmake -B build/package; } >"$log" 2>&1; then
  tail -n 30 "$log" >&2
  echo "The package could not be made; the log is $log." >&2
  exit 1
fi
echo "The package is $(ls -t build/package/*.deb | head -n 1)"
echo "To install it: apt install ./$(ls -t build/package/*.deb | head -n 1)"

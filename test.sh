#!/usr/bin/env bash
# Builds everything and runs all tests. Installs what it needs.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/packages.sh
need_packages "${build_packages[@]}" "${test_packages[@]}"

cmake --preset release ${CI:+-DPLENOVIA_WERROR=ON}
cmake --build --preset release
ctest --preset release

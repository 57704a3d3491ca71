#!/usr/bin/env bash
# What ./test.sh leaves out: the format, a build with Clang, the tests under the sanitizers, the desktop
# program in a real window, the Debian package installed and removed again, and every fuzz target for some
# seconds. Installs what it needs.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh
need_packages "${build_packages[@]}" "${test_packages[@]}" "${check_packages[@]}" "${display_packages[@]}"
seconds=${FUZZ_SECONDS:-10}

echo "== format"
git ls-files '*.cpp' '*.h' | xargs clang-format-14 --dry-run --Werror

echo "== Clang"
cmake --preset clang -DPLENOVIA_WERROR=ON
cmake --build --preset clang

echo "== clang-tidy"
git ls-files '*.cpp' | grep -vE '/tests/|^fuzz/' |
  xargs -P "$(nproc)" -n 4 clang-tidy-14 -p build/clang --quiet 2>/dev/null

echo "== sanitizers"
cmake --preset asan
cmake --build --preset asan
ctest --preset asan

echo "== thread sanitizer"
cmake --preset tsan
cmake --build --preset tsan
ctest --preset tsan

echo "== the desktop program on a virtual display"
scripts/desktop_smoke.sh build/release/bin samples
scripts/crash_recovery.sh build/release/bin

echo "== the Debian package"
scripts/package_check.sh build/release

echo "== fuzz targets, $seconds seconds each"
cmake --preset fuzz
cmake --build --preset fuzz --target fuzz_targets
for target in build/fuzz/fuzz/fuzz_*; do
  [ -x "$target" ] && [ -f "$target" ] || continue
  name=${target##*/fuzz_}
  found=$(mktemp -d)
  echo "-- $name"
  "$target" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=1024 -print_final_stats=1 \
    -artifact_prefix="$found/" "$found" "fuzz/corpus/$name" 2>"$found.log" ||
    { tail -n 40 "$found.log"; exit 1; }
  grep -E 'number_of_executed_units' "$found.log"
  rm -r "$found" "$found.log"
done
echo "All checks passed."

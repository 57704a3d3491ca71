#!/usr/bin/env bash
# Which share of the lines the tests run, room by room; the lines never run are listed in
# build/coverage/lines.txt. Fails when the cores are below 90 % or the windows below 75 %.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh
need_packages "${build_packages[@]}" "${test_packages[@]}" gcovr python3

cmake --preset coverage
cmake --build --preset coverage
find build/coverage -name '*.gcda' -delete
# Limits of time do not hold in so slow a build.
ctest --preset coverage || echo "coverage: counted nevertheless"

gcovr --root . --object-directory build/coverage --exclude-unreachable-branches --exclude-throw-branches \
  --exclude '(.*/)?(tests|testing|bench|fuzz|build)/.*' --exclude 'samples/|sirdspat/' \
  --txt build/coverage/lines.txt --json-summary build/coverage/summary.json

python3 - build/coverage/summary.json <<'PYTHON'
import collections
import json
import sys

rooms = collections.defaultdict(lambda: [0, 0])
for file in json.load(open(sys.argv[1]))["files"]:
    room = file["filename"].rsplit("/", 1)[0]
    windows = room == "app" or room.endswith("/ui")
    for name in (room, "all windows" if windows else "all cores"):
        rooms[name][0] += file["line_covered"]
        rooms[name][1] += file["line_total"]

share = {name: 100 * covered / lines for name, (covered, lines) in rooms.items()}
for name in sorted(rooms):
    print(f"{name:14} {rooms[name][1]:6} lines {share[name]:6.1f} %")
sys.exit(share["all cores"] < 90 or share["all windows"] < 75)
PYTHON

#!/usr/bin/env bash
# make_gallery.sh SIRDS: makes the pictures of the gallery with the commands in gallery.md, and finds
# their depth again.
set -euo pipefail
sirds=$(realpath "$1")
cd "$(dirname "$0")/.."
grep '^sirds make ' docs/gallery.md | while read -r _ command source _ name options; do
  picture=docs/gallery/$name
  # shellcheck disable=SC2086 # the options are words
  "$sirds" "$command" "$source" -o "$picture" $options
  printf '%s ' "$name"
  "$sirds" reveal "$picture" -o "${picture%.png}-revealed.png"
done

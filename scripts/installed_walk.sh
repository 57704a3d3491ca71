#!/usr/bin/env bash
# Uses the installed programs as a user who may write to none of their folders: a depth map that is
# double-clicked becomes a stereogram, and a pattern cut out of it is still there after a restart.
set -euo pipefail
NAME=installed
. "$(dirname "$0")/virtual_desktop.sh"

samples=/usr/share/plenovia/samples
[ ! -w /usr/share/plenovia/sirdspat ] || fail "this user may write to the program's folders"
[ "$(sirds patterns | wc -l)" = 20 ] || fail "the patterns are not found"
sirds make "figure:Trefoil" -o "$work/figure.png" -q

# As the double click of a file manager does it; the program is no child of the shell then.
start_program gio open "$samples/castle.rds"
program=$(pgrep -x -u "$(id -u)" plenovia)
keys alt+g m
sleep 2
keys alt+g p
wait_for "the pattern dialog" has_window '^Select Pattern$'
keys Tab Tab Tab space  # Next, Prev, Add
added=$XDG_DATA_HOME/plenovia/sirdspat/pat20.gif
wait_for "the added pattern" test -s "$added"
keys Tab Tab Tab Return  # Delete, Undo, OK
wait_for "the pattern dialog to go" has_no_window '^Select Pattern$'
keys alt+f x
wait_for "the question of the unsaved stereogram" has_window '^Confirm$'
keys alt+n
wait_for "the program to end" has_ended "$program"

start_program plenovia
keys alt+h i
wait_for "the help" has_window '^Plenovia Help$'
keys alt+F4
wait_for "the help to go" has_no_window '^Plenovia Help$'
leave_program
grep -q '^Count=21' "$XDG_CONFIG_HOME/plenovia/PLENOVIA.INI" || fail "the added pattern is lost"
sirds make "$samples/castle.rds" --pattern 20 -o "$work/castle.png" -q
echo "installed: a map double-clicked, its stereogram made, a pattern added and kept"

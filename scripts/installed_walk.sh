#!/usr/bin/env bash
# Uses the installed programs as a user who may write to none of their folders: a depth map named on
# the command line becomes a stereogram, and a pattern cut out of it is still there after a restart.
set -euo pipefail
NAME=installed
. "$(dirname "$0")/virtual_desktop.sh"

samples=/usr/share/plenovia/samples
[ ! -w /usr/share/plenovia/sirdspat ] || fail "this user may write to the program's folders"
[ "$(sirds patterns | wc -l)" = 20 ] || fail "the patterns are not found"
sirds make "figure:Trefoil" -o "$work/figure.png" -q

start_program plenovia "$samples/castle.rds"
keys alt+g m
sleep 2
keys alt+g p
wait_for "the pattern dialog" has_window '^Select Pattern$'
keys Tab Tab Tab Tab space  # OK, Cancel, Next, Prev, Add
added=$XDG_DATA_HOME/plenovia/sirdspat/pat20.gif
wait_for "the added pattern" test -s "$added"
keys Tab Tab Return  # Delete, OK
wait_for "the pattern dialog to go" has_no_window '^Select Pattern$'
keys alt+f x
wait_for "the question of the unsaved stereogram" has_window '^Confirm$'
keys alt+n
wait_for "the program to end" has_ended "$program"

start_program plenovia
leave_program
grep -q '^Count=21' "$XDG_CONFIG_HOME/plenovia/PLENOVIA.INI" || fail "the added pattern is lost"
sirds make "$samples/castle.rds" --pattern 20 -o "$work/castle.png" -q
echo "installed: a map opened, its stereogram made, a pattern added and kept"

#!/usr/bin/env bash
# Settings that are missing or damaged: a line each, the default, and never a crash.
source "$(dirname "$0")/harness.sh"
start_display

mv "$GAME/config.txt" "$WORK/good"
start_game
wait_line 'config.txt - no such file or directory'
code=0
wait "$PID" || code=$?
PID=''
[ "$code" != 0 ] && [ "$code" -lt 128 ] || fail "a missing config.txt ended with $code"

: >"$GAME/config.txt"
start_game
wait_window
grep -q 'bad value in modifier WINDOW_WIDTH' "$WORK/out" || fail "an empty config.txt was not told"
quit_by_keys

sed 's/^WINDOW_WIDTH .*/WINDOW_WIDTH wide\r/; s/^BRIGHTNESS .*/BRIGHTNESS much\r/' "$WORK/good" >"$GAME/config.txt"
start_game
wait_window
grep -q 'bad value in modifier WINDOW_WIDTH' "$WORK/out" || fail "a word for a number was not told"
quit_by_keys

tr -d '\r' <"$WORK/good" >"$GAME/config.txt"
start_game
wait_window
quit_by_keys

sed 's/^WINDOW_WIDTH .*/WINDOW_WIDTH 400\r/; s/^WINDOW_HEIGHT .*/WINDOW_HEIGHT 300\r/' "$WORK/good" >"$GAME/config.txt"
start_game
wait_window
grep -q 'a window of 400 by 300 is too small' "$WORK/out" || fail "the small window was not told"
quit_by_keys
grep -q 'WINDOW_WIDTH 400' "$GAME/config.txt" || fail "the size in the settings was changed"

sed 's/^WINDOW_WIDTH .*/WINDOW_WIDTH -1\r/' "$WORK/good" >"$GAME/config.txt"
start_game
wait_window
grep -q 'WINDOW_WIDTH -1' "$GAME/config.txt" && fail "the chosen size was not stored"
quit_by_keys

#!/usr/bin/env bash
# The program opens its window, draws the level, ends by left Alt and F4 and keeps its settings.
source "$(dirname "$0")/harness.sh"
begin_in_chapter 1

start_display
printf 'BRIGHTNESS 1.25\r\nUNKNOWN 7\r\n' >>"$GAME/config.txt"
sed -i '/^BRIGHTNESS 1.0/d' "$GAME/config.txt"
start_game
wait_window

for _ in $(seq 60); do # the picture fades up from black
    [ "$(brightness_of 100%x100%+0+0)" -gt 5 ] && break
    sleep 0.5
done
[ "$(brightness_of 100%x100%+0+0)" -gt 5 ] || fail "the level is black"
[ "$(brightness_of 100%x100%+0+0)" -lt 95 ] || fail "the level is white"
shot "$WORK/first.png"
xdotool keydown d
sleep 1.5
xdotool keyup d
shot "$WORK/second.png"
[ "$(different "$WORK/first.png" "$WORK/second.png")" -gt 5000 ] || fail "the character did not walk"

# The right Alt key is no way out.
xdotool keydown 108 keydown F4 # keycode of the right Alt
sleep 0.5
xdotool keyup F4 keyup 108
kill -0 "$PID" || fail "right Alt and F4 ended the program"

quit_by_keys
grep -q $'^BRIGHTNESS 1.25\r$' "$GAME/config.txt" || fail "BRIGHTNESS was not kept"
grep -q $'^UNKNOWN 7\r$' "$GAME/config.txt" || fail "a line of the user's was lost"
grep -q 'SteamAPI_Init() fail' "$WORK/out" || fail "the missing store was not told"

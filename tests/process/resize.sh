#!/usr/bin/env bash
# A window of another shape gets bars; closing it by the window manager keeps the settings.
source "$(dirname "$0")/harness.sh"
begin_in_chapter 1

start_display
start_window_manager
start_game
wait_window
sleep 3 # the picture fades up from black

xdotool windowsize --sync "$WINDOW" 800 1000
sleep 2
full=$(brightness_of 800x440+0+280)
top=$(brightness_of 800x200+0+10)
bottom=$(brightness_of 800x200+0+780)
[ "$top" != "$full" ] && [ "$bottom" != "$full" ] || fail "no bars above and below ($top $full $bottom)"

xdotool windowsize --sync "$WINDOW" 1500 600
sleep 2
left=$(brightness_of 250x580+5+10)
middle=$(brightness_of 900x580+300+10)
[ "$left" != "$middle" ] || fail "no bars at the sides ($left $middle)"

# Minimised and back: the program goes on.
xdotool windowminimize "$WINDOW"
sleep 1
xdotool windowmap "$WINDOW"
sleep 1
kill -0 "$PID" || fail "minimising ended the program"

rm "$GAME/config.txt"
xdotool windowactivate --sync "$WINDOW" key --clearmodifiers alt+F4
expect_exit 0
grep -q WINDOW_WIDTH "$GAME/config.txt" || fail "closing did not save the settings"

#!/usr/bin/env bash
# A window of another shape gets bars; closing it by the window manager keeps the settings.
source "$(dirname "$0")/harness.sh"
begin_in_chapter 1

start_display
start_window_manager
start_game
wait_window
sleep 3 # the picture fades up from black

# Whether these two parts of the window differ from the middle; slow frames may take a while.
has_bars() { # PART PART MIDDLE
    for _ in $(seq 20); do
        sleep 0.5
        first=$(brightness_of "$1") second=$(brightness_of "$2") middle=$(brightness_of "$3")
        [ "$first" != "$middle" ] && [ "$second" != "$middle" ] && return
    done
    fail "no bars: $first, $second, and $middle in the middle"
}

xdotool windowsize --sync "$WINDOW" 800 1000
has_bars 800x200+0+10 800x200+0+780 800x440+0+280

xdotool windowsize --sync "$WINDOW" 1500 600
has_bars 250x580+5+10 250x580+1245+10 900x580+300+10

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

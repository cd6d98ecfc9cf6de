#!/usr/bin/env bash
# The menu by mouse and keyboard: the page, each row of the options, a key of one's own, a chapter,
# the pause, and both ways to quit.
source "$(dirname "$0")/harness.sh"

WIDTH=1024 # of the window, 16 to 10, so that there are no bars
start_display 1280x800x24
sed -i "s/^WINDOW_WIDTH .*/WINDOW_WIDTH $WIDTH\r/; s/^WINDOW_HEIGHT .*/WINDOW_HEIGHT 640\r/" "$GAME/config.txt"
mkdir "$WORK/bin"
printf '#!/bin/sh\necho "$1" >>"%s"\n' "$WORK/pages" >"$WORK/bin/xdg-open"
chmod +x "$WORK/bin/xdg-open"
export PATH=$WORK/bin:$PATH

# Places are those of the logical screen: 1280 by 800, y up. The pauses are for slow frames.
click() { # X Y
    xdotool mousemove --window "$WINDOW" $(($1 * WIDTH / 1280)) $(((800 - $2) * WIDTH / 1280)) \
        2>/dev/null || return 0 # the program has ended; whether it should have is asked later
    sleep 0.4
    xdotool mousedown 1
    sleep 0.2
    xdotool mouseup 1
    sleep 0.6
}

tap() { # KEY
    xdotool keydown "$1"
    sleep 0.4
    xdotool keyup "$1"
    sleep 0.4
}

has_setting() { # LINE
    grep -q "^$1"$'\r$' "$GAME/config.txt"
}

# Tries a step again until the settings have the line: the first tries may fall into a fade.
until_setting() { # LINE STEP
    for _ in $(seq 25); do
        $2
        has_setting "$1" && return
    done
    fail "no '$1' by '$2'"
}

MENU_X=1050
OPTIONS_Y=460 CONTROLS_Y=424 CHAPTERS_Y=496 QUIT_Y=352
PAUSE_X=1070 PAUSE_MENU_Y=436 PAUSE_QUIT_Y=400

pass_the_start() { tap space; open_options; click 422 490; }
open_options() { click $MENU_X $OPTIONS_Y; }
choose_fullscreen() { open_options; click 365 516; }
choose_window() { open_options; click 470 516; }
choose_vsync() { open_options; click 365 464; }
choose_polish() { open_options; click 570 568; }
choose_resolution() { open_options; click 120 386; }
bind_left() {
    click $MENU_X $CONTROLS_Y
    click 290 620
    tap j
}
leave_a_level_for_the_menu() {
    tap space
    tap Escape
    click $PAUSE_X $PAUSE_MENU_Y
    sleep 4
    open_options
    click 470 464
}

start_game
wait_window
until_setting 'MULTISAMPLE 4' pass_the_start
until_setting 'FULLSCREEN 1' choose_fullscreen
until_setting 'FULLSCREEN 0' choose_window
until_setting 'V_SYNC 1' choose_vsync
until_setting 'LANGUAGE_FILE lang_pol.txt' choose_polish
until_setting 'KEYLEFT J' bind_left
until_setting 'WINDOW_WIDTH 1280' choose_resolution
WIDTH=1280
sleep 2
size=$(xdotool getwindowgeometry "$WINDOW" | sed -n 's/.*Geometry: //p')
[ "$size" = 1280x800 ] || fail "the window is $size"

# Into the first chapter, out of it by the pause, and out of the program.
click $MENU_X $CHAPTERS_Y
click 170 637
until_setting 'V_SYNC 0' leave_a_level_for_the_menu
click $MENU_X $QUIT_Y
expect_exit 0

# The page stands under the news; how far, the news say. The program keeps what was chosen.
start_game
wait_window
for _ in $(seq 8); do
    tap space
    for height in $(seq 540 -20 360); do
        click 150 "$height"
        [ -e "$WORK/pages" ] && break 2
    done
done
grep -q '^https://' "$WORK/pages" || fail "the page was not opened"
has_setting 'KEYLEFT J' || fail "the key was lost"

# A new game, and the other way to quit.
click $MENU_X 532
for _ in $(seq 60); do
    tap space
    tap Escape
    click $PAUSE_X $PAUSE_QUIT_Y
    kill -0 "$PID" 2>/dev/null || break
done
expect_exit 0

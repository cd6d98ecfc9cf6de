# Helpers of the process tests, which drive the real program under a virtual display. Sourced by
# each test with the built run directory as its first argument.
set -euo pipefail

BUILT=$(realpath "$1")
WORK=$(mktemp -d)
GAME=$WORK/game
mkdir "$GAME"
export SDL_AUDIODRIVER=dummy LIBGL_ALWAYS_SOFTWARE=1

# A run directory of its own: links to the assets, a copy of what the game writes.
for entry in "$BUILT"/*; do
    case $(basename "$entry") in
        config.txt | save | maps | data) cp -r "$entry" "$GAME" ;;
        *) ln -s "$entry" "$GAME" ;;
    esac
done
sed -i 's/^V_SYNC .*/V_SYNC 0\r/' "$GAME/config.txt"

# Instead of at the start screen, the game begins in a level.
begin_in_chapter() { # NUMBER
    printf 'START_CHAPTER %d\r\n' "$1" >>"$GAME/config.txt"
}

PID='' XVFB=''
cleanup() {
    [ -z "${KEEP_OUT:-}" ] || cp "$WORK/out" "$KEEP_OUT"
    [ -z "$PID" ] || kill "$PID" 2>/dev/null || true
    [ -z "$XVFB" ] || kill "$XVFB" 2>/dev/null || true
    rm -rf "$WORK"
}
trap cleanup EXIT

fail() {
    echo "FAILED: $*"
    [ -e "$WORK/out" ] && tail -n 30 "$WORK/out"
    exit 1
}

start_display() { # [SCREEN]
    exec 6>"$WORK/display"
    Xvfb -displayfd 6 -screen 0 "${1:-1600x1200x24}" -nolisten tcp >/dev/null 2>&1 &
    XVFB=$!
    for _ in $(seq 100); do
        [ -s "$WORK/display" ] && break
        sleep 0.1
    done
    DISPLAY=:$(cat "$WORK/display")
    export DISPLAY
}

# Returns when it works: a window that asks to be shown while it starts may never be.
start_window_manager() {
    openbox >/dev/null 2>&1 &
    for _ in $(seq 100); do
        xdotool get_num_desktops >/dev/null 2>&1 && return
        sleep 0.1
    done
    fail "no window manager"
}

start_game() {
    cd "$GAME"
    "$BUILT/tolmere" >"$WORK/out" 2>&1 </dev/null &
    PID=$!
    cd - >/dev/null
}

# Sets WINDOW once the window is there and has drawn for a while.
wait_window() {
    WINDOW=$(timeout 60 xdotool search --sync --onlyvisible --name '^Tolmere$' | head -n 1) ||
        fail "no window"
    wait_line '^FPS: ' 
}

wait_line() { # PATTERN [SECONDS]
    for _ in $(seq $((10 * ${2:-60}))); do
        grep -qE -- "$1" "$WORK/out" && return
        kill -0 "$PID" 2>/dev/null || break
        sleep 0.1
    done
    grep -qE -- "$1" "$WORK/out" || fail "no line like '$1'"
}

expect_exit() { # CODE
    local code=0
    for _ in $(seq 600); do
        kill -0 "$PID" 2>/dev/null || break
        sleep 0.1
    done
    kill -0 "$PID" 2>/dev/null && fail "still running"
    wait "$PID" || code=$?
    PID=''
    [ "$code" = "$1" ] || fail "exit code $code instead of $1"
}

quit_by_keys() {
    xdotool keydown Alt_L keydown F4
    expect_exit 0
    xdotool keyup F4 keyup Alt_L
}

shot() { # FILE
    import -window "$WINDOW" "$1"
}

# Mean brightness, 0 to 100, of a part of the window: WIDTHxHEIGHT+X+Y.
brightness_of() {
    shot "$WORK/shot.png"
    convert "$WORK/shot.png" -crop "$1" -colorspace Gray -format '%[fx:int(mean*100+0.5)]' info:
}

different() { # FILE FILE: percentage of pixels that differ
    compare -metric AE -fuzz 5% "$1" "$2" null: 2>&1 | awk '{print int($1)}' || true
}

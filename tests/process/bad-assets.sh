#!/usr/bin/env bash
# Assets that are missing or damaged, and no display: a clear line and an orderly end, or play goes on.
source "$(dirname "$0")/harness.sh"
begin_in_chapter 1

# No display at all.
unset DISPLAY WAYLAND_DISPLAY || true
start_game
wait_line '[Dd]isplay'
code=0
wait "$PID" || code=$?
PID=''
[ "$code" = 255 ] || fail "without a display the program ended with $code"

start_display
map=$GAME/maps/CHAPTER1.vkl
cp "$map" "$WORK/map"
ended_with() { # PATTERN
    start_game
    wait_line "$1"
    expect_exit 0
}

rm "$map"
ended_with 'CHAPTER1.vkl - no such file or directory'
: >"$map"
ended_with 'file corrupted'
echo 'this was never packed' >"$map"
ended_with 'file corrupted'
head -c 3000 "$WORK/map" >"$map"
ended_with 'file corrupted'
cp "$WORK/map" "$map"

# Pictures: missing, cut short, of one pixel; a language file that is not there.
rm "$GAME/data/particle7.tga"
head -c 500 "$BUILT/data/stone.tga" >"$GAME/data/stone.tga"
: >"$GAME/data/brick.tga"
printf '\0\0\2\0\0\0\0\0\0\0\0\0\1\0\1\0\30\0abc' >"$GAME/data/moss.tga"
printf '\0\0\2\0\0\0\0\0\0\0\0\0\377\377\377\377\30\0abc' >"$GAME/data/roots.tga"
rm "$GAME/lang_eng.txt"
rmdir "$GAME/save" 2>/dev/null || rm -rf "$GAME/save"
start_game
wait_window
for name in stone brick roots; do
    grep -q "Brak pliku $name.tga" "$WORK/out" || fail "$name.tga was not told"
done
grep -q 'Brak pliku moss.tga' "$WORK/out" && fail "a picture of one pixel was refused"
[ -d "$GAME/save" ] || fail "no save folder was made"
quit_by_keys

#!/usr/bin/env bash
# Shows a program on a virtual display of its own and saves a picture of its window.
#   tools/picture.sh PICTURE.png PROGRAM [ARGUMENTS...]
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

picture=$1
shift

scratch=$(mktemp -d)
pids=()
trap 'for pid in "${pids[@]}"; do kill "$pid" 2>/dev/null || true; done; wait; rm -rf "$scratch"' EXIT

# await SECONDS COMMAND...: until the command succeeds.
await() {
    local until=$((SECONDS + $1))
    shift
    until "$@" 2>/dev/null; do
        [ "$SECONDS" -lt "$until" ] || return 1
        pause 0.1
    done
}

Xvfb -displayfd 3 -screen 0 1280x900x24 -dpi 96 -nolisten tcp -noreset 3>"$scratch/display" 2>"$scratch/xvfb.log" &
pids+=($!)
await 20 test -s "$scratch/display" || fail "The virtual display did not start: $(cat "$scratch/xvfb.log")"
DISPLAY=:$(cat "$scratch/display")
export DISPLAY
openbox --sm-disable >"$scratch/openbox.log" 2>&1 &
pids+=($!)
window_manager_is_there() {
    xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 'window id'
}
await 20 window_manager_is_there || fail "The window manager did not start: $(cat "$scratch/openbox.log")"

"$@" >"$scratch/program.log" 2>&1 &
program=$!
pids+=("$program")
find_window() {
    kill -0 "$program" 2>/dev/null || fail "$1 ended without showing a window: $(cat "$scratch/program.log")"
    window=$(xdotool search --onlyvisible --pid "$program" | tail -n 1)
    [ -n "$window" ]
}
await 30 find_window "$1" || fail "$1 showed no window: $(cat "$scratch/program.log")"

# The window is painted when two pictures in a row are the same and hold more than one colour.
is_painted() {
    import -window root "$scratch/now.png"
    [ "$(identify -format '%k' "$scratch/now.png")" -gt 16 ] && cmp -s "$scratch/now.png" "$scratch/before.png" && return
    mv "$scratch/now.png" "$scratch/before.png"
    pause 0.3
    return 1
}
await 30 is_painted || fail "The window was never painted."
# With the frame that the window manager drew round it.
read -r x y width height <<<"$(xwininfo -id "$window" |
    awk '/Absolute/ { printf "%s ", $4 } /Width|Height/ { printf "%s ", $2 }')"
read -r left right top bottom <<<"$(xprop -id "$window" _NET_FRAME_EXTENTS | sed 's/.*= //; s/,//g')"
convert "$scratch/now.png" -crop \
    "$((width + left + right))x$((height + top + bottom))+$((x - left))+$((y - top))" +repage "$picture"

#!/usr/bin/env bash
# Opens a page on a virtual display of its own and writes a picture of it: screenshot.sh PROGRAM PAGE PICTURE [SIZE]
# The settings of whoever runs it are left alone.
set -eu
program=$1 page=$2 picture=$3 size=${4:-1280x800}

home=$(mktemp -d)
started=()
finish() {
    for id in "${started[@]}"; do
        kill "$id" 2>/dev/null || true
        wait "$id" 2>/dev/null || true
    done
    rm -rf "$home"
}
trap finish EXIT

export XDG_CONFIG_HOME=$home/config XDG_DATA_HOME=$home/data XDG_RUNTIME_DIR=$home/runtime TARNWICK_HOME=$home/own
mkdir -p -m 700 "$XDG_RUNTIME_DIR" "$XDG_CONFIG_HOME/tarnwick"
# Not the first run: no Options dialog stands in front of the page.
printf '[Window%%20Options]\nFirstTimeAgain=1\nMainWindowState=2\n' >"$XDG_CONFIG_HOME/tarnwick/The Tarnwick.ini"

mkfifo "$home/display"
Xvfb -displayfd 4 -screen 0 "${size}x24" -nolisten tcp 4>"$home/display" >/dev/null 2>&1 &
started+=($!)
read -r number <"$home/display"
export DISPLAY=:$number QT_QPA_PLATFORM=xcb
unset WAYLAND_DISPLAY
openbox >/dev/null 2>&1 &
started+=($!)
"$program" "$page" >"$home/log" 2>&1 &
started+=($!)
program_id=$!

# The frame is up once a window of the program is visible and its page is on the screen.
for attempt in $(seq 150); do
    if ! kill -0 "$program_id" 2>/dev/null; then
        cat "$home/log" >&2
        echo "The program ended before it showed its window." >&2
        exit 1
    fi
    window=$(xdotool search --onlyvisible --name 'The Tarnwick Pro' 2>/dev/null | head -n 1) || true
    [ -z "$window" ] || break
    sleep 0.1
done
if [ -z "$window" ]; then
    echo "No window came up." >&2
    exit 1
fi
# What is on the screen has come to rest when two pictures in a row are alike.
import -window root "$home/last.png"
for attempt in $(seq 50); do
    sleep 0.2
    import -window root "$home/next.png"
    if [ "$(identify -format '%#' "$home/last.png")" = "$(identify -format '%#' "$home/next.png")" ] && [ "$attempt" -gt 4 ]; then
        break
    fi
    mv "$home/next.png" "$home/last.png"
done
mkdir -p "$(dirname "$picture")"
convert "$home/last.png" -strip -colors 64 "$picture"
echo "There is no display. A picture of the program, started with $page, is in $picture"

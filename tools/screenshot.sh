#!/usr/bin/env bash
# Starts quenfor on a virtual X display with a file, waits until its window is painted, writes a
# PNG of the window and ends the program again, so anyone can see what a user sees, also on a
# machine without a screen.
#
#   tools/screenshot.sh [FILE] [PNG]
#     FILE  the file quenfor opens (default: data/samples/config.pro)
#     PNG   where the picture goes (default: screenshot.png in the current folder)
#
# Environment:
#   QUENFOR_BUILD_DIR          build folder holding src/app/quenfor (default: build/)
#   SCREENSHOT_SCREEN          size of the virtual screen (default: 1280x900)
#   SCREENSHOT_WHOLE_SCREEN=1  picture of the whole screen instead of the main window
#   SCREENSHOT_BEFORE=COMMAND  shell command run once the main window is shown, before the picture
#                              (e.g. xdotool keys that open a tool window); it finds the main
#                              window's id in $QUENFOR_WINDOW and the program's id in $QUENFOR_PID
#   SCREENSHOT_WINDOW=TITLE    picture of the quenfor window with this title (e.g. a tool window
#                              that SCREENSHOT_BEFORE opened) instead of the main window
#
# Needs the Debian packages xvfb (Xvfb, xvfb-run), xauth (used by xvfb-run), x11-utils (xwininfo,
# to find the window) and imagemagick (import); SCREENSHOT_BEFORE commands usually need xdotool.
# The user's settings are never touched: quenfor runs with a configuration folder of its own that
# is removed afterwards.
set -euo pipefail

root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
file="${1:-$root/data/samples/config.pro}"
png="${2:-screenshot.png}"
app="${QUENFOR_BUILD_DIR:-$root/build}/src/app/quenfor"

# First run: start a virtual display and run this script again inside it.
if [[ -z "${QUENFOR_SCREENSHOT_DISPLAY:-}" ]]; then
    for tool in xvfb-run xauth xwininfo import; do
        command -v "$tool" >/dev/null || {
            echo "$tool fehlt: apt-get install xvfb xauth x11-utils imagemagick" >&2
            exit 1
        }
    done
    [[ -x "$app" ]] || { echo "$app fehlt: zuerst bauen (bash scripts/build.sh)." >&2; exit 1; }
    [[ -f "$file" ]] || { echo "Die Datei $file existiert nicht." >&2; exit 1; }
    export QUENFOR_SCREENSHOT_DISPLAY=1
    exec xvfb-run -a -s "-screen 0 ${SCREENSHOT_SCREEN:-1280x900}x24" "$0" "$file" "$png"
fi

scratch="$(mktemp -d)"
pid=""
stop_app() {
    if [[ -n "$pid" ]] && kill -0 "$pid" 2>/dev/null; then
        kill -TERM "$pid" 2>/dev/null || true
        for _ in $(seq 50); do
            kill -0 "$pid" 2>/dev/null || break
            sleep 0.1
        done
        kill -KILL "$pid" 2>/dev/null || true
    fi
    [[ -n "$pid" ]] && wait "$pid" 2>/dev/null || true
    pid=""
}
trap 'stop_app; rm -rf "$scratch"' EXIT

mkdir -m 700 "$scratch/config" "$scratch/runtime"
XDG_CONFIG_HOME="$scratch/config" XDG_RUNTIME_DIR="$scratch/runtime" QT_QPA_PLATFORM=xcb \
    "$app" "$file" >"$scratch/quenfor.log" 2>&1 &
pid=$!

# The biggest top-level window of quenfor that is shown: the main window, not a helper window.
# With a title, only windows of that title count.
find_window() {
    local title="${1:-}" best="" best_area=0 id size area
    while read -r id size; do
        xwininfo -id "$id" 2>/dev/null | grep -q "Map State: IsViewable" || continue
        area=$(( ${size%x*} * ${size#*x} ))
        if (( area > best_area )); then
            best="$id"
            best_area=$area
        fi
    done < <(xwininfo -root -children 2>/dev/null | grep -F "\"$title" |
        sed -n 's/^ *\(0x[0-9a-f]*\) .*(".*quenfor.*)  *\([0-9]*x[0-9]*\)+.*/\1 \2/Ip')
    echo "$best"
}

window=""
for _ in $(seq 200); do
    if ! kill -0 "$pid" 2>/dev/null; then
        echo "quenfor hat sich beendet, bevor sein Fenster erschien:" >&2
        cat "$scratch/quenfor.log" >&2
        exit 1
    fi
    window="$(find_window)"
    [[ -n "$window" ]] && break
    sleep 0.1
done
[[ -n "$window" ]] || { echo "Das Fenster von quenfor erschien nicht innerhalb von 20 Sekunden." >&2; exit 1; }

sleep 1 # the first paint of a large file follows the mapping of the window
if [[ -n "${SCREENSHOT_BEFORE:-}" ]]; then
    QUENFOR_WINDOW="$window" QUENFOR_PID="$pid" bash -c "$SCREENSHOT_BEFORE"
fi
if [[ -n "${SCREENSHOT_WINDOW:-}" ]]; then
    window=""
    for _ in $(seq 100); do
        window="$(find_window "$SCREENSHOT_WINDOW")"
        [[ -n "$window" ]] && break
        sleep 0.1
    done
    [[ -n "$window" ]] || { echo "Kein Fenster \"$SCREENSHOT_WINDOW\" von quenfor erschien." >&2; exit 1; }
    sleep 1
fi
if [[ "${SCREENSHOT_WHOLE_SCREEN:-0}" == 1 ]]; then
    import -window root "$png"
else
    import -window "$window" "$png"
fi
stop_app
echo "$png"

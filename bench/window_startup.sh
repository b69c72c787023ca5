#!/usr/bin/env bash
# Opens a generated 1,000,000-line config.pro in the main window under Xvfb and checks the time
# to the first painted list (at most 2 s) and the peak memory (at most 5x the file size).
# Needs xvfb and xauth (scripts/debian-packages.txt lists them).
set -euo pipefail
export LC_ALL=C
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
repo=$(dirname "$here")
build=${QUENFOR_BUILD_DIR:-$repo/build-bench}
lines=${1:-1000000}

if [[ ! -x $build/bench/window_startup || ! -x $build/bench/gen_config ]]; then
    cmake -S "$repo" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DBUILD_TESTING=OFF >/dev/null
    cmake --build "$build" --target window_startup gen_config >/dev/null
fi
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
"$build/bench/gen_config" "$work/config.pro" "$lines" >/dev/null
size_kb=$(( $(stat -c %s "$work/config.pro") / 1024 ))

best_ms=""
result=""
for run in 1 2 3; do
    result=$(XDG_CONFIG_HOME=$work/xdg XDG_RUNTIME_DIR=$work xvfb-run -a -s "-screen 0 1280x1024x24" \
        "$build/bench/window_startup" "$work/config.pro")
    ms=$(sed -E 's/.*first_paint_ms=([0-9-]+).*/\1/' <<<"$result")
    if [[ -z $best_ms || $ms -lt $best_ms ]]; then best_ms=$ms; fi
done
peak_kb=$(sed -E 's/.*peak_kb=([0-9]+).*/\1/' <<<"$result")
ratio=$(awk -v p="$peak_kb" -v s="$size_kb" 'BEGIN { printf "%.2f", p / s }')

printf 'Datei: %d Zeilen, %d KB\n' "$lines" "$size_kb"
printf 'erste gezeichnete Liste: %d ms (Ziel <= 2000 ms, bester von 3)\n' "$best_ms"
printf 'Spitzenspeicher: %d KB = %sx Dateigröße (Ziel <= 5x)\n' "$peak_kb" "$ratio"
if (( best_ms > 2000 )) || awk -v r="$ratio" 'BEGIN { exit !(r > 5) }'; then
    echo "Ziel verfehlt"
    exit 1
fi
echo "Ziele erreicht"

#!/usr/bin/env bash
# Times the search.pro walk (quenfor-cli searchpro) against find on the same generated tree of
# 20,000 folders in the same run. Exit status: 0 target met, 1 target missed or a wrong list,
# 2 wrong call or missing tools.
set -euo pipefail

usage() {
    cat <<'EOF_USAGE'
Aufruf: bash bench/searchpro_bench.sh [--runs N] [--no-build]

Erzeugt in einem temporären Ordner einen Baum aus 20.000 Verzeichnissen (20 × 9 × 10 × 10,
dazu 5.400 Dateien) und misst quenfor-cli searchpro ORDNER -o DATEI gegen
find ORDNER -mindepth 1 -type d > DATEI. Ziel: höchstens 1,5× die Zeit von find.

  --runs N     Läufe je Befehl (Vorgabe 5); gewertet wird der beste
  --no-build   vorhandenes quenfor-cli nehmen, nichts bauen

Ordner der Programme: QUENFOR_BUILD_DIR (Vorgabe: build-bench im Projekt).
EOF_USAGE
}

runs=5
build_first=1
while [[ $# -gt 0 ]]; do
    case $1 in
    --runs)
        [[ $# -ge 2 && $2 =~ ^[1-9][0-9]*$ ]] || { usage >&2; exit 2; }
        runs=$2
        shift
        ;;
    --no-build) build_first=0 ;;
    -h | --help)
        usage
        exit 0
        ;;
    *)
        usage >&2
        exit 2
        ;;
    esac
    shift
done

# The script's own arithmetic, number formats and the order of the compared lists must not depend
# on the caller's locale.
export LC_ALL=C

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
repo=$(dirname "$here")
build=${QUENFOR_BUILD_DIR:-$repo/build-bench}
cli=$build/src/cli/quenfor-cli

for tool in find sort cmp tr; do
    command -v "$tool" >/dev/null || { echo "$tool fehlt." >&2; exit 2; }
done

tmp=$(mktemp -d "${TMPDIR:-/tmp}/quenfor-searchpro-bench.XXXXXX")
trap 'rm -rf "$tmp"' EXIT

if [[ $build_first == 1 ]]; then
    if [[ ! -f $build/CMakeCache.txt ]]; then
        generator=()
        command -v ninja >/dev/null && generator=(-G Ninja)
        cmake -S "$repo" -B "$build" "${generator[@]}" -DCMAKE_BUILD_TYPE=Release -DBUILD_TESTING=OFF >"$tmp/build.log" 2>&1 ||
            { cat "$tmp/build.log" >&2; exit 2; }
    fi
    cmake --build "$build" -j"$(nproc)" --target quenfor-cli >"$tmp/build.log" 2>&1 ||
        { cat "$tmp/build.log" >&2; exit 2; }
fi
[[ -x $cli ]] || { echo "$cli fehlt; ohne --no-build bauen." >&2; exit 2; }

load=$(cut -d ' ' -f 1 /proc/loadavg 2>/dev/null || echo 0)
if awk -v l="$load" -v n="$(nproc)" 'BEGIN { exit !(l >= n / 2) }'; then
    echo "Warnung: der Rechner ist beschäftigt (Last $load), die Zeiten schwanken." >&2
fi

# Four levels as in a CAD project tree; model files beside the third level, which both tools must
# pass over.
tree=$tmp/tree
mkdir -p "$tree"
(cd "$tree" && mkdir -p d{00..19}/e{0..8}/f{0..9}/g{0..9})
(cd "$tree" && touch d{00..19}/e{0..8}/f{0..9}/{teil.prt.1,teil.prt.2,baugruppe.asm.1})
folders=$(find "$tree" -mindepth 1 -type d | wc -l)

mkdir -p "$tmp/config"
names=(quenfor find)
declare -A label command
label[quenfor]="quenfor-cli searchpro"
label[find]="find -type d"
command[quenfor]="LC_ALL=C.UTF-8 XDG_CONFIG_HOME='$tmp/config' exec '$cli' searchpro '$tree' -o '$tmp/out.quenfor'"
command[find]="exec find '$tree' -mindepth 1 -type d >'$tmp/out.find'"

# One run of each first: the tree is then in the page cache for all measured runs alike.
for name in "${names[@]}"; do
    bash -c "${command[$name]}" 2>"$tmp/err.$name" || { echo "${label[$name]} ist fehlgeschlagen:" >&2; cat "$tmp/err.$name" >&2; exit 1; }
done

# Both lists hold the same folders (the walk in its own order, with CR LF).
tr -d '\r' <"$tmp/out.quenfor" | sort >"$tmp/sorted.quenfor"
sort "$tmp/out.find" >"$tmp/sorted.find"
if ! cmp -s "$tmp/sorted.quenfor" "$tmp/sorted.find"; then
    echo "quenfor-cli searchpro listet andere Verzeichnisse als find." >&2
    exit 1
fi

declare -A times
# Rounds rather than one tool after another, so a slow phase of the machine hits both alike.
for ((round = 1; round <= runs; round++)); do
    for name in "${names[@]}"; do
        rm -f "$tmp/out.$name"
        start=$EPOCHREALTIME
        bash -c "${command[$name]}" 2>"$tmp/err.$name" || { echo "${label[$name]} ist fehlgeschlagen:" >&2; cat "$tmp/err.$name" >&2; exit 1; }
        end=$EPOCHREALTIME
        times[$name]+=" $((${end/./} - ${start/./}))"
    done
done

median() { tr ' ' '\n' <<<"$1" | sed '/^$/d' | sort -n | awk '{ v[NR] = $1 } END { print v[int((NR + 1) / 2)] }'; }
best() { tr ' ' '\n' <<<"$1" | sed '/^$/d' | sort -n | head -n 1; }

printf '\n%d Verzeichnisse, bester von %d Läufen, %s Kerne, Last %s, %s\n\n' "$folders" "$runs" "$(nproc)" "$load" \
    "$(date '+%Y-%m-%d %H:%M')"
printf '%-24s %12s %12s\n' "Befehl" "Bestwert ms" "Median ms"
for name in "${names[@]}"; do
    awk -v l="${label[$name]}" -v b="$(best "${times[$name]}")" -v m="$(median "${times[$name]}")" \
        'BEGIN { printf "%-24s %12.1f %12.1f\n", l, b / 1e3, m / 1e3 }'
done

# Judged by the best run: load from elsewhere on the machine only ever adds time.
ratio=$(awk -v q="$(best "${times[quenfor]}")" -v f="$(best "${times[find]}")" 'BEGIN { printf "%.2f", q / f }')
echo
echo "Faktor searchpro / find: $ratio (Ziel ≤ 1,5)"
if awk -v r="$ratio" 'BEGIN { exit !(r <= 1.5) }'; then
    echo "Ziel erfüllt."
else
    echo "Ziel VERFEHLT."
    exit 1
fi

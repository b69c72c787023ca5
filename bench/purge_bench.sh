#!/usr/bin/env bash
# Times the purge analysis of one folder of 100,000 versioned files against `ls -f | sort`, and
# the dry-run purge of a tree of 20,000 folders and 200,000 files against `find`. Best of N runs.
# Exit status: 0 both targets met (at most 2x), 1 a target missed, 2 wrong call or missing tools.
set -euo pipefail
export LC_ALL=C

runs=${1:-5}
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
build=${QUENFOR_BUILD_DIR:-$(dirname "$here")/build-bench}
bench=$build/bench/purge_bench
[[ -x $bench ]] || { echo "$bench fehlt: cmake --build $build --target purge_bench" >&2; exit 2; }
command -v python3 >/dev/null || { echo "python3 fehlt." >&2; exit 2; }

tmp=$(mktemp -d "${TMPDIR:-/tmp}/quenfor-purge-bench.XXXXXX")
trap 'rm -rf "$tmp"' EXIT

# 25,000 objects with 4 versions each in one folder; 20,000 folders (20 x 10 x 100) with 10 files
# each (objects with 1 to 3 versions) for the tree.
python3 - "$tmp" <<'PY'
import os, sys
root = sys.argv[1]
flat = os.path.join(root, "flat"); os.mkdir(flat)
for i in range(25000):
    for v in (1, 2, 9, 10):
        open(os.path.join(flat, f"part{i}.prt.{v}"), "w").close()
tree = os.path.join(root, "tree"); os.mkdir(tree)
n = 0
for a in range(20):
    for b in range(10):
        for c in range(100):
            d = os.path.join(tree, f"a{a}", f"b{b}", f"c{c}")
            os.makedirs(d)
            for f in range(10):
                open(os.path.join(d, f"m{f // 3}.prt.{f % 3 + 1}"), "w").close()
PY

best() { # best wall time in ms of "$@" over $runs runs
    local best_ms=999999999 start end ms
    for ((r = 0; r < runs; r++)); do
        start=$(date +%s%N)
        "$@" >/dev/null
        end=$(date +%s%N)
        ms=$(((end - start) / 1000000))
        ((ms < best_ms)) && best_ms=$ms
    done
    echo "$best_ms"
}
lssort() { ls -f "$1" | sort; }
findall() { find "$1"; }

# Both warm the cache once and check the result.
[[ $("$bench" analyse "$tmp/flat") == 75000 ]] || { echo "falsches Ergebnis der Analyse" >&2; exit 1; }
lssort "$tmp/flat" >/dev/null
[[ $("$bench" tree "$tmp/tree" | wc -l) == 120000 ]] || { echo "falsches Ergebnis des Baums" >&2; exit 1; }
findall "$tmp/tree" >/dev/null

analyse_ms=$(best "$bench" analyse "$tmp/flat")
ls_ms=$(best lssort "$tmp/flat")
tree_ms=$(best "$bench" tree "$tmp/tree")
find_ms=$(best findall "$tmp/tree")

status=0
report() { # name ours theirs
    local factor
    factor=$(awk -v a="$2" -v b="$3" 'BEGIN { printf "%.2f", (b > 0 ? a / b : 0) }')
    local verdict="erfüllt"
    awk -v f="$factor" 'BEGIN { exit !(f <= 2.0) }' || { verdict="VERFEHLT"; status=1; }
    printf '%-40s %6d ms gegen %6d ms: Faktor %s (Ziel <= 2,0) %s\n' "$1" "$2" "$3" "$factor" "$verdict"
}
report "Analyse 100.000 Dateien vs ls -f|sort" "$analyse_ms" "$ls_ms"
report "purge -r -n 20.000 Verz. vs find" "$tree_ms" "$find_ms"
exit $status

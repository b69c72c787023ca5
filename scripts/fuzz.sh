#!/usr/bin/env bash
# Builds the libFuzzer harnesses with clang and runs each for a while.
#   bash scripts/fuzz.sh [SECONDS_PER_HARNESS] [HARNESS...]
# Default 20 s each (CI runs 15 s), as many at once as there are cores; use 600 or more for a real
# search. Corpora grow in build-fuzz/corpus/<harness>/ and are reused by the next run; an input
# that breaks a property or crashes is kept in build-fuzz/findings/<harness>/ and makes the script
# fail.
set -euo pipefail
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
seconds="${1:-20}"
shift || true
build="${QUENFOR_FUZZ_BUILD_DIR:-$root/build-fuzz}"

# A tree that already builds the fuzzers (the test run's sanitizer tree) is used as it is.
if ! grep -qx 'QUENFOR_FUZZ:BOOL=ON' "$build/CMakeCache.txt" 2>/dev/null; then
    launcher=()
    command -v ccache >/dev/null && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
    cmake -S "$root" -B "$build" -G Ninja -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_BUILD_TYPE=RelWithDebInfo \
        -DQUENFOR_FUZZ=ON -DBUILD_TESTING=OFF -DQUENFOR_BUILD_BENCH=OFF -DQUENFOR_WERROR=ON "${launcher[@]}" >/dev/null
fi
cmake --build "$build" -j "$(nproc)" --target quenfor_fuzzers

harnesses=("$@")
if [ ${#harnesses[@]} -eq 0 ]; then
    mapfile -t harnesses < <(cd "$build/tests/fuzz" && find . -maxdepth 1 -type f -name 'fuzz_*' -executable -printf '%f\n' | sort)
fi

# Seeds: the test files of the project, plus hand-made ones per harness where plain text files
# do not reach the interesting paths.
seeds_for() {
    case "$1" in
        fuzz_drawing_model) echo "$root/tests/data/fuzz/drawings" ;;
        fuzz_purge_versions) echo "$root/tests/data/fuzz/filenames" ;;
        fuzz_translation_answer) echo "$root/tests/data/fuzz/answers" ;;
        fuzz_picture_loader) echo "$root/tests/data/fuzz/pictures" ;;
        *) echo "$root/tests/data/document" ;;
    esac
}

export ASAN_OPTIONS="${ASAN_OPTIONS:-detect_leaks=1:abort_on_error=1}"
export UBSAN_OPTIONS="${UBSAN_OPTIONS:-print_stacktrace=1:halt_on_error=1}"
# One harness per core at a time; each writes its result beside its log.
run_one() {
    local harness="$1"
    local corpus="$build/corpus/$harness" findings="$build/findings/$harness"
    mkdir -p "$corpus" "$findings"
    local log="$build/findings/$harness.log" status=ok
    if ! "$build/tests/fuzz/$harness" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 -max_len=65536 \
        -print_final_stats=1 -artifact_prefix="$findings/" "$corpus" "$(seeds_for "$harness")" >"$log" 2>&1; then
        status="FINDING (see $log)"
    fi
    echo "$status" >"$build/findings/$harness.status"
}
for harness in "${harnesses[@]}"; do
    while (($(jobs -rp | wc -l) >= $(nproc))); do
        wait -n || true
    done
    run_one "$harness" &
done
wait

failed=0
printf '%-28s %12s %10s %s\n' harness executions "cov" result
for harness in "${harnesses[@]}"; do
    log="$build/findings/$harness.log"
    status="$(cat "$build/findings/$harness.status" 2>/dev/null || echo "kein Ergebnis")"
    [[ "$status" == ok ]] || failed=1
    runs=$(grep -o 'stat::number_of_executed_units: *[0-9]*' "$log" | grep -o '[0-9]*$' || echo '?')
    cov=$(grep -o 'cov: [0-9]*' "$log" | tail -1 | grep -o '[0-9]*$' || echo '?')
    printf '%-28s %12s %10s %s\n' "$harness" "$runs" "$cov" "$status"
done
exit $failed

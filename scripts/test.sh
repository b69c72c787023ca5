#!/usr/bin/env bash
# Installs what is missing, builds with warnings as errors and runs every test without a display.
#
# The whole suite runs under AddressSanitizer + UndefinedBehaviorSanitizer (build-sanitize/), so
# every test is also a memory and undefined-behaviour check; then every fuzzer runs for a short
# while, and the program and the command-line tool are built optimised (build/, as start.sh
# builds them) and installed from their Debian package into a temporary root.
#
# QUENFOR_TEST_QUICK=1 instead builds everything optimised in build/ and runs the suite there:
# the quick loop while developing.
set -euo pipefail
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
build="${QUENFOR_BUILD_DIR:-$root/build}"
started=$SECONDS
phase() { printf '\n=== %s (nach %d s)\n' "$1" $((SECONDS - started)); }

"$root/scripts/install-deps.sh"
export QT_QPA_PLATFORM=offscreen

if [[ "${QUENFOR_TEST_QUICK:-0}" == 1 ]]; then
    phase "Build"
    QUENFOR_BUILD_DIR="$build" "$root/scripts/build.sh" -DQUENFOR_WERROR=ON -DBUILD_TESTING=ON
    phase "Tests"
    ctest --test-dir "$build" --output-on-failure -j "$(nproc)" --timeout 600
    phase "Fertig"
    exit 0
fi

# One tree serves the tests and the fuzzers: built with clang, every file under ASan + UBSan and
# with libFuzzer's coverage marks, so nothing is compiled twice; lld links the test programs.
# Line tables are enough for the sanitizers' reports and keep the build small.
phase "Build with AddressSanitizer + UndefinedBehaviorSanitizer (clang, tests and fuzzers)"
QUENFOR_BUILD_DIR="$build-sanitize" CMAKE_BUILD_TYPE=Debug "$root/scripts/build.sh" \
    -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=lld \
    -DQUENFOR_WERROR=ON -DBUILD_TESTING=ON -DQUENFOR_SANITIZE=ON -DQUENFOR_FUZZ=ON -DQUENFOR_BUILD_BENCH=OFF \
    -DCMAKE_CXX_FLAGS_DEBUG="-O1 -g1"
phase "Tests under the sanitizers"
ASAN_OPTIONS="detect_leaks=1:abort_on_error=1:detect_stack_use_after_return=1" \
    UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1" \
    LSAN_OPTIONS="suppressions=$root/tests/sanitizers/lsan.supp:print_suppressions=0" \
    ctest --test-dir "$build-sanitize" --output-on-failure -j "$(nproc)" --timeout 900

phase "Fuzzers"
QUENFOR_FUZZ_BUILD_DIR="$build-sanitize" bash "$root/scripts/fuzz.sh" "${QUENFOR_FUZZ_SECONDS:-15}"

# Optimised with GCC, the compiler of start.sh and of the package, with warnings as errors (some
# warnings appear only with optimisation). One compile per library (unity build) is a third of
# the time of one per file.
phase "Program and command-line tool, optimised"
QUENFOR_BUILD_DIR="$build" QUENFOR_BUILD_TARGETS="quenfor quenfor-cli" "$root/scripts/build.sh" \
    -DQUENFOR_WERROR=ON -DBUILD_TESTING=OFF -DQUENFOR_BUILD_BENCH=OFF -DCMAKE_UNITY_BUILD=ON
phase "Debian package"
bash "$root/scripts/check-package.sh" "$build"
phase "Fertig"

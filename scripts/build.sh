#!/usr/bin/env bash
# Configures and builds quenfor in build/ (or $QUENFOR_BUILD_DIR). Extra arguments go to cmake;
# QUENFOR_BUILD_TARGETS="a b" builds only those targets (and what they need).
set -euo pipefail
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
build="${QUENFOR_BUILD_DIR:-$root/build}"
launcher=()
command -v ccache >/dev/null && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE="${CMAKE_BUILD_TYPE:-Release}" "${launcher[@]}" "$@" >/dev/null
targets=()
for target in ${QUENFOR_BUILD_TARGETS:-}; do
    targets+=(--target "$target")
done
cmake --build "$build" -j "$(nproc)" "${targets[@]}"

#!/usr/bin/env bash
# Configures and builds quenfor in build/ (or $QUENFOR_BUILD_DIR). Extra arguments go to cmake.
set -euo pipefail
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
build="${QUENFOR_BUILD_DIR:-$root/build}"
cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE="${CMAKE_BUILD_TYPE:-RelWithDebInfo}" "$@" >/dev/null
cmake --build "$build" -j "$(nproc)"

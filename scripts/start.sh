#!/usr/bin/env bash
# Sets everything up on a fresh Debian 12 machine and starts quenfor on the bundled sample.
set -euo pipefail
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
"$root/scripts/install-deps.sh"
# Only what it starts: the program and the command-line tool beside it, no tests or benchmarks.
# One compile per library (unity build): the first start is ready in a third of the time.
QUENFOR_BUILD_TARGETS="quenfor quenfor-cli" "$root/scripts/build.sh" -DBUILD_TESTING=OFF -DQUENFOR_BUILD_BENCH=OFF \
    -DCMAKE_UNITY_BUILD=ON
exec "${QUENFOR_BUILD_DIR:-$root/build}/src/app/quenfor" "${1:-$root/data/samples/config.pro}"

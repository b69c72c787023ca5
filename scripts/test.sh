#!/usr/bin/env bash
# Installs what is missing, builds with warnings as errors and runs every test, without a display.
set -euo pipefail
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
"$root/scripts/install-deps.sh"
"$root/scripts/build.sh" -DQUENFOR_WERROR=ON -DBUILD_TESTING=ON
export QT_QPA_PLATFORM=offscreen
ctest --test-dir "${QUENFOR_BUILD_DIR:-$root/build}" --output-on-failure -j "$(nproc)" --timeout 600

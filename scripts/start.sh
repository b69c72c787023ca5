#!/usr/bin/env bash
# Sets everything up on a fresh Debian 12 machine and starts quenfor on the bundled sample.
set -euo pipefail
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
"$root/scripts/install-deps.sh"
"$root/scripts/build.sh"
exec "${QUENFOR_BUILD_DIR:-$root/build}/src/app/quenfor" "${1:-$root/data/samples/config.pro}"

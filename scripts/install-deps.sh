#!/usr/bin/env bash
# Installs the Debian packages from debian-packages.txt that are not installed yet.
set -euo pipefail
here="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"

missing=()
while read -r pkg; do
    [[ -z "$pkg" || "$pkg" == \#* ]] && continue
    if ! dpkg-query -W -f='${Status}' "$pkg" 2>/dev/null | grep -q "install ok installed"; then
        missing+=("$pkg")
    fi
done < "$here/debian-packages.txt"

if ((${#missing[@]} == 0)); then
    exit 0
fi

echo "Installiere fehlende Pakete: ${missing[*]}"
sudo=()
if [[ $(id -u) -ne 0 ]]; then
    command -v sudo >/dev/null || { echo "Für apt-get werden root-Rechte oder sudo benötigt." >&2; exit 1; }
    sudo=(sudo)
fi
export DEBIAN_FRONTEND=noninteractive
"${sudo[@]}" apt-get update -qq
"${sudo[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"

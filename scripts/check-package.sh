#!/usr/bin/env bash
# Builds the Debian package from an existing build folder, unpacks it into a temporary root and
# starts the installed programs from there, as on a fresh machine: the package must carry the
# programs and every file beside them, and the programs must find those files.
#
#   scripts/check-package.sh [BUILDFOLDER]     (default: $QUENFOR_BUILD_DIR, else build/)
#
# Environment: QUENFOR_CHECK_LINT=0 leaves out the check of `quenfor-cli lint`.
# Needs cmake/cpack, dpkg-deb and dpkg-shlibdeps (package dpkg-dev). Changes nothing outside a
# temporary folder; the .deb is left in BUILDFOLDER/package/.
set -euo pipefail

root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
build="$(cd "${1:-${QUENFOR_BUILD_DIR:-$root/build}}" 2>/dev/null && pwd)" || {
    echo "check-package: Der Build-Ordner ${1:-${QUENFOR_BUILD_DIR:-$root/build}} existiert nicht." >&2
    exit 1
}
[[ -f "$build/CPackConfig.cmake" ]] || {
    echo "check-package: $build ist kein konfigurierter Build-Ordner (CPackConfig.cmake fehlt)." >&2
    exit 1
}
for tool in cmake cpack dpkg-deb dpkg-shlibdeps; do
    command -v "$tool" >/dev/null || {
        echo "check-package: $tool fehlt (apt-get install cmake dpkg-dev)." >&2
        exit 1
    }
done

failures=0
fail() {
    echo "check-package: FEHLER: $*" >&2
    failures=$((failures + 1))
}

scratch="$(mktemp -d)"
app_pid=""
cleanup() {
    if [[ -n "$app_pid" ]] && kill -0 "$app_pid" 2>/dev/null; then
        kill "$app_pid" 2>/dev/null || true
        wait "$app_pid" 2>/dev/null || true
    fi
    rm -rf "$scratch"
}
trap cleanup EXIT

# The package must hold what the build holds now.
cmake --build "$build" --target quenfor quenfor-cli >/dev/null

out="$build/package"
mkdir -p "$out"
rm -f "$out"/quenfor_*.deb
cpack -G DEB -B "$out" --config "$build/CPackConfig.cmake" >"$scratch/cpack.log" 2>&1 || {
    cat "$scratch/cpack.log" >&2
    echo "check-package: cpack ist gescheitert." >&2
    exit 1
}
deb="$(ls "$out"/quenfor_*.deb 2>/dev/null | head -n 1)"
[[ -n "$deb" ]] || { echo "check-package: cpack hat kein quenfor_*.deb erzeugt." >&2; exit 1; }
echo "Paket: $deb"

# Control fields.
field() { dpkg-deb -f "$deb" "$1"; }
version="$(sed -n 's/^set(CPACK_PACKAGE_VERSION "\(.*\)")$/\1/p' "$build/CPackConfig.cmake")"
[[ "$(field Version)" == "$version" ]] || fail "Version ist \"$(field Version)\" statt $version."
[[ "$(field Package)" == quenfor ]] || fail "Package ist \"$(field Package)\" statt quenfor."
[[ "$(field Maintainer)" == quenfor-Entwickler ]] || fail "Maintainer ist \"$(field Maintainer)\"."
[[ "$(field Section)" == utils ]] || fail "Section ist \"$(field Section)\" statt utils."
depends="$(field Depends)"
for needed in libqt6core6 libqt6widgets6 qt6-qpa-plugins qt6-translations-l10n libc6; do
    [[ "$depends" == *"$needed"* ]] || fail "Depends nennt $needed nicht: $depends"
done
description="$(field Description)"
[[ "$description" == *"Werkbank"* && "$description" == *"workbench"* ]] ||
    fail "Description ist nicht deutsch und englisch: $description"

# Contents.
dpkg-deb -c "$deb" | awk '{print $NF}' >"$scratch/contents"
for file in usr/bin/quenfor usr/bin/quenfor-cli \
    usr/share/applications/quenfor.desktop usr/share/icons/hicolor/scalable/apps/quenfor.svg \
    usr/share/quenfor/config_opts.txt usr/share/quenfor/dtl_opts.txt usr/share/quenfor/pcf_opts.txt \
    usr/share/quenfor/quenfor.pro usr/share/quenfor/quenfor.dtl usr/share/quenfor/quenfor.pcf \
    usr/share/quenfor/samples/config.pro; do
    grep -qx "\./$file" "$scratch/contents" || fail "Das Paket enthält $file nicht."
done

# Unpacked into a root of its own, the programs run from there.
dpkg-deb -x "$deb" "$scratch/root"
cli="$scratch/root/usr/bin/quenfor-cli"
gui="$scratch/root/usr/bin/quenfor"
export XDG_CONFIG_HOME="$scratch/config" XDG_RUNTIME_DIR="$scratch/runtime"
mkdir -m 700 -p "$XDG_CONFIG_HOME" "$XDG_RUNTIME_DIR"
unset QUENFOR_DATA_DIR

for program in "$cli" "$gui"; do
    if [[ ! -x "$program" ]]; then
        fail "$program fehlt oder ist nicht ausführbar."
    elif ldd "$program" | grep -q "not found"; then
        fail "$program findet Bibliotheken nicht: $(ldd "$program" | grep "not found" | tr -s ' \t' ' ')"
    fi
done

if [[ -x "$cli" ]]; then
    got="$("$cli" --version 2>&1)" || fail "quenfor-cli --version endete mit Fehler: $got"
    echo "$got"
    [[ "$got" == "quenfor-cli $version" ]] || fail "quenfor-cli --version sagt \"$got\", erwartet $version."

    # The installed program must read the files of its own package: an option that only the
    # unpacked knowledge base knows proves it (a build's source tree would not have it).
    kb="$scratch/root/usr/share/quenfor/config_opts.txt"
    { printf 'zz_paketprobe  yes | *no\r\n  Nur im ausgepackten Paket vorhanden.\r\n\r\n\r\n\r\n\r\n\r\n'; cat "$kb"; } >"$scratch/kb"
    cp "$scratch/kb" "$kb"
    explained="$("$cli" explain "zz_paketprobe yes" 2>&1)" || fail "quenfor-cli explain endete mit Fehler: $explained"
    [[ "$explained" == *"Nur im ausgepackten Paket vorhanden."* ]] ||
        fail "quenfor-cli explain liest nicht die Wissensdatei des Pakets: $explained"

    if [[ "${QUENFOR_CHECK_LINT:-1}" == 1 ]]; then
        # A clean file gives no finding, a planted one is found; a missing list says "fehlt".
        printf '! Konfiguration\r\ndrawing_setup_file C:\\din.dtl\r\n' >"$scratch/clean.pro"
        printf 'drawing_setup_file C:\\din.dtl\r\nzz_gibt_es_nicht_option yes\r\n' >"$scratch/planted.pro"
        status=0
        "$cli" lint "$scratch/clean.pro" >"$scratch/lint.out" 2>"$scratch/lint.err" || status=$?
        [[ $status == 0 && ! -s "$scratch/lint.out" ]] ||
            fail "quenfor-cli lint meldet in einer sauberen Datei (Status $status): $(cat "$scratch/lint.out" "$scratch/lint.err")"
        status=0
        "$cli" lint "$scratch/planted.pro" >"$scratch/lint.out" 2>"$scratch/lint.err" || status=$?
        [[ $status == 1 ]] && grep -q "zz_gibt_es_nicht_option" "$scratch/lint.out" ||
            fail "quenfor-cli lint findet die unbekannte Option nicht (Status $status): $(cat "$scratch/lint.out" "$scratch/lint.err")"
        ! grep -q "fehlt" "$scratch/lint.err" ||
            fail "quenfor-cli lint vermisst Dateien des Pakets: $(cat "$scratch/lint.err")"
    fi
fi

# The window program starts on the sample of its own package and keeps running.
if [[ -x "$gui" ]]; then
    QT_QPA_PLATFORM=offscreen "$gui" "$scratch/root/usr/share/quenfor/samples/config.pro" >"$scratch/gui.log" 2>&1 &
    app_pid=$!
    sleep 3
    if kill -0 "$app_pid" 2>/dev/null; then
        kill "$app_pid"
        wait "$app_pid" 2>/dev/null || true
    else
        wait "$app_pid" 2>/dev/null || true
        fail "quenfor endete gleich nach dem Start: $(cat "$scratch/gui.log")"
    fi
    app_pid=""
fi

if ((failures > 0)); then
    echo "check-package: $failures Fehler." >&2
    exit 1
fi
echo "check-package: Das Paket ist vollständig, quenfor und quenfor-cli laufen aus ihm."

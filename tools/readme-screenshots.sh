#!/usr/bin/env bash
# Makes the pictures of the README with tools/screenshot.sh under Xvfb: the main window on the
# bundled sample, Dr.Fegel after "analysieren" and the drawing checker after a click on a drawing
# of a current release, both on a small made-up work folder.
#
#   tools/readme-screenshots.sh [OUTFOLDER]     (default: docs/screenshots)
#
# Needs what tools/screenshot.sh needs, and xdotool (keys and clicks). QUENFOR_BUILD_DIR as there.
# The clicks go to places in the tool windows' layouts; a changed layout wants new coordinates.
set -euo pipefail

root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
out="${1:-$root/docs/screenshots}"
build="${QUENFOR_BUILD_DIR:-$root/build}"
command -v xdotool >/dev/null || { echo "xdotool fehlt: apt-get install xdotool" >&2; exit 1; }
[[ -x "$build/src/cli/quenfor-cli" ]] || { echo "$build/src/cli/quenfor-cli fehlt: zuerst bauen." >&2; exit 1; }
mkdir -p "$out"

# In the home folder, not in the temporary one: the folder trees show the way from "/" there, and
# a home folder is tidier than /tmp. The tool windows open in $HOME when nothing is stored, so the
# programs get the made-up folder as their home.
work="$(mktemp -d "$HOME/quenfor-bilder.XXXXXX")"
trap 'rm -rf "$work"' EXIT
home="$work/cad/projekte/getriebe"
mkdir -p "$home" "$work/cad/normteile" "$work/cad/projekte/vorrichtung" "$work/cad/vorlagen"

padded() { # TEXT WIDTH FILL: TEXT filled up to WIDTH characters
    local text="$1" width="$2" fill="$3"
    printf '%s' "$text"
    for ((i = ${#text}; i < width; i++)); do printf '%s' "$fill"; done
}

# A drawing of an older release: the model's name at character 725 of its first line.
older_drawing() { # FILE MODEL
    { padded "#UGC:2 DRAWING 1210 0 703 1 1 15 2000 2001050 000001a4" 724 ' '; padded "$2" 300 ' '
      printf '\n#- VERS 0 0\n'; } >"$1"
}

# A drawing of a current release: a text header of 719 bytes, then a table of contents of 81-byte
# lines whose offsets count from the header's end, and the section Dwg_Models with the models.
current_drawing() { # FILE MODEL...
    local file="$1" section="$work/section" release="#Creo  TM  7.0  (c) quenfor  7.0.8.0"
    shift
    {
        printf '#Dwg_Models\n\xe0\x00Models\x00\xe2\xe0\x0amodel_names\x00\xf8'
        printf "\\x$(printf %02x $#)"
        for model in "$@"; do printf '%s\0' "$model"; done
        printf '\xf1'
    } >"$section"
    local length offset
    length=$(stat -c %s "$section")
    offset=$((${#release} + 1 + 2 * 81))
    {
        printf '#UGC:2 DRAWING 1977 1560 803 1 1 15 3800 2022024 000002cf \\\n'
        for field in "VERS 0 0" HOST LINK DBID "REVS 0," "RELL 0," "UOBJ_ID 1668454467 1164253464 -503234582" MACH \
            "CMNM 00c$(basename "$file")"; do
            padded "#- $field" 69 ' '
            printf '\\\n'
        done
        printf '#-END_OF_UGC_HEADER\n%s\n' "$release"
        padded "#UGC_TOC 2 1 81 17" 80 '#'
        printf '\n'
        padded "$(printf 'Dwg_Models %x %x %x 1977 9 -1 0ee9 4334' "$offset" "$length" $((length - 12)))" 80 '#'
        printf '\n'
        cat "$section"
        printf '#\n#END_OF_UGC\n'
    } >"$file"
}

current_drawing "$home/gehaeuse.drw.3" GEHAEUSE_GUSS.PRT
current_drawing "$home/getriebe.drw.2" GETRIEBE.ASM WELLE_1.PRT ZAHNRAD_Z32.PRT
current_drawing "$home/getriebe.drw.1" GETRIEBE.ASM
older_drawing "$home/deckel.drw.1" "DECKEL "
older_drawing "$home/welle.drw.4" "WELLE_2 "
for file in gehaeuse.prt.1 gehaeuse.prt.2 gehaeuse.prt.5 welle.prt.3 welle.prt.4 getriebe.asm.7 getriebe.asm.8 \
    deckel.prt.1 trail.txt.12 trail.txt.13 std.out; do
    printf 'x\n' >"$home/$file"
done

# The made-up drawings must read as meant, or the pictures would show something else.
expected=$'DECKEL\tDECKEL\tOK\t\nGEHAEUSE\t\tNICHT\tGEHAEUSE_GUSS.PRT\nGETRIEBE\t\tNICHT\tGETRIEBE.ASM\nGETRIEBE\t\tNICHT\tGETRIEBE.ASM,WELLE_1.PRT,ZAHNRAD_Z32.PRT\nWELLE\tWELLE_\tNICHT\t'
got="$("$build/src/cli/quenfor-cli" drwcheck "$home" 2>/dev/null)"
[[ "$got" == "$expected" ]] || { printf 'Die Beispielzeichnungen lesen sich anders:\n%s\n' "$got" >&2; exit 1; }

# Opens an entry of the menu "&Werkzeuge" (Alt+W) by its place, counted from 0.
open_tool() {
    local downs=""
    for ((i = 0; i < $1; i++)); do downs+=" Down"; done
    echo "xdotool windowfocus --sync \$QUENFOR_WINDOW; sleep 0.5; xdotool key alt+w; sleep 0.5; xdotool key$downs Return; sleep 1.5"
}
# Clicks at X Y inside the window titled TITLE.
click_in() {
    echo "xdotool mousemove --window \$(xdotool search --name '^$1\$' | head -n 1) $2 $3 click 1; sleep 1"
}

shrink() { # PNG: fewer colours, no metadata, so the pictures stay small in the repository
    convert "$1" -strip -colors 128 "PNG8:$1"
}

export QUENFOR_BUILD_DIR="$build"
HOME="$home" "$root/tools/screenshot.sh" "$root/data/samples/config.pro" "$out/hauptfenster.png"
HOME="$home" SCREENSHOT_BEFORE="$(open_tool 11); $(click_in Dr.Fegel 441 495)" SCREENSHOT_WINDOW=Dr.Fegel \
    "$root/tools/screenshot.sh" "$root/data/samples/config.pro" "$out/drfegel.png"
HOME="$home" SCREENSHOT_BEFORE="$(open_tool 9); $(click_in drw_mdl_checker 430 100)" \
    SCREENSHOT_WINDOW=drw_mdl_checker "$root/tools/screenshot.sh" "$root/data/samples/config.pro" \
    "$out/zeichnungspruefung.png"
for png in "$out"/hauptfenster.png "$out"/drfegel.png "$out"/zeichnungspruefung.png; do
    shrink "$png"
done
ls -l "$out"

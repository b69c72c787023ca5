#!/usr/bin/env bash
# Brings the knowledge base files in data/ into the shape the Erklär-Bär reads: every record
# (an option line and its description lines, records parted by blank lines) is padded with blank
# lines to seven lines. The reader shows a matching line and the five after it and passes over
# the line after that, so a record of seven lines shows exactly itself and the next record's
# option line is still tested. Run it after editing a knowledge base file.
#
#   bash tools/shape-knowledge-base.sh [FILE...]     (default: the three shipped files)
set -euo pipefail

here="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"
data="$(dirname "$here")/data"
if (($# == 0)); then
    set -- "$data/config_opts.txt" "$data/dtl_opts.txt" "$data/pcf_opts.txt"
fi

for file in "$@"; do
    tmp="$(mktemp "$file.XXXXXX")"
    if ! awk -v name="$(basename "$file")" '
        BEGIN { RS = "\r\n|\r|\n"; ORS = "\r\n"; n = 0 }
        function flush() {
            if (n == 0) return
            if (n > 6) {
                printf "%s: Der Eintrag %s hat %d Zeilen, höchstens 6 passen ins Fenster.\n", name, first, n > "/dev/stderr"
                failed = 1
            }
            for (; n < 7; n++) print ""
            n = 0
        }
        /^[ \t]*$/ { flush(); next }
        { if (n == 0) first = $1; print; n++ }
        END { flush(); exit failed }
    ' "$file" >"$tmp"; then
        rm -f "$tmp"
        exit 1
    fi
    mv "$tmp" "$file"
done

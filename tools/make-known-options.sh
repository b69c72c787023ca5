#!/usr/bin/env bash
# Regenerates the lists of known option names in data/ from the option-name tables
# (default: ../shared/reference/options next to the repository). Only the first column, the
# name, is taken: lower case, sorted, one a line.
#
#   bash tools/make-known-options.sh [OPTIONS_FOLDER]
set -euo pipefail

here="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"
repo="$(dirname "$here")"
src="${1:-$repo/../shared/reference/options}"
data="$repo/data"

# Names seen in a single real file that are no options: junk and misspellings. Leaving them out
# lets the check report them and suggest the right name.
not_options='^(add|fgh|allow_save_failed_models|default_annoation_font)$'

names() { # FILE...: the first column without the header line
    for f in "$@"; do tail -n +2 "$f" | cut -f1; done
}

clean() {
    tr -d '\r' | tr '[:upper:]' '[:lower:]' | sed 's/^[[:space:]]*//; s/[[:space:]]*$//' |
        grep -v '^$' | grep -Ev "$not_options" | LC_ALL=C sort -u
}

{
    names "$src/config_options.tsv" "$src/hidden_options.tsv" "$src/ptc_doc_categories.tsv"
    cat "$src/hidden_options.txt"
} | clean >"$data/known_options.txt"
names "$src/dtl_options.tsv" | clean >"$data/known_dtl_options.txt"
names "$src/pcf_options.tsv" | clean >"$data/known_pcf_options.txt"

wc -l "$data/known_options.txt" "$data/known_dtl_options.txt" "$data/known_pcf_options.txt"

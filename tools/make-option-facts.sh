#!/usr/bin/env bash
# Regenerates data/config_option_facts.txt from the option table (default:
# ../shared/reference/options/config_options.tsv next to the repository): for every config option
# with a known default or list of allowed values one line "name TAB default TAB value,value,...",
# sorted by name. The Erklär-Bär shows them under an option's explanation.
#
#   bash tools/make-option-facts.sh [CONFIG_OPTIONS_TSV]
set -euo pipefail

here="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"
repo="$(dirname "$here")"
src="${1:-$repo/../shared/reference/options/config_options.tsv}"
out="$repo/data/config_option_facts.txt"

# "nom" is the header of a French table that slipped in as a row, not an option.
awk -F '\t' '
    NR == 1 {
        for (i = 1; i <= NF; i++) column[$i] = i
        if (!("name" in column) || !("default_creo6" in column) || !("allowed_values_creo6" in column)) {
            print "Spalten name, default_creo6 oder allowed_values_creo6 fehlen." > "/dev/stderr"
            exit 1
        }
        next
    }
    {
        gsub(/\r/, "")
        name = tolower($column["name"]); def = $column["default_creo6"]; allowed = $column["allowed_values_creo6"]
        gsub(/^[ \t]+|[ \t]+$/, "", name); gsub(/^[ \t]+|[ \t]+$/, "", def); gsub(/^[ \t,]+|[ \t,]+$/, "", allowed)
        if (name == "" || name == "nom" || (def == "" && allowed == "")) next
        print name "\t" def "\t" allowed
    }
' "$src" | LC_ALL=C sort -u -t "$(printf '\t')" -k1,1 >"$out"

wc -l "$out"

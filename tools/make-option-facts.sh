#!/usr/bin/env bash
# Regenerates the option facts in data/ from the option tables (default:
# ../shared/reference/options/config_options.tsv next to the repository, and dtl_options.tsv
# beside it):
# - config_option_facts.txt: for every config option with a known default or list of allowed
#   values one line "name TAB default TAB value,value,...". The Erklär-Bär shows them under an
#   option's explanation, the check compares values with them.
# - config_option_releases.txt, dtl_option_releases.txt: for every option with release lists one
#   line "name TAB releases where documented TAB releases where hidden" (WF4,CEP5,CP2,...). The
#   check and the picker tell from them what a chosen release knows.
# All sorted by name.
#
#   bash tools/make-option-facts.sh [CONFIG_OPTIONS_TSV]
set -euo pipefail

here="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"
repo="$(dirname "$here")"
src="${1:-$repo/../shared/reference/options/config_options.tsv}"
dtl="$(dirname "$src")/dtl_options.tsv"
out="$repo/data/config_option_facts.txt"

# "nom" is the header of a French table that slipped in as a row, not an option. The supplement
# (tools/option-values-supplement.tsv) adds values the table leaves out.
awk -F '\t' '
    FNR == NR {
        if ($0 !~ /^#/ && NF >= 2) extra[tolower($1)] = $2
        next
    }
    FNR == 1 {
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
        if (name in extra && allowed != "") {
            n = split(extra[name], more, ",")
            for (i = 1; i <= n; i++)
                if (("," allowed ",") !~ ("," more[i] ",")) allowed = allowed "," more[i]
        }
        if (name == "" || name == "nom" || (def == "" && allowed == "")) next
        print name "\t" def "\t" allowed
    }
' "$here/option-values-supplement.tsv" "$src" | LC_ALL=C sort -u -t "$(printf '\t')" -k1,1 >"$out"

wc -l "$out"

# releases TABLE OUT: the documented_in and hidden_in columns of an option table.
releases() {
    awk -F '\t' '
        NR == 1 {
            for (i = 1; i <= NF; i++) column[$i] = i
            if (!("name" in column) || !("documented_in" in column) || !("hidden_in" in column)) {
                print "Spalten name, documented_in oder hidden_in fehlen in " FILENAME "." > "/dev/stderr"
                exit 1
            }
            next
        }
        {
            gsub(/\r/, "")
            name = tolower($column["name"]); documented = $column["documented_in"]; hidden = $column["hidden_in"]
            gsub(/[ \t]/, "", name); gsub(/[ \t]/, "", documented); gsub(/[ \t]/, "", hidden)
            if (name == "" || name == "nom" || (documented == "" && hidden == "")) next
            print name "\t" documented "\t" hidden
        }
    ' "$1" | LC_ALL=C sort -u -t "$(printf '\t')" -k1,1 >"$2"
    wc -l "$2"
}

releases "$src" "$repo/data/config_option_releases.txt"
releases "$dtl" "$repo/data/dtl_option_releases.txt"

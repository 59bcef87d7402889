#!/usr/bin/env bash
# The reference lists that an installation lays down in the workspace.
#   workspace_files_test.sh SAMPLES_FOLDER
set -uo pipefail
. "$(dirname "$0")/../support/checks.sh"
export LC_ALL=C
database=$(realpath "$1")/keldar.sql
cd "$1/workspace" || exit

# The entries of a list, as the program's lists show them.
entries() {  # FILE
  tr -d '\r' <"$1" | sed 's/^"\([^"]*\)".*/\1/'
}

# list FILE MOST: MOST is what the narrowest reader of its column in a characteristics file keeps.
list() {
  holds "every line of $1 ends in CR LF" "$(grep -nv $'[^\r]\r$' "$1")"
  holds "the last line of $1 is ended" "$([[ $(tail -c 1 "$1" | wc -l) -eq 1 ]] || tail -n 1 "$1")"
  holds "no entry of $1 is cut in its column" "$(entries "$1" | awk -v most="$2" 'length > most')"
  holds "no entry of $1 has blanks around it" "$(entries "$1" | grep -E '^ | $|^$')"
  holds "no entry of $1 comes twice" "$(entries "$1" | sort | uniq -d)"
}

list samplefraction.txt 9
list statistictype.txt 17
list duration.txt 9
list temperature.txt 17
holds "a fraction with a comma is quoted" "$(grep ',' samplefraction.txt | grep -v '^".*"')"
holds "the database's fractions are in the list" "$(comm -13 <(entries samplefraction.txt | sort) <(
  { cat "$database" && echo 'SELECT DISTINCT smpl_frac_type_nm FROM tsrchdef
                             WHERE smpl_frac_type_nm IS NOT NULL;'; } | sqlite3 -batch | sort))"

count

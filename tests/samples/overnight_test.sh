#!/usr/bin/env bash
# What docs/overnight.md tells, done to a hundred tables: its scenario and its commands are taken from
# the document, and each load file is held against what awk makes of the table by itself.
#   overnight_test.sh PLAYER
set -uo pipefail
. "$(dirname "$0")/../support/checks.sh"
export LC_ALL=C
player=$(realpath "$1")
root=$(cd "$(dirname "$0")/../.." && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work" || exit
ln -s "$root/tools" tools
export HOME=$work PATH=${player%/*}:$PATH
mkdir -p brooklander data

# told NAME: the indented blocks behind `<!-- NAME -->` in the document.
told() {
  awk -v name="<!-- $1 -->" '
    $0 == name { wanted = 1; next }
    wanted && /^    / { inside = 1; print blanks substr($0, 5); blanks = ""; next }
    inside && /^$/ { blanks = blanks "\n"; next }
    inside { wanted = inside = 0; blanks = "" }' "$root/docs/overnight.md"
}
told lake.scn >lake.scn
told commands >commands

# A hundred tables, no two alike: of one to sixty rows, with gaps, non-detects and odd names.
for number in {1..100}; do
  case $number in
    7) name="lake 7 of may.txt" ;;
    8) name="lake's 8.txt" ;;
    9) name=$'L\xC3\xA4nge 9.txt' ;;
    10) name='$(touch broken) 10.txt' ;;
    11) name=LAKE11.TXT ;;
    *) name=lake$number.txt ;;
  esac
  awk -v seed="$number" '
    BEGIN {
      srand(seed); OFS = "\t"; ORS = "\r\n"
      print "Station", "Date", "Time", "Sample", "Depth", "Crew", "Remarks", "Temperature", "pH",
            "Oxygen, dissolved", "Nitrate"
      for (row = 1; row <= 1 + seed % 60; ++row) {
        results = ""
        for (column = 1; column <= 4; ++column) {
          pick = int(rand() * 6)
          value = pick == 0 ? "" : pick == 1 ? "ND" : pick == 2 ? "<0.1" : sprintf("%.2f", rand() * 20)
          results = results "\t" value
        }
        print "S" seed "-" row, sprintf("%02d/%02d/2021", 1 + row % 12, 1 + row % 28),
              row % 3 ? "915" : "1030", row % 4 ? "" : "id" row, rand() < .5 ? "" : "0.5", "Roe",
              row % 5 ? "" : "wind, waves" results
      }
    }' >"data/$name"
done
is "there are a hundred tables" 100 "$(find data -type f | wc -l)"

# How many load files are what awk says, and which are not.
compare() {
  local table right=0
  for table in data/*; do
    if awk -v filler=LAKE -v station=1 -v date=2 -v time=3 -v sample=4 -v depth=5 -v comments=7 \
      -v results=8 -f "$root/tests/real_tables/load_file.awk" "$table" |
      cmp -s - "brooklander/voxoutfiles/${table#data/}"; then
      right=$((right + 1))
    else
      echo "another load file than expected: $table"
    fi
  done
  echo "$right right"
}

seconds=$SECONDS
printf 'brenda\nForelle7\n' | bash -euo pipefail commands >said 2>&1
is "the commands of the document succeed" "0 " "$? $(cat said)"
echo "a hundred tables took $((SECONDS - seconds)) s"
is "each load file is the right one" "100 right" "$(compare)"
is "the log has a line for each and their number" "101 100 converted, 0 not" \
  "$(grep -c . overnight.log) $(tail -n 1 overnight.log)"
holds "neither user id nor password is written anywhere" \
  "$(grep -rlE 'brenda|Forelle7' lake.scn overnight.log brooklander)"

# The next night.
rm -rf brooklander/voxoutfiles
sed -i '1s/Station/Site/' data/lake20.txt
rm data/lake{30..99}.txt
printf 'brenda\nForelle7\n' | tools/convert_folder lake.scn data >overnight.log 2>&1
is "a table of another shape fails and the rest goes on" "1 29 converted, 1 not" \
  "$? $(tail -n 1 overnight.log)"
is "the log says why" "lake20.txt: not converted
    lake.scn:19: frmImportFileDisplay.MSFlexKeldarIN: expected in cell 0 0 \"Station\", found \"Site\"." \
  "$(grep -A1 '^lake20' overnight.log)"
rm data/lake20.txt
is "the load files of the others are right" "29 right" "$(compare)"

said=$(tools/convert_folder none.scn data </dev/null 2>&1)
is "a scenario that is not there" '2 There is no scenario "none.scn".' "$? $said"
mkdir empty
said=$(tools/convert_folder lake.scn empty </dev/null 2>&1)
is "a folder without tables" '2 No table lies in "empty".' "$? $said"
said=$(tools/convert_folder lake.scn data </dev/null 2>&1)
is "without a user id" '2 No user could be read.' "$? $said"

count

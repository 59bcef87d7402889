#!/usr/bin/env bash
# The guided tours play in a home of their own and leave the load file and all pictures there.
#   tour_test.sh PLAYER
set -uo pipefail
. "$(dirname "$0")/../support/checks.sh"
export LC_ALL=C
player=$(realpath "$1")
root=$(cd "$(dirname "$0")/../.." && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work" || exit

# A user for the tour to leave alone, so that even a tour gone wrong does not reach the tester.
mkdir user system
touch user/odbc.ini
cp "$(odbcinst -j | sed -n 's/^DRIVERS\.*: //p')" system/odbcinst.ini
printf '[keldar]\nDriver=SQLite3\nDatabase=/nowhere/keldar.db\nNoCreat=Yes\n' >system/odbc.ini
export HOME=$work/user ODBCINI=$work/user/odbc.ini ODBCSYSINI=$work/system
unset ODBCSEARCH DISPLAY WAYLAND_DISPLAY

said=$("$root/tools/play_tour" "$player" tour 2>&1)
is "it says that it passed and where everything is" "2 passed, 0 failed
The sample table is $work/tour/data/lake.txt
The load file is    $work/tour/brooklander/voxoutfiles/lake.txt
The pictures are in $work/tour/pictures" "$said"
is "the load file is whole" "tilded lines" \
  "$(awk '!/^~.*\r$/ { wrong = 1 } END { print NR && !wrong ? "tilded lines" : NR " lines" }' \
    tour/brooklander/voxoutfiles/lake.txt)"
is "each shot is a picture, and they are in the order of the tours" \
  "$(sed -n 's/^shot \(.*\)/\1.png PNG/p' "$root"/samples/{tour,configuration}.scn)" \
  "$(cd tour/pictures && for file in *; do echo "$file $(head -c 4 "$file" | tail -c 3)"; done)"
is "it logs on to a database of its own" "Database=$work/tour/brooklander/keldar.db" \
  "$(grep Database tour/odbc.ini 2>&1)"
is "the user's home and data sources have no part in it" "odbc.ini: 0 bytes" \
  "$(cd user && find . -type f -printf '%P: %s bytes\n')"
again=$("$root/tools/play_tour" "$player" "$work/tour" 2>&1)
is "it can be played again" "$said" "$again"

count

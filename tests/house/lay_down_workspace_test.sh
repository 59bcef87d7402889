#!/usr/bin/env bash
# What is laid down in a home folder, what of the user's own is left alone, and what is told when it
# cannot be done.
set -uo pipefail
. "$(dirname "$0")/../support/checks.sh"
export LC_ALL=C
root=$(cd "$(dirname "$0")/../.." && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work" || exit
export HOME=$work/of_the_tester

# Both what it prints and what it complains of, with its status behind.
lay_down() {  # [TOOLS] HOME
  local tools=$root/tools
  [[ $# -eq 1 ]] || { tools=$1 && shift; }
  "$tools/lay_down_workspace" "$1" 2>&1
  echo "status $?"
}

names() { (cd "$1" && find . | sort); }  # FOLDER

# Every name in a folder with what it holds and when that was written.
state() { (cd "$1" && find . -printf '%p %y %T@ %l ' \( -type f -exec md5sum {} \; -o -print \) | sort); }

everything='.
./brooklander
./brooklander/duration.txt
./brooklander/keldar.db
./brooklander/samplefraction.txt
./brooklander/samples
./brooklander/samples/lake.txt
./brooklander/statistictype.txt
./brooklander/temperature.txt'

mkdir fresh
is "a fresh home gets the database" "$work/fresh/brooklander/keldar.db
status 0" "$(lay_down "$work/fresh")"
is "a fresh home gets everything, and nothing is left over" "$everything" "$(names fresh)"
for file in "$root"/samples/workspace/*; do
  is "${file##*/} is the sample's" "" "$(cmp "$file" "fresh/brooklander/${file##*/}" 2>&1)"
done
is "the sample table is the sample's" "" \
  "$(cmp "$root/samples/lake.txt" fresh/brooklander/samples/lake.txt 2>&1)"
is "the database is what the script makes" "$(sqlite3 -batch '' ".read '$root/samples/keldar.sql'" .dump)" \
  "$(sqlite3 -batch fresh/brooklander/keldar.db .dump)"

# The workspace that a build has made, with the help.
mkdir -p built/help of_a_build
touch built/BROOKLANDER.HLP built/help/1.png built/duration.txt
export BROOKLANDER_WORKSPACE=$work/built
is "the workspace of a build is taken" "$work/of_a_build/brooklander/keldar.db
status 0" "$(lay_down "$work/of_a_build")"
unset BROOKLANDER_WORKSPACE
is "the help comes with its pictures" '.
./brooklander
./brooklander/BROOKLANDER.HLP
./brooklander/duration.txt
./brooklander/help
./brooklander/help/1.png
./brooklander/keldar.db
./brooklander/samples
./brooklander/samples/lake.txt' "$(names of_a_build)"

before=$(state fresh)
is "a second time ends well" "$work/fresh/brooklander/keldar.db
status 0" "$(lay_down "$work/fresh")"
is "a second time changes nothing" "$before" "$(state fresh)"

mkdir variable
HOME=$work/variable "$root/tools/lay_down_workspace" >/dev/null 2>&1
is "without a name it is the folder of HOME" "$everything" "$(names variable)"
mkdir relative
is "a name is taken from the current folder" "$work/relative/brooklander/keldar.db
status 0" "$(lay_down relative)"
mkdir 'name; of $odd "make"'
lay_down 'name; of $odd "make"' >/dev/null
is "a home can have any name" "$everything" "$(names 'name; of $odd "make"')"

# A user's own files, in spellings of the user's own.
mkdir -p own/BrookLander/Samples
for name in samplefraction.TXT Duration.TXT KELDAR.DB Samples/LAKE.txt; do
  echo "mine: $name" >"own/BrookLander/$name"
done
ln -s nowhere own/BrookLander/Temperature.txt
before=$(state own)
is "the database keeps its spelling" "$work/own/BrookLander/KELDAR.DB
status 0" "$(lay_down "$work/own")"
is "only what is missing is added" '.
./BrookLander
./BrookLander/Duration.TXT
./BrookLander/KELDAR.DB
./BrookLander/Samples
./BrookLander/Samples/LAKE.txt
./BrookLander/Temperature.txt
./BrookLander/samplefraction.TXT
./BrookLander/statistictype.txt' "$(names own)"
rm own/BrookLander/statistictype.txt
files() { grep -v ' d ' <<<"$1"; }  # STATE
is "the user's own files stay as they are" "$(files "$before")" "$(files "$(state own)")"

mkdir -p both/brooklander both/BROOKLANDER
lay_down "$work/both" >/dev/null
is "the very spelling goes before others" "./BROOKLANDER" "$(cd both && find ./BROOKLANDER)"

# Folders of the workspace, as the source tree or an installation may have them.
mkdir -p folders/{home/brooklander/HELP/deep,samples/workspace/help/deep} folders/samples/workspace/none
cp -r "$root/tools" "$root"/samples/{keldar.sql,lake.txt} folders
mv folders/{keldar.sql,lake.txt} folders/samples
for name in BROOKLANDER.HLP help/01.png help/02.png help/deep/[1].png; do
  echo "the program's: $name" >"folders/samples/workspace/$name"
done
echo "mine" >folders/home/brooklander/HELP/01.PNG
is "folders are laid down" "$work/folders/home/brooklander/keldar.db
status 0" "$(lay_down folders/tools "$work/folders/home")"
is "what is missing in folders is added, whatever their spelling" './brooklander
./brooklander/BROOKLANDER.HLP
./brooklander/HELP
./brooklander/HELP/01.PNG
./brooklander/HELP/02.png
./brooklander/HELP/deep
./brooklander/HELP/deep/[1].png
./brooklander/keldar.db
./brooklander/none
./brooklander/samples
./brooklander/samples/lake.txt' "$(names folders/home | tail -n +2)"
is "a file in such a folder is the program's" "the program's: help/deep/[1].png" \
  "$(cat 'folders/home/brooklander/HELP/deep/[1].png')"
is "a file of the user's in such a folder is left there" "mine" \
  "$(cat folders/home/brooklander/HELP/01.PNG)"

# What cannot be done.
is "a home that is missing is told" "\"$work/none/brooklander\" cannot be made: No such file or directory.
status 1" "$(lay_down "$work/none")"
mkdir taken
touch taken/Brooklander
is "a file in the workspace's place is told" "\"$work/taken/Brooklander\" cannot be made: File exists.
status 1" "$(lay_down "$work/taken")"
is "a file in the workspace's place is left there" "." "$(names taken | grep -v '^./Brooklander$')"
mkdir -p half/brooklander
touch half/brooklander/samples
is "a file in the samples' place is told" "\"$work/half/brooklander/samples\" cannot be made: File exists.
status 1" "$(lay_down "$work/half")"

# A script that breaks off in the middle.
mkdir -p broken/tools broken/home
cp "$root/tools/lay_down_workspace" broken/tools
cp -r "$root/samples" broken
printf 'CREATE TABLE first (a);\nINSERT INTO nowhere VALUES (1);\n' >broken/samples/keldar.sql
is "a script that fails is told" "\"$work/broken/home/brooklander/keldar.db\" cannot be made: no such table: nowhere.
status 1" "$(lay_down broken/tools "$work/broken/home")"
is "a script that fails leaves nothing of the database" "$(grep -v keldar.db <<<"$everything")" \
  "$(names broken/home)"

count

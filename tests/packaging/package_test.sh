#!/usr/bin/env bash
# The Debian package: that it is made, that Debian's own checkers find nothing wrong with it, and that
# the programs in it work from wherever they lie.
#   package_test.sh BUILD_FOLDER
set -uo pipefail
. "$(dirname "$0")/../support/checks.sh"
export LC_ALL=C.UTF-8
here=$(cd "$(dirname "$0")" && pwd)
root=$(cd "$here/../.." && pwd)
build=$(realpath "$1")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work" || exit

made=$(umask 077 && cmake --build "$build" --target package 2>&1) || { echo "$made" && exit 1; }
version=$(sed -n 's/^project(brooklander VERSION \([^ ]*\).*/\1/p' "$root/CMakeLists.txt")
package=$build/brooklander_${version}_$(dpkg --print-architecture).deb
dpkg-deb -x "$package" installed || exit

# What Debian's checkers say. There is no override; one would need its reason.
holds "lintian has no complaint" \
  "$(lintian --allow-root --tag-display-limit 0 --fail-on error,warning "$package" 2>&1 || echo "status $?")"
holds "the menu entry is one" \
  "$(desktop-file-validate installed/usr/share/applications/brooklander.desktop 2>&1)"
holds "the metainfo is right" \
  "$(said=$(appstreamcli validate --no-net installed/usr/share/metainfo/*.xml 2>&1) || echo "$said")"
for page in installed/usr/share/man/man1/*; do
  holds "${page##*/} is set without a warning" \
    "$(MANROFFSEQ='' MANWIDTH=80 man --warnings -E UTF-8 -l -Tutf8 -Z "$page" 2>&1 >/dev/null)"
done
is "the package is this version's" "$version" "$(dpkg-deb -f "$package" Version)"
is "the metainfo tells this version" "$version" \
  "$(sed -n 's/.*<release version="\([^"]*\)".*/\1/p' installed/usr/share/metainfo/*.xml)"

# What is in it.
holds "everybody may use it, whoever has made it" \
  "$(dpkg-deb -c "$package" | grep -vE '^(d|-)rwxr-xr-x root/root |^-rw-r--r-- root/root ')"
is "everything lies below usr" "usr" "$(ls -A installed)"
share=installed/usr/share/brooklander
is "the samples are those of the source tree" "" "$(diff -r -x CMakeLists.txt -x help -x workspace \
  "$root/samples" $share/samples 2>&1)"
is "the workspace is the one of the build, with the help" "" \
  "$(diff -r "$build/workspace" $share/samples/workspace 2>&1)"
holds "the help has its pictures" "$(ls $share/samples/workspace/help/*.png 2>&1 >/dev/null)"
is "the tools are there" "convert_folder first_start lay_down_workspace make_data_source play_tour" \
  "$(cd $share/tools && echo *)"
for tool in "$share"/tools/*; do
  is "${tool##*/} is that of the source tree" "" "$(cmp "$root/tools/${tool##*/}" "$tool" 2>&1)"
done
for program in brooklander brooklander-scenario; do
  is "$program has its manual page" "$program" \
    "$(zcat installed/usr/share/man/man1/$program.1.gz | sed -n '/^.SH NAME/{n;s/\\//g;s/ - .*//p}')"
done
options() { grep -oE -e '--[a-z]+' | sort -u; }
is "the manual page has the player's options" \
  "$({ installed/usr/bin/brooklander-scenario --help && echo --help; } | options)" \
  "$(zcat installed/usr/share/man/man1/brooklander-scenario.1.gz | tr -d '\\' | options)"
holds "each icon has the size of its folder" "$(cd installed/usr/share/icons/hicolor &&
  for size in *; do
    file "$size/apps/brooklander.png" | grep -qF "PNG image data, ${size/x/ x }," || echo "$size"
  done)"
for size in 16x16 48x48 128x128; do
  holds "there is an icon of $size" \
    "$(ls installed/usr/share/icons/hicolor/$size/apps/brooklander.png 2>&1 >/dev/null)"
done
depends=" $(dpkg-deb -f "$package" Depends | tr -d ,) "
for package_name in libsqliteodbc odbcinst sqlite3; do
  holds "it depends on $package_name" "$([[ $depends == *" $package_name "* ]] || echo "$depends")"
done

# A user with nothing. Neither the system's data sources nor the tester's own have a part in this.
mkdir system home
cp "$(odbcinst -j | sed -n 's/^DRIVERS\.*: //p')" system/odbcinst.ini
export HOME=$work/home ODBCINI=$work/home/odbc.ini ODBCSYSINI=$work/system
unset ODBCSEARCH DISPLAY WAYLAND_DISPLAY
player=$work/installed/usr/bin/brooklander-scenario
start() { "$here/start_until_window" "$work/installed/usr/bin/brooklander" || echo "status $?"; }
state() { (cd "$1" && find . -printf '%p %y ' \( -type f -exec md5sum {} \; -o -print \) | sort); }

printf 'make c:\\none\n' >none.scn
"$player" none.scn >/dev/null
is "the player lays nothing down" "./none" "$(cd home && find . -mindepth 1)"
rmdir home/none
is "the first start says nothing" "" "$(start)"
is "the first start lays down the workspace" "" \
  "$(diff -r "$build/workspace" home/brooklander 2>&1 | grep -v "^Only in home/brooklander: ")"
is "the first start lays down the sample table" "" \
  "$(cmp "$root/samples/lake.txt" home/brooklander/samples/lake.txt 2>&1)"
is "the first start makes the data source" "Database=$work/home/brooklander/keldar.db" \
  "$(grep Database home/odbc.ini 2>&1)"
before=$(state home)
is "a second start says nothing" "" "$(start)"
is "a second start changes nothing" "$before" "$(state home)"

# The user's table, from the logon to its load file, beside that of the build tree.
is "the installed player converts on what was laid down" "1 passed, 0 failed" \
  "$("$player" installed/usr/share/brooklander/samples/tour.scn | tail -n 1)"
ODBCINI=$build/sample_database/odbc.ini "$build/bin/brooklander-scenario" --home "$work/by_build" \
  "$root/samples/tour.scn" >/dev/null
is "it converts as the one in the build tree does" "" \
  "$(cmp by_build/brooklander/voxoutfiles/lake.txt home/brooklander/voxoutfiles/lake.txt 2>&1)"

# What the user has changed and removed.
echo mine >home/brooklander/duration.txt
mv home/brooklander/BROOKLANDER.HLP home/brooklander/Brooklander.hlp
rm home/brooklander/temperature.txt
printf '[keldar]\nDriver=Oracle\n' >home/odbc.ini
before=$(state home)
start >/dev/null
is "what was removed comes back, and the user's own files stay" "> ./brooklander/temperature.txt f" \
  "$(diff <(echo "$before") <(state home) | grep '^[<>]' | cut -d ' ' -f 1-3)"

# A step that cannot be done.
mkdir -p other/odbc.ini
is "a first start that fails is told, and the window comes all the same" \
  "\"$work/other/odbc.ini\" cannot be written: Is a directory." \
  "$(HOME=$work/other ODBCINI=$work/other/odbc.ini start)"
is "without a workspace there is no window" "\"$work/nowhere/brooklander\" cannot be made: No such file or directory.
\"c:\\brooklander\" cannot be made the current directory: No such file or directory." \
  "$(HOME=$work/nowhere timeout 5 env QT_QPA_PLATFORM=offscreen installed/usr/bin/brooklander 2>&1 |
    grep '^"')"

count

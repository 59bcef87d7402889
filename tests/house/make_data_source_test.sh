#!/usr/bin/env bash
# The data source is made where unixODBC looks for it, once, and nothing else in that file changes.
set -uo pipefail
. "$(dirname "$0")/../support/checks.sh"
export LC_ALL=C
root=$(cd "$(dirname "$0")/../.." && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work" || exit

# Neither the system's data sources nor the tester's own have a part in this.
mkdir system
printf '[SQLite3]\nDriver=libsqlite3odbc.so\n' >system/odbcinst.ini
export ODBCSYSINI=$work/system ODBCINI=$work/odbc.ini HOME=$work
unset ODBCSEARCH ODBCINSTINI

make_source() {  # DATABASE_FILE; prints its words, and its status where that is not 0
  "$root/tools/make_data_source" "$@" 2>&1 || echo "status $?"
}

source_to() {  # DATABASE_FILE
  printf '[keldar]\nDriver=SQLite3\nDatabase=%s\nNoCreat=Yes\n' "$1"
}

holds() {  # NAME PRINTF-FORMAT: what the user's file must hold, byte for byte
  is "$1" "" "$(printf "$2" | cmp - odbc.ini 2>&1)"
}

database=$work/keldar.db
touch "$database"
made="The data source keldar in $work/odbc.ini leads to $database."
kept="There is a data source keldar already; it stays as it is."

is "it says what it made" "$made" "$(make_source "$database")"
holds "the file is made" "$(source_to "$database")\n"
is "unixODBC knows the data source" "$(source_to "$database")" "$(odbcinst -q -s -n keldar 2>&1)"
touch other.db
is "a second time it says that there is one" "$kept" "$(make_source "$work/other.db")"
holds "a second time nothing changes" "$(source_to "$database")\n"

# Other data sources, in whatever state.
others='# mine\n[plain]\nDriver = SQLite3\n\n[keldar2]\r\nDatabase=/\xe9 \r\n;[keldar]\n'
printf "$others" >odbc.ini
is "it is made beside others" "$made" "$(make_source "$database")"
holds "others stay as they are" "$others\n$(source_to "$database")\n"
is "unixODBC knows it beside others" "$(source_to "$database")" "$(odbcinst -q -s -n keldar 2>&1)"
printf '[plain]\nDriver=SQLite3' >odbc.ini
make_source "$database" >/dev/null
holds "a last line without an end gets one" "[plain]\nDriver=SQLite3\n\n$(source_to "$database")\n"
printf '[plain]\nDriver=SQLite3\n' >linked.ini
ln -sf linked.ini odbc.ini
make_source "$database" >/dev/null
is "a link to the file stays a link" "linked.ini" "$(readlink odbc.ini)"
rm odbc.ini

# A data source of the user's or the system's own.
own='[plain]\nDriver=SQLite3\n[KELDAR]\nDriver=Oracle\n'
printf "$own" >odbc.ini
is "a source in another spelling counts" "$kept" "$(make_source "$database")"
holds "a source in another spelling is kept" "$own"
rm odbc.ini
printf '[keldar]\nDriver=Oracle\n' >system/odbc.ini
is "the system's source counts" "$kept" "$(make_source "$database")"
is "the user gets no file then" "missing" "$([[ -e odbc.ini ]] && echo there || echo missing)"
printf '[plain]\nDriver=SQLite3\n' >odbc.ini
is "the system's source counts beside a file of the user's" "$kept" "$(make_source "$database")"
holds "the file of the user's is kept then" '[plain]\nDriver=SQLite3\n'
is "the system's sources can be left out of account" "$made" \
  "$(ODBCSEARCH=ODBC_USER_DSN make_source "$database")"
rm odbc.ini system/odbc.ini

# Whatever the name of the database's folder is.
odd="$work/a ;#[b]=\"c\" % 'd'"
mkdir "$odd"
touch "$odd/keldar.db"
make_source "$odd/keldar.db" >/dev/null
is "a path can hold any mark" "$(source_to "$odd/keldar.db")" "$(odbcinst -q -s -n keldar 2>&1)"
rm odbc.ini
is "a name is taken from the current folder" "$made" "$(make_source keldar.db)"
rm odbc.ini

# What cannot be done.
is "a database that is missing is told" "There is no database \"$work/none.db\".
status 1" "$(make_source "$work/none.db")"
mkdir $'two\nlines'
touch $'two\nlines/keldar.db'
is "a path that the file cannot hold is told" "A data source cannot lead to \"$work/two
lines/keldar.db\".
status 1" "$(make_source $'two\nlines/keldar.db')"
is "nothing is written then" "" "$(cat odbc.ini 2>/dev/null)"
mkdir folder.ini
is "a file that cannot be written is told" "\"$work/folder.ini\" cannot be written: Is a directory.
status 1" "$(ODBCINI=$work/folder.ini make_source "$database")"
printf '[keldar]\n\n[plain]\nDriver=SQLite3\n' >odbc.ini
is "a source without settings is told" "The data source keldar in \"$work/odbc.ini\" has no settings; \
please complete or remove it.
status 1" "$(make_source "$database")"
holds "a source without settings is kept" '[keldar]\n\n[plain]\nDriver=SQLite3\n'
rm odbc.ini
: >system/odbcinst.ini
is "a driver that is missing is told" \
  "The ODBC driver SQLite3 is not set up; the package libsqliteodbc brings it.
status 1" "$(make_source "$database")"
printf '[SQLite3]\nDriver=libsqlite3odbc.so\n' >system/odbcinst.ini

# Without ODBCINI: the home that the user database names, in a view of the machine where that is
# another. Not every machine lets a test have one.
mkdir passwd_home not_it
echo "root:x:0:0::$work/passwd_home:/bin/bash" >passwd
in_view='mount --bind passwd /etc/passwd && unset ODBCINI && HOME=$1/not_it "$2/tools/make_data_source" "$3"'
if unshare --mount --map-root-user true 2>/dev/null; then
  unshare --mount --map-root-user bash -c "$in_view" - "$work" "$root" "$database" >/dev/null
  is "it goes to the home of the user database" "$(source_to "$database")" \
    "$(cat passwd_home/.odbc.ini 2>&1)"
  is "it does not go to HOME" "" "$(ls -A not_it)"
else
  echo "Left out: the file in the home of the user database."
fi

count

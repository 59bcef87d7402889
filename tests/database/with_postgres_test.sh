#!/usr/bin/env bash
# The script that gives tests a PostgreSQL server leaves no process and no folder behind, however it
# ends.
#   with_postgres_test.sh SQL_FILE
set -uo pipefail
here=$(cd "$(dirname "$0")" && pwd)
sql=$(realpath "$1")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
chmod 711 "$work"
failed=0
passed=0

complain() { echo "$1"; failed=$((failed + 1)); }

# wait_until SECONDS COMMAND...
wait_until() {
  local left=$(($1 * 10))
  shift
  until "$@"; do
    ((left-- > 0)) || return 1
    sleep 0.1
  done
}
# All processes of a server work in its folder.
server_is_there() {
  [[ -n $(find /proc/[0-9]*/cwd -maxdepth 0 -lname "$work/$name/*" 2>/dev/null) ]]
}
no_server() { ! server_is_there; }
no_folder() { [[ -z $(ls -A "$work/$name") ]]; }
goes_on() { [[ $(ps -o state= -p "$1") == [!Z]* ]]; }
has_ended() { ! goes_on "$1"; }

# ends_by NAME STATUS KEPT START KILL: START begins the script, whose command writes its process
# and then sleeps; KILL ends it. KEPT is what may be left: `nothing` or `files`.
ends_by() {
  name=$1
  local status=$2 kept=$3 signal=$4
  local before=$failed
  mkdir -m 711 "$work/$name"
  # With job control, so that the script does not start with signals ignored.
  set -m
  TMPDIR=$work/$name "$here/with_postgres" "$sql" bash -c \
    'echo $$ > "$0"; exec sleep 60' "$work/$name.command" &
  local script=$!
  set +m
  wait_until 30 test -s "$work/$name.command" || complain "$name: the command was not run"
  server_is_there || complain "$name: there was no server"
  kill "-$signal" "$script"
  wait "$script" 2>/dev/null
  local found=$?
  [[ $found == "$status" ]] || complain "$name: expected status $status, found $found"
  wait_until 10 no_server || complain "$name: the server is still there"
  wait_until 5 has_ended "$(cat "$work/$name.command")" || complain "$name: the command goes on"
  [[ $kept == files ]] || wait_until 5 no_folder || complain "$name: the folder is still there"
  [[ $failed == "$before" ]] && passed=$((passed + 1))
}

ends_by terminated 143 nothing TERM
ends_by interrupted 130 nothing INT
ends_by killed 137 files KILL

# Whoever started it is killed: the script ends as if it were told to.
name=orphaned
mkdir -m 711 "$work/$name"
before=$failed
bash -c '"$@"; :' - env TMPDIR="$work/$name" "$here/with_postgres" "$sql" \
  bash -c 'echo $$ > "$0"; exec sleep 60' "$work/$name.command" &
starter=$!
disown "$starter"
wait_until 30 test -s "$work/$name.command" || complain "$name: the command was not run"
server_is_there || complain "$name: there was no server"
kill -KILL "$starter"
wait_until 10 no_server || complain "$name: the server is still there"
wait_until 5 no_folder || complain "$name: the folder is still there"
[[ $failed == "$before" ]] && passed=$((passed + 1))

echo "$passed passed, $failed failed"
[[ $failed -eq 0 ]]

#!/usr/bin/env bash
# Plays the logon, without windows and with them, where each outcome is to be had: a server with
# passwords, a server that is down, a source that nobody knows. Runs under with_postgres.
#   logon_outcomes.sh PLAYER [OPTION...]
set -uo pipefail
here=$(cd "$(dirname "$0")" && pwd)
player=("$@")
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
failed=0

# play NAME ODBC_INI SCENARIO
play() {
  local way
  for way in '' --drawn; do
    ODBCINI=$2 ODBCSEARCH=ODBC_USER_DSN "${player[@]}" $way --home "$home" \
      --with USER="$POSTGRES_USER" --secret PASSWORD "$here/$3" <<<"$POSTGRES_PASSWORD" ||
      { echo "$1 ${way:-undrawn}: FAILED"; failed=1; }
  done
}

# Nothing of this machine listens at the lowest port.
sed 's/^Port=.*/Port=1/' "$ODBCINI" > "$home/down.ini"
printf '[elsewhere]\nDriver=SQLite3\n' > "$home/unknown.ini"
play "right and wrong password" "$ODBCINI" logon_to_a_server.scn
play "server down" "$home/down.ini" logon_in_vain.scn
play "unknown source" "$home/unknown.ini" logon_in_vain.scn
exit $failed

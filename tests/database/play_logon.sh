#!/usr/bin/env bash
# Plays a scenario as a user whom the server of `with_postgres` knows.
#   play_logon.sh PLAYER SCENARIO
set -uo pipefail
home=$(mktemp -d)
"$1" --home "$home" --with USER="$POSTGRES_USER" --with PASSWORD="$POSTGRES_PASSWORD" "$2"
status=$?
rm -rf "$home"
exit "$status"

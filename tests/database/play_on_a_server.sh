#!/usr/bin/env bash
# Plays scenarios that ask the database on a server instead of the embedded one; each must hold there
# as it stands. Runs under with_postgres, which the users of the scenarios are told to.
#   play_on_a_server.sh PLAYER FOLDER...
set -uo pipefail
# Where a statement asks for no order, the rows come as the server's joins find them. Joined one by
# one they come as they were laid down, which is how the scenarios know them.
export PGOPTIONS='-c enable_hashjoin=off -c enable_mergejoin=off -c enable_material=off'
player=$1
shift
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
played=0
failed=0
while IFS= read -r -d '' scenario; do
  rm -rf "${home:?}/drive"
  mkdir "$home/drive"
  said=$(ODBCSEARCH=ODBC_USER_DSN "$player" --home "$home/drive" "$scenario" 2>&1) ||
    { echo "$said"; failed=$((failed + 1)); }
  played=$((played + 1))
done < <(find "$@" -name '*.scn' -not -path '*/road/*' -print0 | sort -z)
echo "$played played on the server, $failed failed"
[[ $played -gt 0 && $failed -eq 0 ]]

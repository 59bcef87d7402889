#!/usr/bin/env bash
# The player's command line: options, what it prints, and its exit status.
#   player_test.sh PLAYER
set -uo pipefail
player=$(realpath "$1")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"
passed=0
failed=0

# expect NAME STATUS STDOUT -- ARGUMENTS: standard output must be exactly STDOUT.
expect() {
  local name=$1 status=$2 output=$3
  shift 4
  local found code
  found=$("$player" --home "$work/home" "$@" 2>errors </dev/stdin)
  code=$?
  rm -rf home
  if [[ $code == "$status" && $found == "$output" ]]; then
    passed=$((passed + 1))
  else
    failed=$((failed + 1))
    printf '%s: expected status %s and\n%s\nfound status %s and\n%s\n' \
      "$name" "$status" "$output" "$code" "$found"
  fi
}

printf 'make c:\\brooklander\nstart\n' > good.scn
printf 'start\n' > fails.scn
printf 'make c:\\brooklander\nstart\nnonsense\n' > wrong.scn
printf 'write c:\\${NAME} "${TEXT}"\nfile c:\\a.txt line 1 "two words"\n' > with.scn
printf 'make c:\\brooklander\nstart\ntype frmStart.txtOracleID ${WORD}\nprint frmStart.txtOracleID\nexpect frmStart.txtOracleID text x${WORD}\n' > secret.scn
printf 'make c:\\brooklander\nfile c:\\wrong missing\n' > later.scn

expect "all pass" 0 '2 passed, 0 failed' -- good.scn good.scn < /dev/null
expect "one fails" 1 $'fails.scn:1: The program ended in a fatal failure: "c:\\brooklander" cannot be made the current directory: No such file or directory.\n1 passed, 1 failed' \
  -- fails.scn good.scn < /dev/null
expect "a wrong line" 2 $'wrong.scn:3: There is no command "nonsense".\n1 passed, 1 failed' \
  -- wrong.scn later.scn < /dev/null
expect "a file that is not there" 2 $'"none.scn" cannot be opened: No such file or directory.\n0 passed, 1 failed' \
  -- none.scn < /dev/null
expect "a wrong line counts more than a failure" 2 $'fails.scn:1: The program ended in a fatal failure: "c:\\brooklander" cannot be made the current directory: No such file or directory.\nwrong.scn:3: There is no command "nonsense".\n0 passed, 2 failed' \
  -- fails.scn wrong.scn < /dev/null
expect "variables" 0 '1 passed, 0 failed' -- --with NAME=a.txt --with 'TEXT=two words' with.scn < /dev/null
expect "a variable without a value" 2 $'with.scn:1: ${NAME} has no value; give it one with --with.\n0 passed, 1 failed' \
  -- with.scn < /dev/null
expect "a secret shows nowhere" 1 $'{"field":"frmStart.txtOracleID","kind":"text box","visible":true,"enabled":true,"seen":true,"text":"******"}\nsecret.scn:5: frmStart.txtOracleID: expected "x******", found "******".\n0 passed, 1 failed' \
  -- --secret WORD secret.scn <<< 'geheim'
expect "a secret within another one" 1 $'{"field":"frmStart.txtOracleID","kind":"text box","visible":true,"enabled":true,"seen":true,"text":"**********"}\nsecret.scn:5: frmStart.txtOracleID: expected "x**********", found "**********".\n0 passed, 1 failed' \
  -- --secret SHORT --secret WORD secret.scn <<< $'keldar\nkeldar2005'
expect "a secret of quotes and the count of the files" 1 $'{"field":"frmStart.txtOracleID","kind":"text box","visible":true,"enabled":true,"seen":true,"text":"****"}\nsecret.scn:5: frmStart.txtOracleID: expected "x****", found "****".\n0 passed, 1 failed' \
  -- --secret WORD secret.scn <<< '""'
expect "a secret that no line holds" 2 '' -- --secret WORD secret.scn <<< 'Łgeheim'
expect "a secret without input" 2 '' -- --secret WORD secret.scn < /dev/null
expect "help" 0 "$("$player" good.scn --nothing 2>&1 >/dev/null | tail -n +2)" -- --help < /dev/null
expect "no file" 2 '' -- < /dev/null
expect "an option that is none" 2 '' -- --loud good.scn < /dev/null
expect "an option without its value" 2 '' -- good.scn --with < /dev/null
expect "a variable that is no assignment" 2 '' -- --with NAME good.scn < /dev/null
expect "pictures have a place" 0 '1 passed, 0 failed' -- --shots pictures good.scn < /dev/null

echo "$passed passed, $failed failed"
[[ $failed -eq 0 ]]

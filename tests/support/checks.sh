# What the shell tests share; to be sourced. A test ends with `count`.
passed=0
failed=0

# is NAME EXPECTED FOUND
is() {
  if [[ $2 == "$3" ]]; then
    passed=$((passed + 1))
  else
    failed=$((failed + 1))
    printf '%s: expected\n%s\nfound\n%s\n' "$1" "$2" "$3"
  fi
}

# holds NAME WRONG: WRONG, what speaks against NAME, must be empty.
holds() {
  if [[ -z $2 ]]; then
    passed=$((passed + 1))
  else
    failed=$((failed + 1))
    printf '%s: found\n%s\n' "$1" "$2"
  fi
}

count() {
  echo "$passed passed, $failed failed"
  [[ $failed -eq 0 ]]
}

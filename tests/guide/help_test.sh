#!/usr/bin/env bash
# The help that the build has made: it says what the guide says now, and all that it leads to is there.
#   help_test.sh GUIDE_MAKER WORKSPACE CHAPTER...
set -uo pipefail
. "$(dirname "$0")/../support/checks.sh"
export LC_ALL=C
maker=$1
cd "$2" || exit
shift 2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
help=BROOKLANDER.HLP

# Played without windows, the chapters say the same: pictures have lines of their own.
is "the guide can be played undrawn" "" "$("$maker" --home "$work/homes" "$work/page" "$@" 2>&1)"
is "the help says what the guide says" "" "$(diff "$work/page" <(grep -v '^<p><img ' $help) 2>&1)"

shown() { grep -o '<img src="[^"]*' $help | cut -d '"' -f 2 | sort; }
is "each picture is shown once, and there" "$(shown)" "$(find help -name '*.png' 2>/dev/null | sort)"
holds "the pictures are pictures" "$(for file in $(shown); do
  [[ $(head -c 4 "$file" | tail -c 3) == PNG ]] || echo "$file"; done)"
holds "each picture has words in its place" "$(grep '<img ' $help | grep -v 'alt="[^"]')"

holds "the help is UTF-8" "$(iconv -f UTF-8 -t UTF-8 $help 2>&1 >/dev/null)"
holds "the help needs nothing but its pictures" "$(grep -inE '<(script|link|style)|https?://' $help)"
holds "each link leads to a heading" "$(comm -23 \
  <(grep -o 'href="#[^"]*' $help | cut -d '#' -f 2 | sort -u) \
  <(grep -o 'a name="[^"]*' $help | cut -d '"' -f 2 | sort))"
holds "each element is closed" "$(comm -3 \
  <(grep -oE '<(h[1-3]|p|ul|ol|li|table|tr|td|th|a|b|i|tt)[ >]' $help | tr -d '<> ' | sort) \
  <(grep -oE '</(h[1-3]|p|ul|ol|li|table|tr|td|th|a|b|i|tt)>' $help | tr -d '</>' | sort))"
# ${...} is how scenarios write a variable.
holds "no mark of the guide is left over" "$(sed 's/<[^>]*>//g; s/\${[a-z0-9]*}//g' $help | grep -nE '\{|\}|__|`|\]\(|@fields|!\[|\\$')"

count

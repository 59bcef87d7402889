#!/usr/bin/env bash
# Where the guide and the program differ no help is made, and the place is told.
#   refusals_test.sh GUIDE_MAKER
set -uo pipefail
. "$(dirname "$0")/../support/checks.sh"
maker=$(realpath "$1")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work" || exit

# What is told of a chapter, and whether a page was written.
told() {  # LINE...
  printf '%s\n' "$@" >chapter.guide
  rm -f page
  "$maker" --home homes page chapter.guide 2>&1
  echo "status $?"
  [[ ! -e page ]] || echo "a page"
}
started='make c:\brooklander
start'

is "a chapter that holds becomes a page" "status 0
a page" "$(told '#| # Help [top]' "$started" '#| Press {frmStart.mnuHelp}, see [top](#top).')"
is "the caption is the program's" '<p>Press <b>Help</b>, see <a href="#top">top</a>.</p>' \
  "$(grep Press page)"
is "a field that is not on the screen is told" \
  "chapter.guide:4: frmStart.cmdView is told of, but is not on the screen.
status 1" "$(told '#| # Help' "$started" '#| Press {frmStart.cmdView}.')"
is "a field that there is not is told" "chapter.guide:1: The screen frmStart has no field \"cmdGo\".
status 2" "$(told '#| Press {frmStart.cmdGo}.')"
is "a value before the program runs is told" "chapter.guide:1: The program does not run.
status 1" "$(told '#| Press {frmStart.mnuHelp}.')"
is "a step that fails is told" "chapter.guide:4: A user cannot do that to frmStart.cmdView: frmStart.cmdView is disabled.
status 1" "$(told '#| # Help' "$started" 'click frmStart.cmdView')"
is "a line that is no command is told before anything is played" \
  "chapter.guide:2: There is no command \"clik\".
status 2" "$(told 'start' 'clik frmStart.cmdView')"
is "a link that leads nowhere is told" "A link leads to nowhere, which is nowhere.
status 1" "$(told '#| See [this](#nowhere).')"
is "words are the program's letters, and no verb" '<p>At <tt>5 µg/l</tt>.</p>
<p>Nothing: <i>(empty)</i></p>' "$(told '#| At {text 5 µg/l}.' '#|' '#| Nothing: {text}' >/dev/null
  grep '^<p>' page)"
is "a chapter may begin with the mark of its encoding" "status 0
a page" "$(told $'\xEF\xBB\xBF#| # Help')"

# The command line. Without a folder to play in, the user's own would be taken.
usage="brooklander-guide [--drawn] [--shots FOLDER] --home FOLDER PAGE CHAPTER..."
printf '#| # Help\n' >chapter.guide
mkdir -p own/chapter
for words in "" "page" "--help" "--home homes page" "page chapter.guide" \
  "--home homes --with a=b page chapter.guide" "--home homes --secret a page chapter.guide"; do
  rm -f page
  # shellcheck disable=SC2086
  said=$(HOME=$work/own "$maker" $words 2>&1 </dev/null)
  is "no help is made by: $words" "2" "$?"
  [[ -z $words ]] || is "and it says how it is written: $words" "$usage" "$said"
  is "nor anything else: $words" "" "$(ls page 2>/dev/null)"
done
holds "nothing of the user's own is gone" "$([[ -d own/chapter ]] || echo gone)"

is "a file that cannot be read is told" "status 1" "$(told '#| See {line c:\none.txt 1}.' | tail -n 1)"

count

#!/usr/bin/env bash
# The check of the layers finds each kind of include that it is there to find.
set -euo pipefail
root=$(cd "$(dirname "$0")/../.." && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

refuses() {  # FILE INCLUDE WORDS-OF-THE-COMPLAINT
  rm -rf "$work/src"
  cp -r "$root/src" "$work/src"
  mkdir -p "$(dirname "$work/src/$1")"
  echo "#include $2" >> "$work/src/$1"
  if said=$("$root/tools/check_layers" "$work/src"); then
    echo "$1 may include $2, and should not"; exit 1
  fi
  [[ $said == *"$3"* ]] || { echo "expected '$3', found: $said"; exit 1; }
}

"$root/tools/check_layers"
refuses shared/text.h '<QString>' 'only the platform'
refuses conversion/conversion_driver.cpp '<sql.h>' 'only the platform'
refuses shared/field.cpp '"screens.h"' 'that arrow runs up'
refuses platform/files.h '"shared/text.h"' 'that arrow runs up'
refuses logon/start_screen.h '"screens.h"' 'that arrow runs up'
refuses logon/start_screen.h '"import/import_screen.h"' 'know no other screen'
refuses configuration/configuration_panel.h '"screens.h"' 'that arrow runs up'
refuses shared/workspace.cpp '"platform/files/host_files.h"' 'through platform/ alone'
refuses platform/files/host_files.cpp '"shared/text.h"' 'platform/ alone'
refuses import/import_table.cpp '"logon/logon.h"' 'in a circle'
refuses import/import_table.cpp '"nowhere.h"' 'not below src'
echo "1 passed, 0 failed"

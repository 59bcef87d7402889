#!/usr/bin/env bash
# Loads the sample database into SQLite, looks at how its values are kept, and runs every statement
# of statements.sql on it as the program's connection is set up.
#   sample_database_test.sh SQL_FILE
set -uo pipefail
. "$(dirname "$0")/../support/checks.sh"
sql_file=$(realpath "$1")
statements=$(dirname "$(realpath "$0")")/statements.sql
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
database=$work/keldar.db

query() {  # SQL
  sqlite3 -batch -bail "$database" "$1" 2>&1
}

# What a query finds in all columns of a type, where TABLE, COLUMN and WIDTH stand for each in turn.
in_columns() {  # TYPE QUERY
  query "$(query "
    SELECT replace(replace(replace('${2//\'/\'\'};', 'TABLE', t.name), 'COLUMN', c.name), 'WIDTH',
                   trim(c.type, 'ABCDEFGHIJKLMNOPQRSTUVWXYZ()'))
    FROM sqlite_schema AS t, pragma_table_info(t.name) AS c
    WHERE t.type = 'table' AND c.type LIKE '$1'")"
}

# As the program sets its connection up: read only, with the schema's name, LIKE sensitive to case,
# and no index made for one statement alone, which compares padded columns wrongly.
connected() {  # SQL
  sqlite3 -batch -bail "file:$database?mode=ro" "PRAGMA case_sensitive_like=1;
    PRAGMA automatic_index=${automatic_index:-0};
    ATTACH 'file:$database?mode=ro' AS KELDAR1; $1" 2>&1
}

holds "the script loads without a word" "$(sqlite3 -batch -bail "$database" <"$sql_file" 2>&1)"
holds "every table has rows" "$(in_columns '%' \
  "SELECT 'TABLE' WHERE NOT EXISTS (SELECT 1 FROM TABLE)")"
holds "every table is told what it holds" \
  "$(awk '/^CREATE TABLE/ && before !~ /^-- / { print } { before = $0 }' "$sql_file")"
holds "CHAR values are padded to their width" "$(in_columns 'CHAR(%' \
  "SELECT 'TABLE.COLUMN', quote(COLUMN) FROM TABLE WHERE length(COLUMN) <> WIDTH")"
holds "CHAR values compare without their padding" "$(in_columns 'CHAR(%' \
  "SELECT 'TABLE.COLUMN', quote(COLUMN) FROM TABLE WHERE COLUMN <> rtrim(COLUMN)")"
holds "VARCHAR values fit, with no blanks around them" "$(in_columns 'VARCHAR(%' \
  "SELECT 'TABLE.COLUMN', quote(COLUMN) FROM TABLE
   WHERE length(COLUMN) > WIDTH OR COLUMN <> trim(COLUMN)")"
holds "what is absent is NULL" "$(in_columns '%' \
  "SELECT 'TABLE.COLUMN' FROM TABLE WHERE trim(COLUMN) = ''")"
holds "search names are the names in capitals" "$(query \
  "SELECT display_name FROM tsrchar WHERE search_name <> upper(display_name)")"
holds "every organization column is linked" "$(query "
  SELECT t.name, c.name FROM sqlite_schema AS t, pragma_table_info(t.name) AS c
  WHERE t.type = 'table' AND c.name LIKE '%org_id' AND t.name <> 'tsmorgan'
    AND c.name NOT IN (SELECT \"from\" FROM pragma_foreign_key_list(t.name))")"
holds "links lead somewhere" "$(query 'PRAGMA foreign_key_check')"
holds "there are no statistics" "$(query \
  "SELECT name FROM sqlite_schema WHERE name LIKE 'sqlite_stat%'")"

# The statements, each with what the comment above it says of its rows.
count=0
while IFS=$'\t' read -r rows statement; do
  count=$((count + 1))
  wrong=
  if ! found=$(connected "$statement") || [[ $rows == none ]]; then
    wrong=$found
  elif [[ -z $found ]]; then
    wrong="no rows"
  fi
  holds "$statement" "$wrong"
  # With leave to make indexes of its own, SQLite finds none missing.
  holds "an index serves $statement" \
    "$(automatic_index=1 connected "EXPLAIN QUERY PLAN $statement" | grep AUTOMATIC)"
done < <(awk '
  /^-- / && !told { told = 1; rows = /^-- No rows: / ? "none" : "some" }
  /^[^-]/         { print rows "\t" $0 }
  !/^-- /         { told = 0 }' "$statements")
holds "there are statements" "$([[ $count -gt 0 ]] || echo none)"

# What Oracle does with the mark that the other servers go without: the same rows.
plain=$(grep 'FROM tsrgrcfg, tsrfldgr WHERE' "$statements" | head -n 1)
joined=$(sed 's/FROM tsrgrcfg, tsrfldgr WHERE \(tsrgrcfg[^ ]* = tsrfldgr[^ ]*\) AND/FROM tsrgrcfg LEFT JOIN tsrfldgr ON \1 WHERE/' \
  <<<"$plain")
holds "the outer join is told apart from the plain one" "$([[ $joined != "$plain" ]] || echo "$plain")"
holds "the outer join finds what the plain one finds" \
  "$(diff <(connected "$plain") <(connected "$joined"))"

count

# Reading the database of the management services. Sourced behind device.sh.
# shellcheck shell=sh

DATABASE=$LIBRARY/CoreService/dat/management.db

# query STATEMENT: the rows, columns separated by blanks.
query() {
  [ -s "$DATABASE" ] || fail "the management database $DATABASE is missing"
  sqlite3 -separator ' ' -cmd '.timeout 10000' "file:$DATABASE?mode=rw" "$1"
}

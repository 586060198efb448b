# What the scripts of the management services share: reading their database, storing what is made from it. Sourced
# behind device.sh.
# shellcheck shell=sh

# shellcheck source=SCRIPTDIR/transaction.sh
. "$BIN/transaction.sh"

DATABASE=$LIBRARY/CoreService/dat/management.db

# query STATEMENT: the rows, columns separated by blanks.
query() {
  [ -s "$DATABASE" ] || fail "the management database $DATABASE is missing"
  as_its_owner sqlite3 -separator ' ' -cmd '.timeout 10000' "file:$DATABASE?mode=rw" "$1"
}

# What lies in the database's folder is its owner's, who can put a link there, or a database of its own making, at any moment:
# nothing that root should open. Nor are the locks that are held here its owner's business.
as_its_owner() (
  if [ -O "$DATABASE" ] && ! find_user pages; then exec "$@"; fi
  as_user pages "$@"
) 8>&- 9>&-

# store_file FILE TEXT: like `store`, in any folder. Without room for the text the old file stays; one that holds the
# text already needs none.
store_file() {
  ! holds_text "$1" "$2" || return 0
  (SETTINGS=${1%/*} && store "${1##*/}" "$2")
}

holds_text() {
  [ -f "$1" ] && printf '%s\n' "$2" | cmp -s - "$1"
}

# lock DESCRIPTOR FILE: waits for its turn; the lock is held until the descriptor is closed.
lock() {
  # "exec" alone would end the script where it fails.
  { mkdir -p "${2%/*}" && (umask 077 && : >>"$2") && eval "command exec $1>>\"\$2\""; } 2>/dev/null ||
    fail "the lock $2 cannot be taken"
  flock -w 60 "$1" || fail "another change has had the lock $2 for a minute"
}

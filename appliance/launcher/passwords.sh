# shellcheck shell=bash
# Telling somebody a new password, which can be seen once; to be sourced by bash. On a terminal it is printed. Output that
# goes elsewhere may end in a file that everybody can read: then the passwords are written to a file for its owner alone, and
# its path is printed.
#
#   reserve_passwords FILE       before the passwords are made: returns 1, after a sentence on standard error, when they
#                                could not be handed over
#   hand_over_passwords FILE SHOWN LINES   LINES are "NAME PASSWORD", a name may have blanks; SHOWN is the path of FILE as the reader knows it

PASSWORDS_ROOM=1024 # bytes

reserve_passwords() {
  [[ ! -t 1 ]] || return 0
  # Room is taken now: a full disk is to be noticed before anything is changed.
  (umask 077 && rm -f "$1" && set -o noclobber && printf "%${PASSWORDS_ROOM}s\n" '' >"$1") 2>/dev/null && return
  rm -f "$1" 2>/dev/null
  echo "The file $1, for the passwords, cannot be written." >&2
  return 1
}

hand_over_passwords() {
  local file=$1 shown=$2 line text=''
  while read -r line; do
    [[ -z $line ]] || text+="Sign in as ${line% *} with the password ${line##* } (this is shown only once)."$'\n'
  done <<<"$3"
  if [[ -z $text ]]; then
    [[ -t 1 ]] || rm -f "$file"
  elif [[ -t 1 ]]; then
    printf '%s' "$text"
  elif { printf '%s' "$text" 1<>"$file"; } 2>/dev/null; then
    truncate --size "$(printf '%s' "$text" | wc -c)" "$file" # what room was not needed
    echo "The passwords are in $shown, for you alone to read: read it, then delete it."
  else
    return 1
  fi
}

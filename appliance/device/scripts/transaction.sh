# Changing a setting: whole or not at all, also when the script is killed or the power goes. Sourced behind
# settings.sh.
#
# Under one lock, from the first read of a setting to the last step of putting it into force, a change
#   1. keeps the setting of before in a file beside it, NAME.before,
#   2. replaces the setting, by renaming a file that is on the disk already,
#   3. puts it into force,
#   4. and forgets the setting of before; or, when 3 was impossible, goes back to it.
# A start puts what is stored into force. What was interrupted before 2 is the old setting then, what was
# interrupted behind it the new one, unless that proves impossible: then it is the one of before again. A setting
# of before that is still there at 1 stays: the one beside it was never seen in force.
# shellcheck shell=sh disable=SC2154 # variables are set by the functions that read into them

# Waits for the change under way, if there is one; the lock is held until the script ends. The DHCP clients are the
# only ones that outlive it: they are started without descriptor 9.
lock_settings() {
  take_settings_lock -w 60 || fail 'another change of the settings has been under way for a minute'
}

# take_settings_lock [OPTION...]: options of flock.
take_settings_lock() {
  # "exec" alone would end the script where it fails.
  { mkdir -p "$RUN" && (umask 077 && : >>"$RUN/settings.lock") && command exec 9>>"$RUN/settings.lock"; } || fail "the lock $RUN/settings.lock cannot be taken"
  flock "$@" 9
}

# replace_file FILE TEXT: makes the text the file's only line; a reader sees the old file or the new one.
replace_file() {
  { printf '%s\n' "$2" >"$1.new" && mv -fT "$1.new" "$1"; } 2>/dev/null && return
  rm -f "$1.new"
  complain "$1 cannot be written"
  return 1
}

# store NAME TEXT: like replace_file for what has to outlive a power cut.
store() {
  new=$SETTINGS/$1.new
  { printf '%s\n' "$2" >"$new" && sync "$new" && mv -fT "$new" "$SETTINGS/$1" && sync "$SETTINGS"; } 2>/dev/null && return
  rm -f "$new"
  complain "$SETTINGS/${1%.before} cannot be written"
  return 1
}

# change_setting NAME TEXT APPLY: stores the setting and puts it into force with the function APPLY. The settings
# are locked already.
change_setting() {
  mkdir -p "$SETTINGS" 2>/dev/null
  [ -w "$SETTINGS" ] || fail "the settings in $SETTINGS cannot be written"
  read_stored setting_of_before "$1" .before || {
    read_setting setting_of_before "$1"
    store "$1.before" "$setting_of_before" || exit 1
  }
  store "$1" "$2" || go_back "$1" : 'could not be stored'
  "$3" || go_back "$1" "$3" 'could not be put into force'
  forget_before "$1"
}

# go_back NAME APPLY WHY: ends the script, saying what is so now. Renaming needs no room on the disk.
go_back() {
  restore_before "$1" || fail "the setting \"$1\" $3, and the one of before could not be stored again"
  "$2" || fail "the setting \"$1\" $3; the one of before is stored again, but could not be put into force either"
  fail "the setting \"$1\" $3 and is as before"
}

restore_before() {
  mv -fT "$SETTINGS/$1.before" "$SETTINGS/$1" && sync "$SETTINGS"
}

# One that stays, because it cannot be removed, matters only to a start at which the setting itself is refused.
forget_before() {
  if [ -e "$SETTINGS/$1.before" ] || [ -L "$SETTINGS/$1.before" ]; then rm -f "$SETTINGS/$1.before" 2>/dev/null; fi
  return 0
}

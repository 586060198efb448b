# shellcheck shell=bash
# Who may do what in the appliance: the users of what talks to strangers, and whose the files are. To be sourced by bash
# behind install.sh, as root.
#
#   rights_add_users ROOT     names the users in ROOT/etc/passwd and ROOT/etc/group: the appliance's own, and of the
#                             machine's only those of its system. In ROOT alone. Returns 1 where the machine has given
#                             one of the numbers to somebody else.
#   rights_have_users         whether there are such users here: not in a user namespace, which has no second one, and not
#                             on the machine itself
#   rights_settle             gives the files to who needs them, and says in the file that the device scripts know who
#                             that is. Without such users all is root's and nobody else's.

WEB_USER=network-web
PAGES_USER=network-pages
# Of the numbers that Debian gives out nowhere by itself; a file keeps its owner over a restart.
WEB_ID=61080
PAGES_ID=61081
USERS=$APP_RUN/users # that the device scripts know

rights_add_users() {
  local root=$1 id
  for id in "$WEB_ID" "$PAGES_ID"; do
    if getent passwd "$id" || getent group "$id"; then
      echo "the number $id is that of another user or group of this machine"
      return 1
    fi >&2
  done
  _rights_of_the_system /etc/passwd >"$root/etc/passwd.new" && _rights_of_the_system /etc/group >"$root/etc/group.new" || return
  printf '%s\n' "$WEB_USER:x:$WEB_ID:$WEB_ID::/nonexistent:/usr/sbin/nologin" \
    "$PAGES_USER:x:$PAGES_ID:$PAGES_ID::/nonexistent:/usr/sbin/nologin" >>"$root/etc/passwd.new" &&
    printf '%s\n' "$WEB_USER:x:$WEB_ID:" "$PAGES_USER:x:$PAGES_ID:" >>"$root/etc/group.new" &&
    mv "$root/etc/passwd.new" "$root/etc/passwd" && mv "$root/etc/group.new" "$root/etc/group"
}

_rights_of_the_system() { awk -F : '$3 < 1000 || $3 >= 65534' "$1"; }

rights_have_users() { [[ $EUID == 0 ]] && grep -q "^$PAGES_USER:x:$PAGES_ID:" /etc/passwd; }

rights_settle() {
  local web=0 pages=0 file
  if rights_have_users; then
    web=$WEB_ID pages=$PAGES_ID
    mkdir -p "$APP_RUN" && printf '%s\n' "web $web $web" "pages $pages $pages" >"$USERS" || return
  fi
  _rights_settle_folders "$web" "$pages" && _rights_remove_traps "$pages" || return
  chown -hR "$pages:$pages" "$PAGES_DATA" && chown -hR 0:0 "$CORE_SERVICE/dat/snmp" &&
    _rights_files 600 "$pages" "$CORE_SERVICE"/dat/management.db{,-wal,-shm,.copy,.restored,.ssl_lock,.copy_lock} || return
  # Whoever takes one of these first would make it its own.
  /bin/sh "$APP_MANAGER/bin/asUser.sh" pages touch "$CORE_SERVICE"/dat/management.db{.ssl_lock,.copy_lock} || return
  # A file is there for whoever may write to it, but not make it. Its folder is root's alone.
  for file in php_extension.log trial.log error.log; do
    [[ -e $WEB_SERVER/logs/$file ]] || : >>"$WEB_SERVER/logs/$file" || return
  done
  _rights_files 640 "$pages" "$WEB_SERVER"/logs/{php_extension.log,trial.log} &&
    _rights_files 640 "$web" "$WEB_SERVER/logs/error.log" && _rights_files 640 0 "$WEB_SERVER/logs/services.log" &&
    _rights_files 600 "$web" "$WEB_SERVER/conf/key.pem" && _rights_files 644 0 "$WEB_SERVER/conf/certificate.pem"
}

# _rights_settle_folders WEB PAGES: the most of them are root's. Sticky is where the interpreter's user makes files beside
# root's own, such as the agent's user.
_rights_settle_folders() {
  local web=$1 pages=$2
  local -a open=("$APP_RUN" "$WEB_SERVER/logs" "$WEB_SERVER/conf")
  mkdir -p "${open[@]}" "$CORE_SERVICE/dat/snmp" "$PHP_RUN" "$PAGES_DATA" || return
  chown -h 0:0 "${open[@]}" "$CORE_SERVICE/dat/snmp" && chown -h "0:$pages" "$CORE_SERVICE/dat" &&
    chown -h "$pages:$web" "$PHP_RUN" && chown -h "$pages:$pages" "$PAGES_DATA" || return
  chmod 755 "${open[@]}" && chmod 1770 "$CORE_SERVICE/dat" && chmod 750 "$PHP_RUN" &&
    chmod 700 "$CORE_SERVICE/dat/snmp" "$PAGES_DATA"
}

# _rights_remove_traps USER: what nobody makes but a page with a fault, of which none runs now, where root opens files at a start
# and gives them away. A link would lead root elsewhere, a pipe keep it waiting for ever. Another name of somebody else's
# file may also be what a copy of the folder has left, so that is for whoever starts it to judge.
_rights_remove_traps() {
  local other
  find "$PAGES_DATA" "$CORE_SERVICE/dat" -path "$CORE_SERVICE/dat/snmp" -prune -o ! -type f ! -type d -exec rm -f {} + || return
  other=$(find "$PAGES_DATA" "$CORE_SERVICE/dat" -path "$CORE_SERVICE/dat/snmp" -prune -o -name ipv6Enabled -o \
    -type f -links +1 ! -uid "$1" -print -quit) || return
  [[ -z $other ]] || { echo "$other has other names, too, and is not the interpreter's" && return 1; }
}

# _rights_files MODE USER FILE...: those that are there, or whatever else lies in their place. No link is followed.
_rights_files() {
  local mode=$1 user=$2 file
  local -a present=() regular=()
  shift 2
  for file; do
    [[ ! -e $file && ! -L $file ]] || present+=("$file")
    [[ ! -f $file || -L $file ]] || regular+=("$file")
  done
  [[ ${#present[@]} == 0 ]] || chown -h "$user:$user" "${present[@]}" || return
  [[ ${#regular[@]} == 0 ]] || chmod "$mode" "${regular[@]}"
}

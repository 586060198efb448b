# What the device scripts know of the web server: where its configuration is, its names, and how it is told of a change.
# Sourced behind device.sh and transaction.sh.
# shellcheck shell=sh disable=SC2154 # variables are set by the functions that read into them

CONFIGURATION=$LIBRARY/HTTPService/lighttpd/conf
NAMES=$CONFIGURATION/names.conf
FURTHER_NAMES=$CONFIGURATION/names # that the appliance is reached by, a line each; made by hand where there are any
WEB_SERVER_PROCESS=$RUN/webServer.pid
NAMES_TAKEN=$RUN/webServer.names # as old as the names that the web server has taken up last

# Prints the expression of the names that a request may be for: the appliance's, also within a domain, and further ones.
own_names() {
  read_host_name name
  printf '%s(\\.[a-z0-9.-]+)?' "$(as_expression "$name")"
  [ -r "$FURTHER_NAMES" ] || return 0
  while IFS= read -r name || [ -n "$name" ]; do
    case $name in
    '' | *[!A-Za-z0-9.-]*) ;;
    *) printf '|%s' "$(as_expression "$name")" ;;
    esac
  done <"$FURTHER_NAMES"
}

# What was stored since the web server started.
# shellcheck disable=SC3013 # every shell that a Debian system has as /bin/sh compares times
take_up_names() {
  if [ -s "$WEB_SERVER_PROCESS" ] && [ "$NAMES" -nt "$NAMES_TAKEN" ]; then restart_web_server; fi
}

as_expression() {
  printf '%s' "$1" | sed 's/[^A-Za-z0-9-]/\\./g'
}

# It goes on with those of before where they cannot be written.
store_names() {
  names_configuration="var.own_names = \"$(own_names)\""
  read_line names_of_before "$NAMES"
  [ "$names_of_before" = "$names_configuration" ] && return
  replace_file "$NAMES" "$names_configuration"
}

# One with the new configuration takes the place of the web server that runs: no connection is lost, and answers under way go
# out all the same.
restart_web_server() {
  [ -s "$WEB_SERVER_PROCESS" ] || return 0
  read -r process <"$WEB_SERVER_PROCESS"
  : >"$NAMES_TAKEN"
  kill -s USR1 "$process" 2>/dev/null || complain "the web server is not running"
}

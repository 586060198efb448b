# All that changing takes, for the scripts that change settings. Sourced behind settings.sh.
# shellcheck shell=sh

# shellcheck source=SCRIPTDIR/transaction.sh
. "$BIN/transaction.sh"
# shellcheck source=SCRIPTDIR/web_server.sh
. "$BIN/web_server.sh"
# shellcheck source=SCRIPTDIR/host_name.sh
. "$BIN/host_name.sh"
# shellcheck source=SCRIPTDIR/port.sh
. "$BIN/port.sh"
# shellcheck source=SCRIPTDIR/name_servers.sh
. "$BIN/name_servers.sh"
# shellcheck source=SCRIPTDIR/ipv4.sh
. "$BIN/ipv4.sh"
# shellcheck source=SCRIPTDIR/ipv6.sh
. "$BIN/ipv6.sh"

# persist COMMAND...: tries again when it fails. For news that come once: nobody else will.
persist() {
  attempt=1
  until "$@"; do
    [ "$attempt" -lt 3 ] || return 1
    attempt=$((attempt + 1))
    sleep 1
  done
}

# check_settings KIND TEXT: ends the script when the text is wrong, with the status and the sentence of the program that
# knows the rules of addresses.
check_settings() {
  sentence=$("$BIN/checkSettings" "$1" "$2" 2>&1)
  verdict=$?
  case $verdict in
  0) ;;
  1 | 2 | 44)
    complain "$sentence"
    exit "$verdict"
    ;;
  *) fail "what is wanted cannot be checked: ${sentence##*: }" ;;
  esac
}

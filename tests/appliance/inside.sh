# shellcheck shell=bash disable=SC2034 # for the tests
# What the tests share that call the functions of a running appliance. Sourced after lib.sh by a test that
# calls itself inside the appliance, one function of it after the other:
#
#   in_appliance FUNCTION...      each in an appliance started for it, with the state that the last one left;
#                                 says "end"

EMBEDDED=/home/embedded
TRACE=$EMBEDDED/library/HTTPService/lighttpd/logs/php_extension.log
SERVICE_LOG=$EMBEDDED/library/HTTPService/lighttpd/logs/services.log
WEB_SERVER_LOG=$EMBEDDED/library/HTTPService/lighttpd/logs/error.log
SETTINGS=$EMBEDDED/library/AppManager/dat
DATABASE=$EMBEDDED/library/CoreService/dat/management.db
SESSION='{"user":"tester"}'
SECONDS_FOR_AN_EVENT=30
WEB=http://127.0.0.1
export MIBS= # nothing is called by its name here, and reading them takes long
# On a new machine the first program of SNMP would say that it makes this folder.
export SNMP_PERSISTENT_DIR=$WORK/snmp
mkdir -p "$SNMP_PERSISTENT_DIR/cert_indexes"

in_appliance() {
  if [[ -n ${INSIDE-} ]]; then
    "$INSIDE"
    rm -rf "$WORK"
    exit 0
  fi
  local name
  for name; do
    INSIDE=$name appliance --state "$WORK/state" --serve "$CHECKOUT/tests/appliance/pages" "$(realpath "$0")"
    is "$name comes to its end" 0 $?
  done
  finish
}

# call FUNCTION [ARGUMENT...]: what the function answers through the web server; the arguments behind the
# session are JSON texts.
call() {
  local function=$1
  shift
  { printf '[%s' "$SESSION" && { (($# == 0)) || printf ',%s' "$@"; } && printf ']'; } |
    curl --silent --show-error --insecure --max-time 60 --data-urlencode "function=$function" \
      --data-urlencode arguments@- "$WEB/extra/call.php" 2>&1
}

# answers NAME EXPECTED FUNCTION [ARGUMENT...]: without a warning.
answers() { is "$1" "{\"answer\":$2,\"warnings\":[]}" "$(call "${@:3}")"; }
# answers_like NAME PATTERN FUNCTION [ARGUMENT...]
answers_like() { like "$1" "^\\{\"answer\":$2,\"warnings\":\\[\\]\\}\$" "$(call "${@:3}")"; }
# does FUNCTION [ARGUMENT...]: without an answer and a warning.
does() { answers "$*" null "$@"; }
# warns NAME MESSAGE FUNCTION [ARGUMENT...]: one warning, whose message begins so.
warns() { like "$1" "^\\{\"answer\":null,\"warnings\":\\[\"${3}\\(\\): $2[^\"]*\"\\]\\}\$" "$(call "${@:3}")"; }

# until_said FILE EXPRESSION COMMAND...: runs the command and waits for a new line of the file that matches.
until_said() { until_said_times 1 "$@"; }
# until_said_times NUMBER FILE EXPRESSION COMMAND...
until_said_times() {
  local times=$1 file=$2 expression=$3 size said reader
  shift 3
  size=$(stat -c %s "$file")
  "$@"
  exec {said}< <(exec timeout "$SECONDS_FOR_AN_EVENT" tail -c +$((size + 1)) --sleep-interval=0.05 -f "$file")
  reader=$!
  [[ $(grep -E -m "$times" -c -e "$expression" <&"$said") == "$times" ]] ||
    not_ok "$file says \"$expression\" $times times after: $*" "$(tail -n 5 "$file")"
  kill "$reader" 2>/dev/null
  exec {said}<&-
}

# await COMMAND...: until it succeeds, tried again whenever addresses or routes change.
await() {
  local events watcher deadline=$((SECONDS + SECONDS_FOR_AN_EVENT)) _
  exec {events}< <(exec ip -o monitor address route)
  watcher=$!
  until "$@"; do
    ((SECONDS < deadline)) || { not_ok "in time: $*" "$(ip -o address show dev eth0)" && break; }
    # An address that becomes usable is no event to all kernels.
    read -r -t 0.2 _ <&"$events"
  done
  kill "$watcher"
  exec {events}<&-
}

# What eth0 has, as ADDRESS/PREFIX.
ipv4_addresses() { ip -4 -oneline address show dev eth0 | sed -n 's/.* inet \([^ ]*\) .*/\1/p'; }
default_route() { ip -4 -oneline route show default | sed 's/ *$//'; }
has_usable() { [[ -n $(ip -oneline address show dev eth0 -tentative to "$1") ]]; }
has_not() { [[ -z $(ip -oneline address show dev eth0 to "$1") ]]; }

# page_from_lan ADDRESS: the heading of the first page.
page_from_lan() { lan curl --silent --insecure --location --max-time 10 "http://$1/" | grep -o '<h1>.*</h1>'; }

# All that the device scripts can change, without what changes by itself: the kernel adds the local routes of an
# address some time after the address.
device_state() {
  grep -r '' "$SETTINGS" --exclude=lock
  ls "$SETTINGS" /etc/ipv6dhcp 2>&1
  hostname
  ip -oneline address show dev eth0 | sed 's/ *\\.*//; s/ tentative$//'
  ip -oneline route show table all dev eth0 | sed '/ table local /d; s/ expires.*//'
  cat /etc/resolv.conf
}

# The management services' settings, each change of which is a row of the audit trail, too.
query() { sqlite3 -cmd '.timeout 10000' "$DATABASE" "$1"; }

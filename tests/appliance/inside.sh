# shellcheck shell=bash disable=SC2034 # for the tests
# What the tests share that call the functions of a running appliance; sourced by a test that calls itself inside the
# appliance, one function of it after the other:
#
#   in_appliance FUNCTION...      each in an appliance started for it, with the state that the last one left;
#                                 says "end"

# shellcheck source=appliance.sh
source "${BASH_SOURCE[0]%/*}/appliance.sh"
# shellcheck source=../shell/device.sh
source "$CHECKOUT/tests/shell/device.sh"

TRACE=$WEB_SERVER/logs/php_extension.log
SERVICE_LOG=$WEB_SERVER/logs/services.log
WEB_SERVER_LOG=$WEB_SERVER/logs/error.log
DATABASE=$CORE_SERVICE/dat/management.db
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

# What eth0 has, as ADDRESS/PREFIX.
ipv4_addresses() { ip -4 -oneline address show dev eth0 | sed -n 's/.* inet \([^ ]*\) .*/\1/p'; }
default_route() { ip -4 -oneline route show default | sed 's/ *$//'; }

# page_from_lan ADDRESS: the heading of the first page.
page_from_lan() { lan curl --silent --insecure --location --max-time 10 "http://$1/" | grep -o '<h1>.*</h1>'; }

# The management services' settings, each change of which is a row of the audit trail, too.
query() { sqlite3 -cmd '.timeout 10000' "$DATABASE" "$1"; }

# shellcheck shell=bash disable=SC2034 # for the tests
# What the attacks share; sourced by a test that calls itself inside the appliance (see ../appliance/inside.sh):
#
#   attacked_appliance FUNCTION...   like in_appliance, with the pages of this suite under /extra/

# shellcheck source=../appliance/inside.sh
source "${BASH_SOURCE[0]%/*}/../appliance/inside.sh"

STRANGER=65534 # a user of the machine without any rights
MODE=$WEB_SERVER/conf/mode.conf
CERTIFICATE=$WEB_SERVER/conf/certificate.pem

attacked_appliance() {
  [[ -z ${INSIDE-} ]] || in_appliance
  local name
  for name; do
    INSIDE=$name appliance --state "$WORK/state" --serve "$CHECKOUT/tests/security/pages" "$(realpath "$0")"
    is "$name comes to its end" 0 $?
  done
  finish
}

# as_page CODE: what the code says that a page with a fault runs; its exit status is the last line.
as_page() { curl --silent --insecure --max-time 30 --data-urlencode "code=$1" "$WEB/extra/any_code.php"; }
# page_cannot TITLE CODE
page_cannot() { is "a page cannot $1" no "$([[ $(as_page "$2" | tail -n 1) == 0 ]] && echo yes || echo no)"; }
page_can() { is "a page can $1" 0 "$(as_page "$2" | tail -n 1)"; }

# keep_house: as it is done each minute; without_housekeeping FUNCTION: until the function is over it is not done by itself.
keep_house() { /bin/sh "$APP_MANAGER/bin/housekeeping.sh" once; }
without_housekeeping() {
  pkill --signal STOP --full '^/bin/sh .*/housekeeping\.sh$' || fail 'there is no housekeeping to wait'
  "$1"
  pkill --signal CONT --full '^/bin/sh .*/housekeeping\.sh$'
}

address() { ipv4_addresses | cut -d / -f 1; }
# status_of CURL-OPTION...: the status of the answer that a client on the LAN gets; 000 without one.
status_of() { lan curl --silent --insecure --output /dev/null --max-time 10 --write-out '%{http_code}' "$@"; }
# header NAME CURL-OPTION...: its values, a line each.
header() { lan curl --silent --insecure --output /dev/null --max-time 10 --dump-header - "${@:2}" | tr -d '\r' | sed -n "s/^$1: //Ip"; }

# switch_https on|off, until the LAN sees it.
switch_https() {
  if [[ $1 == on ]]; then does set_ssl_settings true; else does set_ssl_settings false; fi
  await 60 https_is "$1"
  if [[ $1 == on ]]; then WEB=https://127.0.0.1; else WEB=http://127.0.0.1; fi
}
https_is() { if [[ $1 == on ]]; then [[ $(status_of "https://$(address)/") == 200 ]]; else [[ $(status_of "https://$(address)/") == 000 ]]; fi; }

# rights_of PROCESS: its user, its rights, and whether it can get more.
rights_of() { sed -n 's/^Uid:\t\([0-9]*\).*/user \1/p; s/^CapEff:\t0*\([0-9a-f]*\)$/rights 0\1/p; s/^CapBnd:\t0*\([0-9a-f]*\)$/bounds 0\1/p; s/^NoNewPrivs:\t/no more /p' "/proc/$1/status" | tr '\n' ' '; }

# shellcheck shell=bash disable=SC2034 # for the tests
# What the soak tests share; sourced by them.

# shellcheck source=../appliance/appliance.sh
source "${BASH_SOURCE[0]%/*}/../appliance/appliance.sh"
HERE=$CHECKOUT/tests/soak

# choose PART ALL: sets AMOUNT to what is to be done, a part or, with `run --all`, all of it.
choose() { if [[ -n ${SOAK_ALL-} ]]; then AMOUNT=$2; else AMOUNT=$1; fi; }

# in_appliance PAGE ARGUMENT...: runs the page in an appliance of its own; what it has found is then in found.
declare -A found=()
in_appliance() {
  local name value
  appliance php "$HERE/$1.php" "${@:2}" >"$WORK/found" 2>"$WORK/said"
  is "the page $1 comes to its end" 0 $?
  while read -r name value; do found[$name]=$value; done <"$WORK/found"
  sed 's/^/    /' "$WORK/found"
}

# found_is TITLE NAME EXPECTED
found_is() { is "$1" "$3" "${found[$2]-nothing}"; }

log_is_whole() {
  found_is "$1: every line of the log is whole" log_broken 0
  found_is "$1: which would be the first that is not" log_first_broken none
}

less_than() { [[ $2 =~ ^-?[0-9]+$ && $2 -lt $1 ]] || fail "expected: less than $1" "but was:  $2"; }

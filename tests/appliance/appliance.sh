# shellcheck shell=bash disable=SC2016,SC2034 # for the programs that are called; for the tests
# What tests share that start appliances; sourced by them.

# The library comes second: its `fail` is the tests'.
# shellcheck source=../../appliance/launcher/exit_statuses.sh
source "${BASH_SOURCE[0]%/*}/../../appliance/launcher/exit_statuses.sh"
# shellcheck source=../shell/shell_tests.sh
source "${BASH_SOURCE[0]%/*}/../shell/shell_tests.sh"

# The suite `package` may be packing beside this one; that somebody builds is no news here.
export QUIET_WAIT=600

# The launcher itself: what ./run adds has been done before the suite.
appliance() { "$CHECKOUT/appliance/launcher/launch" --build "$BUILD" "$@"; }

# start OPTION...: starts an appliance in the background as $launcher, and returns when it has said where it
# is, which is then in $url; what it has said before is in $greeting. Its processes carry the mark $mark in their environment.
start() {
  local line said
  mark=TEST_MARK=$BASHPID.$SRANDOM
  url='' greeting=''
  # A job in the background would ignore interrupts, a test run without a terminal the end of that.
  exec {said}< <(exec env --default-signal=INT,HUP "$mark" "$CHECKOUT/appliance/launcher/launch" --build "$BUILD" "$@" 2>&1)
  launcher=$!
  while [[ -z $url ]] && read -r -t 60 line <&"$said"; do
    if [[ $line =~ http://[0-9.:]+/ ]]; then url=${BASH_REMATCH[0]}; else greeting+=$line$'\n'; fi
  done
  exec {said}<&-
  [[ -n $url ]] || not_ok "an appliance starts with $*" "$greeting"
}

processes_of() { grep -lzxF "$1" /proc/[0-9]*/environ 2>/dev/null | cut -d/ -f3; }

# gone NAME MARK: all its processes end, and nothing is mounted.
gone() {
  local process
  for process in $(processes_of "$2"); do
    timeout 10 tail --pid="$process" --sleep-interval=0.05 -f /dev/null
  done
  is "$1: no process is left" '' "$(processes_of "$2")"
  is "$1: no mount is left" '' "$(grep -F "$BUILD/private" /proc/self/mountinfo)"
}

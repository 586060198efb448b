# shellcheck shell=bash disable=SC2016,SC2034 # for the programs that are called; for the tests
# What the tests of the appliance share; sourced by them. A test says "ok NAME" or "not ok NAME" with what
# it saw, and its file ends with `finish`.

set -u
CHECKOUT=$(cd -P "${BASH_SOURCE[0]%/*}/../.." && pwd)
BUILD=$CHECKOUT/build
# shellcheck source=../../appliance/launcher/exit_statuses.sh
source "$CHECKOUT/appliance/launcher/exit_statuses.sh"
mkdir -p "$BUILD/tests"
WORK=$(mktemp -d "$BUILD/tests/appliance.XXXXXX") || exit
trap 'rm -rf "$WORK"' EXIT

ok() { echo "ok $1"; }
not_ok() {
  echo "not ok $1"
  shift
  printf '    %s\n' "$@"
}
skip() { echo "skip $1: $2"; }

# is NAME EXPECTED ACTUAL
is() { if [[ $3 == "$2" ]]; then ok "$1"; else not_ok "$1" "expected: $2" "but was:  $3"; fi; }
# like NAME PATTERN ACTUAL
like() { if [[ $3 =~ $2 ]]; then ok "$1"; else not_ok "$1" "expected: $2" "but was:  $3"; fi; }
# holds NAME COMMAND...
holds() {
  local name=$1 said
  shift
  if said=$("$@" 2>&1); then ok "$name"; else not_ok "$name" "failed: $*" "$said"; fi
}

finish() { echo end; }

# The launcher itself: what ./run adds has been done before the suite.
appliance() { "$CHECKOUT/appliance/launcher/launch" --build "$BUILD" "$@"; }

free_port() {
  php -n -r '$s = stream_socket_server("tcp://127.0.0.1:0"); echo substr(strrchr(stream_socket_get_name($s, false), ":"), 1);'
}

# refused NAME STATUS SENTENCE COMMAND...: the command ends with the status, prints nothing, and says one
# sentence, which matches.
refused() {
  local name=$1 status=$2 sentence=$3 said
  shift 3
  said=$("$@" 2>"$WORK/said" </dev/null)
  is "$name: exit status" "$status" "$?"
  is "$name: no output" '' "$said"
  is "$name: one line" 1 "$(grep -c . "$WORK/said")"
  like "$name: the sentence" "$sentence" "$(<"$WORK/said")"
}

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

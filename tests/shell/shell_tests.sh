# shellcheck shell=bash disable=SC2034 # for the tests
# The library of the tests that are written in shell; each *.test sources it, or a file of its suite that does.
#
# How to write a suite: a folder below tests/ with
#
#   run         calls run_test_files (see run_test_files.sh), which runs the files, shows and counts what they say
#   NAME.test   an executable about one subject, which can be run by itself as well. It says "ok TITLE" of what holds,
#               "not ok TITLE" of what does not, with expected and actual on indented lines below it, or
#               "skip TITLE: REASON"; its last line is "end", so that one that breaks off is noticed.
#
# A file either looks at one thing after the other, each line a test with a title of its own:
#
#   is TITLE EXPECTED ACTUAL
#   like TITLE PATTERN ACTUAL               the pattern is a regular expression
#   at_most TITLE NUMBER ACTUAL             the actual one is a whole number, too
#   at_least TITLE NUMBER ACTUAL            the same
#   holds TITLE COMMAND...                  the command ends with 0; an expectation (below) is a command, too
#   refused TITLE STATUS PATTERN COMMAND... it ends with the status, prints nothing, says one sentence: four tests
#   finish
#
# or it has functions test_WHAT_THEY_SHOW, each a test that begins afresh:
#
#   set_up() { ... }                        before each, in its subshell
#   test_this_and_that() { ... }            the first expectation that does not hold ends it
#   run_tests
#
# Expectations end the subshell that they are in with what was expected and what was there:
#
#   expect_equal EXPECTED ACTUAL            expect_match PATTERN ACTUAL
#   expect_status STATUS COMMAND...         whatever it prints
#   expect_output TEXT COMMAND...           it succeeds and prints the text as its only line; no text: no line
#   expect_success COMMAND...               it succeeds and prints nothing
#   expect_refusal STATUS PART COMMAND...   it ends with the status, prints nothing, says one line with the part
#   expect_no_change STATE COMMAND...       the command STATE prints the same before and after
#   await SECONDS COMMAND...                the command succeeds within that time
#   fail LINE...                            whatever else is wrong
#
# For what is to be given to an appliance, or put where a program is looked for:
#
#   free_port                               prints a port for --port at which nobody is, nor at the one for HTTPS beside it
#   watched PROGRAM FILE                    prints a folder with a PROGRAM that first adds to the FILE whether the build was "held"
#                                           or "free" when it was called; $BUILD says which build
#
# $CHECKOUT, $BUILD, and $WORK, a folder of the test's own, are there. What is to be known of the device that a test
# is in stands in device.sh; what starts appliances in ../appliance/appliance.sh.

set -u
CHECKOUT=$(cd -P "${BASH_SOURCE[0]%/*}/../.." && pwd)
BUILD=$CHECKOUT/build
mkdir -p "$BUILD/tests" && WORK=$(mktemp -d "$BUILD/tests/work.XXXXXX") || exit
trap 'rm -rf "$WORK"' EXIT

ok() { echo "ok $1"; }
# not_ok TITLE LINE...: indented, so that nothing in them is taken for a test.
not_ok() {
  echo "not ok $1"
  printf '%s\n' "${@:2}" | sed 's/^/    /'
}
skip() { echo "skip $1: $2"; }
finish() { echo end; }

# try TITLE EXPECTATION...
try() {
  local said
  if said=$("${@:2}" 2>&1); then ok "$1"; else not_ok "$1" "$said"; fi
}

is() { try "$1" expect_equal "$2" "$3"; }
like() { try "$1" expect_match "$2" "$3"; }
at_most() { try "$1" expect_at_most "$2" "$3"; }
at_least() { try "$1" expect_at_least "$2" "$3"; }
holds() { try "$1" expect_status 0 "${@:2}"; }
refused() {
  local title=$1 status=$2 pattern=$3
  shift 3
  run_apart "$@"
  is "$title: exit status" "$status" "$ended"
  is "$title: no output" '' "$(<"$WORK/printed")"
  is "$title: one line" 1 "$(grep -c . "$WORK/said")"
  like "$title: the sentence" "$pattern" "$(<"$WORK/said")"
}

# The titles are made of the names of file and function.
run_tests() {
  local file=${0##*/} name title
  local -a names
  mapfile -t names < <(grep -o '^test_[a-z0-9_]*' "$0")
  for name in "${names[@]}"; do
    title="${file%.test}: ${name#test_}"
    try "${title//_/ }" set_up_and "$name"
  done
  finish
}
set_up_and() { set_up && "$1"; }

fail() {
  printf '%s\n' "$@"
  exit 1
}

expect_equal() { [[ $2 == "$1" ]] || fail "expected: $1" "but was:  $2"; }
expect_at_most() { if [[ ! $2 =~ ^-?[0-9]+$ ]] || (($2 > $1)); then fail "expected: at most $1" "but was:  $2"; fi; }
expect_at_least() { if [[ ! $2 =~ ^-?[0-9]+$ ]] || (($2 < $1)); then fail "expected: at least $1" "but was:  $2"; fi; }
expect_match() { [[ $2 =~ $1 ]] || fail "expected: $1" "but was:  $2"; }

expect_status() {
  local expected=$1 status
  shift
  "$@"
  status=$?
  [[ $status == "$expected" ]] || fail "$(shortened "$@")" "expected: status $expected" "but was:  status $status"
}

expect_output() {
  local expected=$1 output status
  shift
  output=$("$@" 2>&1 && echo .)
  status=$?
  [[ $output == "${expected:+$expected$'\n'}." ]] ||
    fail "$(shortened "$@")" "expected: $expected" "but was:  ${output%.}" "status:   $status"
}

expect_success() { expect_output '' "$@"; }

expect_refusal() {
  local status=$1 part=$2 said what
  shift 2
  run_apart "$@"
  said=$(<"$WORK/said")
  what=$(shortened "$@")
  [[ $ended == "$status" ]] || fail "$what" "expected: status $status" "but was:  status $ended: $said"
  [[ $said == *"$part"* ]] || fail "$what" "expected: $part" "but was:  $said"
  [[ $(wc -l <"$WORK/said") == 1 ]] || fail "$what" 'expected: one line' "but was:  $said"
  [[ ! -s $WORK/printed ]] || fail "$what" 'expected: no output' "but was:  $(<"$WORK/printed")"
}

expect_no_change() {
  local state=$1 before after
  shift
  before=$("$state")
  "$@"
  after=$("$state")
  [[ $after == "$before" ]] || fail "$(shortened "$@")" "changed (expected <, but was >):" "$(diff <(echo "$before") <(echo "$after"))"
}

# Looks again and again: much of what is waited for is no event that one could be told of.
await() {
  local seconds=$1 deadline=$((SECONDS + $1))
  shift
  until "$@"; do
    ((SECONDS < deadline)) || fail "$(shortened "$@")" "expected: within $seconds seconds" 'but was:  not'
    sleep 0.1
  done
}

# Runs the command; its status is then $ended, what it printed and said in $WORK/printed and $WORK/said.
run_apart() {
  "$@" >"$WORK/printed" 2>"$WORK/said" </dev/null
  ended=$?
}

# Below those that the kernel gives to whoever connects somewhere.
free_port() {
  # shellcheck disable=SC2016 # the interpreter's own
  php -n -r 'do {
      $port = random_int(10000, 32000);
      $http = @stream_socket_server("tcp://127.0.0.1:$port");
      $https = @stream_socket_server("tcp://127.0.0.1:" . ($port + 443 - 80));
    } while (!$http || !$https);
    echo $port;'
}

watched() {
  local folder=$WORK/watched.$1
  mkdir "$folder" && printf '#!/bin/bash\nif flock --nonblock "%s/.prepare" true; then echo free; else echo held; fi >>"%s"\nexec "%s" "$@"\n' \
    "$BUILD" "$2" "$(command -v "$1")" >"$folder/$1" && chmod +x "$folder/$1" && echo "$folder"
}

# A command's first words, to be shown.
shortened() {
  local words="${*:1:6}"
  echo "${words:0:300}"
}

# processes NAME: the numbers of those that run; one that has ended and is still to be waited for does not.
processes() {
  local file line found=1
  for file in /proc/[0-9]*/stat; do
    line=$(cat "$file" 2>/dev/null)
    [[ $line != *" ($1) "[!Z]* ]] || { echo "${line%% *}" && found=0; }
  done
  return "$found"
}
no_process() { ! processes "$1"; }

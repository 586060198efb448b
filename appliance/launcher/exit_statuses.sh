# shellcheck shell=bash disable=SC2034
# How the appliance's launcher ends when it cannot do what it was asked for: one sentence and a status
# that says which kind it was. COMMAND's own exit status stays below 64 by custom.

STATUS_USAGE=64         # what was asked for is not understood
STATUS_PORT=65          # the port to publish at cannot be had
STATUS_SECOND_START=66  # the state folder is in use
STATUS_STATE=67         # a folder cannot be written, or its disk is full
STATUS_KERNEL=68        # the kernel lacks something
STATUS_NO_NAMESPACES=69 # the machine allows no namespaces
STATUS_SERVICE=70       # a service of the appliance did not start, or ended
STATUS_PREPARE=71       # not installed or not built

# fail STATUS SENTENCE...
fail() {
  local status=$1
  shift
  on_one_line "$*" >&2
  exit "$status"
}

# on_one_line TEXT: prints it. What was read from a file that others may write is no order to the terminal.
on_one_line() { printf '%s\n' "${1//[[:cntrl:]]/?}"; }

# must STATUS SENTENCE COMMAND...: runs COMMAND, which sets no variable and stays silent unless it fails; then ends
# with STATUS, SENTENCE and the last thing that COMMAND said.
must() {
  local status=$1 sentence=$2 reason
  shift 2
  reason=$("$@" 2>&1) && return
  reason=${reason##*$'\n'}
  [[ ! $reason =~ ^[^\ ]+:\ line\ [0-9]+:\ (.*) ]] || reason=${BASH_REMATCH[1]} # bash's own words
  fail "$status" "$sentence: $reason"
}

# What the scripts share with which somebody asks the network from the appliance: one at a time, within 5 seconds.
# Sourced behind device.sh.
# shellcheck shell=sh

QUESTION_SECONDS=5
QUESTION_LOCK=$RUN/question.lock
BUSY=3 # the exit status while another question is asked

# has_program PROGRAM: whether the device has it.
has_program() {
  ! in_place && command -v "$1" >/dev/null
}

# judge_address TEXT: ends the script unless another device can have it. The rule is that of the address of a server.
judge_address() {
  case $1 in
  '' | *[!0-9A-Fa-f:.]*) refuse 'the address' "$1" 'is none' ;;
  *) "$BIN/checkSettings" dns "$1 " || exit 2 ;;
  esac
}

# Another one is not waited for. The lock is held until this process has ended.
one_at_a_time() {
  { mkdir -p "$RUN" && (umask 077 && : >>"$QUESTION_LOCK") && command exec 9>>"$QUESTION_LOCK"; } 2>/dev/null ||
    fail "the lock $QUESTION_LOCK cannot be taken"
  flock -n 9 || exit "$BUSY"
}

# within_time FUNCTION ARGUMENT... PROGRAM ARGUMENT...: with the rights of the function, with_rights or as_user. Each has one
# argument of its own. The program has no part in the lock.
within_time() (
  rights="$1 $2"
  shift 2
  # shellcheck disable=SC2086 # two words
  $rights timeout -k 1 "$QUESTION_SECONDS" "$@" 2>&1
) 9>&-

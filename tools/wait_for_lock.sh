# shellcheck shell=bash
# Waiting for a lock, but not for ever, and not long without saying so; to be sourced by bash.

QUIET_WAIT=${QUIET_WAIT:-5}        # seconds; most who have it only look whether there is something to do
LONGEST_WAIT=${LONGEST_WAIT:-1800} # seconds after that; a slow machine takes long to install and to build

# wait_for_lock DESCRIPTOR WHAT: until nobody else has it; WHAT is what another one who has it does.
wait_for_lock() {
  local said
  flock --timeout "$QUIET_WAIT" "$1" 2>/dev/null && return
  echo "Another one $2; this one waits until that is done." >&2
  said=$(flock --timeout "$LONGEST_WAIT" "$1" 2>&1) && return
  echo "Another one $2, and still does after $LONGEST_WAIT seconds${said:+ ($said)}: this one gives up." >&2
  return 1
}

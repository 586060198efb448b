# shellcheck shell=bash
# Waiting for processes while signals arrive: each signal that is caught interrupts bash's own waiting. To be sourced
# by bash.
#
#   at_signals ACTION SIGNAL...     does ACTION when a signal arrives, also during what follows
#   wait_through_signals PROCESS    waits until the process has ended, and returns its status
#   wait_for_either PROCESS PROCESS   returns when one of the two has ended

at_signals() {
  local action=$1
  shift
  # shellcheck disable=SC2064 # the action is known now
  trap "interrupted=yes; $action" "$@"
}

wait_through_signals() {
  local status
  interrupted=yes
  while [[ -n $interrupted ]]; do
    interrupted=''
    wait "$1" 2>/dev/null # without a word about a signal that ended it
    status=$?
  done
  return "$status"
}

wait_for_either() { while kill -0 "$1" && kill -0 "$2"; do wait -n "$1" "$2"; done 2>/dev/null; }

# shellcheck shell=bash
# The command that somebody has called, and the one to call instead: what a sentence names can be copied as it is. To be
# sourced by bash behind variables.sh, which has what is known of the call. Each sets called.
#
#   called_with OPTION...       the same command with these options, too
#   called_as_root OPTION...    as root; for a plain user with what makes one root here
#   called_to_reset ACCOUNT     what gives that account of the appliance a new password

called_with() { _called_put "$APPLIANCE_CALLED_STATE" "$APPLIANCE_CALLED_REST" "$@"; }

called_as_root() {
  local state=$APPLIANCE_CALLED_STATE used=${APPLIANCE_CALLED_STATE:-$APPLIANCE_CALLED_STATE_OF_ROOT}
  # Root trusts no state folder of another user.
  [[ $EUID == 0 || -z $used || ! -O $used ]] || state=${used%/}.root
  _called_put "$state" "$APPLIANCE_CALLED_REST" "$@"
  if [[ $EUID == 0 ]]; then
    :
  elif command -v sudo >/dev/null; then
    called="sudo $called"
  elif [[ $called == *\'* ]]; then
    printf -v called 'su -c %q' "$called"
  else
    called="su -c '$called'"
  fi
}

called_to_reset() { _called_put "$APPLIANCE_CALLED_STATE" '' --reset-password "$1"; }

# _called_put STATE REST OPTION...: REST is quoted already.
_called_put() {
  local state=$1 rest=$2 word
  shift 2
  [[ -z $state ]] || set -- --state "$state" "$@"
  printf -v called '%q' "$APPLIANCE_CALLED_NAME"
  for word; do
    printf -v word '%q' "$word"
    called+=" $word"
  done
  called+=$rest
}

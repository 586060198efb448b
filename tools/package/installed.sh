# shellcheck shell=bash disable=SC2034
# What is another for ./run where a package has installed it, as network-appliance: all is there and built. To be sourced by it.

# shellcheck source=../../appliance/launcher/exit_statuses.sh
source "$CHECKOUT/appliance/launcher/exit_statuses.sh"

# A plain user's has no place for what manages networks and runs services.
PATH=$PATH:/usr/sbin:/sbin

NAME=network-appliance CALLED=network-appliance BUILD=/usr/lib/network-appliance
DOES='Starts the software appliance'
STATE_OF_ROOT=/var/lib/network-appliance
if [[ $EUID == 0 ]]; then
  STATE=$STATE_OF_ROOT WORK=/run/network-appliance STATE_SHOWN=$STATE
else
  # What starts programs for users need not name their home.
  [[ -n ${HOME-} ]] || { unset HOME && HOME=~; }
  STATE=${XDG_STATE_HOME:-$HOME/.local/state}/network-appliance WORK='' # chosen when it is needed
  # shellcheck disable=SC2088 # to be read
  STATE_SHOWN='~/.local/state/network-appliance'
fi

prepare() { [[ -n $WORK ]] || choose_work; }

# A home may be missing, or not be written to. What happens in this folder is seen by nobody else, and nothing of it stays.
choose_work() {
  local -a places=("${XDG_CACHE_HOME:-$HOME/.cache}/network-appliance" ${XDG_RUNTIME_DIR:+"$XDG_RUNTIME_DIR/network-appliance"}
    "${TMPDIR:-/tmp}/network-appliance.$EUID")
  for WORK in "${places[@]}"; do
    # In a folder of all users somebody else may have been there first.
    { mkdir -p "${WORK%/*}" && (umask 077 && mkdir -p "$WORK"); } 2>/dev/null && [[ ! -L $WORK && -O $WORK && -w $WORK ]] && return
  done
  echo "No folder to work in can be written, none of ${places[*]}; name another one, as in: TMPDIR=DIR network-appliance" >&2
  return "$STATUS_STATE"
}

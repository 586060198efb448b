# shellcheck shell=bash disable=SC2034
# What is another for ./run where a package has installed it, as network-appliance: all is there and built. To be sourced by it.

# shellcheck source=../../appliance/launcher/exit_statuses.sh
source "$CHECKOUT/appliance/launcher/exit_statuses.sh"

# A plain user's has no place for what manages networks and runs services.
PATH=$PATH:/usr/sbin:/sbin

NAME=network-appliance BUILD=/usr/lib/network-appliance
DOES='Starts the software appliance'
if [[ $EUID == 0 ]]; then
  STATE=/var/lib/network-appliance WORK=/run/network-appliance STATE_SHOWN=$STATE
else
  STATE=${XDG_STATE_HOME:-$HOME/.local/state}/network-appliance WORK=${XDG_CACHE_HOME:-$HOME/.cache}/network-appliance
  # shellcheck disable=SC2088 # to be read
  STATE_SHOWN='~/.local/state/network-appliance'
fi

prepare() { :; }

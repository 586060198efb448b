# shellcheck shell=bash disable=SC2034 # for the tests
# What tests ask of the device that they run in. Sourced after shell_tests.sh.

# shellcheck source=../../appliance/launcher/install.sh
source "$CHECKOUT/appliance/launcher/install.sh"
SETTINGS=$APP_MANAGER/dat

# has_address ADDRESS[/PREFIX]: one that can be used; or one in that network.
has_address() { [[ -n $(ip -oneline address show dev eth0 -tentative to "$1") ]]; }
has_no_address() { [[ -z $(ip -oneline address show dev eth0 to "$1") ]]; }

# All that the device scripts can change, without what changes by itself: the kernel adds the local routes of an
# address some time after the address.
device_state() {
  grep -r '' "$SETTINGS"
  ls "$SETTINGS" /etc/ipv6dhcp 2>&1
  hostname
  ip -oneline address show dev eth0 | sed 's/ *\\.*//; s/ tentative$//'
  ip -oneline route show table all dev eth0 | sed '/ table local /d; s/ expires.*//'
  cat /etc/resolv.conf
}

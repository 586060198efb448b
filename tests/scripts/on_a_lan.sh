# shellcheck shell=bash disable=SC2034 # for the tests
# What the tests of the device scripts share; sourced by each. It starts the test again inside of an appliance of its
# own, with the device scripts at their places and the small LAN beside it; only there does the test go on. Each of its
# functions test_* begins with a new appliance.

set -u
HERE=$(cd -P "${BASH_SOURCE[0]%/*}" && pwd) || exit

# The namespaces live in one process tree that ends with this process, however it ends.
run_on_a_lan() {
  local folder
  local -a own=(--mount --pid --uts --ipc)
  [[ $EUID == 0 ]] || own+=(--user --map-root-user)
  folder=$(mktemp -d) || exit
  # shellcheck disable=SC2064 # this folder
  trap "rmdir '$folder'" EXIT
  ON_A_LAN=yes setpriv --pdeathsig KILL unshare "${own[@]}" --fork --kill-child "$HERE/enter_namespaces" "$folder" "$1"
  exit
}

[[ -n ${ON_A_LAN-} ]] || run_on_a_lan "$(realpath "$0")"
# The first process of a process tree heeds no signal that it has not asked for.
trap 'exit 1' TERM INT HUP
# shellcheck source=../shell/shell_tests.sh
source "$HERE/../shell/shell_tests.sh"
# shellcheck source=../shell/device.sh
source "$HERE/../shell/device.sh"
# shellcheck source=../../appliance/launcher/network.sh
source "$CHECKOUT/appliance/launcher/network.sh"

BIN=$APP_MANAGER/bin
IPV6_FLAG=$CORE_SERVICE/dat/ipv6Enabled
FIRST_HOST_NAME=library

ipv4() { /bin/sh "$BIN/ipv4Manager.sh" "$@"; }
ipv6() { /bin/sh "$BIN/ipv6Manager.sh" "$@"; }
apply_settings() { /bin/sh "$BIN/applySettings.sh"; }
lan() { nsenter --net=/run/lan/lan.net "$@"; }

# As long as an argument can be.
LONGEST=131071
longest() { head -c "$LONGEST" /dev/zero | tr '\0' "$1"; }

# expect_refused STATUS PART COMMAND...: and nothing has changed.
expect_refused() { expect_no_change appliance_state expect_refusal "$@"; }

# With what the kernel adds by itself: there is time for it here.
appliance_state() {
  device_state
  addresses
  ip -oneline route show table local dev eth0
}

addresses() { ip -o address show dev eth0 | sed 's/ *\\.*//; s/^[0-9]*: *eth0 *//' | sort; }
has_ipv6_route() { [[ $(ip -6 -o route show "$@") != '' ]]; }
has_servers() { [[ $(sed -n 's/^nameserver //p' /etc/resolv.conf) == "$1" ]]; }

start_watcher() {
  /bin/sh "$BIN/ipv6FlagWatcher.sh" >/tmp/watcher.said 2>&1 &
  watcher=$!
}

stop_watcher() {
  kill "$watcher"
  wait "$watcher"
  [[ ! -s /tmp/watcher.said ]] || fail "$(</tmp/watcher.said)"
}

# expect_no_loss COMMAND...: no address or route goes away through the command, or within a second after it. (New
# lifetimes come with every advertisement.)
expect_no_loss() {
  local events monitor line
  exec {events}< <(exec ip -o monitor link address route)
  monitor=$!
  # Until it reports what is done here, and then nothing more of what was going on.
  until read -r -t 0.1 line <&"$events"; do
    ip address add 127.0.0.9/32 dev lo
    ip address delete 127.0.0.9/32 dev lo
  done
  while read -r -t 1 line <&"$events"; do :; done
  "$@"
  while read -r -t 1 line <&"$events"; do [[ $line != Deleted*eth0* ]] || fail "$line"; done
  kill "$monitor" || fail 'nobody watched what goes away'
  exec {events}<&-
}

# The LAN's server gives addresses from the range; the stateless one comes from the hardware address
# 02:00:0a:14:00:07.
DHCPV6_RANGE=2001:db8:20::100/120
STATELESS=2001:db8:20::aff:fe14:7

enable_ipv6() {
  touch "$IPV6_FLAG"
  expect_success apply_settings
}
expect_no_ipv6() { expect_output . eval 'ip -6 address show dev eth0; ip -6 route show dev eth0; echo .'; }

LAN_CONFIGURATION=$CHECKOUT/appliance/launcher/dnsmasq.conf

start_lan() {
  network_start_lan /run/lan "$LAN_CONFIGURATION" || fail 'the services of the LAN do not start'
}

# restart_lan_with EXPRESSION: the LAN's configuration as sed changes it.
restart_lan_with() {
  stop_lan
  sed "$1" "$LAN_CONFIGURATION" >/run/lan/other.conf
  network_start_lan /run/lan /run/lan/other.conf || fail 'the services of the LAN do not start'
}

stop_lan() {
  local process
  process=$(processes dnsmasq) && kill "$process" && tail --pid="$process" --sleep-interval=0.05 -f /dev/null
}

restore_lan() {
  stop_lan
  start_lan
}

# A restart: what ran is gone, and what it had learned; the settings stay.
stop_appliance() {
  local process
  for process in $(processes udhcpc) $(processes dhcpcd) $(processes inotifywait); do
    kill -KILL "$process"
  done
  rm -rf /run/appmanager/* /run/dhcpcd
  ip address flush dev eth0
  ip -6 route flush dev eth0
  hostname "$FIRST_HOST_NAME"
  rm -f /etc/ipv6dhcp
}

restart_appliance() {
  stop_appliance
  expect_success apply_settings
}

set_up() {
  stop_appliance
  rm -rf "$SETTINGS" "$IPV6_FLAG"
  expect_success apply_settings
}

mkdir -p /run/appmanager

# shellcheck shell=bash
# The appliance's network and the small LAN beside it, each a network namespace. To be sourced by bash.
#
#   network_create FOLDER
#       Makes FOLDER/appliance.net (eth0, eth2) and FOLDER/lan.net (lan0, the other end of eth0, and lan2,
#       that of eth2), to be entered with `nsenter --net=FILE`. Both go with the caller's mount namespace.
#   network_start_lan FOLDER CONFIGURATION
#       Starts the LAN's services in the background; they are ready when this returns. Their log is
#       FOLDER/lan.log. A file put into FOLDER/lan.hosts with a line like those of dnsmasq's dhcp-host is read at
#       once: HARDWARE-ADDRESS,ignore makes the DHCP server silent to a device, HARDWARE-ADDRESS,ADDRESS gives it another lease.
#
# Each returns 1 after one sentence on standard error when the kernel or the program refuses.

LAN_ADDRESSES=('10.20.0.1/24' '2001:db8:20::1/64 nodad')

network_create() {
  local folder=$1 name error
  for name in appliance lan; do
    error=$({ : >"$folder/$name.net" && unshare --net mount --bind /proc/self/ns/net "$folder/$name.net"; } 2>&1) ||
      { echo "The kernel allows no network namespace: $error" >&2; return 1; }
  done
  error=$(_network_connect "$folder" 2>&1) ||
    { echo "The kernel allows no virtual Ethernet: ${error%%$'\n'*}" >&2; return 1; }
}

# IPv6 stays off on the appliance's side until its settings switch it on. The folder's path may have blanks, which the lines
# for ip cannot.
_network_connect() {
  local folder=$1
  # shellcheck disable=SC2016 # the inner shell's
  _network_open_to_users && _network_in appliance sh -c 'cd "$1" && echo 1 >"$2" && ip -batch - && echo 0 >"$2"' sh \
    "$folder" /proc/sys/net/ipv6/conf/default/disable_ipv6 < <(
      echo link set lo up
      _network_link eth0 lan0 00
      _network_link eth2 lan2 02
    ) && _network_in lan ip -batch - < <(
    printf 'link set %s up\n' lo lan0 lan2
    printf 'address add dev lan0 %s\n' "${LAN_ADDRESSES[@]}"
  )
}

# There the web service has no rights: its ports are open to it, and ping to everybody. In a user namespace without a
# second group there is only one that may.
_network_open_to_users() {
  _network_in appliance sh -c 'echo 80 >/proc/sys/net/ipv4/ip_unprivileged_port_start
    echo 0 64999 >/proc/sys/net/ipv4/ping_group_range || echo 0 0 >/proc/sys/net/ipv4/ping_group_range' 2>/dev/null
}

network_start_lan() {
  local folder=$1 configuration=$2 error
  mkdir -p "$folder/lan.hosts" || return
  # No change of user or group: in a user namespace there is no other.
  error=$(_network_in lan setpriv --no-new-privs --inh-caps=-all \
    --bounding-set=-all,+net_admin,+net_raw,+net_bind_service dnsmasq --conf-file="$configuration" --user=root --group= \
    --pid-file= --dhcp-leasefile="$folder/lan.leases" --dhcp-hostsdir="$folder/lan.hosts" \
    --log-facility="$folder/lan.log" 2>&1 </dev/null) ||
    { echo "The LAN's services did not start: ${error##*$'\n'}" >&2; return 1; }
}

_network_in() {
  local name=$1
  shift
  nsenter --net="$folder/$name.net" "$@"
}

# The hardware addresses are the same at every start, as a real device's: leases and addresses that are
# derived from them come back.
_network_link() {
  local near=$1 far=$2 number=$3
  echo "link add $near address 02:00:0a:14:$number:07 type veth" \
    "peer name $far address 02:00:0a:14:$number:01 netns ./lan.net"
  echo "link set $near up"
}

# Putting the stored IPv4 settings into force, by DHCP or static. Sourced behind name_servers.sh.
# shellcheck shell=sh disable=SC2154 # variables are set by the functions that read into them

UNKNOWN_IPV4_ADDRESS=0.0.0.0

apply_ipv4() {
  in_place && return
  stop_dhcpv4 && clear_ipv4 || return
  read_setting ipv4 ipv4
  case $ipv4 in
  dhcp\ *) start_dhcpv4 ;;
  *) assign_ipv4 "${ipv4#static }" ;;
  esac
}

# The routes over an interface go with its last address.
clear_ipv4() {
  ip link set "$PRIMARY" up && ip -4 address flush dev "$PRIMARY"
}

# assign_ipv4 ADDRESS?NETMASK?GATEWAY: a lease can come without a gateway.
assign_ipv4() {
  without_gateway=${1%\?*}
  gateway=${1##*\?}
  ip -4 address replace "${without_gateway%\?*}/${without_gateway#*\?}" broadcast + dev "$PRIMARY" || return
  [ "$gateway" = "$UNKNOWN_IPV4_ADDRESS" ] || ip -4 route replace default via "$gateway" dev "$PRIMARY"
}

# Returns with the first lease, or after five tries; the client then goes on in the background. It holds a
# lock for as long as it lives, which is what stop_dhcpv4 waits for.
start_dhcpv4() {
  (umask 077 && : >>"$RUN/dhcpv4.running") && (
    flock 8
    with_rights ,+net_admin,+net_raw,+net_bind_service udhcpc -i "$PRIMARY" -b -R -t 5 -T 1 -A 5 -p "$RUN/dhcpv4.pid" -s "$BIN/dhcpv4Event.sh" \
      </dev/null >/dev/null 2>&1 9>&-
  ) 8>>"$RUN/dhcpv4.running" && return
  complain 'the DHCP client could not be started'
  return 1
}

# The file of the process number is younger than the lock, so both are looked at anew until the lock is free.
stop_dhcpv4() {
  (umask 077 && : >>"$RUN/dhcpv4.running") # who could open it could hold it
  tries=0
  until flock -w $((tries > 0)) "$RUN/dhcpv4.running" true; do
    [ "$tries" -lt 10 ] || {
      complain 'the DHCP client does not stop'
      return 1
    }
    tries=$((tries + 1))
    read_line client "$RUN/dhcpv4.pid"
    [ -z "$client" ] || kill "$client" 2>/dev/null
  done
  rm -f "$RUN/dhcpv4.pid" "$DHCPV4_LEASE"
  rm -rf "$DHCPV4_LEASE_FACTS" 2>/dev/null
  drop_name_servers "$DHCPV4_SERVERS"
}

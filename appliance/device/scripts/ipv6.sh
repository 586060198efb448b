# Putting IPv6 into force: the switch for all of it, addresses from routers, from DHCPv6, and the static one.
# Sourced behind name_servers.sh.
# shellcheck shell=sh disable=SC2154 # variables are set by the functions that read into them

IPV6_DHCP=/etc/ipv6dhcp # is there exactly while DHCPv6 is on, for those who do not ask the scripts
ASSIGNED_STATIC=$RUN/ipv6.static # the static settings that the interface has from here

STARTED_IPV6=$RUN/ipv6.started # is there when the last start of IPv6 came to its end

ipv6_enabled() {
  [ -r "$IPV6_ENABLED" ]
}

ipv6_parameter() {
  printf '%s\n' "$2" >"/proc/sys/net/ipv6/conf/$PRIMARY/$1"
}

# The flag file follows from the setting wherever the setting is put into force.
apply_ipv6() {
  read_setting dhcpv6 dhcpv6
  failed=0
  mark_dhcpv6 "$dhcpv6" || failed=1
  if ! in_place; then
    # What cannot be forgotten of a lease is no reason to leave IPv6 as it is.
    stop_dhcpv6 || failed=1
    restart_ipv6 "$dhcpv6" || return
  fi
  return "$failed"
}

# restart_ipv6 on|off: starts IPv6 afresh, so that nothing learned under other settings stays and the routers are asked
# again; with DHCPv6, or without. The client of before has ended.
restart_ipv6() {
  ip link set "$PRIMARY" up || return
  ipv6_parameter disable_ipv6 1 || return
  rm -f "$ASSIGNED_STATIC" "$STARTED_IPV6" || return
  ipv6_enabled || return 0
  read_setting stateless stateless
  # Addresses from DHCPv6 come without routes: those are the routers' to advertise.
  [ "$stateless$1" = 0off ] && accept=0 || accept=1
  # The DHCPv6 client leaves the kernel's own link-local address switched off.
  ipv6_parameter addr_gen_mode 0 && ipv6_parameter accept_ra "$accept" && ipv6_parameter autoconf "$stateless" &&
    ipv6_parameter disable_ipv6 0 && assign_static_ipv6 && {
    [ "$1" = off ] || start_dhcpv6
  } && replace_file "$STARTED_IPV6" started
}

# mark_dhcpv6 on|off. By "true", because ":", one of the shell's special built-ins, would end the script where the
# file cannot be written.
mark_dhcpv6() {
  if [ "$1" = on ]; then
    [ -f "$IPV6_DHCP" ] || { true >"$IPV6_DHCP"; } 2>/dev/null
  else
    rm -f "$IPV6_DHCP" 2>/dev/null
  fi && return
  complain "the file $IPV6_DHCP cannot be brought into line with DHCPv6 \"$1\""
  return 1
}

# The flag file may have changed a moment ago, with the kernel not yet in step; or a start of IPv6 broke off.
ipv6_in_step() {
  read_line disabled "/proc/sys/net/ipv6/conf/$PRIMARY/disable_ipv6"
  if ipv6_enabled; then [ "$disabled" = 0 ] && [ -e "$STARTED_IPV6" ]; else [ "$disabled" = 1 ]; fi
}

sync_ipv6() {
  in_place || ipv6_in_step || apply_ipv6
}

apply_static_ipv6() {
  in_place && return
  if ! ipv6_in_step; then
    apply_ipv6
  elif ipv6_enabled; then
    assign_static_ipv6
  fi
}

# remove_ipv6_address ADDRESS/PREFIX: it may have gone by itself.
remove_ipv6_address() {
  ip -6 address delete "$1" dev "$PRIMARY" 2>/dev/null && return
  address_left=$(ip -6 -oneline address show dev "$PRIMARY" to "${1%/*}") && [ -z "$address_left" ]
}

# Addresses that others have given, a lease without an end among them, look like a static one to the kernel: so what
# was assigned here is written down before it is assigned. Of the routes only the static gateway's is "static".
assign_static_ipv6() {
  ip -6 route flush dev "$PRIMARY" proto static || return
  read_line assigned "$ASSIGNED_STATIC"
  [ -z "$assigned" ] || remove_ipv6_address "${assigned%\?*}" || return
  read_setting static ipv6
  replace_file "$ASSIGNED_STATIC" "$static" || return
  [ -n "$static" ] || return 0
  # Preferred to the routes that routers advertise, whose metric is 1024.
  ip -6 address replace "${static%\?*}" dev "$PRIMARY" &&
    ip -6 route replace default via "${static#*\?}" dev "$PRIMARY" proto static metric 512
}

# Asks in the background: a server may answer late or never, as with IPv4. The client is kept from seeing the user
# to whom it would hand part of its work: split into several processes it can miss the order to stop, and a user
# namespace has no second user.
start_dhcpv6() {
  # shellcheck disable=SC2016 # the inner shell's
  unshare --mount sh -c '
    grep -v "^dhcpcd:" /etc/passwd >"$1" && mount --bind "$1" /etc/passwd && . "$2" && shift 2 && with_rights "$@" 9>&-' "$0" \
    "$RUN/passwd" "$BIN/device.sh" ,+net_admin,+net_raw,+net_bind_service dhcpcd -6 -b -q -f "$BIN/dhcpv6.conf" -c "$BIN/dhcpv6Event.sh" "$PRIMARY" \
    </dev/null >/dev/null 2>&1 && return
  complain 'the DHCPv6 client could not be started'
  return 1
}

# Gives the lease back and waits for the client's end. It is no failure that none is running.
stop_dhcpv6() {
  dhcpcd -6 -k "$PRIMARY" >/dev/null 2>&1
  drop_name_servers "$DHCPV6_SERVERS"
}

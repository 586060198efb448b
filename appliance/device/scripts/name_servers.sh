# The name servers that the device asks: the stored ones, and while there are none, those that came with the
# leases. Sourced behind transaction.sh.
# shellcheck shell=sh disable=SC2154 # variables are set by the functions that read into them

RESOLVER=/etc/resolv.conf
DHCPV4_SERVERS=$RUN/dhcpv4.dns
DHCPV6_SERVERS=$RUN/dhcpv6.dns

# A lock of its own, since the DHCP clients' events come while a change waits for the client.
apply_name_servers() {
  in_place && return
  # Who could open the lock could hold it.
  (umask 077 && : >>"$RUN/resolver.lock") && (
    flock 8
    read_setting servers dns
    if [ "$servers" = ' ' ]; then
      read_line dhcpv4_servers "$DHCPV4_SERVERS"
      read_line dhcpv6_servers "$DHCPV6_SERVERS"
      servers="$dhcpv4_servers $dhcpv6_servers"
    fi
    text='# Written by the device scripts.'
    for server in $servers; do
      text="$text
nameserver $server"
    done
    replace_file "$RESOLVER" "$text"
  ) 8>>"$RUN/resolver.lock"
}

# take_name_servers FILE SERVERS: remembers the name servers of a lease.
take_name_servers() {
  replace_file "$1" "$2" && apply_name_servers
}

# drop_name_servers FILE: forgets the name servers of a lease. The file goes last: while it is there, this is to be done.
drop_name_servers() {
  [ -e "$1" ] || return 0
  replace_file "$1" '' && apply_name_servers && rm -f "$1"
}

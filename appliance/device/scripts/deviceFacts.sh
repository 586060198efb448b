#!/bin/sh
# Prints what is so now, whatever is stored: a fact a line, its name and its value. What cannot be told is left out. It
# changes nothing, asks nobody for longer than a second, and takes no rights. All times are in seconds since 1970.

# shellcheck disable=SC2154 # variables are set by the functions that read into them
# shellcheck source=SCRIPTDIR/device.sh
. "${0%/*}/device.sh"
# shellcheck source=SCRIPTDIR/settings.sh
. "$BIN/settings.sh"
# shellcheck source=SCRIPTDIR/transaction.sh
. "$BIN/transaction.sh"
# shellcheck source=SCRIPTDIR/name_servers.sh
. "$BIN/name_servers.sh"
# shellcheck source=SCRIPTDIR/ipv6.sh
. "$BIN/ipv6.sh"
# shellcheck source=SCRIPTDIR/certificate.sh
. "$BIN/certificate.sh"

WEB_CONFIGURATION=$LIBRARY/HTTPService/lighttpd/conf
DATABASE=$LIBRARY/CoreService/dat/management.db
DAMAGED=11 # of sqlite3
NO_DATABASE=26

# In the terms of version 3: a question of somebody who does not know the agent yet. It is answered whatever users,
# communities and versions there are, so that no secret is needed here, nor to be seen in the list of processes.
AGENT_QUESTION='\060\076\002\001\003\060\021\002\004\021\042\063\104\002\003\000\377\343\004\001\004\002\001\003\004\020\060\016\004\000\002\001\000\002\001\000\004\000\004\000\004\000\060\024\004\000\004\000\240\016\002\004\021\042\063\104\002\001\000\002\001\000\060\000'
SECONDS_TO_ANSWER=1

print_agent() {
  command -v socat >/dev/null || return
  port=161
  ! in_place || port=1161
  # shellcheck disable=SC2059 # bytes
  reply=$(printf "$AGENT_QUESTION" | socat -t "$SECONDS_TO_ANSWER" STDIO "UDP:127.0.0.1:$port,readbytes=1" 2>/dev/null)
  fact snmp.answers "${reply:+yes}"
  [ -n "$reply" ] || fact snmp.answers no
}

# What the web server is configured for.
print_web_mode() {
  [ -r "$WEB_CONFIGURATION/mode.conf" ] || return
  mode=http
  while IFS= read -r line; do
    case $line in ssl.*) mode=https ;; esac
  done <"$WEB_CONFIGURATION/mode.conf"
  fact web.configured-mode "$mode"
}

# Whether the management services find their settings, the stored mode, and what a start says about settings that it found
# damaged, until one of them is changed. A database that cannot be opened, or is in use for long, may be a good one.
print_stored() {
  [ -s "$DATABASE" ] || return
  sqlite3 -readonly -batch -cmd '.timeout 500' "$DATABASE" "
    SELECT 'services.readable ' || CASE count(*) WHEN 3 THEN 'yes' ELSE 'no' END FROM sqlite_master
      WHERE type = 'table' AND name IN ('settings', 'snmp_versions', 'trap_registrations');
    SELECT 'services.readable no' WHERE (SELECT count(*) FROM settings) <> 1;
    SELECT 'web.stored-mode ' || CASE ssl_enabled WHEN 0 THEN 'http' WHEN 1 THEN 'https' END FROM settings;
    SELECT 'settings.restored ' || replace(\"values\", char(10), ' ') FROM
      (SELECT * FROM audit WHERE operation = 'restoreSettings' OR result = 'stored' ORDER BY number DESC LIMIT 1)
      WHERE operation = 'restoreSettings'" 2>/dev/null
  case $? in "$DAMAGED" | "$NO_DATABASE") fact services.readable no ;; esac
}

# Whether the name server comes from the setting or with a lease.
print_name_servers() {
  [ -r "$RESOLVER" ] || return
  read_setting stored_servers dns
  read_line dhcpv4_servers "$DHCPV4_SERVERS"
  read_line dhcpv6_servers "$DHCPV6_SERVERS"
  while read -r word server _; do
    [ "$word" = nameserver ] || continue
    from=other
    case " $dhcpv6_servers " in *" $server "*) from=dhcpv6 ;; esac
    case " $dhcpv4_servers " in *" $server "*) from=dhcp ;; esac
    [ "$stored_servers" = ' ' ] || from=other
    case " $stored_servers " in *" $server "*) from=setting ;; esac
    fact dns.server "$server $from"
  done <"$RESOLVER"
}

# The clock may have been set since the lease came, so its end was written down by the time since the start.
print_lease() {
  read_line lease "$DHCPV4_LEASE_FACTS"
  [ -n "$lease" ] || return
  fact ipv4.lease-server "${lease%% *}"
  end=${lease#* }
  if [ "$end" != never ]; then
    read -r uptime _ </proc/uptime
    end=$((clock + end - ${uptime%%.*}))
  fi
  fact ipv4.lease-end "$end"
}

# print_link FLAGS HARDWARE-ADDRESS: of $interface. The kernel's files are asked for what it does not tell otherwise, where they
# are those of this network.
print_link() {
  case ,$1, in *,LOWER_UP,*) link=up ;; *) link=down ;; esac
  fact "$interface.link" "$link"
  fact "$interface.hardware-address" "$2"
  files=/sys/class/net/$interface
  read_line hardware_address "$files/address"
  [ "$link$hardware_address" = "up$2" ] || return
  read_line speed "$files/speed"
  read_line duplex "$files/duplex"
  case $speed in *[!0-9]* | '') ;; *) fact "$interface.speed" "$speed" ;; esac
  case $duplex in full | half) fact "$interface.duplex" "$duplex" ;; esac
} 2>/dev/null

# print_ipv6 ADDRESS/PREFIX FLAGS: with where it comes from. One that is not in use yet, or that another device has, is none.
print_ipv6() {
  case " $2 " in
  *' tentative '* | *' dadfailed '*) return ;;
  *' scope link '*) from='link-local' ;;
  *' mngtmpaddr '* | *' temporary '* | *' proto kernel_ra '*) from=router-advertisement ;;
  *' dynamic '*) from=dhcp ;;
  *) from=other ;;
  esac
  [ "$1" != "${assigned_static%\?*}" ] || from=static
  fact ipv6.address "$1 $from"
}

# Both by one process, where the program can do that.
ip_answers() {
  ip -batch - 2>/dev/null <<QUESTIONS && return
address show
route show default dev $PRIMARY
QUESTIONS
  ip address show && ip route show default dev "$PRIMARY"
}

print_interfaces() {
  read_line assigned_static "$ASSIGNED_STATIC"
  interface=
  while read -r first second third rest; do
    case $first in
    [0-9]*:)
      interface=${second%%[@:]*}
      flags=${third#<}
      ;;
    esac
    case $interface:$first in
    "$PRIMARY:link/"* | "$SECONDARY:link/"*) print_link "${flags%>}" "$second" ;;
    "$PRIMARY:inet") fact ipv4.address "$second" ;;
    "$PRIMARY:inet6") print_ipv6 "$second" "$third $rest" ;;
    *:default) [ "$second" != via ] || fact ipv4.gateway "$third" ;;
    esac
  done <<INTERFACES
$1
INTERFACES
}

[ $# = 0 ] || refuse_call 'none' "$@"
# What takes other programs, all at once.
print_agent &
print_stored &
clock=$(date +%s)
fact clock "$clock"
print_web_mode
print_certificate
if in_place; then
  fact in-place yes # the interfaces are the machine's
elif command -v ip >/dev/null; then
  print_interfaces "$(ip_answers)"
  print_lease
  print_name_servers
fi
wait
fact end yes # without it something was not said

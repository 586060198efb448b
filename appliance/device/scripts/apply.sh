# Changing settings: checking values, storing them, and putting what is stored into force. Sourced after
# device.sh.
#
# A setting is replaced by renaming and then put into force, both under one lock. So a script that is
# killed leaves the old setting or the new one, and applySettings.sh brings the interfaces into line with
# it at the next start.
# shellcheck shell=sh

# --- Checking values ---------------------------------------------------------------------------------

# split_fields TEXT: the three fields of a settings text in $field1 to $field3; fails for another number.
split_fields() {
  case $1 in
  *\?*\?*\?*) return 1 ;;
  *\?*\?*) ;;
  *) return 1 ;;
  esac
  field1=${1%%\?*}
  field3=${1##*\?}
  field2=${1#*\?}
  field2=${field2%\?*}
}

# Asking for the addresses within a text changes nothing and succeeds exactly when the text is an address.
is_ipv6() {
  case $1 in
  *[!0-9A-Fa-f:.]*) return 1 ;;
  *:*:*) ip -6 address show dev lo to "$1" >/dev/null 2>&1 ;;
  *) return 1 ;;
  esac
}

# On its own "ip" takes 10.1 for 10.1.0.0; as the end of a mapped address only the full form is one.
is_ipv4() {
  case $1 in
  *[!0-9.]*) return 1 ;;
  *.*.*.*) is_ipv6 "::ffff:$1" ;;
  *) return 1 ;;
  esac
}

# address_bits ADDRESS: the 128 bits of an address that is_ipv4 or is_ipv6 has accepted, as two numbers in
# $high and $low. An IPv4 address counts as its mapped IPv6 address, so that both are one address.
address_bits() {
  case $1 in
  *:*) groups=$1 ;;
  *) groups=::ffff:$1 ;;
  esac
  case $groups in
  *.*)
    IFS=.
    # shellcheck disable=SC2086 # to be split
    set -- ${groups##*:}
    unset IFS
    groups=${groups%:*}:$(printf '%x:%x' $(($1 << 8 | $2)) $(($3 << 8 | $4)))
    ;;
  esac
  high=0 low=0
  IFS=:
  # shellcheck disable=SC2086 # to be split
  set -- ${groups%%::*}
  place_groups 0 "$@"
  case $groups in
  *::*)
    # shellcheck disable=SC2086 # to be split
    set -- ${groups#*::}
    place_groups $((8 - $#)) "$@"
    ;;
  esac
  unset IFS
}

# place_groups POSITION GROUP...: puts groups of an IPv6 address into $high and $low.
place_groups() {
  position=$1
  shift
  for group; do
    if [ "$position" -lt 4 ]; then
      high=$((high | 0x$group << (48 - 16 * position)))
    else
      low=$((low | 0x$group << (112 - 16 * position)))
    fi
    position=$((position + 1))
  done
}

# same_prefix LENGTH ADDRESS ADDRESS: leaves the bits of the second address in $high and $low.
same_prefix() {
  address_bits "$2"
  other_high=$high other_low=$low
  address_bits "$3"
  if [ "$1" -eq 0 ]; then
    return 0
  elif [ "$1" -le 64 ]; then
    [ $(((high ^ other_high) & -1 << (64 - $1))) = 0 ]
  else
    [ "$high" = "$other_high" ] && [ $(((low ^ other_low) & -1 << (128 - $1))) = 0 ]
  fi
}

# Whether the address can be the address of one host on a network: an IPv4 one in its own notation only.
is_host_address() {
  if same_prefix 96 ::ffff:0:0 "$1"; then
    case $1 in *:*) return 1 ;; esac
    first_byte=$((low >> 24 & 255))
    [ "$first_byte" != 0 ] && [ "$first_byte" != 127 ] && [ "$first_byte" -lt 224 ]
  else
    ! same_prefix 127 :: "$1" && ! same_prefix 8 ff00:: "$1"
  fi
}

# internal_network_of ADDRESS: the internal network that the address lies in, in $network; fails for none.
internal_network_of() {
  [ -r "$INTERNAL_NETWORKS" ] || fail "the list of internal networks, $INTERNAL_NETWORKS, cannot be read"
  while read -r network; do
    case $network in
    *:*/*) length=${network#*/} ;;
    *.*/*) length=$((96 + ${network#*/})) ;;
    *) continue ;;
    esac
    same_prefix "$length" "${network%/*}" "$1" && return
  done <"$INTERNAL_NETWORKS"
  return 1
}

# --- Storing -----------------------------------------------------------------------------------------

# Held until the script ends, or, should it be killed, what it is just starting has started: only the running
# clients are without descriptor 9.
lock_settings() {
  mkdir -p "$SETTINGS" "$RUN"
  [ -w "$SETTINGS" ] || fail "the settings in $SETTINGS cannot be written"
  exec 9>"$SETTINGS/lock"
  flock -w 60 9 || fail 'another change of the settings has been under way for a minute'
}

# replace_file FILE TEXT: makes the text the file's only line; a reader sees the old file or the new one.
replace_file() {
  printf '%s\n' "$2" >"$1.new" && mv -f "$1.new" "$1" && return
  rm -f "$1.new"
  complain "$1 cannot be written"
  return 1
}

# change_setting NAME TEXT APPLY: stores the setting and puts it into force with the function APPLY. When
# that is impossible the setting of before comes back.
change_setting() {
  lock_settings
  read_setting "$1"
  previous=$line
  replace_file "$SETTINGS/$1" "$2" || exit 1
  "$3" && return
  replace_file "$SETTINGS/$1" "$previous"
  "$3"
  fail "the setting \"$1\" could not be put into force and is as before"
}

# --- Host name, secondary port, name servers ---------------------------------------------------------

# By command, because the kernel's file of the name is closed to the root of a user namespace.
apply_host_name() {
  in_place && return
  read_setting hostname
  [ -z "$line" ] || hostname "$line"
}

# A virtual interface has no link parameters: the settings then are only kept.
apply_port() {
  in_place && return
  read_setting port
  split_fields "$line"
  reason=$(ethtool -s "$SECONDARY" autoneg "$field1" speed "$field2" duplex "$field3" 2>&1) && return
  case $reason in *'not supported'*) return 0 ;; esac
  complain "ethtool: $reason"
  return 1
}

# The configured servers; while there are none, those that came with the leases. A lock of its own, since
# the DHCP clients' events come while a change waits for the client.
apply_name_servers() {
  in_place && return
  (
    flock 8
    read_setting dns
    servers=$line
    if [ "$servers" = ' ' ]; then
      read_line "$DHCPV4_SERVERS"
      servers=$line
      read_line "$DHCPV6_SERVERS"
      servers="$servers $line"
    fi
    text='# Written by the device scripts.'
    for server in $servers; do
      text="$text
nameserver $server"
    done
    replace_file "$RESOLVER" "$text"
  ) 8>"$RUN/resolver.lock"
}

# --- IPv4 --------------------------------------------------------------------------------------------

apply_ipv4() {
  in_place && return
  stop_dhcpv4 && clear_ipv4 || return
  read_setting ipv4
  case $line in
  dhcp\ *) start_dhcpv4 ;;
  *) assign_ipv4 "${line#static }" ;;
  esac
}

# The routes over an interface go with its last address.
clear_ipv4() {
  ip link set "$PRIMARY" up && ip -4 address flush dev "$PRIMARY"
}

# assign_ipv4 SETTINGS: a lease can come without a gateway.
assign_ipv4() {
  split_fields "$1"
  ip -4 address replace "$field1/$field2" broadcast + dev "$PRIMARY" || return
  [ "$field3" = "${UNKNOWN_IPV4##*\?}" ] || ip -4 route replace default via "$field3" dev "$PRIMARY"
}

# Returns with the first lease, or after five tries; the client then goes on in the background. It holds a
# lock for as long as it lives, which is what stop_dhcpv4 waits for.
start_dhcpv4() {
  (
    flock 8
    exec udhcpc -i "$PRIMARY" -b -R -t 5 -T 1 -A 5 -p "$RUN/dhcpv4.pid" -s "$BIN/dhcpv4Event.sh" \
      </dev/null >/dev/null 2>&1 9>&-
  ) 8>"$RUN/dhcpv4.running" && return
  complain 'the DHCP client could not be started'
  return 1
}

# The file of the process number is younger than the lock, so both are looked at anew until the lock is free.
stop_dhcpv4() {
  tries=0
  until flock -w $((tries > 0)) "$RUN/dhcpv4.running" true; do
    [ "$tries" -lt 10 ] || {
      complain 'the DHCP client does not stop'
      return 1
    }
    tries=$((tries + 1))
    read_line "$RUN/dhcpv4.pid"
    [ -z "$line" ] || kill "$line" 2>/dev/null
  done
  rm -f "$RUN/dhcpv4.pid" "$DHCPV4_LEASE"
  drop_name_servers "$DHCPV4_SERVERS"
}

# drop_name_servers FILE: forgets the name servers of a lease.
drop_name_servers() {
  [ -e "$1" ] || return 0
  rm -f "$1"
  apply_name_servers
}

# --- IPv6 --------------------------------------------------------------------------------------------

ipv6_enabled() {
  [ -r "$IPV6_ENABLED" ]
}

ipv6_parameter() {
  printf '%s\n' "$2" >"/proc/sys/net/ipv6/conf/$PRIMARY/$1"
}

# Starts IPv6 afresh, so that nothing learned under other settings stays and the routers are asked again.
apply_ipv6() {
  in_place && return
  ip link set "$PRIMARY" up || return
  stop_dhcpv6
  ipv6_parameter disable_ipv6 1 || return
  ipv6_enabled || return 0
  read_setting dhcpv6
  dhcpv6=$line
  read_setting stateless
  # Addresses from DHCPv6 come without routes: those are the routers' to advertise.
  [ "$line$dhcpv6" = 0off ] && accept=0 || accept=1
  # The DHCPv6 client leaves the kernel's own link-local address switched off.
  ipv6_parameter addr_gen_mode 0 && ipv6_parameter accept_ra "$accept" && ipv6_parameter autoconf "$line" &&
    ipv6_parameter disable_ipv6 0 && assign_static_ipv6 && {
    [ "$dhcpv6" = off ] || start_dhcpv6
  }
}

# The flag file may have changed a moment ago, with the kernel not yet in step.
ipv6_in_step() {
  read_line "/proc/sys/net/ipv6/conf/$PRIMARY/disable_ipv6"
  if ipv6_enabled; then [ "$line" = 0 ]; else [ "$line" = 1 ]; fi
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

# Of the global addresses only the static one is permanent; of the routes only its gateway's is "static".
assign_static_ipv6() {
  ip -6 route flush dev "$PRIMARY" proto static &&
    ip -6 address flush dev "$PRIMARY" scope global permanent || return
  read_setting ipv6
  [ -n "$line" ] || return 0
  # Preferred to the routes that routers advertise, whose metric is 1024.
  ip -6 address replace "${line%\?*}" dev "$PRIMARY" &&
    ip -6 route replace default via "${line#*\?}" dev "$PRIMARY" proto static metric 512
}

apply_dhcpv6() {
  mark_dhcpv6 && apply_ipv6
}

# Others see whether DHCPv6 is on by this file.
mark_dhcpv6() {
  read_setting dhcpv6
  if [ "$line" = on ]; then : >"$IPV6_DHCP"; else rm -f "$IPV6_DHCP"; fi
}

# Asks in the background: a server may answer late or never, as with IPv4. The client is kept from seeing the user
# to whom it would hand part of its work: split into several processes it can miss the order to stop, and a user
# namespace has no second user.
start_dhcpv6() {
  # shellcheck disable=SC2016 # the inner shell's
  unshare --mount sh -c '
    grep -v "^dhcpcd:" /etc/passwd >"$1" && mount --bind "$1" /etc/passwd && shift && "$@" 9>&-' start_dhcpv6 \
    "$RUN/passwd" dhcpcd -6 -b -q -f "$BIN/dhcpv6.conf" -c "$BIN/dhcpv6Event.sh" "$PRIMARY" \
    </dev/null >/dev/null 2>&1 && return
  complain 'the DHCPv6 client could not be started'
  return 1
}

# Gives the lease back and waits for the client's end. It is no failure that none is running.
stop_dhcpv6() {
  dhcpcd -6 -k "$PRIMARY" >/dev/null 2>&1
  drop_name_servers "$DHCPV6_SERVERS"
}

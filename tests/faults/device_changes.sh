# shellcheck shell=bash disable=SC2034 # for the worker
# The changes that faults happen to, and what holds of a device whatever has happened to it. Sourced by the worker, behind
# on_a_lan.sh and cases.sh.
#
# A change brings one setting from OLD to NEW:
#
#   change NAME BASE OLD NEW 'COMMAND to OLD' 'COMMAND to NEW'
#
# OLD and NEW are what the readers give then, READING=VALUE, several joined by blanks; the commands are as the module
# runs them. The other settings are those of BASE:
#
#   plain   static IPv4 settings, IPv6 off
#   ipv6    the same with IPv6 on
#   dhcp    IPv4 settings by DHCP, IPv6 off
#   kept    as plain, with static IPv6 settings and DHCPv6 on for when IPv6 is on
#
# Two changes of one base that have the setting, or what is made of it, in common, are made at once, too; a change together
# with itself is that to OLD and that to NEW:
#
#   together NAME NAME

IPV4="/usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh $BIN/ipv4Manager.sh"
IPV6="/usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh $BIN/ipv6Manager.sh"
FLAG="$CHECKOUT/tests/faults/switch_ipv6"
START="/bin/sh $BIN/applySettings.sh"

A='10.20.0.77?255.255.255.0?10.20.0.1'
B='172.16.5.6?255.255.252.0?172.16.4.1'
A6='2001:db8:20::77/64?2001:db8:20::1'
B6='2001:db8:20::78/64?fe80::1'

change host_name plain host=drive-1 host=drive-2 "$IPV4 -n drive-1" "$IPV4 -n drive-2"
change ipv4_static plain "ipv4=$A" "ipv4=$B lease=off" "$IPV4 -c -s $A" "$IPV4 -c -s $B"
change ipv4_to_dhcp plain lease=off lease=dhcp "$IPV4 -c -s $A" "$IPV4 -c -d on"
change ipv4_from_dhcp dhcp lease=dhcp lease=off "$IPV4 -c -d on" "$IPV4 -c -s $A"
change port plain 'port=off?10?half' 'port=on?100?full' "$IPV4 -P off?10?half" "$IPV4 -P on?100?full"
change dns plain dns=10.20.0.53 dns=10.20.0.54~2001:db8:20::54 "$IPV6 -D 10.20.0.53" "$IPV6 -D 10.20.0.54~2001:db8:20::54"
change dns_removed plain dns=10.20.0.53 dns=disabled "$IPV6 -D 10.20.0.53" "$IPV6 -D ~"
change ipv6_on plain flag=off flag=on "$FLAG off" "$FLAG on"
change ipv6_on_with_all kept flag=off flag=on "$FLAG off" "$FLAG on"
change ipv6_off_with_all kept flag=on flag=off "$FLAG on" "$FLAG off"
change ipv6_off ipv6 flag=on flag=off "$FLAG on" "$FLAG off"
change stateless_off ipv6 stateless=1 stateless=0 "$IPV6 -L 1" "$IPV6 -L 0"
change stateless_on ipv6 stateless=0 stateless=1 "$IPV6 -L 0" "$IPV6 -L 1"
change dhcpv6_on ipv6 dhcpv6=off dhcpv6=on "$IPV6 -c -d off" "$IPV6 -c -d on"
change dhcpv6_off ipv6 dhcpv6=on dhcpv6=off "$IPV6 -c -d on" "$IPV6 -c -d off"
change dhcpv6_on_without_ipv6 plain dhcpv6=off dhcpv6=on "$IPV6 -c -d off" "$IPV6 -c -d on"
change ipv6_static ipv6 "ipv6=$A6" "ipv6=$B6" "$IPV6 -c -s $A6" "$IPV6 -c -s $B6"
change ipv6_static_set ipv6 ipv6= "ipv6=$A6" "$IPV6 -r" "$IPV6 -c -s $A6"
change ipv6_static_removed ipv6 "ipv6=$A6" ipv6= "$IPV6 -c -s $A6" "$IPV6 -r"
change start plain host=drive-1 host=drive-1 "$IPV4 -n drive-1" "$START"
change start_with_ipv6 ipv6 "ipv6=$A6" "ipv6=$A6" "$IPV6 -c -s $A6" "$START"

for same in host_name ipv4_static ipv4_to_dhcp port dns dns_removed stateless_off dhcpv6_on dhcpv6_on_without_ipv6 \
  ipv6_static ipv6_static_set; do
  together "$same" "$same"
done
together ipv4_static ipv4_to_dhcp
together dns dns_removed
together ipv6_static ipv6_static_removed
# /etc/resolv.conf
together ipv4_to_dhcp dns
together ipv4_to_dhcp dns_removed
together dns dhcpv6_on_without_ipv6
# the interface, which one of them starts afresh
together stateless_off dhcpv6_on
together stateless_off ipv6_static
together dhcpv6_on ipv6_static_set
together ipv6_on dhcpv6_on_without_ipv6
together ipv6_off dhcpv6_on
together ipv6_off stateless_off
together ipv6_off ipv6_static_set
# the clients of both kinds of DHCP, and /etc/resolv.conf
together ipv4_to_dhcp dhcpv6_on_without_ipv6

# What the module reads of a device, a line each. A lease can come later.
readings() {
  local lease dns
  lease=$(ipv4 -d status)
  case $lease in '??') lease=off ;; 10.20.0.1??\?255.255.255.0\?10.20.0.1 | 0.0.0.0\?*) lease=dhcp ;; esac
  dns=$(ipv6 -g dns)
  printf '%s\n' "host=$(ipv4 -g host)" "ipv4=$(ipv4 -g static)" "lease=$lease" "port=$(ipv4 -g port)" "stateless=$(ipv6 -l)" \
    "ipv6=$(ipv6 -g static)" "dns=${dns// /\~}" "dhcpv6=$(there_is /etc/ipv6dhcp)" "flag=$(there_is "$IPV6_FLAG")"
}
there_is() { if [[ -e $1 ]]; then echo on; else echo off; fi; }

# agrees READINGS: what is in force is what is read, everywhere. Says what is not.
agrees() {
  local -A read=()
  local line
  while read -r line; do read[${line%%=*}]=${line#*=}; done <<<"$1"
  agrees_host_name && agrees_ipv4 && agrees_servers && agrees_ipv6
}

agrees_host_name() {
  is_so "$(hostname)" "${read[host]}" 'the host name' &&
    is_so "$(cat "$SETTINGS/hostname" 2>/dev/null || echo "${read[host]}")" "${read[host]}" 'the stored host name'
}

agrees_ipv4() {
  local address prefix gateway
  if [[ ${read[lease]} == dhcp ]]; then
    local lease
    lease=$(ipv4 -d status)
    address=${lease%%\?*} prefix=24 gateway=10.20.0.1
  else
    IFS='?' read -r address prefix gateway <<<"${read[ipv4]}"
    if [[ $prefix == 255.255.252.0 ]]; then prefix=22; else prefix=24; fi
  fi
  is_so "$(ip -4 -o address show dev eth0 | sed -n 's/.* inet \([^ ]*\) .*/\1/p')" "$address/$prefix" 'the IPv4 address' &&
    is_so "$(ip -4 -o route show default | sed 's/ *$//')" "default via $gateway dev eth0" 'the IPv4 route' &&
    is_so "$(pgrep -cx udhcpc)" "$([[ ${read[lease]} == off ]] && echo 0 || echo 1)" 'the number of DHCP clients'
}

# Those of the leases when none are set; DHCPv6 tells of its own some time after the start.
agrees_servers() {
  local servers expected=${read[dns]}
  servers=$(sed -n 's/^nameserver //p' /etc/resolv.conf | tr '\n' '~')
  if [[ $expected == disabled ]]; then
    expected=
    [[ ${read[lease]} == off ]] || expected=10.20.0.1
    [[ ${read[dhcpv6]}${read[flag]} != onon ]] || expected+=${expected:+\~}2001:db8:20::1
  fi
  is_so "${servers%\~}" "$expected" 'the list of name servers'
}

agrees_ipv6() {
  local static client=0 addresses found
  local -a expected=()
  is_so "$(</proc/sys/net/ipv6/conf/eth0/disable_ipv6)" "$([[ ${read[flag]} == on ]] && echo 0 || echo 1)" 'the switch of IPv6' || return
  addresses=$(ip -6 -o address show dev eth0 -tentative scope global | sed -n 's/.* inet6 \([^/]*\).*/\1/p')
  static=${read[ipv6]%%/*}
  if [[ ${read[flag]} == on ]]; then
    [[ ${read[stateless]} == 0 ]] || expected+=("$STATELESS")
    [[ ${read[dhcpv6]} == off ]] || client=1
    [[ $client == 0 ]] || expected+=("$(grep -m 1 -E '^2001:db8:20::1[0-9a-f]{1,2}$' <<<"$addresses" || echo 'one from DHCPv6')")
  else
    static=
  fi
  found=$(sort <<<"$addresses")
  [[ -z $static ]] || expected+=("$static")
  is_so "$found" "$(printf '%s\n' "${expected[@]}" | sort)" 'the list of IPv6 addresses' &&
    is_so "$(ipv6 -g all | tr '?' '\n' | sort)" "$found" 'the list of IPv6 addresses that is read' &&
    is_so "$(ip -6 -o route show default proto static | sed -n 's/default via \([^ ]*\) .*/\1/p')" \
      "${static:+${read[ipv6]#*\?}}" 'the static IPv6 gateway' &&
    is_so "$(($(pgrep -cx dhcpcd) > 0))" "$client" 'that a DHCPv6 client runs'
}

# The power goes; settings stay, and the files of /etc.
power_off() {
  pkill -KILL -x 'udhcpc|dhcpcd'
  pkill -KILL -x inotifywait
  rm -rf /run/appmanager /run/dhcpcd
  mkdir /run/appmanager
  ip address flush dev eth0
  ip route flush dev eth0
  ip -6 route flush dev eth0
  echo 1 >/proc/sys/net/ipv6/conf/eth0/disable_ipv6
  hostname "$FIRST_HOST_NAME"
}

# establish BASE
establish() {
  power_off
  rm -rf "$SETTINGS" "$IPV6_FLAG" /etc/ipv6dhcp
  mkdir -p "$SETTINGS"
  [[ $1 != ipv6 ]] || touch "$IPV6_FLAG"
  echo "$(if [[ $1 == dhcp ]]; then echo dhcp; else echo static; fi) $A" >"$SETTINGS/ipv4"
  echo drive-1 >"$SETTINGS/hostname"
  [[ $1 != kept ]] || { echo "$A6" >"$SETTINGS/ipv6" && echo on >"$SETTINGS/dhcpv6"; }
  expect_success apply_settings
}

finish_words() { :; }
start_again() { apply_settings; }
stored() { grep -r '' "$SETTINGS" 2>/dev/null; }
wrong_after_start() { find "$SETTINGS" -name '*.before' -o -name '*.damaged'; }
may_be_silent() { false; }
may_try_again() { [[ $1 == ipv6_o* ]]; }
# The watcher can end, and a start can fail to do all of it.
may_end_between() { [[ $1 == ipv6_o* || $1 == start* ]]; }

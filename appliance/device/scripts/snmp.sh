# The SNMP agent and its trap receivers, as the management database has them. Sourced behind device.sh and
# management.sh.
# shellcheck shell=sh

AGENT_STATE=$LIBRARY/CoreService/dat/snmp # what the agent keeps, and its version 3 user
AGENT_USER=$AGENT_STATE/user              # name and passphrase
AGENT_CONFIGURATION=$RUN/snmpd.conf
AGENT_PROCESS=$RUN/snmpd.pid
AGENT_LOG=$RUN/snmpd.log
AGENT_LOCK=$RUN/snmpd.lock
if in_place; then # the machine's own port for that is left alone
  AGENT_ADDRESSES=udp:127.0.0.1:1161
else
  AGENT_ADDRESSES=udp:161,udp6:161
fi
SYSTEM_UPTIME=.1.3.6.1.2.1.1.3.0
TEST_TRAP=.1.3.6.1.4.1.8072.2.3.0.1 # net-snmp's example notification

export SNMP_PERSISTENT_DIR="$AGENT_STATE" MIBS=

# Sets version1 version2 version3 trap1 trap2 auth_traps community, and receivers, in order.
read_agent_settings() {
  settings=$(query 'SELECT version1, version2, version3, trap1, trap2, auth_traps_enabled, read_community FROM snmp_agent') ||
    fail 'the SNMP settings cannot be read'
  read -r version1 version2 version3 trap1 trap2 auth_traps community <<SETTINGS
$settings
SETTINGS
  receivers=$(query 'SELECT receiver FROM trap_sinks ORDER BY number') || fail 'the trap receivers cannot be read'
}

# Sets user and passphrase; made at the first call and kept.
read_agent_user() {
  if [ ! -s "$AGENT_USER" ]; then
    mkdir -p "$AGENT_STATE" && chmod 700 "$AGENT_STATE"
    printf 'appliance %s\n' "$(openssl rand -hex 12)" >"$AGENT_USER.new" && mv "$AGENT_USER.new" "$AGENT_USER"
  fi
  read -r user passphrase <"$AGENT_USER"
}

# In the agent's notation: any printable character may stand between double quotes, a backslash doubled.
quoted() {
  printf '"%s"' "$(printf '%s' "$1" | sed 's/\\/\\\\/g')"
}

# echo would take a backslash for an escape.
line() {
  printf '%s\n' "$*"
}

agent_configuration() {
  line "agentaddress $AGENT_ADDRESSES"
  line 'view all included .1'
  if [ "$version1$version2" != 00 ]; then
    line "com2sec reader default $(quoted "$community")"
    line "com2sec6 reader default $(quoted "$community")"
    [ "$version1" = 0 ] || line 'group readers v1 reader'
    [ "$version2" = 0 ] || line 'group readers v2c reader'
    line 'access readers "" any noauth exact all none none'
  fi
  if [ "$version3" = 1 ]; then
    line "createUser $user MD5 $passphrase"
    line "rouser $user auth -V all"
  fi
  line "authtrapenable $((2 - auth_traps))"
  for receiver in $receivers; do
    [ "$trap1" = 0 ] || line "trapsess -v 1 -c $(quoted "$community") $receiver"
    [ "$trap2" = 0 ] || line "trapsess -v 2c -c $(quoted "$community") $receiver"
  done
}

store_agent_configuration() {
  (umask 077 && agent_configuration >"$AGENT_CONFIGURATION.new") &&
    mv "$AGENT_CONFIGURATION.new" "$AGENT_CONFIGURATION"
}

# Waits until it does, 6 seconds at most.
agent_answers() {
  set -- -t 0.3 -r 20 -Oqv
  if [ "$version3" = 1 ]; then
    set -- "$@" -v 3 -l authNoPriv -u "$user" -a MD5 -A "$passphrase"
  elif [ "$version2" = 1 ]; then
    set -- "$@" -v 2c -c "$community"
  elif [ "$version1" = 1 ]; then
    set -- "$@" -v 1 -c "$community"
  else
    return 0 # it is to answer nobody
  fi
  snmpget "$@" "udp:127.0.0.1:${AGENT_ADDRESSES##*:}" "$SYSTEM_UPTIME" >/dev/null 2>&1
}

stop_agent() {
  [ -s "$AGENT_PROCESS" ] || return 0
  read -r process <"$AGENT_PROCESS"
  kill -TERM "$process" 2>/dev/null && tail --pid="$process" -s 0.05 -f /dev/null
  rm -f "$AGENT_PROCESS"
}

# One at a time; the agent must not keep the lock.
restart_agent() {
  mkdir -p "$RUN"
  exec 9>"$AGENT_LOCK" && flock 9
  read_agent_settings
  read_agent_user
  store_agent_configuration || fail "the agent's configuration $AGENT_CONFIGURATION cannot be written"
  stop_agent
  # Without SMUX, for which it would listen to TCP as well.
  setsid snmpd -I -smux -C -c "$AGENT_CONFIGURATION" -p "$AGENT_PROCESS" -Lf "$AGENT_LOG" 9>&- </dev/null >/dev/null 2>&1 ||
    fail "the SNMP agent does not start: $(tail -n 1 "$AGENT_LOG")"
  agent_answers || fail "the SNMP agent does not answer: $(tail -n 1 "$AGENT_LOG")"
}

# send_test_trap VERSION RECEIVER
send_test_trap() {
  if [ "$1" = 1 ]; then
    snmptrap -v 1 -c "$community" "$2" "${TEST_TRAP%.0.1}" '' 6 1 ''
  else
    snmptrap -v "$1" -c "$community" "$2" '' "$TEST_TRAP"
  fi || complain "no version $1 trap could be sent to $2"
}

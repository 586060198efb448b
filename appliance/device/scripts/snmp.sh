# The SNMP agent and its trap receivers, as the management database has them. Sourced behind device.sh and
# management.sh.
# shellcheck shell=sh disable=SC2086 # $STATELESS is two words

AGENT_STATE=$LIBRARY/CoreService/dat/snmp # what the agent keeps, and its version 3 user
AGENT_USER=$AGENT_STATE/user              # name and passphrase
AGENT_CONFIGURATION=$RUN/snmpd.conf
AGENT_CLIENTS=$RUN/snmp # the settings of the programs that ask the agent, and send traps: everybody can read a command line
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

export SNMP_PERSISTENT_DIR="$AGENT_STATE" SNMPCONFPATH="$AGENT_CLIENTS" MIBS=

# How long the receivers of traps can keep a start waiting: the first three together, less than 5 seconds. The agent
# connects to them before it has started; afterwards it waits for none.
SECONDS_TO_CONNECT=1.5 # to all receivers at once
SECONDS_TO_STOP=1      # before it is killed
SECONDS_TO_START=2
SECONDS_TO_SEND=3 # a test trap

# The programs that ask and send run at the same time as others, which all would write the same file.
STATELESS='--noPersistentLoad=yes --noPersistentSave=yes'

# Sets version1 version2 version3 trap1 trap2 auth_traps community, and receivers, in order.
read_agent_settings() {
  settings=$(query 'SELECT version1, version2, version3, trap1, trap2, auth_traps_enabled, read_community FROM snmp_agent') ||
    fail 'the SNMP settings cannot be read'
  case $settings in
  [01]\ [01]\ [01]\ [01]\ [01]\ [01]\ ?*) ;;
  *) fail 'the SNMP settings are missing in the management database' ;;
  esac
  read -r version1 version2 version3 trap1 trap2 auth_traps community <<SETTINGS
$settings
SETTINGS
  is_community "$community" || fail 'the read community in the management database is none'
  receivers=$(query 'SELECT receiver FROM trap_sinks ORDER BY number') || fail 'the trap receivers cannot be read'
  wrong=$(line "$receivers" | grep -vxE "$RECEIVER" | grep .) || return 0
  fail "a trap receiver in the management database is none: $(shown "$wrong")"
}

# What is read here ends in the agent's configuration and in addresses of socat, which can name files and commands, and the
# database belongs to the interpreter's user. So it has the form that the management services give it, or it is not used.
RECEIVER='(udp|tcp)(:[0-9.]{7,15}|6:\[[0-9A-Fa-f:.]{2,45}\]):[0-9]{1,5}'

is_community() {
  case $1 in '' | *[!!-~]* | *[\"\']*) return 1 ;; esac
}

# Sets user and passphrase; made at the first call, and when the file is damaged, and kept.
read_agent_user() {
  read_user || {
    make_agent_user && read_user
  } || fail "the agent's user $AGENT_USER cannot be made"
}

# A file that was cut off has no line end; the agent takes no passphrase of fewer than 8 characters.
read_user() {
  [ -f "$AGENT_USER" ] && read -r user passphrase <"$AGENT_USER" && [ ${#passphrase} -ge 8 ]
}

make_agent_user() {
  new_passphrase=$(openssl rand -hex 12) && [ ${#new_passphrase} = 24 ] && mkdir -p "$AGENT_STATE" &&
    chmod 700 "$AGENT_STATE" && (umask 077 && store_file "$AGENT_USER" "appliance $new_passphrase")
}

# Sets reachable: the receivers but those by TCP that take no connection now. The agent would wait for these before
# it answers, one after the other, for minutes; it does without them until it starts anew.
find_reachable_receivers() {
  accepting=$(print_accepting_receivers)
  reachable=
  for receiver in $receivers; do
    case $receiver in
    tcp*)
      if ! line "$accepting" | grep -qxF "$receiver"; then
        complain "the trap receiver $receiver takes no connection: the agent sends it nothing until it starts anew"
        continue
      fi
      ;;
    esac
    reachable="$reachable $receiver"
  done
}

# All are asked at once.
print_accepting_receivers() {
  for receiver in $receivers; do
    case $receiver in
    tcp*) { socat -u /dev/null "TCP${receiver#tcp},connect-timeout=$SECONDS_TO_CONNECT" && line "$receiver"; } & ;;
    esac
  done 2>/dev/null 9>&-
  wait
}

# In the agent's notation: any printable character may stand between double quotes, a backslash doubled.
quoted() {
  printf '"%s"' "$(printf '%s' "$1" | sed 's/\\/\\\\/g')"
}

# echo would take a backslash for an escape.
line() {
  printf '%s\n' "$*"
}

# Prints it, from what restart_agent has read.
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
  for receiver in $reachable; do
    [ "$trap1" = 0 ] || line "trapsess -v 1 -c $(quoted "$community") $receiver"
    [ "$trap2" = 0 ] || line "trapsess -v 2c -c $(quoted "$community") $receiver"
  done
}

client_settings() {
  line "defCommunity $(quoted "$community")"
  line "defSecurityName $user"
  line 'defSecurityLevel authNoPriv'
  line 'defAuthType MD5'
  line "defAuthPassphrase $passphrase"
}

# Both are root's alone.
store_agent_configuration() {
  configuration=$(agent_configuration) && settings=$(client_settings) && (umask 077 && mkdir -p "$AGENT_CLIENTS" &&
    store_file "$AGENT_CONFIGURATION" "$configuration" && store_file "$AGENT_CLIENTS/snmp.conf" "$settings")
}

# Waits until it does, 2.5 seconds at most: it listens already. As restart_agent has read the settings.
agent_answers() {
  set -- $STATELESS -t 0.5 -r 4 -Oqv
  if [ "$version3" = 1 ]; then
    set -- "$@" -v 3
  elif [ "$version2" = 1 ]; then
    set -- "$@" -v 2c
  elif [ "$version1" = 1 ]; then
    set -- "$@" -v 1
  else
    return 0 # it is to answer nobody
  fi
  snmpget "$@" "udp:127.0.0.1:${AGENT_ADDRESSES##*:}" "$SYSTEM_UPTIME" >/dev/null 2>&1
}

gone_in_time() {
  timeout "$SECONDS_TO_STOP" tail --pid="$1" -s 0.05 -f /dev/null
}

stop_agent() {
  [ -s "$AGENT_PROCESS" ] || return 0
  read -r process <"$AGENT_PROCESS"
  if kill -TERM "$process" 2>/dev/null && ! gone_in_time "$process"; then
    kill -KILL "$process"
    gone_in_time "$process"
  fi
  rm -f "$AGENT_PROCESS"
}

# Without SMUX, for which it would listen to TCP as well. The agent must not keep the lock.
start_agent() {
  (with_rights ,+net_bind_service timeout -s KILL "$SECONDS_TO_START" setsid snmpd -I -smux -C -c "$AGENT_CONFIGURATION" \
    -p "$AGENT_PROCESS" -Lf "$AGENT_LOG" 9>&- </dev/null >/dev/null 2>&1)
}

# For a receiver that became silent just now.
start_agent_without_connections() {
  case $reachable in *tcp*) ;; *) return 1 ;; esac
  complain 'the SNMP agent does not start with its trap receivers by TCP: it sends them nothing until it starts anew'
  receivers_by_udp=
  for receiver in $reachable; do
    case $receiver in udp*) receivers_by_udp="$receivers_by_udp $receiver" ;; esac
  done
  reachable=$receivers_by_udp
  store_agent_configuration && start_agent
}

# One at a time. The old agent goes when the configuration of the new one is there. Sets what read_agent_settings and
# read_agent_user read, and reachable, the receivers that the agent sends to.
restart_agent() {
  lock 9 "$AGENT_LOCK"
  read_agent_settings
  read_agent_user
  find_reachable_receivers
  store_agent_configuration || fail 'the SNMP agent stays as it is'
  stop_agent
  start_agent || start_agent_without_connections || fail "the SNMP agent does not start: $(tail -n 1 "$AGENT_LOG")"
  agent_answers || fail "the SNMP agent does not answer: $(tail -n 1 "$AGENT_LOG")"
  exec 9>&-
}

# send_test_trap VERSION RECEIVER: with the community that restart_agent has stored for the programs.
send_test_trap() {
  if [ "$1" = 1 ]; then
    timeout "$SECONDS_TO_SEND" snmptrap $STATELESS -v 1 "$2" "${TEST_TRAP%.0.1}" '' 6 1 ''
  else
    timeout "$SECONDS_TO_SEND" snmptrap $STATELESS -v "$1" "$2" '' "$TEST_TRAP"
  fi || complain "no version $1 trap could be sent to $2"
}

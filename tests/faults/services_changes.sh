# shellcheck shell=bash disable=SC2034 # for the worker
# The changes of the management services that faults happen to, made through the module as a page makes them (see
# cases.sh, and device_changes.sh for what a line means). There is one BASE: the settings of a new appliance.

CALL="php $CHECKOUT/tests/faults/call_function.php"
# settings TRAP1 TRAP2 AUTH-TRAPS COMMUNITY
settings() { printf '{"version1":true,"trap1":%s,"trap2":%s,"auth_traps_enabled":%s,"community_name":"%s"}' "$@"; }
SETTINGS_BEFORE=$(settings true false false public)
MODE=$WEB_SERVER/conf/mode.conf
DATABASE=$CORE_SERVICE/dat/management.db
SERVICES_SAY=$WEB_SERVER/logs/services.log
export MIBS='' SNMP_PERSISTENT_DIR=$WORK/snmp

RECEIVER='create_snmp_trap_reg 1 "10.20.0.1"'
change ssl_on new ssl=false ssl=true "$CALL set_ssl_settings false" "$CALL set_ssl_settings true"
change ssl_off new ssl=true ssl=false "$CALL set_ssl_settings true" "$CALL set_ssl_settings false"
# The parts of these settings are stored one after the other: each is whole.
change snmp_community new community=public community=s3cret \
  "$CALL set_snmp_settings $SETTINGS_BEFORE" "$CALL set_snmp_settings $(settings true false false s3cret)"
change snmp_versions new 'versions=[true,true,true,true,false]' 'versions=[true,true,true,false,true]' \
  "$CALL set_snmp_settings $SETTINGS_BEFORE" "$CALL set_snmp_settings $(settings false true false public)"
change snmp_auth_traps new auth=false auth=true \
  "$CALL set_snmp_settings $SETTINGS_BEFORE" "$CALL set_snmp_settings $(settings true false true public)"
change receiver_made new receivers= receivers=10.20.0.1 "$CALL delete_snmp_trap_reg receiver:10.20.0.1" "$CALL $RECEIVER \"1162\""
change receiver_deleted new receivers=10.20.0.1 receivers= "$CALL $RECEIVER \"1162\"" "$CALL delete_snmp_trap_reg receiver:10.20.0.1"

together ssl_on ssl_on
together snmp_community snmp_community
together snmp_versions snmp_versions
together snmp_auth_traps snmp_auth_traps
together receiver_made receiver_made
together receiver_deleted receiver_deleted
# the database, and the web server beside it
together ssl_on snmp_community
together ssl_on receiver_made
# the agent and its configuration
together snmp_community receiver_made

# The list of receivers is printed as well when it is read.
readings() { php "$CHECKOUT/tests/faults/call_function.php" read 2>/dev/null; }

identifier_of() { sqlite3 -cmd '.timeout 10000' "$DATABASE" "SELECT identifier FROM trap_registrations WHERE address = '$1'"; }

# "receiver:ADDRESS" is the identifier of that trap receiver. One that is there already is not made again.
finish_words() {
  local word=${words[-1]}
  [[ $word != receiver:* ]] || words[-1]=\"$(identifier_of "${word#*:}")\"
  [[ ${words[*]} != *create_snmp_trap_reg* || -z $(identifier_of 10.20.0.1) ]] || words=(true)
}

agrees() {
  local -A read=()
  local line
  while read -r line; do read[${line%%=*}]=${line#*=}; done <<<"$1"
  agrees_web_server && agrees_agent
}

agrees_web_server() {
  local on=0
  [[ ${read[ssl]} == false ]] || on=1
  is_so "$(($(grep -c 'ssl.engine = "enable"' "$MODE") > 0))" "$on" "that the web server's configuration has HTTPS" &&
    is_so "$(($(ss -Hltn 'sport = :443' | wc -l) > 0))" "$on" 'that the web server listens for HTTPS' &&
    is_so "$(($(ss -Hltn 'sport = :80' | wc -l) > 0))" 1 'that the web server listens for HTTP'
}

agrees_agent() {
  local configuration=/run/appmanager/snmpd.conf
  is_so "$(sed -n 's/^com2sec reader default "\(.*\)"/\1/p' "$configuration")" "${read[community]}" "the agent's community" &&
    is_so "$(sed -n 's/^authtrapenable //p' "$configuration")" "$([[ ${read[auth]} == true ]] && echo 1 || echo 2)" "the agent's traps" &&
    is_so "$(pgrep -cx snmpd)" 1 'the number of agents' &&
    is_so "$(snmpget -v 2c -c "${read[community]}" -t 0.3 -r 3 -Oqv 127.0.0.1 .1.3.6.1.2.1.1.3.0 >/dev/null 2>&1 && echo yes)" yes \
      'that the agent answers to it'
}

# The services of PHP go on: nothing of these changes is theirs.
power_off() {
  pkill -KILL -f '/bin/(webServer\.sh|asUser\.sh web) ' # also one that is just starting
  pkill -KILL -x lighttpd
  pkill -KILL -x snmpd
  rm -f /run/appmanager/snmpd.* /run/appmanager/webServer.pid /run/appmanager/web_mode.lock
}

# As run_services does it.
start_again() {
  "$CORE_SERVICE/bin/management_database" 2>>"$SERVICES_SAY" && /bin/sh "$BIN/applyWebMode.sh" start 2>>"$SERVICES_SAY" || return
  setsid env --default-signal /bin/sh "$BIN/webServer.sh" "$WEB_SERVER/conf/lighttpd.conf" </dev/null >>"$SERVICES_SAY" 2>&1 &
  /bin/sh "$BIN/restartSNMP.sh" 2>>"$SERVICES_SAY" && await 10 test -s /run/appmanager/webServer.pid
}

# establish BASE
establish() {
  power_off
  rm -f "$DATABASE"*
  expect_success start_again
  run "$CALL set_snmp_settings $SETTINGS_BEFORE"
}

stored() {
  sqlite3 "$DATABASE" 'SELECT * FROM settings; SELECT * FROM snmp_versions; SELECT transport, address, port FROM trap_registrations'
}
# The agent learns of its receivers when it starts.
wrong_after_start() {
  find "${DATABASE%/*}" "${MODE%/*}" -name '*.damaged*'
  is_so "$(sed -n 's/^trapsess .* //p' /run/appmanager/snmpd.conf)" \
    "$(sqlite3 -cmd '.timeout 10000' "$DATABASE" 'SELECT receiver FROM trap_sinks')" "the agent's list of receivers"
}
# A receiver that is not removed is no failure to a page; and a mode that cannot be read counts as "off" already.
may_be_silent() { [[ $1 == receiver_deleted || $1 == ssl_off && $2 == *'getSSLEnabled: '* ]]; }
may_try_again() { false; }
# What is stored of several parts stays when the next one, or the agent, fails. And a transaction of which the disk does not
# say that it is there is in doubt: it counts as failed, and is there or not, whole, when the database is opened again.
may_end_between() { [[ $1 == snmp_* || $2 == 'php sync '*/management.db-wal ]]; }

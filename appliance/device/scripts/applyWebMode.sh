#!/bin/sh
# Brings the web service into the SSL mode of the management database. Another web server, in that
# mode, takes the place of the one that runs.
#
#   applyWebMode.sh         for a change of the mode, which goes back to the mode of before by itself when this fails
#   applyWebMode.sh start   for the start of the appliance: ends a change that was interrupted, by bringing the new
#                           mode into force or else the one of before
# shellcheck disable=SC2016 # the variables are the web server's
# shellcheck disable=SC2154 # variables are set by the functions that read into them
# shellcheck source=SCRIPTDIR/device.sh
. "${0%/*}/device.sh"
behind_the_door "$@"
# shellcheck source=SCRIPTDIR/management.sh
. "$BIN/management.sh"
# shellcheck source=SCRIPTDIR/web_server.sh
. "$BIN/web_server.sh"
# shellcheck source=SCRIPTDIR/certificate.sh
. "$BIN/certificate.sh"

SOCKETS=$CONFIGURATION/sockets # "http ADDRESS:PORT" and "https ...", and "published HTTP:HTTPS", the ports outside
MODE=$CONFIGURATION/mode.conf
KEY=$CONFIGURATION/key.pem
DAYS_VALID=825
RENEWED_BEFORE=2592000 # seconds before its end

# The key is made once; the certificate again when the appliance has got another name or address, or when
# it is about to end. Both again when they are damaged. One that can be used stays in use where no other can be made.
require_certificate() {
  names=$(certificate_names)
  read_line names_of_before "$CERTIFICATE_NAMES"
  give_key_to_the_server
  [ "$names_of_before" = "$names" ] && is_usable "$RENEWED_BEFORE" && return
  (umask 077 && make_certificate "$names") 2>"$RUN/certificate.log" && give_key_to_the_server && return
  reason="no certificate can be made: $(tail -n 1 "$RUN/certificate.log")"
  is_usable 0 || fail "$reason"
  complain "$reason; the one that is there stays in use"
}

# is_usable SECONDS: for so long.
is_usable() {
  is_of_key && is_of_a_server && openssl x509 -checkend "$1" -noout -in "$CERTIFICATE" >/dev/null 2>&1
}

# With a certificate of another key, as a change leaves it that was interrupted, the web server would not start.
is_of_key() {
  public=$(openssl pkey -in "$KEY" -pubout 2>/dev/null) &&
    [ "$(openssl x509 -in "$CERTIFICATE" -noout -pubkey 2>/dev/null)" = "$public" ]
}

# Earlier ones were those of an authority: who trusted one trusted whatever its key signs.
is_of_a_server() {
  openssl x509 -in "$CERTIFICATE" -noout -ext basicConstraints 2>/dev/null | grep -q CA:FALSE
}

# The only one that reads it.
give_key_to_the_server() {
  [ -f "$KEY" ] && find_user web || return 0
  chown -h "$user:$group" "$KEY"
}

# The request's settings; those of the machine would make it an authority's.
certificate_settings() {
  printf '%s\n' '[req]' 'distinguished_name = name' 'x509_extensions = server' '[name]' '[server]' \
    'basicConstraints = critical, CA:FALSE' 'keyUsage = critical, digitalSignature, keyEncipherment' \
    'extendedKeyUsage = serverAuth' 'subjectKeyIdentifier = hash' "subjectAltName = $1"
}

make_certificate() {
  if ! openssl pkey -in "$KEY" -noout 2>/dev/null; then
    key=$(openssl genrsa 3072) && store_file "$KEY" "$key" || return
  fi
  common_name=${1#DNS:}
  certificate_settings "$1" >"$RUN/certificate.settings" &&
    certificate=$(openssl req -new -x509 -sha256 -config "$RUN/certificate.settings" -key "$KEY" -days "$DAYS_VALID" \
      -subj "/CN=${common_name%%,*}") &&
    (umask 022 && store_file "$CERTIFICATE" "$certificate") && store_file "$CERTIFICATE_NAMES" "$1"
}

# The first address is the server's own, in the terms of its configuration; the others are further ones.
listen_to_http() {
  own=
  while read -r kind socket; do
    [ "$kind" = http ] || continue
    if [ -n "$own" ]; then
      printf '$SERVER["socket"] == "%s" { }\n' "$socket"
    else
      own=${socket%:*}
      printf 'server.bind = "%s"\nserver.port = %s\n' "$own" "${socket##*:}"
    fi
  done <"$SOCKETS"
  [ -n "$own" ]
}

listen_to_https() {
  printf '%s\n' 'server.modules += ( "mod_access", "mod_openssl" )' "ssl.privkey = \"$KEY\"" "ssl.pemfile = \"$CERTIFICATE\"" \
    'ssl.openssl.ssl-conf-cmd = ( "MinProtocol" => "TLSv1.2" )'
  while read -r kind socket; do
    [ "$kind" != https ] || printf '$SERVER["socket"] == "%s" { ssl.engine = "enable" }\n' "$socket"
  done <"$SOCKETS"
}

# Browsers are to insist on HTTPS, but not beyond its end: those that look at the pages on which it is switched off
# forget it before, the others within minutes.
insist_on_https() {
  printf '%s\n' '$HTTP["scheme"] == "https" {' \
    '  setenv.add-response-header = ( "Strict-Transport-Security" => "max-age=300" )' \
    '  $HTTP["url"] =~ "^/(security|applying|trial)\.php" {' \
    '    setenv.add-response-header = ( "Strict-Transport-Security" => "max-age=0" )' '  }' '}'
}

# redirect HOST-EXPRESSION PORT: what is asked for by HTTP is to be asked for again.
redirect() {
  printf '  $HTTP["host"] =~ "%s" { url.redirect = ( "" => "https://%%1%s${url.path}${qsa}" ) }\n' "$1" "$2"
}

redirect_http() {
  # Not for good: the mode can be switched off again.
  printf '%s\n' '$HTTP["scheme"] == "http" {' '  url.redirect-code = 307' \
    '  setenv.set-response-header = var.headers + var.of_errors'
  ports=$(sed -n 's/^published //p' "$SOCKETS")
  if [ -n "$ports" ]; then
    redirect "^(.+):${ports%:*}\$" ":${ports#*:}"
    printf '  else '
  fi
  redirect '^(.+?)(:80)?$' ''
  # Who does not say for which host gets nothing.
  printf '%s\n' '  else { url.access-deny = ( "" ) }' '}'
}

mode_configuration() {
  listen_to_http || return
  [ "$1" = 1 ] || return 0
  listen_to_https && insist_on_https && redirect_http
}

store_mode() {
  configuration=$(mode_configuration "$1") && store_file "$MODE" "$configuration"
}

# With what it does not take no web server would start, and nobody would know. Renaming needs no room.
require_that_the_server_takes_it() {
  [ -s "$WEB_SERVER_PROCESS" ] || return 0
  refusal=$(lighttpd -tt -f "$CONFIGURATION/lighttpd.conf" 2>&1) && return
  mv -fT "$MODE.before" "$MODE"
  fail "the web server does not take its new configuration: $(printf '%s\n' "$refusal" | tail -n 1)"
}

apply_mode() {
  enabled=$(query 'SELECT ssl_enabled FROM settings') || fail 'the SSL mode cannot be read'
  case $enabled in 0 | 1) ;; *) fail 'the SSL mode is missing in the management database' ;; esac
  [ "$enabled" = 0 ] || require_certificate
  print_certificate >/dev/null
  store_names
  rm -f "$MODE.before"
  ln "$MODE" "$MODE.before" 2>/dev/null
  store_mode "$enabled" || fail "$MODE cannot be written"
  require_that_the_server_takes_it
  rm -f "$MODE.before"
  restart_web_server
}

# As setSSLEnabled does it, when it is not interrupted.
go_back() {
  query "BEGIN IMMEDIATE;
    UPDATE settings SET ssl_enabled = ssl_enabled_before, ssl_enabled_before = NULL;
    INSERT INTO audit (user, operation, \"values\", result)
      SELECT '', 'setSSLEnabled', iif(ssl_enabled, 'enabled', 'disabled') || ', as before: the web service did not follow', 'stored'
      FROM settings;
    COMMIT" || return
  complain 'back to the SSL mode of before the last change'
}

end_interrupted_change() {
  before=$(query 'SELECT ssl_enabled_before FROM settings') || fail 'the SSL mode cannot be read'
  if [ -z "$before" ]; then
    apply_mode
  elif (apply_mode); then
    query 'UPDATE settings SET ssl_enabled_before = NULL' || complain 'the change of the SSL mode stays unfinished'
  else
    go_back && apply_mode
  fi
}

case $#$* in
0)
  lock 9 "$RUN/web_mode.lock"
  apply_mode
  ;;
1start) # the locks in the order of a change, which calls this script with the first of them
  lock 8 "$DATABASE.ssl_lock"
  lock 9 "$RUN/web_mode.lock"
  end_interrupted_change
  ;;
*) refuse_call 'none, "start"' "$@" ;;
esac

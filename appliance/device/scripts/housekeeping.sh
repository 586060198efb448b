#!/bin/sh
# What has to be done from time to time while the device runs, in the foreground: begins logs anew that have grown, has the
# web server take up another name of the appliance, and a certificate made again that is about to end or lacks an address.
#
#   housekeeping.sh          every minute, and for the certificate's end every hour
#   housekeeping.sh once     now, and ends
# shellcheck disable=SC2154 # variables are set by the functions that read into them
# shellcheck source=SCRIPTDIR/device.sh
. "${0%/*}/device.sh"
# shellcheck source=SCRIPTDIR/web_server.sh
. "$BIN/web_server.sh"
# shellcheck source=SCRIPTDIR/certificate.sh
. "$BIN/certificate.sh"

LOGS=$LIBRARY/HTTPService/lighttpd/logs
TRACE=$LOGS/php_extension.log
TRIAL=$LIBRARY/HTTPService/dat/trial # the pages'
MODE=$LIBRARY/HTTPService/lighttpd/conf/mode.conf
LARGEST=4194304      # bytes of a log
KEPT='4 3 2 1'       # of the ones of before the trace log, the oldest first
RENEWED_BEFORE=2592000 # seconds, as applyWebMode.sh has it
MINUTES_BETWEEN_LOOKS=60

is_large() {
  [ -f "$1" ] && [ ! -L "$1" ] && [ "$(stat -c %s "$1")" -gt "$LARGEST" ]
}

# Who writes opens it for each line: there is no moment in which it is missing, and no line gets lost.
rotate_trace() {
  is_large "$TRACE" || return 0
  rm -f "$TRACE.new" && : >"$TRACE.new" && chmod --reference="$TRACE" "$TRACE.new" &&
    chown --reference="$TRACE" "$TRACE.new" || return
  for number in $KEPT; do
    [ ! -e "$TRACE.$number" ] || mv -f "$TRACE.$number" "$TRACE.$((number + 1))" || return
  done
  rm -f "$TRACE.$((${KEPT%% *} + 1))"
  ln "$TRACE" "$TRACE.1" && mv -f "$TRACE.new" "$TRACE"
}

# Who writes these keeps them open, each time at the end. What is added in between is lost.
shorten() {
  is_large "$1" || return 0
  cp -p "$1" "$1.1" && : >"$1"
}

# Only while it is in use.
renew_certificate() {
  https_is_on || return 0
  openssl x509 -checkend "$RENEWED_BEFORE" -noout -in "$CERTIFICATE" >/dev/null 2>&1 || make_certificate_again
}

https_is_on() {
  grep -q '^ssl\.' "$MODE" 2>/dev/null
}

make_certificate_again() {
  BEHIND_THE_DOOR=yes /bin/sh "$BIN/applyWebMode.sh"
}

# For an address or a name that it lacks. One that the appliance no longer has is no reason: it may be gone for a moment. While
# an address is on trial whoever tries it is not to be asked about another certificate. Tried once for the same names, and
# then each hour: on a full disk, say, the web server would start anew each minute, with the certificate of before.
certify_names() {
  https_is_on && [ ! -s "$TRIAL" ] || return 0
  names=$(certificate_names)
  ! has_all_names "$names" && [ "$names" != "$names_tried" ] || return 0
  names_tried=$names
  make_certificate_again
}

# What fails is tried again the next time.
look_after_logs() {
  rotate_trace || complain "$TRACE cannot be begun anew"
  for log in error.log services.log trial.log; do
    shorten "$LOGS/$log" || complain "$LOGS/$log cannot be shortened"
  done
}

names_tried=
case $#$* in
0)
  minutes=0 sleeping=
  trap '[ -z "$sleeping" ] || kill "$sleeping"; exit 0' TERM
  while :; do
    look_after_logs
    take_up_names
    [ $((minutes % MINUTES_BETWEEN_LOOKS)) != 0 ] || { names_tried='' && renew_certificate; }
    certify_names
    minutes=$((minutes + 1))
    sleep 60 &
    sleeping=$!
    wait "$sleeping"
  done
  ;;
1once)
  look_after_logs
  take_up_names
  renew_certificate
  certify_names
  ;;
*) refuse_call 'none, "once"' "$@" ;;
esac

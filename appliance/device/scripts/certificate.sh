# What the web service's certificate says, as facts. Sourced behind device.sh and transaction.sh.
# shellcheck shell=sh disable=SC2154 # variables are set by the functions that read into them

CERTIFICATE=$LIBRARY/HTTPService/lighttpd/conf/certificate.pem
CERTIFICATE_CACHE=$RUN/certificate.facts # the certificate on the first line, what it says on the others

# fact NAME VALUE
fact() {
  [ -z "$2" ] || printf '%s %s\n' "$1" "$2"
}

# Taking it apart takes longer than all other facts: once for each certificate, by who makes it, as the web service has no
# rights to keep anything there.
print_certificate() {
  [ -s "$CERTIFICATE" ] && [ -r "$CERTIFICATE" ] || return
  certificate=
  while IFS= read -r line; do certificate="$certificate$line "; done <"$CERTIFICATE"
  read_line known "$CERTIFICATE_CACHE"
  if [ "$known" != "$certificate" ]; then
    facts=$(certificate_facts)
    [ -n "$facts" ] || return
    [ ! -w "$RUN" ] || replace_file "$CERTIFICATE_CACHE" "$certificate
$facts" 2>/dev/null
    printf '%s\n' "$facts"
    return
  fi
  while IFS= read -r line; do
    [ "$line" = "$certificate" ] || printf '%s\n' "$line"
  done <"$CERTIFICATE_CACHE"
}

certificate_facts() {
  /bin/sh "$BIN/certificateFacts.sh" | while IFS= read -r line; do
    text=${line#*=}
    case $line in
    'SHA-256 fingerprint='*) fact certificate.fingerprint "$text" ;;
    'For='*) fact certificate.names "$text" ;;
    'Valid until='*) fact certificate.end "$(date -u -d "$text" +%s)" ;;
    esac
  done
}

# What the web service's certificate says, as facts, and what it is to be for. Sourced behind device.sh and transaction.sh.
# shellcheck shell=sh disable=SC2154 # variables are set by the functions that read into them

CERTIFICATE=$LIBRARY/HTTPService/lighttpd/conf/certificate.pem
CERTIFICATE_NAMES=$LIBRARY/HTTPService/lighttpd/conf/certificate.names # it was made for
CERTIFICATE_CACHE=$RUN/certificate.facts # the certificate on the first line, what it says on the others

# The names and addresses that the appliance has, in openssl's notation.
certificate_names() {
  read_host_name host
  printf 'DNS:%s,DNS:localhost,IP:127.0.0.1' "$host"
  ip -oneline address show scope global | while read -r _ _ _ address _; do
    printf ',IP:%s' "${address%/*}"
  done
}

# has_all_names NAMES: whether it was made for all of them, and maybe for others that the appliance had.
has_all_names() {
  read_line names_of_before "$CERTIFICATE_NAMES"
  rest=$1,
  while [ -n "$rest" ]; do
    case ,$names_of_before, in *",${rest%%,*},"*) rest=${rest#*,} ;; *) return 1 ;; esac
  done
}

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

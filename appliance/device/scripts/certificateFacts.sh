#!/bin/sh
# Prints what people compare before they trust the web service's certificate, a line each, label=text: its SHA-256
# fingerprint, the names and addresses it is for, and until when it is valid.
# shellcheck source=SCRIPTDIR/device.sh
. "${0%/*}/device.sh"

CERTIFICATE=$LIBRARY/HTTPService/lighttpd/conf/certificate.pem

[ $# = 0 ] || refuse_call 'none' "$@"
[ -r "$CERTIFICATE" ] || exit 1
openssl x509 -noout -fingerprint -sha256 -enddate -ext subjectAltName -in "$CERTIFICATE" 2>/dev/null |
  sed -n -e 's/^.*[Ff]ingerprint=/SHA-256 fingerprint=/p' -e 's/^notAfter=/Valid until=/p' \
    -e 's/IP Address://g' -e 's/DNS://g' -e 's/^ \{2,\}/For=/p'

#!/bin/sh
# Switches IPv6 on and off at once when its flag file comes and goes: the file is only touched and removed,
# nobody is told. Stays in the foreground.

# shellcheck source=SCRIPTDIR/device.sh
. "${0%/*}/device.sh"
# shellcheck source=SCRIPTDIR/apply.sh
. "$BIN/apply.sh"

mkdir -p "${IPV6_ENABLED%/*}" "$RUN" || fail "the folder of $IPV6_ENABLED cannot be made"
news=$RUN/ipv6Flag.news
rm -f "$news"
mkfifo "$news" || fail "$news cannot be made"
inotifywait --monitor --event create,delete,moved_to,moved_from --include "/${IPV6_ENABLED##*/}\$" \
  --format 'The flag has changed.' "${IPV6_ENABLED%/*}" >"$news" 2>&1 &
watcher=$!
trap 'kill "$watcher"; exit' TERM INT

# The first news is that the watch stands: only now can no change be missed.
while read -r line; do
  case $line in
  'Watches established.' | 'The flag has changed.')
    # The lock goes with the subshell.
    (
      lock_settings
      sync_ipv6
    ) </dev/null
    ;;
  esac
done <"$news"
fail 'the watch over the folder has ended'

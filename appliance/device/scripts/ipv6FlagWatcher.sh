#!/bin/sh
# Switches IPv6 on and off at once when its flag file comes and goes: the file is only touched and removed,
# nobody is told. Stays in the foreground.

# shellcheck source=SCRIPTDIR/device.sh
. "${0%/*}/device.sh"
# shellcheck source=SCRIPTDIR/settings.sh
. "$BIN/settings.sh"
# shellcheck source=SCRIPTDIR/change.sh
. "$BIN/change.sh"

LONGEST_PAUSE=30 # seconds

# Waits for its turn as long as that takes, and tries until IPv6 is switched: nobody else will.
follow_flag() {
  pause=1
  sync "${IPV6_ENABLED%/*}" # those who touch and remove the flag do not
  # The lock goes with the subshell.
  until (take_settings_lock && sync_ipv6); do
    sleep "$pause"
    pause=$((pause * 2 < LONGEST_PAUSE ? pause * 2 : LONGEST_PAUSE))
  done
}

mkdir -p "${IPV6_ENABLED%/*}" "$RUN" || fail "the folder of $IPV6_ENABLED cannot be made"
news=$RUN/ipv6Flag.news
rm -f "$news"
mkfifo -m 600 "$news" || fail "$news cannot be made"
inotifywait --monitor --event create,delete,moved_to,moved_from --include "/${IPV6_ENABLED##*/}\$" \
  --format 'The flag has changed.' "${IPV6_ENABLED%/*}" >"$news" 2>&1 &
watcher=$! follower=
trap 'kill "$watcher" $follower 2>/dev/null; exit' TERM INT # the follower may have ended a moment ago

# The first news is that the watch stands: only now can no change be missed.
while read -r event; do
  case $event in
  'Watches established.' | 'The flag has changed.')
    # In the background, so that the order to end is heard meanwhile.
    follow_flag </dev/null &
    follower=$!
    wait "$follower"
    follower=
    ;;
  esac
done <"$news"
fail 'the watch over the folder has ended'

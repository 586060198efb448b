# shellcheck shell=bash disable=SC2034 # for who sources this
# Where a machine allows no private root, root has the contract tests run one at a time on the machine itself, as a user
# that can change nothing of it: what a test might replace or remove there the kernel refuses. To be sourced by bash behind
# install.sh and with CHECKOUT set.

# shellcheck source=../../tools/wait_for_lock.sh
source "$CHECKOUT/tools/wait_for_lock.sh"

PAGE_USER=65534
AS_PAGE_USER=(setpriv --pdeathsig KILL --reuid="$PAGE_USER" --regid="$PAGE_USER" --clear-groups)
# All that the tests and their platform have there: nothing of a machine's own.
PLACES=("$EMBEDDED" "$COMMAND_WRAPPER" /tmp/{module,scripted_platform,kept,canary,engine,none,runs,words})
PLACES_OF_PAGE=("$EMBEDDED" /tmp/{module,scripted_platform,kept})
# The checkout may lie in a folder, such as /root, that only its owner may enter. What the user needs of it is here.
COPY=/tmp/checkout

# in_place_begin PATH...: waits for another one that does the same, though not for ever, then sees to it that the places are
# empty when this process has ended, however, and copies there what is named and of the checkout. Returns 1 after a reason on
# standard output when they cannot be used; waiting in vain ends this process with 2.
in_place_begin() {
  local place said
  [[ $EUID == 0 ]] || { echo 'and only root could have them run on the machine itself' && return 1; }
  exec {in_place_lock}<"${EMBEDDED%/*}" || { echo "and ${EMBEDDED%/*} cannot be locked" && return 1; }
  wait_for_lock "$in_place_lock" 'has contract tests run on the machine itself' || exit 2
  for place in "${PLACES[@]}" "$COPY"; do
    [[ ! -e $place && ! -L $place ]] || { echo "and $place, which they use on the machine itself, is there already" && return 1; }
  done
  # shellcheck disable=SC2016 # variables of the shell that is called
  exec {in_place_guarded}> >(exec setsid bash -c 'trap "" INT QUIT HUP TERM
    while read -r line; do tests=$line; done
    while [[ -n ${tests-} ]] && kill -KILL -- "-$tests"; do sleep 0.05; done
    rm -rf "$@"' bash "${PLACES[@]}" "$COPY" >/dev/null 2>&1)
  in_place_guardian=$!
  said=$(in_place_copy "$@" 2>&1) || {
    in_place_end
    fail "What the tests need cannot be copied to $COPY: ${said##*: }."
  }
}

# in_place_copy PATH...: each to where it is in the checkout, for everybody to read.
in_place_copy() {
  local path copy
  mkdir "$COPY" || return
  for path; do
    copy=$(in_place_path "$path")
    [[ $copy == "$path" ]] || { mkdir -p "${copy%/*}" && cp -rT --preserve=mode,timestamps "$path" "$copy"; } || return
  done
  chmod -R u=rwX,go=rX "$COPY"
}

# in_place_path TEXT: where that is which it names in the checkout.
in_place_path() { echo "${1//"$CHECKOUT/"/"$COPY/"}"; }

# in_place_can_run PROGRAM: or else prints the reason.
in_place_can_run() {
  "${AS_PAGE_USER[@]}" test -x "$1" || { echo "and as another user, on the machine itself, $1 cannot be run" && return 1; }
}

# in_place_tell GROUP: the group of processes that the tests are, or an empty one when they have ended.
in_place_tell() { [[ -z ${in_place_guardian-} ]] || echo "$1" >&"$in_place_guarded"; }

# For the processes of the tests: they must not keep it from ending.
in_place_let_go() { [[ -z ${in_place_guardian-} ]] || exec {in_place_lock}<&- {in_place_guarded}>&-; }

in_place_end() {
  exec {in_place_guarded}>&-
  # The shell waits for no more than the last of its substitutions.
  tail --pid="$in_place_guardian" --sleep-interval=0.05 -f /dev/null
}

# shellcheck shell=bash disable=SC2154 # what counts.sh sets
# What ./test has to have said on a machine, besides that nothing failed: there is no failure where nothing is tried. To be
# sourced by bash behind counts.sh.
#
# Each looks at what it has said, in the file LOG, for the named SUITEs or all, prints what is missing and then returns 1:
#
#   required_with_namespaces LOG [SUITE...]   nothing is skipped but what may_be_skipped names
#   required_in_container LOG [SUITE...]      those that need no namespaces have run, but for what needs a private root
#
#   required_of WHICH LOG COMMAND...   runs the COMMAND with the suites of the array `suites`, shows what it says, and judges it
#                                      by that one of the two; returns 0 when it has succeeded and nothing is missing

required_of() {
  local which=$1 log=$2 status
  "${@:3}" ${suites[@]+"${suites[@]}"} 2>&1 | tee "$log"
  status=${PIPESTATUS[0]}
  "$which" "$log" ${suites[@]+"${suites[@]}"} && return "$status"
}

REQUIRED_IN_CONTAINER=(unit contract engine style)

required_with_namespaces() {
  local sentence allowed known lacking=0
  while IFS= read -r sentence; do
    known=''
    while IFS= read -r allowed; do
      [[ $sentence != "skip $allowed: "* ]] || known=yes
    done < <(_required_words "${BASH_SOURCE[0]%/*}/may_be_skipped")
    [[ -n $known ]] || _required_lacks "not required, but skipped: ${sentence#skip }"
  done < <(grep '^skip ' "$1")
  ((lacking == 0))
}

required_in_container() {
  local log=$1 suite line most lacking=0
  shift
  for suite in "${REQUIRED_IN_CONTAINER[@]}"; do
    [[ $# == 0 || " $* " == *" $suite "* ]] || continue
    most=0
    [[ $suite != contract && $suite != engine ]] || most=$(_required_words "${BASH_SOURCE[0]%/*}/../contract/private_root_only" | wc -l)
    line=$(sed -n "s/^$suite: //p" "$log" | tail -n 1)
    if ! counts_read "$line"; then
      _required_lacks "$suite says nothing of how many passed"
    elif ((counted_passed == 0)); then
      _required_lacks "$suite has run nothing: $line"
    elif ((counted_skipped > most)); then
      _required_lacks "$suite may skip $most: $line"
    fi
  done
  ((lacking == 0))
}

_required_lacks() {
  echo "$1"
  lacking=1
}

# What a file says in its lines, without the reasons.
_required_words() { sed -e 's/ *#.*//' -e '/^$/d' "$1"; }

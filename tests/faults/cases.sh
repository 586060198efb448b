# shellcheck shell=bash disable=SC2034 # for the workers
# Runs cases in an appliance: sourced by a worker, which has made one and calls
#
#   work WORLD      with the changes of the table of that name
#
# In the folder $FAULTS_FOLDER, which it shares with the other workers and with `run`, it finds and leaves:
#
#   WORLD.changes           the names of the changes to plan, one a line; each worker takes the next one
#   WORLD.NAME.cases        from the worker: the cases of a change, NAME<tab>FAULT<tab>OCCURRENCE<tab>CALL
#   WORLD.NAME.planned.results
#                           from the worker: that it is through with that, and what was wrong
#   WORLD.queue             from `run`, when all is planned: the cases to run, and PAIR<tab>ROUNDS<tab>NAME<tab>NAME
#   worker.*.results        what became of its cases
#
# Besides change and together, a table (device_changes.sh, services_changes.sh) has these functions:
#
#   establish BASE          the appliance with the settings of BASE
#   readings                what the module's readers give, READING=VALUE, a line each
#   agrees READINGS         whether what is in force is what is read; says what is not
#   finish_words            puts into the array words what is known of a command only now
#   power_off, start_again  what an appliance loses without power, and its start
#   stored                  the settings as they are stored, and all that is beside them
#   wrong_after_start       what is beside the settings, or else is there, that a start must not leave
#   may_be_silent CHANGE SAID   whether the change, which has said that, tells nobody else that it failed
#   may_try_again CHANGE    whether the change may have said that something failed, and then done it
#   may_end_between CHANGE CALL   whether the change, that call failing, may fail with the setting already stored; the
#                           start ends it then

FOLDER=$FAULTS_FOLDER
INJECTOR=$BUILD/tests/fault_injector

declare -a changes=() pairs=()
declare -A base_of=() old_of=() new_of=() to_old=() to_new=()
change() {
  changes+=("$1")
  base_of[$1]=$2 old_of[$1]=$3 new_of[$1]=$4 to_old[$1]=$5 to_new[$1]=$6
}
together() { pairs+=("$1 $2"); }

# words_of COMMAND: its words, into the array words; "~" stands for a blank in one.
words_of() {
  read -r -a words <<<"$1"
  words=("${words[@]//\~/ }")
  finish_words
}

run() {
  local -a words
  words_of "$1"
  "${words[@]}"
}

# with_readings READINGS 'READING=VALUE ...': the same with other values.
with_readings() {
  local readings=$1 reading line
  local -a others
  read -r -a others <<<"$2"
  while read -r line; do
    for reading in "${others[@]}"; do [[ ${line%%=*} != "${reading%%=*}" ]] || line=$reading; done
    printf '%s\n' "$line"
  done <<<"$readings"
}

# is_so ACTUAL EXPECTED WHAT
is_so() { [[ $1 == "$2" ]] || { echo "$3 is \"$1\", but \"$2\" is what is read" && return 1; }; }

# take LIST: the next line of the list, into $taken; fails when there is none left.
take() {
  local number=0 lock
  exec {lock}>>"$FOLDER/$world.lock"
  flock "$lock"
  [[ ! -s $FOLDER/$world.$1.next ]] || number=$(<"$FOLDER/$world.$1.next")
  echo $((number + 1)) >"$FOLDER/$world.$1.next"
  exec {lock}>&-
  ((number < ${#lines[@]})) && taken=${lines[number]}
}

# begin CHANGE: the setting is the old one, everything else as in its base.
begin() {
  establish "${base_of[$1]}"
  expect_success run "${to_old[$1]}"
}

# The readings before the change and behind it are the table's, not what is found.
expect_readings() {
  local found
  found=$(readings)
  [[ $found == "$1" ]] || fail 'expected (<) and read (>):' "$(diff <(echo "$1") <(echo "$found") | grep '^[<>]')"
}

await_agreement() {
  local deadline=$((SECONDS + 60)) said
  until said=$(agrees "$1"); do
    ((SECONDS < deadline)) || fail "$said"
    sleep 0.1
  done
}


# faults_of CALL: those that can happen to it.
faults_of() {
  local call=${1#* }
  case $call in
    # What is no file has no room to run out of, and what is said to nobody is nobody's loss.
    'open /dev/'* | 'write /dev/'* | 'write pipe:'* | 'write socket:'* | 'write /tmp/'* | *.news | fork* | write*.log) echo kill ;;
    # The DHCP clients look after themselves; what is theirs fails behind the answer.
    *) [[ $1 != dhcpcd\ * && $1 != udhcpc\ * ]] || { echo kill && return; } ;;&
    send*) if [[ $1 == 'ip '* ]]; then echo kill EACCES; else echo kill; fi ;; # ethtool would wait for an answer
    'open /proc/'*) echo kill EROFS EACCES ;;
    'write /proc/'* | exec* | sethostname*) echo kill EACCES ;;
    write* | truncate*) echo kill ENOSPC ;;
    sync*) echo kill ENOSPC EROFS ;;
    remove*) echo kill EROFS EACCES ;;
    *) echo kill ENOSPC EROFS EACCES ;;
  esac
}

# The command's own; not those of what stands around it here.
calls_of() { grep -Ev '^(fault_injector|switch_ipv6|pgrep) ' "$1"; }

# good_run CHANGE FILE: its calls, each with its occurrence, into the file.
good_run() {
  local -a words
  words_of "${to_new[$1]}"
  run_apart "$INJECTOR" /tmp/calls -- "${words[@]}"
  [[ $ended == 0 && ! -s $WORK/said && ! -s $WORK/printed ]] || fail "${to_new[$1]}" "ended with $ended" "$(<"$WORK/said")"
  expect_readings "$new"
  await_agreement "$new"
  calls_of /tmp/calls | awk '{ print ++seen[$0] "\t" $0 }' >"$2"
  expect_success run "${to_old[$1]}"
  expect_readings "$old"
  await_agreement "$old"
}

# plan CHANGE: two good runs show its calls. What only one of them makes belongs to what goes on beside the change; the
# very first one makes what is made once in a life.
plan() {
  local old new call fault occurrence
  begin "$1"
  old=$(with_readings "$(readings)" "${old_of[$1]}") new=$(with_readings "$(readings)" "${new_of[$1]}")
  expect_readings "$old"
  await_agreement "$old"
  good_run "$1" /tmp/calls.0
  good_run "$1" /tmp/calls.1
  good_run "$1" /tmp/calls.2
  grep -xF -f /tmp/calls.1 /tmp/calls.2 >/tmp/calls.both
  while IFS=$'\t' read -r occurrence call; do
    for fault in $(faults_of "$call"); do printf '%s\t%s\t%s\t%s\n' "$1" "$fault" "$occurrence" "$call"; done
  done </tmp/calls.both >"$FOLDER/$world.$1.cases"
  [[ -s $FOLDER/$world.$1.cases ]] || fail 'it makes no call that a fault could happen to'
}

# try_case CHANGE FAULT OCCURRENCE CALL
try_case() {
  local change=$1 fault=$2 occurrence=$3 call=$4 old new
  local -a words
  old=$(with_readings "$(readings)" "${old_of[$change]}") new=$(with_readings "$(readings)" "${new_of[$change]}")
  expect_readings "$old"
  words_of "${to_new[$change]}"
  run_with_fault
  judge_answer
  power_off
  expect_success start_again
  judge_start
  expect_success run "${to_old[$change]}"
  expect_readings "$old"
  await_agreement "$old"
  expect_equal "$(<"/tmp/stored.$change")" "$(stored)"
}

# What goes on beside the change does not always come to the call in time.
run_with_fault() {
  local tries
  for tries in {1..5}; do
    run_apart "$INJECTOR" /tmp/calls "$fault" "$occurrence" "$call" -- "${words[@]}"
    ! grep -qx fault /tmp/calls || return 0
    expect_success run "${to_old[$change]}"
    await_agreement "$old"
  done
  fail "the fault did not happen in $tries runs"
}

# What was said and what is there right behind it. Sets outcomes: the readings that may come of it.
judge_answer() {
  local said
  said=$(<"$WORK/said")
  outcomes=("$old" "$new")
  if [[ $fault == kill ]]; then
    expect_equal 137 "$ended"
    expect_outcome
    return
  fi
  [[ ! -s $WORK/printed ]] || fail 'printed:' "$(<"$WORK/printed")"
  case $ended in
    0)
      # Programs may have said what came of it for them.
      may_try_again "$change" || ! grep -q '^[A-Za-z0-9]*\.sh: ' <<<"$said" || fail 'ended with 0, but said:' "$said"
      may_be_silent "$change" "$said" || outcomes=("$new")
      ;;
    1)
      expect_match '^[A-Za-z0-9_/]+(\.sh|\.php)?: [^'$'\n'']+$' "${said##*$'\n'}"
      may_end_between "$change" "$call" || outcomes=("$old")
      ;;
    126)
      [[ $call == 'cmdwrap exec '* ]] || fail "ended with 126: $said"
      outcomes=("$old")
      ;;
    *) fail "ended with $ended: $said" ;;
  esac
  if [[ ${#outcomes[@]} == 1 ]]; then
    expect_outcome
    await_agreement "$outcome"
  fi
}

# Sets outcome: which of them it is.
expect_outcome() {
  local found
  found=$(readings)
  for outcome in "${outcomes[@]}"; do [[ $outcome != "$found" ]] || return 0; done
  fail "ended with $ended: $(<"$WORK/said")" 'expected (<) and read (>):' "$(diff <(echo "${outcomes[-1]}") <(echo "$found") | grep '^[<>]')"
}

judge_start() {
  expect_outcome
  await_agreement "$outcome"
  expect_equal '' "$(wrong_after_start)"
}

# try_pair ROUNDS CHANGE CHANGE
try_pair() {
  local round one=$2 other=$3
  [[ $2 != "$3" ]] || one=reverse
  to_new[reverse]=${to_old[$2]} old_of[reverse]=${new_of[$2]} new_of[reverse]=${old_of[$2]} to_old[reverse]=${to_old[$2]}
  establish "${base_of[$2]}"
  for ((round = 1; round <= $1; round++)); do try_round || return; done
}

# Both are made, and what is there then is what one of them leaves behind the other.
try_round() {
  local first second
  expect_success run "${to_old[$one]}"
  expect_success run "${to_old[$other]}"
  before=$(readings)
  pause_at_random && run "${to_new[$one]}" >"$WORK/first" 2>&1 &
  first=$!
  pause_at_random
  run "${to_new[$other]}" >"$WORK/second" 2>&1
  second=$?
  wait "$first"
  first=$?
  [[ $first$second == 00 && ! -s $WORK/first && ! -s $WORK/second ]] ||
    fail "round $round: ended with $first and $second" "$(<"$WORK/first")" "$(<"$WORK/second")"
  ended=both
  : >"$WORK/said"
  outcomes=("$(with_readings "$before" "${new_of[$one]} ${new_of[$other]}")"
    "$(with_readings "$before" "${new_of[$other]} ${new_of[$one]}")")
  expect_outcome
  await_agreement "$outcome"
}

pause_at_random() { ! read -r -t "0.0$((RANDOM % 60 + 10))" _ <>/tmp/nothing; }

# judged TITLE HOW COMMAND...: HOW it is done again.
judged() {
  local said
  if said=$("${@:3}" 2>&1); then
    ok "$1"
  else
    not_ok "$1" "$said" "Again (chosen by seed $FAULTS_SEED): tests/faults/run $2"
    return 1
  fi
}

# in_words CHANGE FAULT OCCURRENCE CALL
in_words() {
  local order=$3th
  case $3 in 1) order=1st ;; 2) order=2nd ;; 3) order=3rd ;; esac
  echo "$1: $2 at the $order call \"$4\""
}

work() {
  world=$1
  mapfile -t lines <"$FOLDER/$world.changes"
  while take changes; do
    try "$taken: is made, and makes calls" plan "$taken" >"$FOLDER/$world.$taken.planning"
    mv "$FOLDER/$world.$taken.planning" "$FOLDER/$world.$taken.planned.results"
  done
  until [[ -e $FOLDER/$world.queue ]]; do sleep 0.1; done
  mapfile -t lines <"$FOLDER/$world.queue"
  established=''
  while take queue; do
    IFS=$'\t' read -r name fault occurrence call <<<"$taken"
    started=${EPOCHREALTIME/./}
    if [[ $name == PAIR ]]; then
      established='' name=$occurrence+$call
      judged "$occurrence and $call at once, $fault times" "--pairs $fault $occurrence $call" \
        try_pair "$fault" "$occurrence" "$call"
    else
      if [[ $established != "$name" ]]; then (begin "$name" && stored >"/tmp/stored.$name") >/dev/null; fi
      established=''
      judged "$(in_words "$name" "$fault" "$occurrence" "$call")" "--case '$name $fault $occurrence $call'" \
        try_case "$name" "$fault" "$occurrence" "$call" && established=$name
    fi
    echo "$(((${EPOCHREALTIME/./} - started) / 1000)) $name" >>"$FOLDER/times"
  done
  finish
}

# shellcheck shell=bash
# Runs the *.test files of a suite (shell_tests.sh says what such a file is). To be sourced by a suite's `run`, which
# ends with
#
#   run_test_files FOLDER AT_ONCE SECONDS [NAME...]
#       Runs FOLDER/NAME.test, or all that are in the folder, AT_ONCE of them at the same time, the largest first, each
#       for at most SECONDS. Shows what they say, file after file, and ends with the line of counts.sh; returns 1 when
#       one failed, or when there was nothing at all. What each has said stays in build/tests/logs/SUITE/, or in
#       TEST_LOGS/SUITE/: a test that calls a suite names its own folder, for that suite may be running beside it. Where the
#       machine allows no appliance only those are run that say with a line of their own, "# It needs no appliance.", that they
#       can.
#
# A suite whose files are no executables sets what they are called and what runs them before that.
TEST_SUFFIX=.test
TEST_RUNNER=()

# shellcheck source=namespaces.sh
source "${BASH_SOURCE[0]%/*}/namespaces.sh"

run_test_files() {
  local folder=$1 at_once=$2 seconds=$3
  shift 3
  local logs=${TEST_LOGS:-${folder%/*/*}/build/tests/logs}/${folder##*/} file running=0
  local -a files
  mapfile -t files < <(ls -S "$folder"/*"$TEST_SUFFIX")
  if [[ $# -gt 0 ]]; then
    files=("${@/#/$folder/}")
    files=("${files[@]/%/$TEST_SUFFIX}")
  fi
  local left_out=0
  namespaces_are_enough || leave_out_files "${folder##*/}"
  rm -rf "$logs" && mkdir -p "$logs" || return
  for file in "${files[@]}"; do
    [[ -x $file || (-e $file && ${#TEST_RUNNER[@]} -gt 0) ]] || { echo "There is no test $file." >&2 && return 2; }
    if ((running == at_once)); then
      wait -n
      ((running -= 1))
    fi
    run_test_file "$file" "$seconds" >"$logs/${file##*/}.log" 2>&1 </dev/null &
    ((running += 1))
  done
  wait
  show_and_count "$logs" "${files[@]##*/}"
}

leave_out_files() {
  local file
  local -a all=("${files[@]}")
  files=()
  for file in "${all[@]}"; do
    if [[ ! -e $file ]] || grep -qx '# It needs no appliance\.' "$file"; then files+=("$file"); else ((left_out += 1)); fi
  done
  ((left_out == 0)) || echo "skip $1: $left_out of ${#all[@]} files: $namespaces_lack"
}

# It ends with its time, and with this process, however that ends. A job in the background would ignore interrupts.
run_test_file() {
  exec env --default-signal=INT,QUIT setpriv --pdeathsig TERM timeout --kill-after=10 "$2" "${TEST_RUNNER[@]}" "$1"
}

show_and_count() {
  local logs=$1 passed=0 failed=0 skipped=$left_out name log broken
  shift
  for name; do
    log=$logs/$name.log broken=$(grep -c '^not ok ' "$logs/$name.log")
    grep -vx end "$log"
    if [[ $(tail -n 1 "$log") != end ]]; then
      echo "not ok $name does not come to its end"
      ((broken += 1))
    fi
    ((broken == 0)) || echo "That was $name."
    ((passed += $(grep -c '^ok ' "$log"), skipped += $(grep -c '^skip ' "$log"), failed += broken))
  done
  counts_line "$passed" "$failed" "$skipped"
  ((failed == 0 && passed + skipped > 0))
}

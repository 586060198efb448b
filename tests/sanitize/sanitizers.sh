# shellcheck shell=bash disable=SC2034,SC2153,SC2154,SC2317 # variables and functions that those who source this use
# What a sanitizer is, and how that comes to be which is run under it. To be sourced by `run` and `coverage`; all of it
# fills or uses variables that they declare for each:
#
#   work, built, reports   folders: all of it, the build, what was found
#   compiler           what compiles, when it is not the usual one
#   compiler_options   what the sources are compiled with; none: the build proper is looked at
#   targets            what is to be built
#   settings           the sanitizer's environment variables (use_settings FOLDER sets them, with the folder of reports)
#   command            what a program is run with; none: by itself
#   preloaded          what is to be loaded into an interpreter
#   interpreter_options  what an interpreter is called with
#   needs              options that name to the contract tests what of the checkout an interpreter needs
#   faults             which planted faults it has to find, and by which words its report is known

# shellcheck source=../../appliance/launcher/install.sh
source "$CHECKOUT/appliance/launcher/install.sh"
# shellcheck source=../../appliance/launcher/namespaces.sh
source "$CHECKOUT/appliance/launcher/namespaces.sh"
# shellcheck source=../contract/in_place.sh
source "$TESTS/contract/in_place.sh"

INTERPRETERS=(php php-cgi)
suppressions=$HERE/suppressions
LIBRARIES=(libTarn.so libVelm.so libdovan_util.so)

# By the compiler that needs half the time for it.
describe_address() {
  local runtime
  compiler=clang++
  runtime=$(clang++ -print-file-name="libclang_rt.asan-$(uname -m).so")
  compiler_options=(-O0 -fsanitize='address,undefined' -fno-sanitize-recover=all -shared-libsan "-Wl,-rpath,${runtime%/*}")
  command=()
  preloaded=$runtime
  faults=(
    [overflow]=heap-buffer-overflow
    [use_after_free]=heap-use-after-free
    [engine_overflow]=heap-buffer-overflow
    [leak]='77 byte.s. leaked'
    [signed_overflow]='signed integer overflow'
  )
  # The tests' doubles stand in front of the sanitizer, which would complain of the order. The engine takes every block
  # by itself, so that the sanitizer knows them all.
  use_settings() {
    local common=log_path=$1/report:exitcode=99
    settings=(
      "ASAN_OPTIONS=$common:verify_asan_link_order=0:strict_string_checks=1:detect_stack_use_after_return=1"
      "LSAN_OPTIONS=suppressions=$suppressions/leaks:print_suppressions=0"
      "UBSAN_OPTIONS=$common:print_stacktrace=1"
      USE_ZEND_ALLOC=0
    )
  }
}

describe_thread() {
  compiler_options=(-O0 -fsanitize=thread)
  command=()
  preloaded=$(library tsan)
  faults=([race]='data race')
  use_settings() { settings=("TSAN_OPTIONS=log_path=$1/report:exitcode=99:atexit_sleep_ms=100" USE_ZEND_ALLOC=0); }
}

# The starter of valgrind is a program that what is meant for the interpreter would be loaded into: so the tool that it
# starts is called as it does.
describe_valgrind() {
  compiler_options=()
  preloaded=''
  interpreter_options=(-d pcre.jit=0) # what is compiled while it runs reads more than there is, on purpose
  faults=(
    [overflow]='Invalid write'
    [use_after_free]='Invalid read'
    [engine_overflow]='Invalid write'
    [leak]='77 bytes .* definitely lost'
    [uninitialized]='depends on uninitialised value'
  )
  use_settings() {
    settings=(VALGRIND_LAUNCHER=/usr/bin/valgrind VALGRIND_LIB=/usr/libexec/valgrind USE_ZEND_ALLOC=0)
    command=(
      /usr/libexec/valgrind/memcheck-amd64-linux --quiet --error-exitcode=99 --leak-check=full
      --errors-for-leak-kinds=definite --show-leak-kinds=definite --child-silent-after-fork=yes
      "--suppressions=$suppressions/valgrind" "--log-file=$1/report.%p"
    )
  }
}

# Which lines and branches of the source were run, which is no fault.
describe_coverage() {
  compiler=clang++
  compiler_options=(-O0 -fprofile-instr-generate -fcoverage-mapping)
  command=()
  preloaded=''
  faults=()
  use_settings() { settings=("LLVM_PROFILE_FILE=$1/%p.%m.profraw"); }
}

# What is looked at takes its time.
export CONTRACT_SECONDS=600

library() { realpath "$(g++ -print-file-name="lib$1.so")"; }

# False after it has been counted as a failure.
prepare_sanitizer() {
  local log=$work/build.log
  { build_sources && build_interpreters && build_planted; } >"$log" 2>&1 && return
  not_hold 'all can be built' "$(<"$log")"
  return 1
}

build_sources() {
  if [[ ${#compiler_options[@]} == 0 ]]; then refer_to_build; else build_instrumented; fi
}

# Of warnings the build proper speaks: instruments bring warnings of their own.
build_instrumented() {
  local options="${compiler:-g++} ${compiler_options[*]} -g1 -fno-omit-frame-pointer -w"
  [[ $(cat "$work/options" 2>/dev/null) == "$options" && -e $built/build.ninja ]] ||
    { cmake --fresh -S "$CHECKOUT" -B "$built" -G Ninja -D CMAKE_BUILD_TYPE=None -D "CMAKE_CXX_COMPILER=${options%% *}" \
      -D "CMAKE_CXX_FLAGS=${options#* }" && echo "$options" >"$work/options"; } || return
  cmake --build "$built" --parallel --target network velm dovan_util cmdwrap tests/contract/scripted_platform/all "${targets[@]}"
}

# The files of the build proper; in place of a program of unit tests one that runs it.
refer_to_build() {
  local program
  refer "$built" "$BUILD" && ln -sf "$BUILD/network.so" "$built" || return
  use_settings "$reports/unit"
  for program in "$BUILD"/tests/*unit_tests; do
    wrap "$program" "$built/tests/${program##*/}" || return
  done
}

# refer FOLDER BUILT: makes a build folder with what the module needs in another one.
refer() {
  mkdir -p "$1/tests/scripted_platform" &&
    ln -sf "${LIBRARIES[@]/#/$2/}" "$2/cmdwrap" "$1" &&
    ln -sf "$2"/tests/scripted_platform/{libdovan_util.so,command_texts} "$1/tests/scripted_platform"
}

build_interpreters() {
  local name beside=$work/beside_sanitizer.so suppressions=$suppressions
  needs=(--needs "$beside" --needs "$suppressions")
  mkdir -p "$work/bin" && gcc -O1 -Wall -Wextra -Werror -shared -fPIC -o "$beside" "$HERE/beside_sanitizer.c" || return
  # Where the contract tests have no private root they see the copy.
  namespaces_choose --mount --uts --pid --ipc || { beside=$(in_place_path "$beside") && suppressions=$(in_place_path "$suppressions"); }
  use_settings "$KEPT"
  for name in "${INTERPRETERS[@]}"; do
    wrap "$(type -P "$name")" "$work/bin/$name" "${preloaded:+$beside:$preloaded}" ${interpreter_options[@]+"${interpreter_options[@]}"} || return
  done
}

# wrap PROGRAM RESULT [PRELOADED [OPTION...]]: makes RESULT, a program that runs PROGRAM under the sanitizer.
wrap() {
  gcc -O1 -Wall -Wextra -Werror -static -o "$2" "$HERE/interpreter.c" -D "PRELOADED=\"${3-}\"" \
    -D "PROGRAM=$(listed ${command[@]+"${command[@]}"} "$1" "${@:4}")" -D "SETTINGS=$(listed "${settings[@]}")"
}

# As C writes them.
listed() {
  local words
  printf -v words '"%s", ' "$@"
  echo "${words%, }"
}

# A build folder with a module and unit tests that are the planted ones.
build_planted() {
  local planted=$work/planted
  local -a engine compile=("${compiler:-g++}" ${compiler_options[@]+"${compiler_options[@]}"} -g -fno-omit-frame-pointer)
  read -ra engine <<<"$(php-config --includes)"
  refer "$planted" "$built" || return
  is_made "$planted/network.so" "$PLANTED/network.cc" ||
    "${compile[@]}" -shared -fPIC "${engine[@]}" -o "$planted/network.so" "$PLANTED/network.cc" || return
  [[ ${#targets[@]} != 0 ]] || return 0
  is_made "$planted/faults" "$PLANTED/faults_test.cc" ||
    "${compile[@]}" -o "$planted/faults" "$PLANTED/faults_test.cc" -lgtest -lgtest_main || return
  if [[ ${#command[@]} == 0 ]]; then
    ln -sf ../faults "$planted/tests/planted_unit_tests"
  else
    use_settings "$reports/unit"
    wrap "$planted/faults" "$planted/tests/planted_unit_tests"
  fi
}

# is_made RESULT SOURCE: since the source or how it is compiled was changed.
is_made() { [[ $1 -nt $2 && $1 -nt $HERE/sanitizers.sh ]]; }

# shellcheck shell=bash
# Installs what is missing and builds; to be sourced by bash. Says nothing when there is nothing to do.
#
#   prepare CHECKOUT to-run     what the software appliance needs
#   prepare CHECKOUT to-test    what the tests need, too
#   prepare CHECKOUT to-bench   what bench/run needs, besides what the software appliance does
#   prepare CHECKOUT for-debian what makes the Debian packages, besides what the software appliance does
#   prepare CHECKOUT for-device [-DOPTION=VALUE...]   what goes onto a device, with options for CMake
#
# What was built is in CHECKOUT/build, and what is for a device in CHECKOUT/build-powerpc. Each returns one of the
# launcher's exit statuses, after it has said on standard error why.
#
#   prepare_and_hold ...         the same, and then nobody else builds there until this process ends, or calls
#   let_others_build             the descriptor for that is $build_lock: what is started meanwhile is to have it closed

# shellcheck source=wait_for_lock.sh
source "${BASH_SOURCE[0]%/*}/wait_for_lock.sh"
# shellcheck source=../appliance/launcher/exit_statuses.sh
source "${BASH_SOURCE[0]%/*}/../appliance/launcher/exit_statuses.sh"

# A plain user's has no place for what manages networks and runs services.
PATH=$PATH:/usr/sbin:/sbin

prepare() { prepare_and_hold "$@" && let_others_build; }

let_others_build() { exec {build_lock}>&-; }

prepare_and_hold() {
  local checkout=$1 purpose=$2 reason lock_file=$1/build/.prepare
  local -a cmake_options=("${@:3}")
  # For who owns it alone: whoever can read it can hold it.
  reason=$({ mkdir -p "$checkout/build" && (umask 077 && : >>"$lock_file") && chmod 600 "$lock_file"; } 2>&1) || {
    echo "The folder $checkout/build cannot be written: ${reason##*: }. Copy the checkout to a folder that you may write to." >&2
    return "$STATUS_STATE"
  }
  exec {build_lock}>"$lock_file" || return "$STATUS_PREPARE"
  # A second one in the same checkout finds everything done.
  wait_for_lock "$build_lock" "builds in $checkout" &&
    install_missing_packages "$checkout" "$purpose" {build_lock}>&- && build "$checkout" "$purpose" {build_lock}>&- && return
  let_others_build
  return "$STATUS_PREPARE"
}

install_missing_packages() {
  local -a lists=("$1/tools/packages-to-run") missing as_root=()
  case $2 in
    to-run) ;;
    for-device) lists=("$1/tools/packages-for-device") ;;
    *) lists+=("$1/tools/packages-$2") ;;
  esac
  mapfile -t missing < <(comm -23 <(sed -e 's/#.*//' -e 's/ //g' -e '/^$/d' "${lists[@]}" | sort) \
    <(installed_packages | sort -u))
  [[ ${#missing[@]} -gt 0 ]] || return 0
  if [[ " ${missing[*]} " == *' g++-powerpc-linux-gnu '* ]] && installed_packages | grep -qx gcc-multilib; then
    echo 'g++-powerpc-linux-gnu cannot be installed beside gcc-multilib: remove gcc-multilib first.' >&2
    return 1
  fi
  if [[ $EUID != 0 ]]; then
    command -v sudo >/dev/null || {
      echo "Missing Debian packages: ${missing[*]}. Install them as root; there is no sudo to do it from here." >&2
      return 1
    }
    as_root=(sudo)
    agree_to_installation || return
  fi
  echo "Installing Debian packages: ${missing[*]}" >&2
  ${as_root[@]+"${as_root[@]}"} bash "$1/tools/install_switched_off" "${missing[@]}" >&2
}

# Whoever has no rights on the machine by themselves is asked before it changes, where there is somebody to ask.
agree_to_installation() {
  local answer=''
  [[ -t 0 && -t 2 ]] || return 0
  echo "These Debian packages are missing: ${missing[*]}" >&2
  read -r -p 'Install them with sudo? [y/N] ' answer
  [[ $answer == [yY]* ]] || { echo 'Nothing was installed.' >&2 && return 1; }
}

# By every name that they go by.
installed_packages() {
  dpkg-query --show --showformat '${db:Status-Status}, ${Package}, ${Provides}\n' |
    sed -n 's/^installed, //p' | tr ',' '\n' | sed -e 's/(.*//' -e 's/ //g' -e '/^$/d'
}

build() {
  local folder=$1/build log=$1/build/build.log
  local -a targets=(software_appliance)
  [[ $2 != to-bench ]] || targets+=(bench)
  forget_foreign_builds "$1"
  if [[ $2 == for-device ]]; then
    build_for_device "$1"
  elif [[ $2 != to-test ]]; then
    [[ -e $folder/CMakeCache.txt ]] || configure "$1" default -D WITH_TESTS=OFF || return
    [[ $2 != to-bench ]] || grep -qx 'WITH_BENCH:BOOL=ON' "$folder/CMakeCache.txt" || configure "$1" default -D WITH_BENCH=ON || return
    compile "${targets[@]}"
  else
    grep -qx 'WITH_TESTS:BOOL=ON' "$folder/CMakeCache.txt" 2>/dev/null || configure "$1" default -D WITH_TESTS=ON || return
    compile
  fi
}

build_for_device() {
  local folder=$1/build-powerpc log=$1/build/build-powerpc.log
  local -a new=()
  [[ -e $folder/CMakeCache.txt ]] || new=(-D WITH_TESTS=OFF)
  if [[ ${#new[@]} -gt 0 || ${#cmake_options[@]} -gt 0 ]]; then
    configure "$1" powerpc ${new[@]+"${new[@]}"} ${cmake_options[@]+"${cmake_options[@]}"} || return
  fi
  compile device
}

# What was built before the checkout was copied or moved knows the places where it was: it would be built there, or
# not at all. (All else in the folders, such as the appliance's settings, stays.)
forget_foreign_builds() {
  local checkout=$1 built source
  for built in "$checkout"/{build,build-*}; do
    source=$(sed -n 's/^CMAKE_HOME_DIRECTORY:INTERNAL=//p' "$built/CMakeCache.txt" 2>/dev/null)
    [[ -n $source && ! $source -ef $checkout ]] || continue
    echo "What is in $built was built in $source; it is built again." >&2
    rm -rf "$built"/{CMakeCache.txt,CMakeFiles,build.ninja,.ninja_deps,.ninja_log,Makefile}
  done
}

# configure CHECKOUT PRESET OPTION...
configure() {
  local checkout=$1 preset=$2
  shift 2
  [[ -e $folder/CMakeCache.txt ]] || echo "Building in $folder" >&2
  (cd "$checkout" && cmake --preset "$preset" "$@") >"$log" 2>&1 || { cat "$log" >&2; return 1; }
}

# compile [TARGET...]
compile() { run_builder "$@" >"$log" 2>&1 || { cat "$log" >&2; return 1; }; }

# Mostly there is nothing to do, and asking cmake to ask ninja takes twice as long.
run_builder() {
  if [[ -e $folder/build.ninja ]]; then ninja -C "$folder" "$@"; else cmake --build "$folder" --parallel ${1:+--target "$@"}; fi
}

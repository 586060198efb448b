# shellcheck shell=bash
# Installs what is missing and builds; to be sourced by bash. Says nothing when there is nothing to do.
#
#   prepare CHECKOUT    returns 1 after it has said why on standard error; what was built is in
#                       CHECKOUT/build

# A plain user's has no place for what manages networks and runs services.
PATH=$PATH:/usr/sbin:/sbin

prepare() {
  local checkout=$1
  mkdir -p "$checkout/build" || return
  (
    # A second one in the same checkout finds everything done.
    exec {lock}>"$checkout/build/.prepare" && flock "$lock" || exit
    install_missing_packages "$checkout/tools/debian-packages" {lock}>&- && build "$checkout" {lock}>&-
  )
}

install_missing_packages() {
  local -a wanted missing
  mapfile -t wanted < <(sed -e 's/#.*//' -e 's/ //g' -e '/^$/d' "$1" | sort)
  mapfile -t missing < <(comm -23 <(printf '%s\n' "${wanted[@]}") <(installed_packages | sort -u))
  [[ ${#missing[@]} -gt 0 ]] || return 0
  if [[ " ${missing[*]} " == *' g++-powerpc-linux-gnu '* ]] && installed_packages | grep -qx gcc-multilib; then
    echo 'g++-powerpc-linux-gnu cannot be installed beside gcc-multilib: remove gcc-multilib first.' >&2
    return 1
  fi
  local -a as_root=()
  if [[ $EUID != 0 ]]; then
    command -v sudo >/dev/null || {
      echo "Missing Debian packages: ${missing[*]}. Install them as root; there is no sudo to do it from here." >&2
      return 1
    }
    as_root=(sudo)
  fi
  echo "Installing Debian packages: ${missing[*]}" >&2
  # The list of packages has a lock of its own that nothing waits for.
  ${as_root[@]+"${as_root[@]}"} flock /var/lib/apt bash -s -- "${missing[@]}" >&2 <<'AS_ROOT'
set -e
export DEBIAN_FRONTEND=noninteractive
# The services in these packages are for the appliance: the machine itself shall not start them, now or later.
policy=/usr/sbin/policy-rc.d
if [[ ! -e $policy ]]; then
  trap 'rm -f "$policy"' EXIT
  printf '#!/bin/sh\nexit 101\n' >"$policy"
  chmod 755 "$policy"
fi
quietly() { output=$("$@" 2>&1 </dev/null) || { echo "$output"; return 1; }; }
quietly apt-get update
quietly apt-get install --yes --no-remove --no-install-recommends -o DPkg::Lock::Timeout=600 "$@"
for package; do
  if command -v systemctl >/dev/null && [[ -e /lib/systemd/system/$package.service ]]; then
    systemctl disable --quiet "$package" || true
  fi
done
AS_ROOT
}

# By every name that they go by.
installed_packages() {
  dpkg-query --show --showformat '${db:Status-Status}, ${Package}, ${Provides}\n' |
    sed -n 's/^installed, //p' | tr ',' '\n' | sed -e 's/(.*//' -e 's/ //g' -e '/^$/d'
}

build() {
  local checkout=$1 log=$1/build/build.log
  if [[ ! -e $checkout/build/build.ninja && ! -e $checkout/build/Makefile ]]; then
    echo "Building in $checkout/build" >&2
    (cd "$checkout" && cmake --preset default) >"$log" 2>&1 || { cat "$log" >&2; return 1; }
  fi
  cmake --build "$checkout/build" --parallel >"$log" 2>&1 || { cat "$log" >&2; return 1; }
}

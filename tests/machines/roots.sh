# shellcheck shell=bash
# Roots with a Debian in them, beside which this machine's stays as it is. To be sourced by bash, as root, where CHECKOUT is set.
#
#   roots_have PROGRAM[:PACKAGE]...  whether this machine has them, and certificates; says which packages it lacks
#   roots_make_base RELEASE          makes $ROOTS/base.RELEASE with debootstrap, unless it is there: what Debian itself cannot do without
#   roots_make RELEASE ROOT          makes ROOT as a copy of it that finds other machines, and believes them, as this one does
#   roots_do ROOT FOLDER COMMAND...  does it in the FOLDER there, with processes, mounts and a host name of its own, which end
#                                    with the command; the network is the caller's
#   roots_remove ROOT                nothing of this machine is mounted there, or else it would go, too

ROOTS=$CHECKOUT/build/tests/machines
declare -A ROOTS_NAMES=([12]=bookworm [13]=trixie)
ROOTS_BASE_PACKAGES=ca-certificates
ROOTS_CERTIFICATES=/etc/ssl/certs/ca-certificates.crt # of this machine
ROOTS_BELIEVED=/etc/ssl/certs/of-its-maker.pem

roots_have() {
  local program missing=''
  [[ -e $ROOTS_CERTIFICATES ]] || missing=' ca-certificates'
  for program; do
    command -v "${program%:*}" >/dev/null || missing+=" ${program#*:}"
  done
  [[ -z $missing ]] || { echo "Something is missing here: install the Debian packages of these names:$missing." >&2 && return 1; }
}

roots_make_base() {
  local base=$ROOTS/base.$1 name=${ROOTS_NAMES[$1]} mirror
  [[ ! -d $base ]] || return 0
  read -r _ mirror _ < <(_roots_sources "$name")
  [[ -n $mirror ]] || { echo 'apt knows no place that packages come from: run apt-get update.' && return 1; }
  roots_remove "$base.new"
  debootstrap --variant=minbase --include="$ROOTS_BASE_PACKAGES" "$name" "$base.new" "$mirror" && mv "$base.new" "$base"
}

# _roots_sources NAME: where packages of the release of that name come from, the release first, then what mends it since.
_roots_sources() {
  # shellcheck disable=SC2016 # apt's own variables
  apt-get indextargets --format '$(REPO_URI) $(RELEASE)' 'Created-By: Packages' 'Origin: Debian' 'Component: main' |
    awk -v name="$1" '{ mends = index($2, "-") ? substr($2, index($2, "-")) : ""; print (mends != ""), "deb", $1, name mends, "main" }' |
    sort -u | cut -d ' ' -f 2-
}

# There may be a proxy between this machine and others.
roots_make() {
  cp --archive "$ROOTS/base.$1" "$2" && cp -L /etc/resolv.conf "$2/etc/resolv.conf" &&
    cp -L "$ROOTS_CERTIFICATES" "$2$ROOTS_BELIEVED" && rm -f "$2/etc/hostname" &&
    _roots_sources "${ROOTS_NAMES[$1]}" >"$2/etc/apt/sources.list"
}

roots_do() {
  # shellcheck disable=SC2016 # variables of the shell that is called
  setpriv --pdeathsig KILL unshare --mount --pid --uts --ipc --fork --kill-child bash -c '
    source "$1/appliance/launcher/private_root.sh" && hostname machine && mount --bind "$2" "$2" &&
      mount -t proc proc "$2/proc" && mount --rbind /sys "$2/sys" && mount --rbind /dev "$2/dev" &&
      mount -t tmpfs -o mode=1777 shm "$2/dev/shm" && mount -t tmpfs -o mode=755 run "$2/run" &&
      mkdir "$2/run/lock" && cd "$2" && root=$2 place=$3 believed=$4 && shift 4 &&
      private_root_enter "$root" env -i PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LANG=C.UTF-8 \
        NODE_EXTRA_CA_CERTS="$believed" sh -c '\''cd "$0" && exec "$@"'\'' "$place" "$@"' bash "$CHECKOUT" "$1" "$2" "$ROOTS_BELIEVED" "${@:3}"
}

roots_remove() { rm -rf --one-file-system "$1"; }

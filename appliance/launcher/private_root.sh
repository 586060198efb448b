# shellcheck shell=bash
# A private root: every directory of the machine's root is there, everything can be written, and nothing
# that is written reaches the machine. To be sourced by bash 4.4 or later, in a mount namespace that is
# the caller's own (`unshare --mount`, as root or with --map-root-user); it ends with that namespace.
#
#   private_root_create ROOT [PATH...]
#       Mounts the private root on the existing directory ROOT. Each PATH (absolute, below the machine's
#       root) is made writable also where the machine's owner of it is not mapped in the caller's user
#       namespace: a file by copying it, anything else as a directory, created when it is missing.
#       /etc, /usr/bin, /var/lib and /var/tmp always are. The machine's secrets are not there: /home and /root start empty,
#       and the files of passwords and keys in /etc are missing.
#       /tmp, /run and /dev/shm start empty; /proc and /sys are those of the caller's namespaces.
#   private_root_share ROOT PATH
#       Makes the machine's own PATH (a directory) appear at its place in ROOT: what is written there
#       reaches the machine.
#   private_root_enter ROOT COMMAND...
#       Makes ROOT the root of this mount namespace and becomes COMMAND, in the directory that the caller
#       is in where ROOT has it, else in /.
#
# Each returns 1 after it has said why on standard error, in its last line, when a step fails.

private_root_create() {
  local root=$1
  shift
  mount -t tmpfs -o mode=755 private-root "$root" || return
  # Written files land in the layers. The overlays keep hold of them when the name below is gone.
  local layers=$root/.layers
  mkdir "$layers" && mount -t tmpfs -o mode=700 private-layers "$layers" || return
  mkdir "$layers/upper" "$layers/work" || return
  local path
  for path in /etc /usr/bin /var/lib /var/tmp "$@"; do
    _private_root_prepare "$layers/upper" "$path" || return
  done
  chmod 1777 "$layers/upper/var/tmp" || return

  local entry
  shopt -s dotglob nullglob
  for entry in /*; do
    case $entry in
      /proc | /sys | /dev | /run | /tmp | /home | /root) ;;
      *) _private_root_place "$root" "$layers" "$entry" || return ;;
    esac
  done
  shopt -u dotglob nullglob
  umount "$layers" && rmdir "$layers" || return
  _private_root_hide "$root" || return
  mkdir -p "$root"/{proc,sys,dev,home,root,run/lock,tmp} && chmod 1777 "$root/tmp" "$root/run/lock" || return
  _private_root_kernel_views "$root" && _private_root_devices "$root/dev"
}

# Where the caller is no root of the machine's, what cannot be removed is what it cannot read either.
_private_root_hide() {
  local root=$1 secret
  for secret in /etc/{shadow,gshadow}{,-} /etc/security/opasswd /etc/ssl/private /etc/ssh; do
    rm -rf "${root:?}$secret" 2>/dev/null || ! _private_root_has_all_users ||
      { echo "The machine's $secret cannot be left out of the private root" >&2 && return 1; }
  done
}

private_root_share() {
  local root=$1 path=$2
  mkdir -p "$root$path" && mount --rbind "$path" "$root$path"
}

private_root_enter() {
  local root=$1 directory=$PWD error
  shift
  error=$(_private_root_replace "$root" 2>&1) || {
    echo "The private root cannot take the place of the machine's: $error" >&2
    return 1
  }
  cd "$directory" 2>/dev/null || cd /
  hash -r
  exec "$@"
}

_private_root_replace() {
  mkdir "$1/.machine" && pivot_root "$1" "$1/.machine" && cd / && umount -l /.machine && rmdir /.machine
}

# The owner of an overlay's directory is the upper layer's: made there in advance it belongs to the caller,
# also when the machine's belongs to a user that the caller's namespace does not know.
_private_root_prepare() {
  local upper=$1 path=$2
  if [[ -f $path ]]; then
    mkdir -p "$upper${path%/*}" && cp -L "$path" "$upper$path"
  else
    mkdir -p "$upper$path"
  fi
}

_private_root_place() {
  local root=$1 layers=$2 path=$3
  if [[ $path == "$root" ]]; then
    : # itself: it would be placed in itself without end
  elif [[ -L $path ]]; then
    cp -P "$path" "$root$path"
  elif [[ -d $path ]]; then
    _private_root_place_directory "$root" "$layers" "$path"
  elif [[ -e $layers/upper$path ]]; then
    cp "$layers/upper$path" "$root$path"
  elif [[ -f $path && -r $path && $(stat --file-system --format %T "$path") != nsfs ]]; then # no namespaces
    cp --preserve=mode,timestamps "$path" "$root$path"
  fi
}

_private_root_place_directory() {
  local root=$1 layers=$2 path=$3 error
  mkdir -p "$root$path" "$layers/upper$path" "$layers/work$path" || return
  error=$(_private_root_overlay "$@" 2>&1) && return
  if _private_root_holds_mounts "$path"; then
    # The mounts of another user namespace cannot be left out of a view of their directory: take apart
    # the directory instead.
    local entry
    for entry in "$path"/*; do _private_root_place "$root" "$layers" "$entry" || return; done
    [[ ! -d $layers/upper$path ]] || _private_root_complete "$layers/upper$path" "$root$path"
  elif [[ $path == /usr || $path == /etc ]]; then
    error=${error%%$'\n'*} # what follows is where else to look
    echo "The kernel refuses an overlay of $path, which the private root needs: ${error##*: }; --in-place, as root, does without" >&2
    return 1
  else
    mount --rbind "$path" "$root$path" 2>/dev/null || true # unreadable for the caller here as there
  fi
}

_private_root_overlay() {
  local root=$1 layers=$2 path=$3 options
  # The work directory is one of its own for each overlay, not one inside another's.
  local work=$layers/work${path//\//_}
  mkdir -p "$work" || return
  options=lowerdir=$path,upperdir=$layers/upper$path,workdir=$work
  _private_root_has_all_users || options+=,userxattr
  mount -t overlay -o "$options" private-overlay "$root$path"
}

# What was prepared below a directory that had to be taken apart and that the machine does not have.
_private_root_complete() {
  local upper=$1 target=$2 entry
  for entry in "$upper"/*; do
    [[ -e $target/${entry##*/} ]] || cp -r "$entry" "$target/" || return
  done
}

_private_root_has_all_users() {
  local inside outside count
  read -r inside outside count </proc/self/uid_map
  [[ $inside == 0 && $outside == 0 && $count == 4294967295 ]]
}

_private_root_holds_mounts() {
  local directory=$1 point
  while read -r _ _ _ _ point _; do
    [[ $point != "$directory"/* ]] || return 0
  done </proc/self/mountinfo
  return 1
}

# A container that hides parts of /proc or /sys allows no fresh view of them: then its own must do.
_private_root_kernel_views() {
  local root=$1
  mount -t proc -o nosuid,nodev,noexec proc "$root/proc" 2>/dev/null || mount --rbind /proc "$root/proc" || return
  mount -t sysfs -o nosuid,nodev,noexec sysfs "$root/sys" 2>/dev/null || mount --rbind /sys "$root/sys"
}

_private_root_devices() {
  local dev=$1 device
  for device in null zero full random urandom tty; do
    : >"$dev/$device" && mount --bind "/dev/$device" "$dev/$device" || return
  done
  ln -s /proc/self/fd "$dev/fd" && ln -s /proc/self/fd/0 "$dev/stdin" && ln -s /proc/self/fd/1 "$dev/stdout" &&
    ln -s /proc/self/fd/2 "$dev/stderr" && ln -s pts/ptmx "$dev/ptmx" && mkdir "$dev/pts" &&
    mount -t devpts -o newinstance,ptmxmode=0666,mode=620 devpts "$dev/pts" && mkdir -m 1777 "$dev/shm"
}

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
#       /tmp, /run and /dev/shm start empty; /proc and /sys are those of the caller's namespaces; what they have of the
#       whole machine cannot be written.
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
  mkdir "$layers" && mount -t tmpfs -o mode=700 private-layers "$layers" &&
    mkdir -p "$layers/upper" "$root"/{proc,sys,dev/pts,dev/shm,home,root,run/lock,tmp} || return
  _private_root_prepare "$layers/upper" /etc /usr/bin /var/lib /var/tmp "$@" &&
    chmod 1777 "$layers/upper/var/tmp" "$root"/{tmp,run/lock,dev/shm} || return

  local entry
  local -a entries=()
  shopt -s dotglob nullglob
  for entry in /*; do
    case $entry in
      /proc | /sys | /dev | /run | /tmp | /home | /root) ;;
      *) entries+=("$entry") ;;
    esac
  done
  _private_root_place "$root" "$layers" "${entries[@]}" || return
  shopt -u dotglob nullglob
  _private_root_hide "$root" && _private_root_kernel_views "$root" && _private_root_devices "$root/dev" || return
  umount "$layers" && rmdir "$layers"
}

# Where the caller is no root of the machine's, what cannot be removed is what it cannot read either.
_private_root_hide() {
  local root=$1 secret
  local -a secrets=(/etc/{shadow,gshadow}{,-} /etc/security/opasswd /etc/ssl/private /etc/ssh)
  ! rm -rf "${secrets[@]/#/${root:?}}" 2>/dev/null && _private_root_has_all_users || return 0
  for secret in "${secrets[@]}"; do
    [[ ! -e $root$secret && ! -L $root$secret ]] ||
      echo "The machine's $secret cannot be left out of the private root" >&2
  done
  return 1
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

# _private_root_prepare UPPER PATH...
# The owner of an overlay's directory is the upper layer's: made there in advance it belongs to the caller,
# also when the machine's belongs to a user that the caller's namespace does not know.
_private_root_prepare() {
  local upper=$1 path
  local -a directories=() files=()
  shift
  for path; do
    if [[ -f $path ]]; then
      files+=("$path")
      directories+=("$upper${path%/*}")
    else
      directories+=("$upper$path")
    fi
  done
  mkdir -p "${directories[@]}" || return
  for path in ${files[@]+"${files[@]}"}; do cp -L "$path" "$upper$path" || return; done
}

# _private_root_place ROOT LAYERS PATH...: all of them in one directory. One process for many of them: starting it takes
# longer than what it does.
_private_root_place() {
  local root=$1 layers=$2 path mounts=''
  local -a copied=() directories=() made=() unprepared=()
  shift 2
  IFS= read -r -d '' mounts </proc/self/mountinfo
  for path; do
    if [[ $path == "$root" ]]; then
      : # itself: it would be placed in itself without end
    elif [[ -L $path ]]; then
      copied+=("$path")
    elif [[ -d $path ]]; then
      made+=("$root$path")
      [[ -e $layers/upper$path ]] || unprepared+=("$path")
      _private_root_is_just_empty "$path" || directories+=("$path")
    elif [[ -e $layers/upper$path ]]; then
      cp "$layers/upper$path" "$root$path" || return
    elif [[ -f $path && -r $path && $(stat --file-system --format %T "$path") != nsfs ]]; then # no namespaces
      copied+=("$path")
    fi
  done
  [[ ${#made[@]} == 0 ]] || mkdir -p "${made[@]}" || return
  [[ ${#unprepared[@]} == 0 ]] || _private_root_keep_rights "${unprepared[@]}" || return
  [[ ${#copied[@]} == 0 ]] ||
    cp -P --preserve=mode,timestamps -t "$root${copied[0]%/*}/" "${copied[@]}" || return
  [[ ${#directories[@]} == 0 ]] || _private_root_place_directories "$root" "$layers" "${directories[@]}"
}

# _private_root_keep_rights PATH...: of directories that mkdir does not make like that. An overlay's are those of its upper
# layer. An owner that the caller's namespace does not know cannot be kept.
_private_root_keep_rights() {
  local mode owner path
  while read -r -d '' mode owner path; do
    [[ $mode.$owner != 755.0:0 ]] || continue
    mkdir -p "$layers/upper$path" || return
    ! _private_root_has_all_users || chown "$owner" "$root$path" "$layers/upper$path" || return
    chmod "$mode" "$root$path" "$layers/upper$path" || return
  done < <(stat --printf '%a %u:%g %n/\0' "$@")
}

# Nothing is there that could be laid over. What is mounted there may fill by itself.
_private_root_is_just_empty() {
  local path=$1 entries
  entries=("$path"/*)
  [[ ${#entries[@]} == 0 && -r $path && -x $path && ! -e $layers/upper$path && $path != *[[:space:]]* && $mounts != *" $path "* ]]
}

# All overlays at once. What the kernel refuses of them is looked at one by one.
_private_root_place_directories() {
  local root=$1 layers=$2 path table='' options work
  local -a made=()
  shift 2
  for path; do
    _private_root_set_overlay
    made+=("$layers/upper$path" "$work")
    _private_root_note overlay private-overlay "$root$path" "$options"
  done
  mkdir -p "${made[@]}" || return
  _private_root_mount_noted "$layers" 2>/dev/null && return
  for path; do
    mountpoint --quiet "$root$path" || _private_root_place_directory || return
  done
}

# Sets options and work of the overlay of $path. The work directory is one of its own for each overlay, not one
# inside another's.
_private_root_set_overlay() {
  work=${path//_/_u}
  work=$layers/work${work//\//_s}
  options=lowerdir=$path,upperdir=$layers/upper$path,workdir=$work
  _private_root_has_all_users || options+=,userxattr
}

# The one at $path.
_private_root_place_directory() {
  local error options work entries
  _private_root_set_overlay
  error=$(mount -t overlay -o "$options" private-overlay "$root$path" 2>&1) && return
  if _private_root_holds_mounts "$path"; then
    # The mounts of another user namespace cannot be left out of a view of their directory: take apart
    # the directory instead.
    entries=("$path"/*)
    [[ ${#entries[@]} == 0 ]] || _private_root_place "$root" "$layers" "${entries[@]}" || return
    [[ ! -d $layers/upper$path ]] || _private_root_complete "$layers/upper$path" "$root$path"
  elif [[ $path == /usr || $path == /etc ]]; then
    error=${error%%$'\n'*} # what follows is where else to look
    echo "The kernel refuses an overlay of $path, which the private root needs: ${error##*: }" >&2
    return 1
  else
    mount --rbind "$path" "$root$path" 2>/dev/null || true # unreadable for the caller here as there
  fi
}

# _private_root_note TYPE SOURCE TARGET OPTIONS: appends a line to the table, a mount in the notation of fstab.
_private_root_note() {
  local field
  for field in "$2" "$3" "$1" "$4"; do
    field=${field//\\/\\134} field=${field// /\\040} field=${field//$'\t'/\\011} field=${field//$'\n'/\\012}
    table+="$field "
  done
  table+=$'0 0\n'
}

# _private_root_mount_noted FOLDER: what is in the table, all that can be mounted; 0 when that is all of it.
_private_root_mount_noted() {
  printf '%s' "$table" >"$1/table" && mount --all --fstab "$1/table"
}

# What was prepared below a directory that had to be taken apart and that the machine does not have.
_private_root_complete() {
  local upper=$1 target=$2 entry
  for entry in "$upper"/*; do
    [[ -e $target/${entry##*/} ]] || cp -r "$entry" "$target/" || return
  done
}

# Also in a user namespace, when root has made it, and with root's number alone.
_private_root_is_root_outside() {
  local inside outside
  read -r inside outside _ </proc/self/uid_map
  [[ $inside == 0 && $outside == 0 ]]
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
  mount -t sysfs -o ro,nosuid,nodev,noexec sysfs "$root/sys" 2>/dev/null || mount --rbind /sys "$root/sys" || return
  ! _private_root_is_root_outside || _private_root_protect_kernel "$root/proc"
}

# What there is of the whole machine's kernel is written by whoever has root's number, also without a single right of root's:
# the program that is run for a crash, say. The network's settings are those of the private network.
_private_root_protect_kernel() {
  local proc=$1 path table=''
  for path in "$proc"/sys/* "$proc"/{acpi,asound,bus,driver,fs,irq,mtrr,pressure,scsi,sysrq-trigger}; do
    [[ ! -e $path || $path == "$proc/sys/net" ]] || _private_root_note none "$path" "$path" bind,ro,nosuid,nodev,noexec
  done
  [[ -z $table ]] || _private_root_mount_noted "$layers"
}

_private_root_devices() {
  local dev=$1 device table=''
  for device in null zero full random urandom tty; do
    : >"$dev/$device" || return
    _private_root_note none "/dev/$device" "$dev/$device" bind
  done
  _private_root_note devpts devpts "$dev/pts" newinstance,ptmxmode=0666,mode=620
  _private_root_mount_noted "$layers" && ln -s /proc/self/fd pts/ptmx "$dev/" && ln -s /proc/self/fd/0 "$dev/stdin" &&
    ln -s /proc/self/fd/1 "$dev/stdout" && ln -s /proc/self/fd/2 "$dev/stderr"
}

# shellcheck shell=bash disable=SC2154 # build_lock, which prepare.sh sets
# The archive for a device: the module, the pages with what they ask of the device, a program that looks at the device,
# and checksums. To be sourced by ./package, which sets CHECKOUT, PACKAGES and options.

# shellcheck source=../../appliance/launcher/install.sh
source "$CHECKOUT/appliance/launcher/install.sh"
# shellcheck source=../version.sh
source "$CHECKOUT/tools/version.sh"

DEVICE_BUILD=$CHECKOUT/build-powerpc
# Scripts of the device that the pages call, that its start calls, and that somebody on its shell does. What those source goes
# with them.
DEVICE_SCRIPTS=(auditTrail.sh certificateFacts.sh deviceFacts.sh probeAddress.sh testTrapResults.sh trialWatch.sh
  trialAtStart.sh firstPassword.sh resetPassword.sh)
# Two of them ask this program about addresses. It is not built with the vendor's libraries.
JUDGE=checkSettings
ASK_JUDGE=(lookUpName.sh pingAddress.sh)

# package_device -DOPTION=VALUE...
package_device() {
  local name work
  name=network-$NETWORK_VERSION-powerpc
  # What is built meanwhile would be copied half written.
  prepare_and_hold "$CHECKOUT" for-device "$@" || exit
  make_work_folder {build_lock}>&-
  work=$WORK_FOLDER
  must "$STATUS_STATE" 'The package cannot be put together' collect_device_files "$work/$name" {build_lock}>&-
  let_others_build
  must "$STATUS_STATE" 'The checksums cannot be written' write_checksums "$work/$name"
  decide_time_of_files
  must "$STATUS_STATE" 'The archive cannot be written' write_archive "$work" "$name"
  # The one of before stays until the new one is whole.
  must "$STATUS_STATE" 'The archive cannot be put in place' mv -f "$work/$name.tar.gz" "$PACKAGES/$name.tar.gz"
  echo "$PACKAGES/$name.tar.gz"
}

# Sets WORK_FOLDER to a new folder beside the packages, which goes when this process ends. One that was killed has left its own.
make_work_folder() {
  local reason left
  reason=$(mkdir -p "$PACKAGES" 2>&1 && mktemp -d "$PACKAGES/.work.$$.XXXXXX" 2>&1) ||
    fail "$STATUS_STATE" "The folder $PACKAGES cannot be written: ${reason##*: }."
  WORK_FOLDER=$reason
  trap 'rm -rf "$WORK_FOLDER"' EXIT
  trap 'exit 130' INT TERM HUP
  for left in "$PACKAGES"/.work.*; do
    [[ ! $left =~ \.work\.([0-9]+)\.[^/]*$ || -e /proc/${BASH_REMATCH[1]} ]] || rm -rf "$left"
  done
}

# collect_device_files FOLDER: below "files" is what goes to the same place on the device.
collect_device_files() {
  local folder=$1 files=$1/files part
  local -a scripts=("${DEVICE_SCRIPTS[@]}") programs=()
  ! is_built_with_ours || { programs=("$DEVICE_BUILD/$JUDGE") && scripts+=("${ASK_JUDGE[@]}"); }
  mapfile -t scripts < <(with_what_they_source "${scripts[@]}")
  mkdir -p "$folder" "$files$APP_MANAGER/bin" "$files$WEB_SERVER" &&
    install -m 644 "$CHECKOUT/tools/package/device-README" "$folder/README" &&
    install -m 755 "${scripts[@]/#/$CHECKOUT/appliance/device/scripts/}" "$files$APP_MANAGER/bin" &&
    install_stripped 644 "$folder" "$DEVICE_BUILD/network.so" && install_stripped 755 "$folder" "$DEVICE_BUILD/verify" &&
    install_stripped 755 "$files$APP_MANAGER/bin" ${programs[@]+"${programs[@]}"} || return
  for part in "${PAGES_FOLDERS[@]}"; do
    cp -R "$CHECKOUT/http/pages/$part" "$files$WEB_SERVER" || return
  done
}

# install_stripped MODE FOLDER FILE...
install_stripped() {
  local file strip said
  strip=$(sed -n 's/^CMAKE_STRIP:[A-Z]*=//p' "$DEVICE_BUILD/CMakeCache.txt")
  for file in "${@:3}"; do
    install -m "$1" "$file" "$2" || return
    said=$("${strip:-strip}" "$2/${file##*/}" 2>&1) && continue
    echo "${strip:-strip} does not strip ${file##*/}${said:+ (${said##*: })}; -DCMAKE_STRIP=FILE names the one that belongs to the compiler"
    return 1
  done
}

# What was built before with other options still lies there: only the configuration says what belongs to this build.
is_built_with_ours() { ! grep -q '^CLOSED_LIBRARY_DIRS:[A-Z]*=.' "$DEVICE_BUILD/CMakeCache.txt"; }

# with_what_they_source SCRIPT...: those and all that they source, each once.
with_what_they_source() {
  local script
  local -a waiting=("$@")
  local -A taken=()
  while [[ ${#waiting[@]} -gt 0 ]]; do
    script=${waiting[0]}
    waiting=("${waiting[@]:1}")
    [[ -z ${taken[$script]-} ]] || continue
    taken[$script]=yes
    # shellcheck disable=SC2016 # the scripts' own words
    mapfile -t -O "${#waiting[@]}" waiting < <(sed -n -E 's,^\. "(\$BIN|\$\{0%/\*\})/([^"]*)"$,\2,p' "$CHECKOUT/appliance/device/scripts/$script")
  done
  printf '%s\n' "${!taken[@]}" | sort
}

# For sha256sum -c, which a device's busybox has, too.
write_checksums() {
  # shellcheck disable=SC2094 # it does not read what it writes
  (cd "$1" && find . -type f ! -name SHA256SUMS -printf '%P\0' | LC_ALL=C sort -z | xargs -0 sha256sum >SHA256SUMS)
}

# The same files make the same archive: whoever packs them, when and where.
write_archive() {
  find "$1/$2" -type d -exec chmod 755 {} + && find "$1/$2" -type f ! -perm -u+x -exec chmod 644 {} + &&
    tar --create --file "$1/$2.tar" --directory "$1" --format ustar --sort name --owner 0 --group 0 --numeric-owner \
      --mtime "@$SOURCE_DATE_EPOCH" "$2" &&
    gzip --no-name --best "$1/$2.tar"
}

# Sees to it that SOURCE_DATE_EPOCH is the time that all files get: that of the last change that was committed, unless it says one.
decide_time_of_files() {
  export SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH-}
  [[ ! $SOURCE_DATE_EPOCH =~ ^[0-9]+$ ]] || return 0
  SOURCE_DATE_EPOCH=$(git -C "$CHECKOUT" log -1 --format=%ct 2>/dev/null) && return
  SOURCE_DATE_EPOCH=946684800
  echo 'git does not tell when the checkout was last changed: all files get the first day of 2000. SOURCE_DATE_EPOCH names another time.' >&2
}

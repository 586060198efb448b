# shellcheck shell=bash disable=SC2154 # build_lock, which prepare.sh sets
# The Debian packages, for the interpreter of this machine. To be sourced by ./package, which sets CHECKOUT and PACKAGES.

package_debian() {
  local file
  [[ $# == 0 ]] || fail "$STATUS_USAGE" 'Options for CMake go with ./package device.'
  # What is built meanwhile would be packed half written.
  prepare_and_hold "$CHECKOUT" for-debian || exit
  make_work_folder {build_lock}>&-
  decide_time_of_files
  [[ -e $CHECKOUT/build/CPackConfig.cmake ]] ||
    must "$STATUS_PREPARE" 'The build does not describe the packages' cmake -S "$CHECKOUT" -B "$CHECKOUT/build" {build_lock}>&-
  must "$STATUS_STATE" 'The packages cannot be made' make_packages {build_lock}>&-
  let_others_build
  for file in "$WORK_FOLDER"/*.deb; do
    must "$STATUS_STATE" 'A package cannot be put in place' mv -f "$file" "$PACKAGES"
    echo "$PACKAGES/${file##*/}"
  done
}

# Files that nobody but the maker may read would be so on other machines.
make_packages() (
  umask 022
  cd "$WORK_FOLDER" && cpack --config "$CHECKOUT/build/CPackConfig.cmake" -B "$PWD/cpack" && mv cpack/*.deb .
)

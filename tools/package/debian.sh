# shellcheck shell=bash
# The Debian packages, for the interpreter of this machine. To be sourced by ./package, which sets CHECKOUT and PACKAGES.

package_debian() {
  local file
  [[ $# == 0 ]] || fail "$STATUS_USAGE" 'Options for CMake go with ./package device.'
  prepare "$CHECKOUT" for-debian || exit
  make_work_folder
  # A build of before there were packages does not know them.
  must "$STATUS_PREPARE" 'The build does not describe the packages' cmake -S "$CHECKOUT" -B "$CHECKOUT/build"
  must "$STATUS_STATE" 'The packages cannot be made' make_packages
  for file in "$WORK_FOLDER"/*.deb; do
    must "$STATUS_STATE" 'A package cannot be put in place' mv -f "$file" "$PACKAGES"
    echo "$PACKAGES/${file##*/}"
  done
}

# Files that nobody but the maker may read would be so on other machines.
make_packages() (
  umask 022
  SOURCE_DATE_EPOCH=$(time_of_files)
  export SOURCE_DATE_EPOCH
  cd "$WORK_FOLDER" && cpack --config "$CHECKOUT/build/CPackConfig.cmake" -B "$WORK_FOLDER/cpack" && mv cpack/*.deb .
)

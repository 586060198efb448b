# shellcheck shell=bash disable=SC2034
# Where the appliance's files are, and putting the program there. To be sourced by bash.

EMBEDDED=/home/embedded
LIBRARY=$EMBEDDED/library
APP_MANAGER=$LIBRARY/AppManager
CORE_SERVICE=$LIBRARY/CoreService
WEB_SERVER=$LIBRARY/HTTPService/lighttpd
PAGES_DATA=$LIBRARY/HTTPService/dat # what the pages keep: accounts, sessions, changes under way
PAGES_FOLDERS=(htdocs shared templates errors) # the document root, what its pages share, and the web server's own
ELSEWHERE=testTrapRegistration.sh # the one script that the device keeps in $LIBRARY
IN_PLACE=$APP_MANAGER/dat/in-place # tells the device scripts to leave the interfaces alone
APP_RUN=/run/appmanager
PHP_RUN=$APP_RUN/php
DOOR=$APP_RUN/door # through which the web service has the device scripts run
COMMAND_WRAPPER=/usr/bin/cmdwrap
MODULE_FILES=(network.so libTarn.so libVelm.so libdovan_util.so)
APP_MANAGER_PROGRAMS=(checkSettings cmdwrapd connectionLimits keepWebServer)
# All that is taken from the build folder:
BUILT_FILES=(cmdwrap management_database "${APP_MANAGER_PROGRAMS[@]}" "${MODULE_FILES[@]}")
MODULE_CONFIGURATION=50-network.ini # in the folders that the interpreters read settings from

# Sets PHP_EXTENSION_DIR, and PHP_CONFIGURATION_DIRS of the command line and of the web service; returns 1 after one
# sentence on standard error when an interpreter does not say them.
ask_php_for_its_places() {
  local ask='<?php echo PHP_EXTENSION_DIR, "\n", PHP_CONFIG_FILE_SCAN_DIR, "\n";' interpreter directory answer
  local -A answers=()
  PHP_CONFIGURATION_DIRS=()
  for interpreter in php php-cgi; do # both at once
    exec {answer}< <("$interpreter" -n -q <<<"$ask" 2>/dev/null)
    answers[$interpreter]=$answer
  done
  for interpreter in php php-cgi; do
    answer=${answers[$interpreter]}
    { read -r PHP_EXTENSION_DIR && read -r directory; } <&"$answer" || {
      echo "The interpreter $interpreter does not say where its extensions and settings belong." >&2
      return 1
    }
    exec {answer}<&-
    PHP_CONFIGURATION_DIRS+=("$directory")
  done
}

# What php-network has installed on this machine is where it belongs already, and is the machine's own.
module_is_installed() { [[ $PHP_EXTENSION_DIR/${MODULE_FILES[0]} -ef $1/${MODULE_FILES[0]} ]]; } # BUILD
module_is_loaded() { grep -qsx "extension=${MODULE_FILES[0]}" "$1/$MODULE_CONFIGURATION"; }      # DIRECTORY

# What belongs to the program, put in place afresh below ROOT; settings that are there stay.
install_program() {
  local root=$1 source=$2 build=$3 script
  local -a scripts=()
  for script in "$source"/appliance/device/scripts/*; do
    [[ ${script##*/} == "$ELSEWHERE" ]] || scripts+=("$script")
  done
  install -D -m 755 "$build/cmdwrap" "$root$COMMAND_WRAPPER" &&
    install_module "$root" "$build" &&
    mkdir -p "$root$CORE_SERVICE"/{bin,dat} "$root$APP_MANAGER"/{bin,dat,etc} \
      "$root$WEB_SERVER"/{conf/extra,logs} "${PAGES_FOLDERS[@]/#/$root$WEB_SERVER/}" || return
  install_changed 755 "$root$APP_MANAGER/bin" "${scripts[@]}" "${APP_MANAGER_PROGRAMS[@]/#/$build/}" &&
    install_changed 755 "$root$LIBRARY" "$source/appliance/device/scripts/$ELSEWHERE" &&
    install_changed 755 "$root$CORE_SERVICE/bin" "$build/management_database" &&
    install_changed 644 "$root$APP_MANAGER/etc" "$source/appliance/device/etc/internal_networks" &&
    install_changed 644 "$root$WEB_SERVER/conf" "$source/appliance/device/etc/lighttpd.conf"
}

# install_module ROOT BUILD: and what has the interpreters load it.
install_module() {
  local root=$1 build=$2 directory installed=''
  if [[ -z $root ]] && module_is_installed "$build"; then
    installed=yes
  else
    install -D -m 644 -t "$root$PHP_EXTENSION_DIR" "${MODULE_FILES[@]/#/$build/}" || return
  fi
  mkdir -p "${PHP_CONFIGURATION_DIRS[@]/#/$root}" || return
  for directory in "${PHP_CONFIGURATION_DIRS[@]}"; do
    [[ -z $installed ]] || ! module_is_loaded "$directory" || continue
    # A link of that name would lead out of the root.
    rm -f "$root$directory/$MODULE_CONFIGURATION" &&
      printf '%s\n' "extension=${MODULE_FILES[0]}" '; A page that is saved is served as it is now.' 'opcache.revalidate_freq=0' \
        >"$root$directory/$MODULE_CONFIGURATION" || return
  done
}

# install_changed MODE FOLDER FILE...: what is there already as it is to be needs no room on the disk.
install_changed() { install -C -m "$1" -t "$2" "${@:3}"; }

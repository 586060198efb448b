# Putting the stored host name into force. Sourced behind settings.sh.
# shellcheck shell=sh disable=SC2154 # variables are set by the functions that read into them

# By command, because the kernel's file of the name is closed to the root of a user namespace.
apply_host_name() {
  in_place && return
  read_setting host_name hostname
  [ -n "$host_name" ] || return 0
  hostname "$host_name" || return
  # The command passes over most of what the kernel can have against it.
  read_host_name name_in_force
  [ "$name_in_force" = "$host_name" ] || return
  # The web server takes it up within a minute (housekeeping.sh), so that names that follow one another cost one restart.
  # One that starts later asks for the name itself. What it cannot be told is no reason for another name.
  [ ! -s "$WEB_SERVER_PROCESS" ] || store_names
  return 0
}

# The settings that the device keeps: one line in one file each below $SETTINGS. Reading one takes no lock and
# starts no process; transaction.sh is how they are changed. Sourced behind device.sh.
# shellcheck shell=sh disable=SC2154 # variables are set by the functions that read into them

ABSENT_IPV4='??'

# read_setting VARIABLE NAME: the setting, or what a new appliance starts with, into the variable.
read_setting() {
  ! read_stored "$1" "$2" || return 0
  case $2 in
  ipv4) set_variable "$1" "dhcp $ABSENT_IPV4" ;;
  port) set_variable "$1" 'on?100?full' ;;
  stateless) set_variable "$1" 1 ;;
  dhcpv6) set_variable "$1" off ;;
  dns) set_variable "$1" ' ' ;;
  hostname | ipv6) set_variable "$1" '' ;;
  esac
}

# read_stored VARIABLE NAME [.before]: the setting, or the one of before an unfinished change. Fails when nothing is stored
# there, or what is stored is damaged. Every setting is stored with its line end, so a file that was cut off shows.
read_stored() {
  file=$SETTINGS/$2${3-}
  [ -f "$file" ] && [ -r "$file" ] && IFS= read -r "$1" <"$file" &&
    eval "has_form_of \"\$2\" \"\$$1\""
}

# has_form_of NAME TEXT: whether the text can be that setting.
has_form_of() {
  case $1 in
  ipv4) # "dhcp" or "static", and the static settings, address?netmask?gateway
    case $2 in
    "dhcp $ABSENT_IPV4") ;;
    'dhcp '[0-9]*.*\?[0-9]*.*\?[0-9]*.* | 'static '[0-9]*.*\?[0-9]*.*\?[0-9]*.*)
      case ${2#* } in *[!0-9.?]* | *\?*\?*\?*) return 1 ;; esac
      ;;
    *) return 1 ;;
    esac
    ;;
  ipv6) # address/prefix length?gateway; empty when there are none
    case $2 in
    '') ;;
    *[!0-9A-Fa-f:./?]* | *\?*\?* | */*/*) return 1 ;;
    *:*/[0-9]*\?*:*) ;;
    *) return 1 ;;
    esac
    ;;
  stateless) case $2 in 0 | 1) ;; *) return 1 ;; esac ;;
  dhcpv6) case $2 in on | off) ;; *) return 1 ;; esac ;;
  dns) # primary, blank, secondary; each may be empty
    case $2 in
    *[!0-9A-Fa-f:.\ ]* | *\ *\ *) return 1 ;;
    *\ *) ;;
    *) return 1 ;;
    esac
    ;;
  hostname) case $2 in *[!A-Za-z0-9.-]*) return 1 ;; esac ;; # empty while it was never set
  port) # autonegotiation?speed?duplex
    case $2 in
    on\?10\?half | on\?10\?full | on\?100\?half | on\?100\?full | off\?10\?half | off\?10\?full | off\?100\?half | off\?100\?full) ;;
    *) return 1 ;;
    esac
    ;;
  *) return 1 ;;
  esac
}

# change COMMAND...: only a change needs what changing takes.
change() {
  # shellcheck source=SCRIPTDIR/change.sh
  . "$BIN/change.sh"
  "$@"
}

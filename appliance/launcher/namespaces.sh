# shellcheck shell=bash disable=SC2034 # for who sources this
# Whether this machine allows namespaces. To be sourced by bash.
#
#   namespaces_choose OPTION...
#       Sets to_be_root to the options of unshare that this user adds to get the namespaces which the OPTIONs name, and
#       root's rights in them: none, or those for a user namespace, which root without the right to the others may still
#       have. Returns 1 where there are none to be had; namespaces_refusal is what the kernel said last when it refused some.
#   namespaces_advice AS_ROOT IN_PLACE
#       Prints what a user who is not root can do about that, as the end of a sentence. The two are commands: what was asked for,
#       done as root, and done by root without namespaces.

namespaces_choose() {
  to_be_root=()
  [[ $EUID != 0 ]] || ! _namespaces_try "$@" || return 0
  to_be_root=(--user --map-root-user)
  _namespaces_try "$@"
}

_namespaces_try() {
  local said
  said=$(_namespaces_are_allowed "$@" 2>&1) && return
  namespaces_refusal=${said##*$'\n'} namespaces_refusal=${namespaces_refusal#unshare: }
  return 1
}

# There are machines on which everybody may have namespaces, but no rights in them.
_namespaces_are_allowed() {
  local -a try=(true)
  [[ " $* " != *' --mount '* ]] || try=(mount --rbind / /)
  unshare ${to_be_root[@]+"${to_be_root[@]}"} "$@" --fork "${try[@]}"
}

# The settings by which machines forbid it to all but root, and the value that allows it.
_NAMESPACES_SETTINGS=(kernel.apparmor_restrict_unprivileged_userns=0 kernel.unprivileged_userns_clone=1
  user.max_user_namespaces=10000)

namespaces_advice() {
  local setting file value
  for setting in "${_NAMESPACES_SETTINGS[@]}"; do
    file=${setting%=*} value=''
    { read -r value <"/proc/sys/${file/.//}"; } 2>/dev/null
    # One that is no switch forbids it only with 0.
    [[ -n $value && ($value == 0 || $setting == *=0) && $value != "${setting#*=}" ]] || continue
    echo "start it as root ($1), or have root allow it to all users: sysctl -w $setting"
    return
  done
  if grep -q '^Seccomp:[[:space:]]*2$' /proc/self/status; then
    echo "start it as root ($1); where root is allowed none either, as in most containers, without ($2)"
  else
    echo "start it as root ($1), or allow unprivileged user namespaces"
  fi
}

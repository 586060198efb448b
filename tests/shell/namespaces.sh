# shellcheck shell=bash
# What a suite does on a machine that allows no namespaces. To be sourced by a suite's `run`.
#
#   namespaces_are_enough
#       Returns 1 where the machine does not allow what an appliance needs; namespaces_lack is then why, as a sentence.
#   skip_suite_without_namespaces SUITE FILE...
#       There, ends the suite, of which these files are skipped, with one sentence.

# shellcheck source=counts.sh
source "${BASH_SOURCE[0]%/*}/counts.sh"
# shellcheck source=../../appliance/launcher/namespaces.sh
source "${BASH_SOURCE[0]%/*}/../../appliance/launcher/namespaces.sh"

namespaces_are_enough() {
  if ! namespaces_choose --mount --pid --uts --ipc --net; then
    namespaces_lack="it needs namespaces, and this machine allows $(id -un) none ($namespaces_refusal)"
  elif [[ $EUID == 0 && ${#to_be_root[@]} -gt 0 ]]; then
    namespaces_lack='it needs namespaces, and this machine allows root no others than a plain user: run it as one'
  else
    return 0
  fi
  return 1
}

skip_suite_without_namespaces() {
  ! namespaces_are_enough || return 0
  local suite=$1
  shift
  echo "skip $suite: $# of $# files: $namespaces_lack"
  counts_line 0 0 $#
  exit 0
}

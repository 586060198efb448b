# shellcheck shell=bash
# What a suite does on a machine that allows no namespaces. To be sourced by a suite's `run`.
#
#   skip_suite_without_namespaces SUITE NUMBER
#       Where the machine does not allow what an appliance needs, ends the suite, of which so many tests are skipped, with
#       one sentence.

# shellcheck source=../../appliance/launcher/namespaces.sh
source "${BASH_SOURCE[0]%/*}/../../appliance/launcher/namespaces.sh"

skip_suite_without_namespaces() {
  local reason
  if ! namespaces_choose --mount --pid --uts --ipc --net; then
    reason="it needs namespaces, and this machine allows $(id -un) none ($namespaces_refusal)"
  elif [[ $EUID == 0 && ${#to_be_root[@]} -gt 0 ]]; then
    reason='it needs namespaces, and this machine allows root no others than a plain user: run it as one'
  else
    return 0
  fi
  echo "skip $1: $reason"
  echo "0 passed, 0 failed, $2 skipped"
  exit 0
}

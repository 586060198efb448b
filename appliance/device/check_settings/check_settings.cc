// Judges settings for the device scripts.
#include <stdio.h>
#include <string.h>

#include "address_rules/settings_rules.h"

namespace {

using AddressRules::Text;
using AddressRules::Verdict;

constexpr char DefaultList[] = "/home/embedded/library/AppManager/etc/internal_networks";
constexpr char Usage[] =
    "usage: checkSettings [--internal-networks FILE] KIND SETTINGS\n"
    "  ipv4 'ADDRESS?NETMASK?GATEWAY'   static IPv4 settings\n"
    "  ipv6 'ADDRESS/PREFIX?GATEWAY'    static IPv6 settings\n"
    "  dns 'PRIMARY SECONDARY'          name servers; each may be empty\n"
    "  host-name NAME\n"
    "FILE has the networks of which no address may be used, one in CIDR notation per line.\n"
    "Exit status: 0 when the settings are right; 2 when not, 44 when a name server lies in an internal\n"
    "network, 1 when that cannot be told, each with one line on standard error.\n";

int RefuseCall() {
  fputs(Usage, stderr);
  return Verdict::CannotTell;
}

}  // namespace

int main(int count, char** arguments) {
  const char* list = DefaultList;
  int next = 1;
  if (count > 2 && strcmp(arguments[next], "--internal-networks") == 0) {
    list = arguments[next + 1];
    next += 2;
  }
  if (count != next + 2) return RefuseCall();
  const char* const kind = arguments[next];
  const Text settings = AddressRules::WholeText(arguments[next + 1]);

  Verdict verdict = {};
  if (strcmp(kind, "ipv4") == 0) {
    verdict = JudgeIPv4(settings, list);
  } else if (strcmp(kind, "ipv6") == 0) {
    verdict = JudgeIPv6(settings, list);
  } else if (strcmp(kind, "dns") == 0) {
    verdict = JudgeNameServers(settings, list);
  } else if (strcmp(kind, "host-name") == 0) {
    verdict = AddressRules::JudgeHostName(settings);
  } else {
    return RefuseCall();
  }
  if (verdict.status != Verdict::Right) fprintf(stderr, "%s\n", verdict.sentence);
  return verdict.status;
}

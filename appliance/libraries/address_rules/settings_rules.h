// What the device takes as its addresses, name servers and host name. Each rule looks at the fields from left
// to right and answers with the first that is wrong.
#pragma once

#include "address_rules/text.h"

namespace AddressRules {

struct Verdict {
  // The numbers are exit statuses of the device scripts.
  enum Status { Right = 0, CannotTell = 1, Wrong = 2, InternalNameServer = 44 };

  Status status;
  char sentence[640];  // what is wrong; empty when nothing is
};

// internalNetworks: the path of their list.

// ADDRESS?NETMASK?GATEWAY
Verdict JudgeIPv4(Text settings, const char* internalNetworks);
// ADDRESS/PREFIX?GATEWAY
Verdict JudgeIPv6(Text settings, const char* internalNetworks);
// PRIMARY, blank, SECONDARY; each may be empty, and the blank then be missing.
Verdict JudgeNameServers(Text servers, const char* internalNetworks);

Verdict JudgeHostName(Text name);

}  // namespace AddressRules

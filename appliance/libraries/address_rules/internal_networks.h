// The networks inside the appliance, of which nothing outside may have an address, the appliance's own
// interfaces included: a file with one network in CIDR notation per line. Blank lines and those that begin
// with # say nothing.
#pragma once

#include "address_rules/addresses.h"

namespace AddressRules {

struct InternalNetwork {
  enum Answer { None, Found, Unknown };

  Answer answer;
  // Found: the network, as it is listed. Unknown: why, in a sentence.
  char text[512];
};

// The first network that the address lies in. Unknown, so that the caller can refuse every address, when the
// list cannot be read, names no network, or has a line that is none: an address inside could not be undone
// from outside.
InternalNetwork FindInternalNetwork(const char* list, const Address& address);

}  // namespace AddressRules

// IPv6 addresses in their long form.
#include <arpa/inet.h>
#include <netinet/in.h>

#include "reference.h"
#include "target.h"
#include "utility/StringUtilities.h"
#include "utility/ValidateIPv6address.h"

namespace {

bool expand(const std::string& text, std::string& full) {
  reference::Pieces groups = {"first"};
  bool valid = ValidateIPv6address().convertToFullAddress(text, groups);
  require(groups.size() == 9 && groups.front() == "first", "eight groups are appended");
  groups.erase(groups.begin());
  if (faultIsPlanted() && valid && groups.front() == "1") groups.back() += '0';
  full = StringUtilities::listToString(groups, ":");
  return valid;
}

}  // namespace

void tryInput(std::string_view input) {
  const std::string text(input);
  std::string full;
  const bool valid = expand(text, full);
  const bool holdsNul = text.find('\0') != std::string::npos;
  const auto expected = reference::parseIpv6(text.substr(0, text.find('%')));
  require(valid == (expected && !holdsNul), "an address is what is one to the reference");
  require(full == reference::expand(text), "the groups are the reference's");
  if (!valid) return;

  std::string again;
  require(expand(full, again) && again == full, "the long form of the long form is itself");
  in6_addr address = {};
  char shortest[INET6_ADDRSTRLEN] = "";
  require(inet_pton(AF_INET6, full.c_str(), &address) == 1, "the long form is an address");
  inet_ntop(AF_INET6, &address, shortest, sizeof(shortest));
  require(expand(shortest, again) && again == full, "the long form of the short form is the same");
}

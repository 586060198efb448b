#include <arpa/inet.h>
#include <netinet/in.h>

#include <algorithm>
#include <cstdio>
#include <utility>

#include "utility/ValidateIPv6address.h"

namespace {

constexpr std::size_t GroupSize = 2;

// False: address is untouched.
bool parse(std::string text, in6_addr& address) {
  if (text.find('\0') != std::string::npos) return false;  // inet_pton would stop there
  text.erase(std::min(text.find('%'), text.size()));
  return inet_pton(AF_INET6, text.c_str(), &address) == 1;
}

}  // namespace

ValidateIPv6address::ValidateIPv6address() = default;
ValidateIPv6address::~ValidateIPv6address() = default;

bool ValidateIPv6address::convertToFullAddress(std::string address, std::vector<std::string>& groups) {
  in6_addr parsed = in6addr_any;
  const bool valid = parse(std::move(address), parsed);
  for (std::size_t i = 0; i < sizeof(parsed.s6_addr); i += GroupSize) {
    char group[sizeof("ffff")];
    std::snprintf(group, sizeof(group), "%x", parsed.s6_addr[i] << 8 | parsed.s6_addr[i + 1]);
    groups.emplace_back(group);
  }
  return valid;
}

#include "libvelm/snmp_rules.h"

#include "address_rules/addresses.h"
#include "libvelm/service_error.h"
#include "management/SNMP.h"

namespace Velm {
namespace {

constexpr std::size_t LongestCommunity = 32;
constexpr std::uint32_t LastPort = 65535;
constexpr std::uint32_t TransportUDP = 1;
constexpr std::uint32_t TransportTCP = 2;

bool IsCommunityCharacter(char character) {
  return character > ' ' && character <= '~' && character != '"' && character != '\'';
}

bool IsAddress(const std::string& text) {
  AddressRules::Address address = {};
  return AddressRules::ParseAddress({text.data(), text.size()}, address);
}

}  // namespace

void RequireSNMPVersion(std::uint32_t version) {
  if (version < SNMP_VERSION_1 || version > SNMP_TRAP_VERSION_2) {
    throw Refused("SNMP version number " + std::to_string(version) + " is not one of " +
                  std::to_string(SNMP_VERSION_1) + " to " + std::to_string(SNMP_TRAP_VERSION_2));
  }
}

void RequireCommunity(const std::string& community) {
  if (community.empty() || community.size() > LongestCommunity) {
    throw Refused("community '" + Excerpt(community) + "' has " + std::to_string(community.size()) +
                  " characters; allowed are 1 to " + std::to_string(LongestCommunity));
  }
  for (const char character : community) {
    if (!IsCommunityCharacter(character)) {
      throw Refused("community '" + Excerpt(community) + "' holds '" + Excerpt({character}) +
                    "'; allowed are printable ASCII characters except blanks and quotes");
    }
  }
}

void RequireTrapReceiver(std::uint32_t transport, const std::string& address, std::uint32_t port) {
  if (transport != TransportUDP && transport != TransportTCP) {
    throw Refused("transport " + std::to_string(transport) + " is neither 1 (UDP) nor 2 (TCP)");
  }
  if (!IsAddress(address)) {
    throw Refused("trap receiver '" + Excerpt(address) + "' is no IPv4 or IPv6 address");
  }
  if (port < 1 || port > LastPort) {
    throw Refused("port " + std::to_string(port) + " is not one of 1 to " + std::to_string(LastPort));
  }
}

}  // namespace Velm

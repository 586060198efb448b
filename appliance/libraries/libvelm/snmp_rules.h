// What the management services accept for the SNMP agent and its trap receivers. Each check throws Refused
// with the value and what is wrong with it.
#pragma once

#include <cstdint>
#include <string>

namespace Velm {

constexpr unsigned int MostTrapRegistrations = 20;

void RequireSNMPVersion(std::uint32_t version);

// 1 to 32 printable ASCII characters, none of them a blank, a single or a double quote.
void RequireCommunity(const std::string& community);

// Where traps are sent: an IPv4 or IPv6 address in its usual text form, a port, transport 1 (UDP) or
// 2 (TCP).
void RequireTrapReceiver(std::uint32_t transport, const std::string& address, std::uint32_t port);

}  // namespace Velm

// Numbers of the SNMP settings.
#pragma once

#include <cstdint>

namespace Velm {

// What the agent serves (1 to 3) and which traps it sends (4 and 5). Others may be reported.
enum eSNMPVersion : std::uint32_t {
  SNMP_VERSION_1 = 1,
  SNMP_VERSION_2 = 2,
  SNMP_VERSION_3 = 3,
  SNMP_TRAP_VERSION_1 = 4,
  SNMP_TRAP_VERSION_2 = 5,
};

// How traps travel to a receiver; only the management services give the numbers a meaning.
enum eTransportType : std::uint32_t {};

}  // namespace Velm

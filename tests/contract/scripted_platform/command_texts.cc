// Prints every command line of the module, one on a line between brackets, so that a blank at the end shows.
#include <cstdio>

#include "command_lines.h"

int main() {
  const char* const texts[] = {
      CommandLine::ReadDhcpLease,
      CommandLine::ReadStaticIpv4,
      CommandLine::ReadHostName,
      CommandLine::SetHostName,
      CommandLine::SwitchDhcpOn,
      CommandLine::SetStaticIpv4,
      CommandLine::ReadPort,
      CommandLine::SetPort,
      CommandLine::EnableIpv6,
      CommandLine::DisableIpv6,
      CommandLine::ReadStateless,
      CommandLine::SetStateless,
      CommandLine::SwitchIpv6Dhcp,
      CommandLine::ReadStaticIpv6,
      CommandLine::ListIpv6Addresses,
      CommandLine::SetStaticIpv6,
      CommandLine::RemoveStaticIpv6,
      CommandLine::ReadDns,
      CommandLine::SetDns,
      CommandLine::TestTrapRegistrations,
  };
  for (const char* const text : texts) std::printf("[%s]\n", text);
}

// Where the management services find what they work with.
#pragma once

#include <string>

namespace Velm {

struct Places {
  std::string database = "/home/embedded/library/CoreService/dat/management.db";
  // The list of the networks of which no address may be given to anything outside.
  std::string internalNetworks = "/home/embedded/library/AppManager/etc/internal_networks";
  // Bring the web service and the SNMP agent into the state that is stored; 0 when that is done.
  std::string applyWebMode = "/home/embedded/library/AppManager/bin/applyWebMode.sh";
  std::string restartSNMP = "/home/embedded/library/AppManager/bin/restartSNMP.sh";
};

}  // namespace Velm

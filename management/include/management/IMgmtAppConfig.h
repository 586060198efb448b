// Configuration of the appliance's management applications: SSL mode of the web service, SNMP agent,
// trap receivers. Every operation answers with a result code.
#pragma once

#include <cstdint>

#include "management/SNMP.h"
#include "management/TrapRegistration.h"
#include "platform/GUID.h"
#include "platform/Interface.h"
#include "platform/List.h"
#include "platform/Result.h"
#include "platform/String.h"

namespace Velm {

class IMgmtAppConfig : public virtual TarnAbstract::IInterface {
 public:
  PLATFORM_RESERVED_SLOT(0)
  PLATFORM_RESERVED_SLOT(1)
  PLATFORM_RESERVED_SLOT(2)
  PLATFORM_RESERVED_SLOT(3)
  PLATFORM_RESERVED_SLOT(4)
  PLATFORM_RESERVED_SLOT(5)
  // slot 6: the whole set; what it does not hold is switched off
  virtual TarnAbstract::Result::Code setSNMPVersions(const TarnAbstract::List<eSNMPVersion, 4>& versions) = 0;
  // slot 7: appends to versions
  virtual TarnAbstract::Result::Code getSNMPVersions(TarnAbstract::List<eSNMPVersion, 4>& versions) = 0;
  // slot 8: restarts the web service in the new mode
  virtual TarnAbstract::Result::Code setSSLEnabled(bool enabled) = 0;
  // slot 9: enabled receives a truth value, 0 = off
  virtual TarnAbstract::Result::Code getSSLEnabled(std::uint32_t& enabled) = 0;
  // slot 10: the identifier is given by the service
  virtual TarnAbstract::Result::Code createTrapRegistration(TrapRegistration& registration) = 0;
  // slot 11
  virtual TarnAbstract::Result::Code deleteTrapRegistration(TarnAbstract::GUID& trapID) = 0;
  // slot 12: appends to registrations
  virtual TarnAbstract::Result::Code getTrapRegistrations(
      TarnAbstract::List<TrapRegistration, 4>& registrations) = 0;
  PLATFORM_RESERVED_SLOT(13)
  // slot 14: the agent starts again with the stored settings
  virtual TarnAbstract::Result::Code restartSNMP() = 0;
  // slot 15
  virtual TarnAbstract::Result::Code setReadCommunity(TarnAbstract::String& community) = 0;
  // slot 16
  virtual TarnAbstract::Result::Code getReadCommunity(TarnAbstract::String& community) = 0;
  // slot 17: whether a request with a wrong community makes the agent send a trap
  virtual TarnAbstract::Result::Code setAuthTrapsEnabled(bool enabled) = 0;
  // slot 18
  virtual TarnAbstract::Result::Code getAuthTrapsEnabled(bool& enabled) = 0;

 protected:
  ~IMgmtAppConfig() = default;
};

}  // namespace Velm

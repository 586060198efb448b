// One receiver of SNMP traps.
#pragma once

#include <cstdint>

#include "management/SNMP.h"
#include "platform/GUID.h"
#include "platform/String.h"

namespace Velm {

class TrapRegistration {
 public:
  TrapRegistration() = default;
  TrapRegistration(const TrapRegistration& other) = default;
  TrapRegistration& operator=(const TrapRegistration& other) = default;
  virtual ~TrapRegistration() = default;

  eTransportType getTransport() const { return transport_; }
  void setTransport(eTransportType transport) { transport_ = transport; }
  unsigned int getPort() const { return port_; }
  void setPort(unsigned int port) { port_ = port; }
  TarnAbstract::String getIPAddress() const { return ipAddress_; }
  // NOLINTNEXTLINE(performance-unnecessary-value-param): by value is the interface
  void setIPAddress(TarnAbstract::String ipAddress) { ipAddress_ = ipAddress; }
  // Given by the management services; a new record carries the zero identifier.
  TarnAbstract::GUID getTrapID() const { return trapID_; }

 private:
  friend class TrapRegistrationAccess;  // the management library's own view

  std::uint32_t port_ = 0;
  TarnAbstract::String ipAddress_;
  TarnAbstract::GUID trapID_;
  eTransportType transport_ = eTransportType();
};

}  // namespace Velm

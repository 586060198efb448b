// How a handler talks to the management services and reports what failed.
#pragma once

#include "platform/Result.h"
#include "platform/Threading.h"
#include "platform/sp.h"
#include "utility/StorageLibraryProxy.h"
#include "utility/checkResultCode.h"

// Held by a handler from its first request to the services until it returns; declared before any
// interface handle, so that the thread's handle is dropped last. With a session the services act on behalf of
// that session's user. Without one they do for whoever was attached last: the functions for SSL, for the SNMP
// agent's settings and for all settings at once attach nobody.
class ManagementAccess {
 public:
  explicit ManagementAccess(zval* session) : ManagementAccess() { proxy_->setSession(session); }
  ManagementAccess()
      : proxy_(StorageLibraryProxy::getInstance()), thread_(TarnAbstract::TarnThreading::CurrentThread()) {}
  StorageLibraryProxy* operator->() const { return proxy_; }

 private:
  StorageLibraryProxy* proxy_;
  TarnAbstract::sp<TarnAbstract::IThread> thread_;
};

// An operation of a service that is not there fails like one that the service refuses.
template <class Interface, class... Parameters, class... Arguments>
TarnAbstract::Result::Code ask(const TarnAbstract::sp<Interface>& service,
                               TarnAbstract::Result::Code (Interface::*operation)(Parameters...),
                               Arguments&&... arguments) {
  if (!service.IsValid()) return TarnAbstract::Result::Failed;
  return (service.operator->()->*operation)(arguments...);
}

// Failures that carry a number of their own instead of Result::Failed.
namespace FailureCode {
constexpr TarnAbstract::Result::Code StaticIpv4Unreadable = 0x50005;
constexpr TarnAbstract::Result::Code HostNameUnreadable = 0x50006;
constexpr TarnAbstract::Result::Code Ipv6DhcpNotSwitched = 0x50030;
constexpr TarnAbstract::Result::Code InternalAddressConflict = 0x50040;
}  // namespace FailureCode

// Reports a failure code to the page with the line of the call; a success code is none. The caller goes
// on in either case. checkResultCode is the utility library's name for it: it does not only check, it warns.
inline void reportResult(TarnAbstract::Result::Code code, const char* message, int line = __builtin_LINE()) {
  static char source[] = "http/src/network";
  checkResultCode(code, const_cast<char*>(message), source, line);
}

// For a step of the handler's own that failed.
inline void reportFailure(const char* message, int line = __builtin_LINE()) {
  reportResult(TarnAbstract::Result::Failed, message, line);
}

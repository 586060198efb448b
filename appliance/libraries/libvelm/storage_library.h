// The storage library behind the appliance, as far as addresses go: it has an internal network.
#pragma once

#include <string>

#include "libtarn/reference_counted.h"
#include "management/IStorageLibrary.h"

namespace Velm {
namespace Library {

class StorageLibrary : public TarnAbstract::ReferenceCounted<IStorageLibrary> {
 public:
  // internalNetworks: the path of their list.
  explicit StorageLibrary(std::string internalNetworks);

  // Compares addresses, not their texts: an IPv4 address is the same when written as IPv6. A text that
  // is no address conflicts with nothing. When the networks cannot be read every address is refused,
  // because a wrong address inside could not be undone from outside.
  TarnAbstract::Result::Code checkAddressConflict(TarnAbstract::String& ipAddress) override;

 private:
  const std::string internalNetworks_;
};

}  // namespace Library
}  // namespace Velm

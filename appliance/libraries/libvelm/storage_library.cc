#include "libvelm/storage_library.h"

#include <utility>

#include "address_rules/internal_networks.h"
#include "libtarn/string_access.h"
#include "libvelm/service_error.h"

namespace Velm {
namespace Library {
namespace {

using AddressRules::InternalNetwork;

void RequireOutside(const std::string& text, const std::string& internalNetworks) {
  AddressRules::Address address = {};
  if (!AddressRules::ParseAddress({text.data(), text.size()}, address)) return;
  const InternalNetwork network = AddressRules::FindInternalNetwork(internalNetworks.c_str(), address);
  switch (network.answer) {
    case InternalNetwork::None:
      return;
    case InternalNetwork::Found:
      throw ServiceError("address " + text + " lies in the internal network " + network.text);
    case InternalNetwork::Unknown:
      throw ServiceError(network.text);
  }
}

}  // namespace

StorageLibrary::StorageLibrary(std::string internalNetworks)
    : internalNetworks_(std::move(internalNetworks)) {}

TarnAbstract::Result::Code StorageLibrary::checkAddressConflict(TarnAbstract::String& ipAddress) {
  return Answer("checkAddressConflict",
                [&] { RequireOutside(TarnAbstract::StringAccess::Text(ipAddress), internalNetworks_); });
}

}  // namespace Library
}  // namespace Velm

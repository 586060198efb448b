#include "libvelm/entry_points.h"

#include <new>

#include "libvelm/app_config.h"
#include "libvelm/places.h"
#include "libvelm/storage_library.h"
#include "libvelm/store.h"

namespace Velm {
namespace {

using TarnAbstract::sp;

class Connectivity : public TarnAbstract::ReferenceCounted<IConnectivity> {};

// Neither is ever destroyed: threads may still be at work while the process ends.
const Places& AppliancePlaces() {
  static const auto* const places = new Places;
  return *places;
}

Store& ApplianceStore() {
  static auto* const store = new Store(AppliancePlaces().database);
  return *store;
}

template <class Interface, class Make>
sp<Interface> HandleTo(const Make& make) noexcept {
  try {
    return sp<Interface>(make());
  } catch (const std::bad_alloc&) {
    return sp<Interface>();
  }
}

}  // namespace

sp<IMgmtAppConfig> openAppConfig(const std::string& user) {
  return HandleTo<IMgmtAppConfig>([&] { return new AppConfig(ApplianceStore(), AppliancePlaces(), user); });
}

sp<IConnectivity> openConnectivity() {
  return HandleTo<IConnectivity>([] { return new Connectivity; });
}

sp<Library::IStorageLibrary> openStorageLibrary() {
  return HandleTo<Library::IStorageLibrary>(
      [] { return new Library::StorageLibrary(AppliancePlaces().internalNetworks); });
}

}  // namespace Velm

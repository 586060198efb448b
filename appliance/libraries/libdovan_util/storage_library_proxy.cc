#include <mutex>
#include <string>

#include "libvelm/entry_points.h"
#include "utility/StorageLibraryProxy.h"
#include "utility/page_properties.h"

namespace {

// The workers ask without a session of their own: on behalf of whoever was attached last.
std::mutex guard;
std::string& attachedUser() {
  // Never destroyed: a worker may still ask while the process ends.
  static auto* const user = new std::string;
  return *user;
}

std::string currentUser() {
  const std::lock_guard<std::mutex> lock(guard);
  return attachedUser();
}

}  // namespace

StorageLibraryProxy* StorageLibraryProxy::getInstance() {
  static StorageLibraryProxy instance;
  return &instance;
}

// Nothing of the script's value is kept: it may be gone when the services are asked.
void StorageLibraryProxy::setSession(zval* session) {
  static char property[] = "user";
  const char* const user = get_string_property(session, property);
  const std::lock_guard<std::mutex> lock(guard);
  attachedUser() = user == nullptr ? "" : user;
}

TarnAbstract::sp<Velm::IMgmtAppConfig> StorageLibraryProxy::getAppMgmtConfigInterface() {
  return Velm::openAppConfig(currentUser());
}

TarnAbstract::sp<Velm::IConnectivity> StorageLibraryProxy::getConnectivityMgmtInterface() {
  return Velm::openConnectivity();
}

TarnAbstract::sp<Velm::Library::IStorageLibrary> StorageLibraryProxy::getStorageLibraryInterface() {
  return Velm::openStorageLibrary();
}

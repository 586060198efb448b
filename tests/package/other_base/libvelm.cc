// A management library whose base has two operations more. What becomes of a question for its services is
// said by the environment: VELM=ends, =exits0, =exits3, =silent, =empty, =wild; otherwise they are given.
// VELM=ends_loaded, =exits0_loaded and =exits3_loaded do so as soon as it is loaded.
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <cstring>
#include <string>

#include "libvelm/entry_points.h"

using TarnAbstract::GUID;
using TarnAbstract::List;
using TarnAbstract::Result;
using TarnAbstract::sp;
using TarnAbstract::String;

namespace Velm {
namespace {

template <class Interface>
class Kept : public Interface {
 public:
  void TakeReference() override {}
  void DropReference() override {}
};

class AppConfig : public Kept<IMgmtAppConfig> {
 public:
  Result::Code setSNMPVersions(const List<eSNMPVersion, 4>& /*versions*/) override { return 0; }
  Result::Code getSNMPVersions(List<eSNMPVersion, 4>& /*versions*/) override { return 1; }
  Result::Code setSSLEnabled(bool /*enabled*/) override { return 2; }
  Result::Code getSSLEnabled(std::uint32_t& /*enabled*/) override { return 3; }
  Result::Code createTrapRegistration(TrapRegistration& /*registration*/) override { return 4; }
  Result::Code deleteTrapRegistration(GUID& /*trapID*/) override { return 5; }
  Result::Code getTrapRegistrations(List<TrapRegistration, 4>& /*registrations*/) override { return 6; }
  Result::Code restartSNMP() override { return 7; }
  Result::Code setReadCommunity(String& /*community*/) override { return 8; }
  Result::Code getReadCommunity(String& /*community*/) override { return 9; }
  Result::Code setAuthTrapsEnabled(bool /*enabled*/) override { return 10; }
  Result::Code getAuthTrapsEnabled(bool& /*enabled*/) override { return 11; }
};

class StorageLibrary : public Kept<Library::IStorageLibrary> {
 public:
  Result::Code checkAddressConflict(String& /*ipAddress*/) override { return 12; }
};

class Connectivity : public Kept<IConnectivity> {};

std::string chosenWay() {
  const char* const way = std::getenv("VELM");
  return way == nullptr ? "" : way;
}

void endIfChosen(const std::string& when) {
  const std::string chosen = chosenWay();
  if (chosen == "ends" + when) std::abort();
  if (chosen == "exits0" + when) std::exit(0);  // NOLINT(concurrency-mt-unsafe): there is one thread
  if (chosen == "exits3" + when) std::exit(3);  // NOLINT(concurrency-mt-unsafe)
}

[[gnu::constructor]] void whenLoaded() { endIfChosen("_loaded"); }

template <class Interface, class Service>
sp<Interface> answer() {
  const std::string chosen = chosenWay();
  endIfChosen("");
  while (chosen == "silent") pause();
  static Service service;
  sp<Interface> handle(chosen == "empty" ? nullptr : &service);
  if (chosen == "wild") std::memset(static_cast<void*>(&service), 1, sizeof(void*));
  return handle;
}

}  // namespace

sp<IMgmtAppConfig> openAppConfig(const std::string& /*user*/) { return answer<IMgmtAppConfig, AppConfig>(); }
sp<IConnectivity> openConnectivity() { return answer<IConnectivity, Connectivity>(); }
sp<Library::IStorageLibrary> openStorageLibrary() {
  return answer<Library::IStorageLibrary, StorageLibrary>();
}

}  // namespace Velm

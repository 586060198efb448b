// SNMP: settings of the agent, trap receivers, restart and test of the traps.
#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iterator>

#include "command_lines.h"
#include "handlers.h"
#include "management_access.h"
#include "page_values.h"
#include "platform/List.h"
#include "platform/MemoryMgmt.h"
#include "trace_log.h"
#include "utility/platform_texts.h"

using TarnAbstract::GUID;
using TarnAbstract::Result;
using TarnAbstract::sp;
using TarnAbstract::String;
using TarnAbstract::TarnMemoryMgmt::getSystemTransientObjHeap;
using Velm::IMgmtAppConfig;
using Velm::TrapRegistration;
using Velm::Library::IStorageLibrary;

namespace {

using VersionList = TarnAbstract::List<Velm::eSNMPVersion, 4>;
using TrapRegistrationList = TarnAbstract::List<TrapRegistration, 4>;

// The management library sees the same memory: on the appliance these are its sizes.
template <class T>
constexpr bool hasSizeOnTheAppliance(std::size_t size) {
  return sizeof(void*) != 4 || sizeof(T) == size;
}
static_assert(hasSizeOnTheAppliance<TarnAbstract::ListElementPage<Velm::eSNMPVersion, 4>>(20));
static_assert(hasSizeOnTheAppliance<VersionList>(40));
static_assert(hasSizeOnTheAppliance<String>(8));
static_assert(hasSizeOnTheAppliance<GUID>(12));
static_assert(hasSizeOnTheAppliance<TrapRegistration>(32));
static_assert(hasSizeOnTheAppliance<TarnAbstract::ListElementPage<TrapRegistration, 4>>(132));

// A truth value of the services, as the number they wrote. Its width is that of the compiler that built them:
// they write one byte, the first, or the whole word.
class FlagWord {
 public:
  bool& asFlag() { return reinterpret_cast<bool&>(bytes_); }
  int number() const {
    // A byte alone is that byte, also where the first byte of a word counts most.
    if (std::all_of(bytes_ + 1, std::end(bytes_), [](unsigned char byte) { return byte == 0; }))
      return bytes_[0];
    std::int32_t word = 0;
    std::memcpy(&word, bytes_, sizeof(word));
    return word;
  }

 private:
  alignas(std::int32_t) unsigned char bytes_[sizeof(std::int32_t)] = {};
};

// By number, which of the versions 1 to 5 the agent reports.
struct ReportedVersions {
  bool has[Velm::SNMP_TRAP_VERSION_2 + 1] = {};
};

ReportedVersions readVersions(const sp<IMgmtAppConfig>& config) {
  VersionList list(getSystemTransientObjHeap());
  ask(config, &IMgmtAppConfig::getSNMPVersions, list);
  trace("Found # of versions:", static_cast<int>(list.Size()));
  ReportedVersions versions;
  for (unsigned int index = 0; index < list.Size(); ++index) {
    Velm::eSNMPVersion version = {};
    list.Item(index, version);
    if (version >= Velm::SNMP_VERSION_1 && version <= Velm::SNMP_TRAP_VERSION_2) versions.has[version] = true;
    trace("Found version:", static_cast<int>(version));
  }
  // A page always shows at least one version of traps on.
  if (!versions.has[Velm::SNMP_TRAP_VERSION_2]) versions.has[Velm::SNMP_TRAP_VERSION_1] = true;
  return versions;
}

// Version 3 always; 2 goes with 1.
void appendWantedVersions(VersionList& list, zval* settings) {
  list.Append(Velm::SNMP_VERSION_3);
  if (flagProperty(settings, "version1")) {
    trace("Enabling SNMP");
    list.Append(Velm::SNMP_VERSION_1);
    list.Append(Velm::SNMP_VERSION_2);
  } else {
    trace("Disabling SNMP");
  }
  if (flagProperty(settings, "trap1")) {
    trace("Enabling Trap1");
    list.Append(Velm::SNMP_TRAP_VERSION_1);
  }
  if (flagProperty(settings, "trap2")) {
    trace("Enabling Trap2");
    list.Append(Velm::SNMP_TRAP_VERSION_2);
  }
}

// The restart comes last, so that the agent starts with all three settings in place.
void changeAgent(const sp<IMgmtAppConfig>& config, zval* settings) {
  VersionList versions(getSystemTransientObjHeap());
  appendWantedVersions(versions, settings);
  reportResult(ask(config, &IMgmtAppConfig::setSNMPVersions, versions), "Could not set SNMP versions");

  const std::string name = textProperty(settings, "community_name");
  const bool authTraps = flagProperty(settings, "auth_traps_enabled");
  trace("setting community name:", name);
  trace("setting authTrapsEnabled:", static_cast<int>(authTraps));
  reportResult(ask(config, &IMgmtAppConfig::setAuthTrapsEnabled, authTraps),
               "Could not set auth traps enabled");
  String community(name.c_str(), getSystemTransientObjHeap());
  reportResult(ask(config, &IMgmtAppConfig::setReadCommunity, community), "Could not set the community");
  reportResult(ask(config, &IMgmtAppConfig::restartSNMP), "Could not restart SNMP");
}

void appendRegistration(zval* array, const TrapRegistration& registration) {
  zval* const object = appendObject(array);
  // For the web server's error log, which is where the receivers are looked up beside the trace.
  std::fprintf(stderr, "%d - %s - %d - %s\n", static_cast<int>(registration.getTransport()),
               tarnStringToCString(registration.getIPAddress()), static_cast<int>(registration.getPort()),
               guidToCString(registration.getTrapID()));
  addInteger(object, "transport", registration.getTransport());
  addString(object, "ip", tarnStringToCString(registration.getIPAddress()));
  addInteger(object, "port", registration.getPort());
  addString(object, "id", guidToCString(registration.getTrapID()));
}

}  // namespace

HANDLER(get_snmp_settings) {
  trace("Entering get_snmp_settings");
  zval* session = nullptr;
  if (!parseArguments(argumentCount, "o", &session)) return;
  const ManagementAccess access;
  trace("Before slp->getAppMgmtConfigInterface()");
  const sp<IMgmtAppConfig> config = access->getAppMgmtConfigInterface();
  const ReportedVersions versions = readVersions(config);

  FlagWord authTraps;
  reportResult(ask(config, &IMgmtAppConfig::getAuthTrapsEnabled, authTraps.asFlag()),
               "Could not get SNMP traps enabled");
  trace("SNMP auth traps are enabled:", authTraps.number());
  String community("", getSystemTransientObjHeap());
  reportResult(ask(config, &IMgmtAppConfig::getReadCommunity, community),
               "Could not get SNMP read community");
  trace("SNMP community:", tarnStringToCString(community));

  makeObject(result);
  addBoolean(result, "version1", versions.has[Velm::SNMP_VERSION_1]);
  addBoolean(result, "version2", versions.has[Velm::SNMP_VERSION_2]);
  addBoolean(result, "version3", versions.has[Velm::SNMP_VERSION_3]);
  addBoolean(result, "trap1", versions.has[Velm::SNMP_TRAP_VERSION_1]);
  addBoolean(result, "trap2", versions.has[Velm::SNMP_TRAP_VERSION_2]);
  addString(result, "algorithm", "MD5");
  addBoolean(result, "encryption", false);
  addInteger(result, "port", 161);
  addBoolean(result, "auth_traps_enabled", authTraps.number() != 0);
  addString(result, "community_name", tarnStringToCString(community));
  trace("Exiting get_snmp_settings");
}

HANDLER(set_snmp_settings) {
  trace("Entering set_snmp_settings");
  zval* session = nullptr;
  zval* settings = nullptr;
  if (!parseArguments(argumentCount, "oo", &session, &settings)) return;
  const ManagementAccess access;
  const sp<IMgmtAppConfig> config = access->getAppMgmtConfigInterface();
  if (settings != nullptr) changeAgent(config, settings);
  trace("Exiting set_snmp_settings");
}

HANDLER(get_snmp_trap_regs) {
  trace("entering get_snmp_trap_regs");
  zval* session = nullptr;
  if (!parseArguments(argumentCount, "o", &session)) return;
  const ManagementAccess access(session);
  trace("Before slp->getAppMgmtConfigInterface()");
  const sp<IMgmtAppConfig> config = access->getAppMgmtConfigInterface();
  TrapRegistrationList list(getSystemTransientObjHeap());
  ask(config, &IMgmtAppConfig::getTrapRegistrations, list);
  trace("Number of trap registratrations:", static_cast<int>(list.Size()));
  makeArray(result);
  for (unsigned int index = 0; index < list.Size(); ++index) {
    TrapRegistration registration;
    list.Item(index, registration);
    appendRegistration(result, registration);
  }
  trace("Exiting get_snmp_trap_regs");
}

HANDLER(create_snmp_trap_reg) {
  trace("entering create_snmp_trap_reg");
  zval* session = nullptr;
  long transport = 0;
  PageText ip;
  PageText port;
  if (!parseArguments(argumentCount, "olss", &session, &transport, &ip, &port)) {
    return;
  }
  const ManagementAccess access(session);
  const sp<IMgmtAppConfig> config = access->getAppMgmtConfigInterface();
  sp<IStorageLibrary> library = access->getStorageLibraryInterface();

  TrapRegistration registration;
  String address(ip.characters, getSystemTransientObjHeap());
  trace("New transport was", asInt(transport));
  trace("New Trap IP was", tarnStringToCString(address));
  // Taken as the C library takes it: a text that is no number is 0.
  const int portNumber = std::atoi(port.characters);  // NOLINT(cert-err34-c)
  trace("New Trap Port was", portNumber);
  registration.setTransport(static_cast<Velm::eTransportType>(asInt(transport)));
  registration.setIPAddress(address);
  registration.setPort(static_cast<unsigned int>(portNumber));

  if (!Result::IsSucceeded(ask(library, &IStorageLibrary::checkAddressConflict, address))) {
    library.ReleaseReference();  // before the report, behind which a platform may end the request
    reportResult(FailureCode::InternalAddressConflict, "Internal Address Conflict");
  }
  // Also after a conflict: it is the report that tells the page, not a missing registration.
  reportResult(ask(config, &IMgmtAppConfig::createTrapRegistration, registration),
               "Could not create trap registration");
  trace("exiting create_snmp_trap_reg");
}

HANDLER(delete_snmp_trap_reg) {
  trace("entering delete_snmp_trap_reg");
  zval* session = nullptr;
  PageText id;
  if (!parseArguments(argumentCount, "os", &session, &id)) return;
  const ManagementAccess access(session);
  const sp<IMgmtAppConfig> config = access->getAppMgmtConfigInterface();
  GUID trapID = cStringToGUID(id.characters);
  ask(config, &IMgmtAppConfig::deleteTrapRegistration, trapID);  // an unknown one is no failure to the page
  trace("exiting delete_snmp_trap_reg");
}

// The name is what pages call. This starts the sending of traps anew and tests it, by the device's script;
// what starts the agent with changed settings is IMgmtAppConfig::restartSNMP, in set_snmp_settings.
HANDLER(restart_snmp) {
  trace("entering restart_snmp");
  zval* session = nullptr;
  if (!parseArguments(argumentCount, "o", &session)) return;
  const ManagementAccess access(session);
  if (std::system(CommandLine::TestTrapRegistrations) != 0) {
    // For the web server's error log: the report has no room for the number.
    std::fprintf(stderr, "System call to testTrapRegistration.sh returned %d\n", errno);
    reportFailure("Failed to restart/test trap registration");
  }
  trace("exiting restart_snmp");
}

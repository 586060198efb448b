#include <unistd.h>

#include <cstdint>
#include <string>
#include <vector>

#include "libdovan_util/commands_at_once.h"
#include "libdovan_util/property_values.h"
#include "platform/List.h"
#include "platform/MemoryMgmt.h"
#include "platform/Result.h"
#include "utility/Runtime.h"
#include "utility/StorageLibraryProxy.h"
#include "utility/StringUtilities.h"
#include "utility/ValidateIPv6address.h"
#include "utility/checkResultCode.h"
#include "utility/getNetworkSettings.h"
#include "utility/page_properties.h"

using TarnAbstract::Result;
using TarnAbstract::sp;
using Velm::IMgmtAppConfig;

namespace {

#define DEVICE_SCRIPT "/bin/sh /home/embedded/library/AppManager/bin/"
constexpr const char* HostName = DEVICE_SCRIPT "ipv4Manager.sh -g host";
constexpr const char* Ipv4Lease = DEVICE_SCRIPT "ipv4Manager.sh -d status";
constexpr const char* Ipv4Static = DEVICE_SCRIPT "ipv4Manager.sh -g static";
constexpr const char* Port = DEVICE_SCRIPT "ipv4Manager.sh -g port";
constexpr const char* Stateless = DEVICE_SCRIPT "ipv6Manager.sh -l";
constexpr const char* Ipv6Static = DEVICE_SCRIPT "ipv6Manager.sh -g static";
constexpr const char* Ipv6Addresses = DEVICE_SCRIPT "ipv6Manager.sh -g all";
constexpr const char* Dns = DEVICE_SCRIPT "ipv6Manager.sh -g dns";
#undef DEVICE_SCRIPT
constexpr const char* Ipv6EnabledFile = "/home/embedded/library/CoreService/dat/ipv6Enabled";
constexpr const char* Ipv6DhcpFile = "/etc/ipv6dhcp";

constexpr const char* NoIpv4Address = "0.0.0.0";
constexpr const char* NoIpv6Address = "0:0:0:0:0:0:0:0";
constexpr const char* DefaultPrefix = "64";

void reportUnreadable(const std::string& what, Result::Code code = Result::Failed,
                      int line = __builtin_LINE()) {
  static char source[] = "utility/getNetworkSettings";
  std::string message = "Could not get " + what;
  checkResultCode(code, message.data(), source, line);
}

using Pieces = std::vector<std::string>;

Pieces split(const std::string& text, const char* separator) {
  Pieces pieces;
  StringUtilities::getDelimetedList(pieces, text, separator);
  return pieces;
}

// What the scripts answer that are needed in any case. All are read before the first failure is reported: a
// report may end the request.
class Answers {
 public:
  Answers() : answers_(runAtOnce(Commands())) {}

  // Runs the command now when it is not one of those.
  bool Get(const std::string& command, std::string& answer) const {
    for (std::size_t i = 0; i < answers_.size(); ++i) {
      if (Commands()[i] != command) continue;
      answer = answers_[i].output;
      return answers_[i].succeeded;
    }
    int waitStatus = 0;
    return Runtime::getInstance()->execute(command, answer, waitStatus);
  }

 private:
  static const std::vector<std::string>& Commands() {
    static const auto* const commands =
        new std::vector<std::string>{HostName, Ipv4Lease, Stateless, Ipv6Static, Ipv6Addresses, Dns, Port};
    return *commands;
  }

  std::vector<CommandAnswer> answers_;
};

bool ask(const Answers& answers, const char* command, const char* what, std::string& answer) {
  if (answers.Get(command, answer)) return true;
  reportUnreadable(what);
  answer.clear();
  return false;
}

// True when the command printed as many fields as there are in settings, which then has them.
bool askForFields(const Answers& answers, const char* command, const char* what, Pieces& settings) {
  std::string answer;
  if (!ask(answers, command, what, answer)) return false;
  const Pieces fields = split(answer, "?");
  if (fields.size() != settings.size()) {
    reportUnreadable(what);
    return false;
  }
  settings = fields;
  return true;
}

bool isReadable(const char* path) { return access(path, R_OK) == 0; }

std::string fullAddress(const std::string& address) {
  Pieces groups;
  ValidateIPv6address().convertToFullAddress(address, groups);
  return StringUtilities::listToString(groups, ":");
}

void addHostName(zval* object, const Answers& answers) {
  std::string name;
  ask(answers, HostName, "hostname information", name);
  add_property_string_q(object, "hostname", name.c_str(), 1);
}

void addIpv4(zval* object, const Answers& answers) {
  const Pieces nothing(3);  // what stands for "off" in the lease, and for "none" in the static settings
  Pieces settings(3, NoIpv4Address);
  bool dhcp = askForFields(answers, Ipv4Lease, "IPv4 network information", settings);
  if (settings == nothing) {
    dhcp = false;
    settings.assign(3, NoIpv4Address);
    askForFields(answers, Ipv4Static, "static IPv4 settings", settings);
  }
  if (settings == nothing) settings.assign(3, NoIpv4Address);
  addFlag(object, "dhcpEnabled", dhcp);
  add_property_string_q(object, "ip", settings[0].c_str(), 1);
  add_property_string_q(object, "netmask", settings[1].c_str(), 1);
  add_property_string_q(object, "gateway", settings[2].c_str(), 1);
}

void addIpv6Modes(zval* object, const Answers& answers) {
  std::string stateless;
  ask(answers, Stateless, "stateless settings", stateless);
  addFlag(object, "ipv6Enabled", isReadable(Ipv6EnabledFile));
  addFlag(object, "ipv6DhcpEnabled", isReadable(Ipv6DhcpFile));
  addFlag(object, "statelessEnabled", stateless == "1");
}

// The text is address/prefix?gateway, or empty.
void addIpv6Static(zval* object, const Answers& answers) {
  constexpr const char* What = "static IPv6 settings";
  std::string text;
  ask(answers, Ipv6Static, What, text);
  const Pieces outer = split(text, "?");
  const Pieces inner = outer.empty() ? Pieces() : split(outer[0], "/");
  const bool enabled = outer.size() == 2 && inner.size() == 2;
  if (!enabled && !text.empty()) reportUnreadable(What);
  addFlag(object, "staticEnabled", enabled);
  add_property_string_q(object, "ipStatic", enabled ? fullAddress(inner[0]).c_str() : NoIpv6Address, 1);
  add_property_string_q(object, "prefix", enabled ? inner[1].c_str() : DefaultPrefix, 1);
  add_property_string_q(object, "ipv6Gateway", enabled ? fullAddress(outer[1]).c_str() : NoIpv6Address, 1);
}

void addIpv6Addresses(zval* object, const Answers& answers) {
  std::string addresses;
  ask(answers, Ipv6Addresses, "IPv6 addresses", addresses);
  addTexts(object, "ipv6Addresses", split(addresses, "?"));
}

void addDns(zval* object, const Answers& answers) {
  std::string text;
  ask(answers, Dns, "DNS addresses", text);
  Pieces servers = split(text, " ");
  servers.resize(2);
  if (servers[0] == "disabled") servers[0].clear();
  add_property_string_q(object, "dnsPrimary", servers[0].c_str(), 1);
  add_property_string_q(object, "dnsSecondary", servers[1].c_str(), 1);
}

bool isSSLEnabled(const sp<IMgmtAppConfig>& config) {
  std::uint32_t enabled = 0;
  const Result::Code code = config.IsValid() ? config->getSSLEnabled(enabled) : Result::Failed;
  reportUnreadable("SSL settings", code);
  return Result::IsSucceeded(code) && enabled != 0;
}

// As the SNMP page sees it: on is what version 1 is.
bool isSNMPEnabled(const sp<IMgmtAppConfig>& config) {
  TarnAbstract::List<Velm::eSNMPVersion, 4> versions(
      TarnAbstract::TarnMemoryMgmt::getSystemTransientObjHeap());
  const Result::Code code = config.IsValid() ? config->getSNMPVersions(versions) : Result::Failed;
  reportUnreadable("SNMP versions", code);
  if (Result::IsFailed(code)) return false;
  for (unsigned int index = 0; index < versions.Size(); ++index) {
    Velm::eSNMPVersion version = {};
    versions.Item(index, version);
    if (version == Velm::SNMP_VERSION_1) return true;
  }
  return false;
}

void addServiceStates(zval* object) {
  const sp<IMgmtAppConfig> config = StorageLibraryProxy::getInstance()->getAppMgmtConfigInterface();
  addFlag(object, "sslEnabled", isSSLEnabled(config));
  addFlag(object, "snmpEnabled", isSNMPEnabled(config));
}

void addPort(zval* object, const Answers& answers) {
  Pieces settings = {"off", "100", ""};
  askForFields(answers, Port, "port settings", settings);
  const std::string& duplex = settings[2];
  addNumber(object, "AutoNegotiate", settings[0] == "on" ? 1 : 0);
  addNumber(object, "Speed", settings[1] == "10" ? 10 : 100);
  addNumber(object, "Duplex", duplex == "full" ? 1 : (duplex == "half" ? 0 : -1));
}

}  // namespace

void getNetworkSettings(zval* object) {
  const Answers answers;
  addHostName(object, answers);
  addIpv4(object, answers);
  addIpv6Modes(object, answers);
  addIpv6Static(object, answers);
  addIpv6Addresses(object, answers);
  addDns(object, answers);
  addServiceStates(object);
  addPort(object, answers);
}

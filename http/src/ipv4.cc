// IPv4 addressing and the host name.
#include <unistd.h>

#include <cstdint>
#include <cstring>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "command_lines.h"
#include "command_runner.h"
#include "handlers.h"
#include "management_access.h"
#include "page_values.h"
#include "settings_text.h"
#include "trace_log.h"
#include "worker.h"

using TarnAbstract::Result;
using Velm::IMgmtAppConfig;

namespace {

// What the DHCP status reads as when DHCP is off: three empty fields.
constexpr char DhcpOff[] = "??";

// Until the answer to the page has gone out.
constexpr useconds_t AnswerTravelTime = 3000000;  // microseconds

// The worker's trace of a failure has a field for a number; there is none to tell.
constexpr int NoResult = 0;

// Not ended by a NUL where the name fills the buffer.
constexpr std::size_t HostNameBufferSize = 64;

std::string currentHostName() {
  char name[HostNameBufferSize];
  name[0] = '\0';
  gethostname(name, sizeof(name));
  return {name, strnlen(name, sizeof(name))};
}

// The certificate of the web service carries the host name: switching SSL on again makes a new one.
void renewSSL() {
  const TarnAbstract::sp<IMgmtAppConfig> config =
      StorageLibraryProxy::getInstance()->getAppMgmtConfigInterface();
  std::uint32_t enabled = 0;
  if (Result::IsSucceeded(ask(config, &IMgmtAppConfig::getSSLEnabled, enabled)) && enabled != 0) {
    ask(config, &IMgmtAppConfig::setSSLEnabled, true);
  }
}

// 0 when there was nothing to do or the script succeeded, else the script's result.
int changeHostname(const std::string& name) {
  if (name == currentHostName()) return 0;
  const int result = runWithoutOutput(CommandLine::SetHostName + name);
  renewSSL();
  return result;
}

std::vector<std::string> ipv4SettingsOf(const std::string& text) {
  std::vector<std::string> settings = splitText(text, SettingsSeparator);
  if (settings.size() != 3) {
    // Behind what there is, so that a short text keeps its fields.
    settings.insert(settings.end(), 3, "0.0.0.0");
    trace("Could not get IPv4 network information, lets return zero's for IP settings.");
  }
  return settings;
}

// What the worker of set_network_configuration_ipv4 applies.
struct Ipv4Settings {
  std::string hostName;
  bool dhcp;
  std::string address;
  std::string netmask;
  std::string gateway;
};

Ipv4Settings readIpv4Settings(zval* object) {
  return {textProperty(object, "hostname"), hasTextProperty(object, "dhcpEnabled"),
          textProperty(object, "ip"), textProperty(object, "netmask"), textProperty(object, "gateway")};
}

void applyIpv4(const Ipv4Settings& settings) {
  if (changeHostname(settings.hostName) != 0) {
    trace("Could not set library hostname", NoResult);
    return;
  }
  if (settings.dhcp) {
    if (runWithoutOutput(CommandLine::SwitchDhcpOn) != 0) {
      trace("Could not set network settings (dhcp on).", NoResult);
      return;
    }
  } else {
    const std::string text =
        settings.address + SettingsSeparator + settings.netmask + SettingsSeparator + settings.gateway;
    if (runWithoutOutput(CommandLine::SetStaticIpv4 + text) != 0) {
      trace("Could not set network settings (dhcp off).", NoResult);
      return;
    }
  }
  trace("Leaving set_network_ipv4");
}

}  // namespace

HANDLER(get_network_configuration_ipv4) {
  trace("Entering get_network_configuration_ipv4");
  zval* session = nullptr;
  if (!parseArguments(argumentCount, "o", &session)) return;
  const ManagementAccess access(session);

  const CommandResult lease = runCommand(CommandLine::ReadDhcpLease);
  if (!lease.succeeded) reportFailure("Could not get IPv4 network information");
  trace("Output1 = ", lease.output);
  const bool dhcpEnabled = lease.output != DhcpOff;
  std::string settingsText = lease.output;
  if (!dhcpEnabled) {
    const CommandResult fixed = runCommand(CommandLine::ReadStaticIpv4, settingsText);
    if (!fixed.succeeded) {
      reportResult(FailureCode::StaticIpv4Unreadable, "Could not get IPv4 network information");
    }
    trace("Output2 = ", fixed.output);
    settingsText = fixed.output;
  }
  const std::vector<std::string> settings = ipv4SettingsOf(settingsText);

  const CommandResult hostName = runCommand(CommandLine::ReadHostName, settingsText);
  if (!hostName.succeeded) {
    reportResult(FailureCode::HostNameUnreadable, "Could not get hostname information");
  }
  trace("Output3 = ", hostName.output);

  makeObject(result);
  addString(result, "hostname", hostName.output);
  addBoolean(result, "dhcpEnabled", dhcpEnabled);
  addString(result, "ip", settings[0]);
  addString(result, "gateway", settings[2]);
  addString(result, "netmask", settings[1]);
  trace("Exiting get_network_configuration_ipv4");
}

HANDLER(set_network_configuration_ipv4) {
  trace("Entering set_network_configuration_ipv4");
  zval* session = nullptr;
  zval* settings = nullptr;
  if (!parseArguments(argumentCount, "oo", &session, &settings)) return;
  const ManagementAccess access(session);
  auto wanted = std::make_unique<Ipv4Settings>(readIpv4Settings(settings));
  trace("Firing off the thread to Set Network settings");
  startWorker(set_network_ipv4, std::move(wanted));
  trace("Exiting set_network_configuration_ipv4");
}

void* set_network_ipv4(void* block) {
  trace("Entering set_network_ipv4");
  const std::unique_ptr<const Ipv4Settings> settings(static_cast<const Ipv4Settings*>(block));
  usleep(AnswerTravelTime);
  applyIpv4(*settings);
  return nullptr;
}

HANDLER(get_network_hostname) {
  trace("Entering get_network_hostname");
  const CommandResult hostName = runCommand(CommandLine::ReadHostName);
  if (!hostName.succeeded) {
    reportResult(FailureCode::HostNameUnreadable, "Could not get hostname information");
  }
  trace("Output = ", hostName.output);
  trace("Exiting get_network_hostname");
  returnString(result, hostName.output);
}

HANDLER(set_network_hostname) {
  trace("Entering set_network_hostname");
  zval* session = nullptr;
  PageText name;
  if (!parseArguments(argumentCount, "os", &session, &name)) return;
  const ManagementAccess access(session);
  if (changeHostname(name.characters) != 0) reportFailure("Could not set library hostname");
  trace("Exiting set_network_hostname");
}

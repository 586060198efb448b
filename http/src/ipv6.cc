// IPv6: the switch for all of it, the address modes, the static address, the list of addresses.
#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
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
#include "utility/ValidateIPv6address.h"
#include "worker.h"

namespace {

// Some settings are on exactly while a file is there and can be read; it stays open as long as this.
class FlagFileReader {
 public:
  explicit FlagFileReader(const char* path) : descriptor_(open(path, O_RDONLY | O_CLOEXEC)) {}
  ~FlagFileReader() {
    if (isOpen()) close(descriptor_);
  }
  FlagFileReader(const FlagFileReader&) = delete;
  FlagFileReader& operator=(const FlagFileReader&) = delete;
  bool isOpen() const { return descriptor_ >= 0; }

 private:
  int descriptor_;
};

bool isFlagSet(const char* path, const char* set, const char* notSet) {
  const bool enabled = FlagFileReader(path).isOpen();
  trace(enabled ? set : notSet);
  return enabled;
}

struct StaticIpv6 {
  bool enabled = false;
  std::string address;
  std::string prefix;
  std::string gateway;
};

std::string join(const std::vector<std::string>& groups) {
  return StringUtilities::listToString(groups, ":");
}

StaticIpv6 noStaticIpv6() {
  const std::string zeroAddress = join(std::vector<std::string>(8, "0"));
  return {false, zeroAddress, "64", zeroAddress};
}

// text: address/prefix?gateway. A text of another form is on as well; what it lacks reads as empty.
StaticIpv6 parseStaticIpv6(const std::string& text) {
  std::vector<std::string> addressGroups;
  std::vector<std::string> gatewayGroups;
  ValidateIPv6address expander;
  const std::vector<std::string> outer = splitText(text, SettingsSeparator);
  if (outer.size() != 2) {
    reportFailure("Failed to get IPv6 static address - No Address and/or Gateway returned.");
  }
  expander.convertToFullAddress(pieceOf(outer, 1), gatewayGroups);
  const std::vector<std::string> inner = splitText(pieceOf(outer, 0), "/");
  if (inner.size() != 2) reportFailure("Failed to get IPv6 static address - No Prefix returned.");
  expander.convertToFullAddress(pieceOf(inner, 0), addressGroups);
  const std::string prefix = pieceOf(inner, 1);
  return {true, join(addressGroups), prefix.substr(0, prefix.find('\0')), join(gatewayGroups)};
}

void traceStaticIpv6(const StaticIpv6& settings) {
  const std::string summary = std::string("getIPv6StaticIP() is returning: Enabled:") +
                              (settings.enabled ? "TRUE" : "FALSE") + " IP: " + settings.address +
                              ", GW: " + settings.gateway + ", prefix: " + settings.prefix + "\n\n";
  trace(summary.c_str());
}

// True when the address was set. The result of a script that failed is in the trace.
bool setStaticIpv6(const StaticIpv6& settings) {
  const std::string text = settings.address + "/" + settings.prefix + SettingsSeparator + settings.gateway;
  trace("Entering setIPv6StaticIP(), address:", text);
  const int result = runWithoutOutput(CommandLine::SetStaticIpv6 + text);
  if (result != 0) {
    trace("Failed to enable static IPv6 address: ", result);
    return false;
  }
  // For the web server's error log: what was really set.
  std::fprintf(stderr, "\n\nData was: %s, %s, %s\n\n", settings.address.c_str(), settings.gateway.c_str(),
               settings.prefix.c_str());
  return true;
}

bool removeStaticIpv6() {
  trace("Disabling IPv6 Static addresses");
  const int result = runWithoutOutput(CommandLine::RemoveStaticIpv6);
  if (result != 0) trace("Failed to disable static IPv6 address: ", result);
  return result == 0;
}

}  // namespace

HANDLER(get_network_configuration_ipv6) {
  trace("Entering get_network_configuration_ipv6");
  zval* session = nullptr;
  if (!parseArguments(argumentCount, "o", &session)) return;
  const ManagementAccess access(session);

  const CommandResult fixed = runCommand(CommandLine::ReadStaticIpv6);
  if (!fixed.succeeded) {
    reportFailure("Failed to get IPv6 static address with the script.");
  }
  trace("Output = ", fixed.output);
  if (fixed.output.empty()) trace("Static addressing is disabled");
  const StaticIpv6 settings = fixed.output.empty() ? noStaticIpv6() : parseStaticIpv6(fixed.output);
  traceStaticIpv6(settings);

  makeObject(result);
  addBoolean(result, "staticEnabled", settings.enabled);
  addString(result, "ipStatic", settings.address);
  addString(result, "gateway", settings.gateway);
  addString(result, "prefix", settings.prefix);
  trace("Exiting get_network_configuration_ipv6");
}

HANDLER(set_network_configuration_ipv6) {
  trace("Entering set_network_configuration_ipv6");
  zval* session = nullptr;
  zval* settings = nullptr;
  if (!parseArguments(argumentCount, "oo", &session, &settings)) return;
  const ManagementAccess access(session);
  auto wanted = std::make_unique<StaticIpv6>();
  wanted->enabled = hasTextProperty(settings, "staticEnabled");
  wanted->address = textProperty(settings, "ipStatic");
  wanted->gateway = textProperty(settings, "gateway");
  wanted->prefix = textProperty(settings, "prefix");
  trace("Firing off the thread to Set Network settings for IPv6");
  startWorker(set_network_ipv6, std::move(wanted));
  trace("Exiting set_network_configuration_ipv6");
}

void* set_network_ipv6(void* block) {
  trace("Entering set_network_ipv6");
  const std::unique_ptr<const StaticIpv6> settings(static_cast<const StaticIpv6*>(block));
  const bool applied = settings->enabled ? setStaticIpv6(*settings) : removeStaticIpv6();
  if (applied) {
    trace("The new Network settings have been applied!");
    trace("Leaving set_network_ipv6");
  }
  return nullptr;
}

HANDLER(is_ipv6_enabled) {
  trace("Entering is_ipv6_enabled");
  const bool enabled = isFlagSet(FlagFile::Ipv6Enabled, "IPv6 was enabled", "IPv6 was NOT enabled");
  trace("Exiting is_ipv6_enabled");
  returnBoolean(result, enabled);
}

HANDLER(set_ipv6_enabled) {
  trace("Entering set_ipv6_enabled");
  zval* session = nullptr;
  bool wanted = false;
  if (!parseArguments(argumentCount, "ob", &session, &wanted)) return;
  if (wanted) {
    if (runWithoutOutput(CommandLine::EnableIpv6) != 0) reportFailure("Failed to enable IPv6.");
  } else {
    const FlagFileReader flag(FlagFile::Ipv6Enabled);
    if (flag.isOpen() && runWithoutOutput(CommandLine::DisableIpv6) != 0)
      reportFailure("Failed to disable IPv6.");
  }
  trace("Exiting set_ipv6_enabled");
}

HANDLER(is_ipv6_static_enabled) {
  trace("Entering is_ipv6_static_enabled");
  const CommandResult fixed = runCommand(CommandLine::ReadStaticIpv6);
  if (!fixed.succeeded) {
    reportFailure("Failed to get IPv6 static address with the script.");
  }
  trace("Output = ", fixed.output);
  const bool enabled = !fixed.output.empty();
  trace(enabled ? "IPv6 Static was enabled" : "IPv6 Static was NOT enabled");
  trace("Exiting is_ipv6_static_enabled");
  returnBoolean(result, enabled);
}

HANDLER(is_stateless_enabled) {
  trace("Entering is_stateless_enabled");
  const CommandResult stateless = runCommand(CommandLine::ReadStateless);
  if (!stateless.succeeded) {
    reportFailure("Could not get hostname information");  // the words that pages and manuals know
  }
  trace("Exiting is_stateless_enabled");
  returnBoolean(result, stateless.output == "1");
}

HANDLER(set_stateless_enabled) {
  trace("Entering set_stateless_enabled");
  zval* session = nullptr;
  bool wanted = false;
  if (!parseArguments(argumentCount, "ob", &session, &wanted)) return;
  trace(wanted ? "Stateless is being ENABLED" : "Stateless is being DISABLED");
  if (runWithoutOutput(std::string(CommandLine::SetStateless) + (wanted ? "1" : "0")) != 0) {
    reportFailure("Failed to configure stateless settings.");
  }
  trace("Exiting set_stateless_enabled");
}

HANDLER(is_ipv6_dhcp_enabled) {
  trace("Entering is_ipv6_dhcp_enabled");
  const bool enabled = isFlagSet(FlagFile::Ipv6Dhcp, "IPv6 DHCP was enabled", "IPv6 DHCP was NOT enabled");
  trace("Exiting is_ipv6_dhcp_enabled");
  returnBoolean(result, enabled);
}

HANDLER(set_ipv6_dhcp_enabled) {
  trace("Entering set_ipv6_dhcp_enabled");
  zval* session = nullptr;
  bool wanted = false;
  if (!parseArguments(argumentCount, "ob", &session, &wanted)) return;
  trace(wanted ? "DHCP is being ENABLED" : "DHCP is being DISABLED");
  if (runWithoutOutput(std::string(CommandLine::SwitchIpv6Dhcp) + (wanted ? "on" : "off")) != 0) {
    reportResult(FailureCode::Ipv6DhcpNotSwitched,
                 "Failed to configure DHCP settings - Make sure you have a valid IPv6 DHCP server running.");
  }
  trace("Exiting set_ipv6_dhcp_enabled");
}

HANDLER(get_all_ipv6_addresses) {
  trace("Entering get_all_ipv6_addresses");
  const CommandResult list = runCommand(CommandLine::ListIpv6Addresses);
  if (!list.succeeded) {
    reportFailure("Failed to get IPv6 address.");
  }
  makeArray(result);
  for (const std::string& address : splitText(list.output, SettingsSeparator)) {
    trace("Adding IPv6 ", address);
    appendString(result, address);
  }
  trace("Exiting get_all_ipv6_addresses");
}

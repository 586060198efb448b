// DNS servers, SSL mode of the web service, the settings object, the secondary Ethernet port.
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "command_lines.h"
#include "command_runner.h"
#include "handlers.h"
#include "management_access.h"
#include "page_values.h"
#include "settings_text.h"
#include "trace_log.h"
#include "utility/getNetworkSettings.h"

using TarnAbstract::Result;
using TarnAbstract::sp;
using Velm::IMgmtAppConfig;

namespace {

constexpr int ExitStatusInternalAddress = 44;
constexpr int WaitStatusInternalAddress = ExitStatusInternalAddress * 256;

constexpr std::size_t MostOutputInMessage = 1024;

constexpr std::size_t MostContinuationBytes = 3;  // of a UTF-8 character

// At most so many bytes of the output, never half of a UTF-8 character, and the sign that it was cut.
std::string boundedOutput(const std::string& output) {
  if (output.size() <= MostOutputInMessage) return output;
  std::size_t end = MostOutputInMessage;
  const auto continuesCharacter = [&](std::size_t at) {
    return (static_cast<unsigned char>(output[at]) & 0xC0U) == 0x80U;
  };
  while (continuesCharacter(end) && end > MostOutputInMessage - MostContinuationBytes) --end;
  return output.substr(0, end) + "...";
}

std::string primaryDns(const std::vector<std::string>& servers) {
  const std::string first = pieceOf(servers, 0);
  return first == "disabled" ? std::string() : first;
}

std::string speedText(int speed) {
  if (speed == 100) return "100";
  if (speed != 10) trace("INVALID ETH2 SPEED PARAMETER.  DEFAULT IS SET TO 10.");
  return "10";
}

int duplexOf(const std::string& text) {
  if (text == "half") return 0;
  return text == "full" ? 1 : -1;
}

// The web service's SSL mode lies with the management services; without them there is nothing to ask.
bool isThere(const sp<IMgmtAppConfig>& config, int line = __builtin_LINE()) {
  if (!(config == sp<IMgmtAppConfig>(nullptr))) return true;
  reportFailure("Could not get the App Mgnt config interface", line);
  return false;
}

void changeSSL(const sp<IMgmtAppConfig>& config, bool wanted) {
  std::uint32_t current = 0;
  config->getSSLEnabled(current);
  // As numbers: a truth value that is neither 0 nor 1 differs from both.
  if (static_cast<std::uint32_t>(wanted) == current) {
    trace("Skipped setting SSL - state did not change.");
    return;
  }
  reportResult(config->setSSLEnabled(wanted), "Could not set SSL settings");
}

}  // namespace

HANDLER(get_network_dns) {
  trace("Entering get_network_dns");
  zval* session = nullptr;
  if (!parseArguments(argumentCount, "o", &session)) return;
  const ManagementAccess access(session);
  const CommandResult answer = runCommand(CommandLine::ReadDns);
  if (!answer.succeeded) {
    reportFailure(("Failed to get DNS addresses: " + boundedOutput(answer.output)).c_str());
  }
  const std::vector<std::string> servers = splitText(answer.output, " ");
  makeObject(result);
  addString(result, "dnsPrimary", primaryDns(servers));
  addString(result, "dnsSecondary", pieceOf(servers, 1));
  trace("Exiting get_network_dns");
}

HANDLER(set_network_dns) {
  trace("Entering set_network_dns");
  zval* session = nullptr;
  zval* settings = nullptr;
  if (!parseArguments(argumentCount, "oo", &session, &settings)) return;
  const ManagementAccess access(session);
  // Held until the change is done and never called: that is all the services expect of it.
  const sp<Velm::IConnectivity> connectivity = access->getConnectivityMgmtInterface();

  const std::string primary = textProperty(settings, "dnsPrimary");
  const std::string secondary = textProperty(settings, "dnsSecondary");
  // One word on the command line, so that an empty secondary keeps its place.
  const std::string servers = '"' + primary + ' ' + secondary + '"';
  trace("DNS IPvAddresses = ", servers);
  const CommandResult change = runCommand(CommandLine::SetDns + servers);
  if (!change.succeeded) {
    trace("returnCode = ", change.waitStatus);
    reportResult(change.waitStatus == WaitStatusInternalAddress ? FailureCode::InternalAddressConflict
                                                                : Result::Failed,
                 "Failed to set DNS addresses.");
  }
  trace("Output = ", change.output);
  trace("Exiting set_network_dns");
}

HANDLER(get_ssl_settings) {
  trace("Entering get_ssl_settings");
  zval* session = nullptr;
  if (!parseArguments(argumentCount, "o", &session)) return;
  const ManagementAccess access;
  trace("Before slp->getAppMgmtConfigInterface()");
  const sp<IMgmtAppConfig> config = access->getAppMgmtConfigInterface();
  std::uint32_t enabled = 0;
  if (isThere(config)) config->getSSLEnabled(enabled);
  makeObject(result);
  addBoolean(result, "isEnabled", enabled != 0);
  addInteger(result, "port", 443);
  addString(result, "cipher", "RSA");
  trace("Exiting get_ssl_settings");
}

HANDLER(set_ssl_settings) {
  trace("Entering set_ssl_settings");
  zval* session = nullptr;
  bool wanted = false;
  if (!parseArguments(argumentCount, "ob", &session, &wanted)) return;
  const ManagementAccess access;
  const sp<IMgmtAppConfig> config = access->getAppMgmtConfigInterface();
  const bool there = isThere(config);
  // Written before the mode is known, also when nothing will change.
  trace("NOTE: The HTTP service will be restarted by appmanager in the new SSL Mode\nSetting SSL to ",
        wanted ? "Enabled" : "Disabled");
  if (there) changeSSL(config, wanted);
  trace("Exiting set_ssl_settings");
}

HANDLER(get_fw_settings) {
  trace("Entering get_fw_settings");
  zval* session = nullptr;
  if (!parseArguments(argumentCount, "o", &session)) return;
  const ManagementAccess access;
  makeObject(result);
  getNetworkSettings(result);
  trace("Exiting get_fw_settings");
}

HANDLER(set_eth2_port_settings) {
  trace("Entering set_eth2_port_settings");
  zval* session = nullptr;
  long autonegotiation = 0;
  long speed = 0;
  long duplex = 0;
  if (!parseArguments(argumentCount, "olll", &session, &autonegotiation, &speed, &duplex)) return;

  trace("Autonegotiate Input Parameter: ", asInt(autonegotiation));
  std::string settings = autonegotiation != 0 ? "on" : "off";
  settings += SettingsSeparator + speedText(asInt(speed));
  trace("Duplex Input Parameter: ", asInt(duplex));
  settings += SettingsSeparator;
  settings += duplex != 0 ? "full" : "half";
  const std::string command = CommandLine::SetPort + settings;
  trace("Command Line: ", command);
  if (!runCommand(command).succeeded) reportFailure("Failed to set port settings.");
  trace("Exiting set_eth2_port_settings");
}

HANDLER(get_eth2_port_settings) {
  trace("Entering get_eth2_port_settings");
  zval* session = nullptr;
  if (!parseArguments(argumentCount, "o", &session)) return;
  trace("Command Line: ", CommandLine::ReadPort);
  const CommandResult port = runCommand(CommandLine::ReadPort);
  if (!port.succeeded) reportFailure("Failed to get port settings.");
  trace("Output: ", port.output);
  const std::vector<std::string> settings = splitText(port.output, SettingsSeparator);
  makeObject(result);
  addInteger(result, "AutoNegotiate", pieceOf(settings, 0) == "on" ? 1 : 0);
  addInteger(result, "Speed", pieceOf(settings, 1) == "10" ? 10 : 100);
  addInteger(result, "Duplex", duplexOf(pieceOf(settings, 2)));
  trace("Exiting get_eth2_port_settings");
}

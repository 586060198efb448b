// What the module makes of the texts that the device scripts print: settings of several fields, and name
// servers. Input: a letter for the function; a letter whose lowest bits are the commands that fail; an answer
// a line, of which the last one is all the rest.
#include <iterator>

#include "handlers.h"
#include "page.h"
#include "reference.h"
#include "target.h"

namespace {

using reference::Pieces;
using reference::split;
using reference::untilNul;

std::string piece(const Pieces& pieces, std::size_t index) {
  return index < pieces.size() ? untilNul(pieces[index]) : "";
}

void requireText(const zval& object, const char* name, const std::string& expected) {
  const auto found = object.texts.find(name);
  require(found != object.texts.end() && found->second == untilNul(expected), name);
}

void requireNumber(const zval& object, const char* name, long expected) {
  const auto found = object.numbers.find(name);
  require(found != object.numbers.end() && found->second == expected, name);
}

using Answers = std::vector<DeviceAnswer>;

unsigned int failures(const Answers& answers, std::size_t asked) {
  unsigned int count = 0;
  for (std::size_t i = 0; i < asked; ++i) count += answers[i].succeeded ? 0 : 1;
  return count;
}

void tryIpv4(const Answers& answers) {
  const zval result = returnedBy(get_network_configuration_ipv4);
  const bool dhcp = answers[0].output != "??";
  const std::size_t asked = dhcp ? 2 : 3;
  Pieces fields = split(answers[asked - 2].output, '?');
  if (fields.size() != 3) fields.insert(fields.end(), 3, "0.0.0.0");
  requireNumber(result, "dhcpEnabled", dhcp);
  requireText(result, "ip", fields[0]);
  requireText(result, "netmask", fields[1]);
  requireText(result, "gateway", fields[2]);
  requireText(result, "hostname", answers[asked - 1].output);
  require(call.reports == failures(answers, asked), "each command that fails is reported once");
}

void tryIpv6(const Answers& answers) {
  const zval result = returnedBy(get_network_configuration_ipv6);
  const std::string& text = answers[0].output;
  const Pieces outer = split(text, '?');
  const Pieces inner = split(outer.empty() ? "" : outer[0], '/');
  const auto field = [](const Pieces& pieces, std::size_t index) {
    return index < pieces.size() ? pieces[index] : std::string();
  };
  requireNumber(result, "staticEnabled", !text.empty());
  requireText(result, "ipStatic", reference::expand(field(inner, 0)));
  requireText(result, "gateway", reference::expand(field(outer, 1)));
  requireText(result, "prefix", text.empty() ? "64" : field(inner, 1));
  unsigned int reports = failures(answers, 1);
  if (!text.empty()) reports += (outer.size() != 2 ? 1 : 0) + (inner.size() != 2 ? 1 : 0);
  require(call.reports == reports, "each thing that is wrong is reported once");
}

void tryAddresses(const Answers& answers) {
  const zval result = returnedBy(get_all_ipv6_addresses);
  Pieces expected = split(answers[0].output, '?');
  for (std::string& address : expected) address = untilNul(address);
  require(result.list == expected, "the addresses are the fields");
}

void tryNameServers(const Answers& answers) {
  zval result = returnedBy(get_network_dns);
  if (faultIsPlanted() && split(answers[0].output, ' ').size() > 2) result.texts["dnsSecondary"] = "";
  const Pieces servers = split(answers[0].output, ' ');
  const bool none = !servers.empty() && servers[0] == "disabled";
  requireText(result, "dnsPrimary", none ? "" : piece(servers, 0));
  requireText(result, "dnsSecondary", piece(servers, 1));
  require(call.reports == failures(answers, 1), "a command that fails is reported once");
}

void tryPort(const Answers& answers) {
  const zval result = returnedBy(get_eth2_port_settings);
  Pieces fields = split(answers[0].output, '?');
  fields.resize(3);
  requireNumber(result, "AutoNegotiate", fields[0] == "on" ? 1 : 0);
  requireNumber(result, "Speed", fields[1] == "10" ? 10 : 100);
  requireNumber(result, "Duplex", fields[2] == "full" ? 1 : fields[2] == "half" ? 0 : -1);
}

// All at once, by the library: every property is there, whatever was said.
void tryAll(const Answers& /*answers*/) {
  const zval result = returnedBy(get_fw_settings);
  require(result.texts.size() == 9 && result.numbers.size() == 10 && result.lists.size() == 1,
          "all properties are there");
  require(call.commands.size() == 7 || call.commands.size() == 8, "each command is run once");
  for (const char* name : {"ipStatic", "ipv6Gateway"}) {
    require(reference::expand(result.texts.at(name)) == result.texts.at(name),
            "an address is in its long form");
  }
}

// An endless text of commands that were asked for is none: what is not asked is not there.
void tryHostName(const Answers& answers) {
  const zval result = returnedBy(get_network_hostname);
  require(result.text == untilNul(answers[0].output), "the name is what the device says");
}

void tryStateless(const Answers& answers) {
  const zval result = returnedBy(is_stateless_enabled);
  requireNumber(result, "returned", answers[0].output == "1");
}

}  // namespace

void tryInput(std::string_view input) {
  if (input.size() < 2) return;
  void (*const functions[])(const Answers&) = {tryIpv4, tryIpv6,     tryAddresses, tryNameServers,
                                               tryPort, tryHostName, tryStateless, tryAll};
  const auto function = functions[static_cast<unsigned char>(input[0]) % std::size(functions)];
  const auto fails = static_cast<unsigned char>(input[1]);
  input.remove_prefix(2);
  constexpr unsigned int MostCommands = 8;
  Answers answers;
  for (unsigned int i = 0; i < MostCommands; ++i) {
    const bool isLast = i + 1 == MostCommands;
    answers.push_back({(fails >> i & 1U) == 0, std::string(isLast ? input : takeLine(input))});
  }
  call = {};
  call.answers.assign(answers.begin(), answers.end());
  function(answers);
}

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

// other: reports of what was said, not of a command that fails.
void requireAsked(const Answers& answers, std::size_t asked, unsigned int other = 0) {
  require(call.commands.size() == asked, "each command is run once");
  unsigned int failures = 0;
  for (std::size_t i = 0; i < asked; ++i) failures += answers[i].succeeded ? 0 : 1;
  require(call.reports == failures + other, "each thing that is wrong is reported once");
}

void tryIpv4(const Answers& answers) {
  const zval result = returnedBy(get_network_configuration_ipv4);
  const bool dhcp = answers[0].output != "??";
  const std::size_t asked = dhcp ? 2 : 3;
  Pieces fields = split(answers[asked - 2].output, '?');
  if (fields.size() != 3) fields.insert(fields.end(), 3, "0.0.0.0");
  requireNumber(result, "dhcpEnabled", dhcp ? 1 : 0);
  requireText(result, "ip", fields[0]);
  requireText(result, "netmask", fields[1]);
  requireText(result, "gateway", fields[2]);
  requireText(result, "hostname", answers[asked - 1].output);
  requireAsked(answers, asked);
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
  unsigned int malformed = 0;
  if (!text.empty()) malformed = (outer.size() != 2 ? 1 : 0) + (inner.size() != 2 ? 1 : 0);
  requireAsked(answers, 1, malformed);
}

void tryAddresses(const Answers& answers) {
  const zval result = returnedBy(get_all_ipv6_addresses);
  Pieces expected = split(answers[0].output, '?');
  for (std::string& address : expected) address = untilNul(address);
  require(result.list == expected, "the addresses are the fields");
  requireAsked(answers, 1);
}

void tryNameServers(const Answers& answers) {
  zval result = returnedBy(get_network_dns);
  if (faultIsPlanted() && split(answers[0].output, ' ').size() > 2) result.texts["dnsSecondary"] = "";
  const Pieces servers = split(answers[0].output, ' ');
  const bool none = !servers.empty() && servers[0] == "disabled";
  requireText(result, "dnsPrimary", none ? "" : piece(servers, 0));
  requireText(result, "dnsSecondary", piece(servers, 1));
  requireAsked(answers, 1);
}

void tryPort(const Answers& answers) {
  const zval result = returnedBy(get_eth2_port_settings);
  Pieces fields = split(answers[0].output, '?');
  fields.resize(3);
  requireNumber(result, "AutoNegotiate", fields[0] == "on" ? 1 : 0);
  requireNumber(result, "Speed", fields[1] == "10" ? 10 : 100);
  requireNumber(result, "Duplex", fields[2] == "full" ? 1 : fields[2] == "half" ? 0 : -1);
  requireAsked(answers, 1);
}

// All at once, by the library. What cannot be read is reported once and has the value that stands for "off".
class Told {
 public:
  // In the order in which they are asked; the last one only where the lease says nothing.
  enum Command { HostName, Lease, Stateless, Ipv6Static, Ipv6Addresses, Dns, Port, Ipv4Static };

  explicit Told(const Answers& answers) : answers_(answers) {}

  // What a command says; nothing when it fails.
  std::string Of(Command command) {
    const DeviceAnswer& answer = answers_[command];
    ++asked_;
    if (!answer.succeeded) ++reports_;
    return answer.succeeded ? answer.output : "";
  }

  // The three fields that a command says.
  Pieces FieldsOf(Command command, const Pieces& otherwise) {
    const bool succeeds = answers_[command].succeeded;
    const Pieces fields = split(Of(command), '?');
    if (succeeds && fields.size() != 3) ++reports_;
    return fields.size() == 3 ? fields : otherwise;
  }

  void Report() { ++reports_; }
  unsigned int Reports() const { return reports_; }
  std::size_t Asked() const { return asked_; }

 private:
  const Answers& answers_;
  std::size_t asked_ = 0;
  unsigned int reports_ = 0;
};

void requireIpv4OfAll(const zval& result, Told& told) {
  const Pieces zeros(3, "0.0.0.0");
  const Pieces off(3);
  Pieces fields = told.FieldsOf(Told::Lease, {});
  requireNumber(result, "dhcpEnabled", !fields.empty() && fields != off ? 1 : 0);
  if (fields == off) fields = told.FieldsOf(Told::Ipv4Static, zeros);
  if (fields.empty() || fields == off) fields = zeros;
  requireText(result, "ip", fields[0]);
  requireText(result, "netmask", fields[1]);
  requireText(result, "gateway", fields[2]);
}

void requireIpv6OfAll(const zval& result, Told& told) {
  requireNumber(result, "statelessEnabled", told.Of(Told::Stateless) == "1" ? 1 : 0);
  const std::string text = told.Of(Told::Ipv6Static);
  const Pieces outer = split(text, '?');
  const Pieces inner = split(outer.empty() ? "" : outer[0], '/');
  const bool isStatic = outer.size() == 2 && inner.size() == 2;
  if (!isStatic && !text.empty()) told.Report();
  requireNumber(result, "staticEnabled", isStatic ? 1 : 0);
  requireText(result, "ipStatic", reference::expand(isStatic ? inner[0] : ""));
  requireText(result, "prefix", isStatic ? inner[1] : "64");
  requireText(result, "ipv6Gateway", reference::expand(isStatic ? outer[1] : ""));
  require(result.lists.at("ipv6Addresses") == split(told.Of(Told::Ipv6Addresses), '?'),
          "the addresses are the fields");
}

void tryAll(const Answers& answers) {
  const zval result = returnedBy(get_fw_settings);
  require(result.texts.size() == 9 && result.numbers.size() == 10 && result.lists.size() == 1,
          "all properties are there");
  Told told(answers);
  requireText(result, "hostname", told.Of(Told::HostName));
  requireIpv4OfAll(result, told);
  requireIpv6OfAll(result, told);
  Pieces servers = split(told.Of(Told::Dns), ' ');
  servers.resize(2);
  requireText(result, "dnsPrimary", servers[0] == "disabled" ? "" : servers[0]);
  requireText(result, "dnsSecondary", servers[1]);
  const Pieces port = told.FieldsOf(Told::Port, {"off", "100", ""});
  requireNumber(result, "AutoNegotiate", port[0] == "on" ? 1 : 0);
  requireNumber(result, "Speed", port[1] == "10" ? 10 : 100);
  requireNumber(result, "Duplex", port[2] == "full" ? 1 : port[2] == "half" ? 0 : -1);
  for (const char* name : {"sslEnabled", "snmpEnabled"}) {
    requireNumber(result, name, 0);
    told.Report();  // the services are not there
  }
  require(call.reports == told.Reports(), "each thing that cannot be read is reported once");
  require(call.commands.size() == told.Asked(), "each command is run once");
}

void tryHostName(const Answers& answers) {
  const zval result = returnedBy(get_network_hostname);
  require(result.text == untilNul(answers[0].output), "the name is what the device says");
  requireAsked(answers, 1);
}

void tryStateless(const Answers& answers) {
  const zval result = returnedBy(is_stateless_enabled);
  requireNumber(result, "returned", answers[0].output == "1" ? 1 : 0);
  requireAsked(answers, 1);
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

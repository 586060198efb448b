// The receivers of SNMP traps, as the management services take them and read them back.
// Input: a line for each receiver that is asked for: transport, port, address, with a blank behind the first
// two. Behind a line "=" come lines as a damaged database may have them: identifier, transport, port,
// address.
#include <sqlite3.h>

#include <cstdlib>
#include <set>

#include "libtarn/string_access.h"
#include "libvelm/app_config.h"
#include "libvelm/copies.h"
#include "libvelm/snmp_rules.h"
#include "platform/MemoryMgmt.h"
#include "reference.h"
#include "target.h"
#include "utility/platform_texts.h"

// The copies of the database are files; they have tests of their own.
void Velm::TryToKeepCopy(Database& /*database*/, const std::string& /*path*/) noexcept {}

namespace {

using TarnAbstract::Result;

constexpr std::size_t MostLines = 6;
constexpr unsigned int NearlyAll = Velm::MostTrapRegistrations - 3;

struct Receiver {
  std::string identifier;
  std::uint32_t transport;
  std::uint32_t port;
  std::string address;
  bool operator==(const Receiver& other) const {
    return identifier == other.identifier && transport == other.transport && port == other.port &&
           address == other.address;
  }
};
using Receivers = std::vector<Receiver>;

class Services {
 public:
  Services() { Run("PRAGMA ignore_check_constraints = ON"); }

  void Empty() { Run("DELETE FROM trap_registrations; DELETE FROM audit"); }

  // With so many that there is room for few others.
  Receivers Fill() {
    Receivers receivers;
    for (std::uint32_t port = 1; port <= NearlyAll; ++port) {
      char identifier[] = "0000000f-0000000f-00000000";
      identifier[sizeof(identifier) - 2] += static_cast<char>(port % 10);
      identifier[sizeof(identifier) - 3] += static_cast<char>(port / 10);
      receivers.push_back({identifier, 1, port, "::1"});
    }
    store_.Change([&](Velm::Database& database) {
      for (const Receiver& receiver : receivers) Insert(database, receiver);
    });
    return receivers;
  }

  // Whether it was taken; then it has its identifier.
  bool Create(Receiver& receiver) {
    Velm::TrapRegistration registration;
    const TarnAbstract::String address(receiver.address.c_str());
    registration.setTransport(static_cast<Velm::eTransportType>(receiver.transport));
    registration.setPort(receiver.port);
    registration.setIPAddress(address);
    const bool created = Result::IsSucceeded(config_->createTrapRegistration(registration));
    receiver.identifier = guidToCString(registration.getTrapID());
    return created;
  }

  void Store(const Receiver& receiver) {
    store_.Change([&](Velm::Database& database) { Insert(database, receiver); });
  }

  bool Read(Receivers& receivers) {
    TarnAbstract::List<Velm::TrapRegistration, 4> list(
        TarnAbstract::TarnMemoryMgmt::getSystemTransientObjHeap());
    if (Result::IsFailed(config_->getTrapRegistrations(list))) return false;
    for (unsigned int index = 0; index < list.Size(); ++index) {
      Velm::TrapRegistration registration;
      list.Item(index, registration);
      receivers.push_back({guidToCString(registration.getTrapID()), registration.getTransport(),
                           registration.getPort(), tarnStringToCString(registration.getIPAddress())});
    }
    return true;
  }

  bool Delete(std::string identifier) {
    TarnAbstract::GUID trapID = cStringToGUID(identifier.data());
    return Result::IsSucceeded(config_->deleteTrapRegistration(trapID));
  }

  // What the agent is configured with, in order.
  reference::Pieces Sinks() {
    reference::Pieces sinks;
    store_.Read([&](Velm::Database& database) {
      Velm::Statement rows = database.Prepare("SELECT receiver FROM trap_sinks");
      while (rows.Step()) sinks.push_back(rows.Text(0));
    });
    return sinks;
  }

 private:
  static void Insert(Velm::Database& database, const Receiver& receiver) {
    database
        .Prepare(
            "INSERT OR IGNORE INTO trap_registrations (identifier, transport, port, address) VALUES (?, ?, "
            "?, ?)")
        .Bind(receiver.identifier)
        .Bind(receiver.transport)
        .Bind(receiver.port)
        .Bind(receiver.address)
        .Step();
  }
  void Run(const char* commands) {
    store_.Change([&](Velm::Database& database) { database.Run(commands); });
  }

  const Velm::Places places_;
  Velm::Store store_{":memory:"};
  const TarnAbstract::sp<Velm::IMgmtAppConfig> config_{new Velm::AppConfig(store_, places_, "fuzz")};
};

std::uint32_t takeNumber(std::string_view& line) {
  const std::size_t end = std::min(line.find(' '), line.size());
  const auto number = std::strtoul(std::string(line.substr(0, end)).c_str(), nullptr, 10);
  line.remove_prefix(std::min(end + 1, line.size()));
  return static_cast<std::uint32_t>(number);
}

Receiver receiverOf(std::string_view line) {
  const std::uint32_t transport = takeNumber(line);
  const std::uint32_t port = takeNumber(line);
  return {"", transport, port, reference::untilNul(std::string(line))};
}

bool isTaken(const Receiver& receiver, const Receivers& taken) {
  const auto address = reference::parseAddress(receiver.address);
  if (!address || receiver.transport < 1 || receiver.transport > 2 || receiver.port < 1 ||
      receiver.port > 65535)
    return false;
  if (taken.size() >= Velm::MostTrapRegistrations) return false;
  return std::none_of(taken.begin(), taken.end(), [&](const Receiver& other) {
    return other.transport == receiver.transport && other.port == receiver.port &&
           reference::parseAddress(other.address) == address;
  });
}

// In the agent's notation, a word of its configuration.
std::string sinkOf(const Receiver& receiver) {
  const bool isIpv6 = !reference::parseIpv4(receiver.address);
  return (receiver.transport == 1 ? "udp" : "tcp") +
         (isIpv6 ? "6:[" + receiver.address + "]" : ":" + receiver.address) + ":" +
         std::to_string(receiver.port);
}

// Begins with the receivers that are there.
void tryCreating(Services& services, Receivers taken, const std::vector<std::string_view>& lines) {
  const std::size_t there = taken.size();
  for (const std::string_view line : lines) {
    Receiver receiver = receiverOf(line);
    const bool created = services.Create(receiver);
    require(created == isTaken(receiver, taken),
            "a receiver is taken that is one, is another one, and has room");
    if (created) taken.push_back(receiver);
  }
  Receivers stored;
  require(services.Read(stored), "what was taken can be read");
  if (faultIsPlanted() && stored.size() == 3) stored[1].port ^= 1U;
  require(stored == taken, "the receivers are those that were taken, in their order");
  std::set<std::string> identifiers;
  reference::Pieces sinks;
  for (const Receiver& receiver : taken) {
    require(identifiers.insert(receiver.identifier).second, "each has an identifier of its own");
    sinks.push_back(sinkOf(receiver));
  }
  require(services.Sinks() == sinks, "each is one word for the agent");
  for (std::size_t i = there; i < taken.size(); ++i) {
    require(services.Delete(taken[i].identifier), "each can be deleted by its identifier");
  }
}

bool isIdentifier(const std::string& text) {
  const reference::Pieces groups = reference::split(text, '-');
  return groups.size() == 3 && std::all_of(groups.begin(), groups.end(), [](const std::string& group) {
           return group.size() == 8 && group.find_first_not_of("0123456789abcdef") == std::string::npos;
         });
}

// Of rows that others wrote all are read as they are, or, when an identifier among them is none, no row is.
void tryReading(Services& services, const std::vector<std::string_view>& lines) {
  Receivers expected;
  std::set<std::string> identifiers;
  bool inOrder = true;
  for (std::string_view line : lines) {
    const std::size_t end = std::min(line.find(' '), line.size());
    const std::string identifier = reference::untilNul(std::string(line.substr(0, end)));
    line.remove_prefix(std::min(end + 1, line.size()));
    Receiver receiver = receiverOf(line);
    receiver.identifier = identifier;
    services.Store(receiver);
    inOrder = inOrder && isIdentifier(identifier);
    if (identifiers.insert(identifier).second) expected.push_back(receiver);
  }
  Receivers stored;
  require(services.Read(stored) == inOrder, "rows can be read exactly when each identifier is one");
  require(stored == (inOrder ? expected : Receivers()), "every row is read as it is");
  for (const Receiver& receiver : stored) {
    require(services.Delete(receiver.identifier), "what can be read can be deleted");
  }
}

}  // namespace

void tryInput(std::string_view input) {
  static auto* const services = new Services;
  services->Empty();
  Receivers there;
  if (!input.empty() && input[0] == '+') {
    there = services->Fill();
    takeLine(input);
  }
  std::vector<std::string_view> asked;
  std::vector<std::string_view> damaged;
  auto* lines = &asked;
  while (!input.empty() && asked.size() + damaged.size() < MostLines) {
    const std::string_view line = takeLine(input);
    if (line == "=") {
      lines = &damaged;
    } else {
      lines->push_back(line);
    }
  }
  tryCreating(*services, there, asked);
  if (!there.empty()) services->Empty();
  tryReading(*services, damaged);
}

#include "libvelm/app_config.h"

#include <sys/random.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstring>
#include <optional>
#include <utility>
#include <vector>

#include "address_rules/addresses.h"
#include "libtarn/identifier_text.h"
#include "libtarn/string_access.h"
#include "libvelm/file_lock.h"
#include "libvelm/script.h"
#include "libvelm/service_error.h"
#include "libvelm/snmp_rules.h"
#include "libvelm/trap_registration_access.h"

namespace Velm {
namespace {

using TarnAbstract::GUID;
using TarnAbstract::Result;
using TarnAbstract::StringAccess;

// Changes of the mode wait for one another; making a key takes long on a slow device.
constexpr std::chrono::seconds PatienceForTheMode(60);

constexpr char SSLEnabledQuery[] = "SELECT ssl_enabled FROM settings";

std::string ToText(bool enabled) { return enabled ? "enabled" : "disabled"; }

std::string ToText(const GUID& identifier) {
  std::string text(TarnAbstract::IdentifierTextLength, '\0');
  TarnAbstract::writeIdentifier(identifier, text.data());
  return text;
}

GUID ToIdentifier(const std::string& text) {
  GUID identifier;
  // Another text could be read as an identifier, too, but not be found by it again.
  if (!TarnAbstract::readIdentifier(text.c_str(), identifier) || ToText(identifier) != text)
    throw ServiceError("stored identifier '" + Excerpt(text) + "' is no identifier");
  return identifier;
}

// Zero stands for "no identifier".
GUID NewIdentifier() {
  std::uint32_t words[3] = {0, 0, 0};
  while (words[0] == 0 && words[1] == 0 && words[2] == 0) {
    if (getrandom(words, sizeof(words), 0) < 0 && errno != EINTR) {
      throw ServiceError(std::string("no random identifier: ") + std::strerror(errno));
    }
  }
  return {words[0], words[1], words[2]};
}

template <class T>
T Element(const TarnAbstract::List<T, 4>& list, unsigned int index) {
  T element = T();
  const Result::Code code = list.Item(index, element);
  if (Result::IsFailed(code)) {
    throw ServiceError("element " + std::to_string(index) + " of the list cannot be read", code);
  }
  return element;
}

template <class T>
void AppendAll(TarnAbstract::List<T, 4>& list, const std::vector<T>& elements) {
  for (const T& element : elements) {
    const Result::Code code = list.Append(element);
    if (Result::IsFailed(code)) throw ServiceError("the caller's list takes no further element", code);
  }
}

std::vector<eSNMPVersion> ToVector(const TarnAbstract::List<eSNMPVersion, 4>& versions) {
  std::vector<eSNMPVersion> elements;
  elements.reserve(versions.Size());
  for (unsigned int index = 0; index < versions.Size(); ++index) elements.push_back(Element(versions, index));
  return elements;
}

std::string ToText(const std::vector<eSNMPVersion>& versions) {
  std::string text;
  for (const std::uint32_t version : versions) text += (text.empty() ? "" : " ") + std::to_string(version);
  return text;
}

TrapRegistration ToRegistration(const Statement& row) {
  TrapRegistration registration;
  TarnAbstract::String address;
  StringAccess::Assign(address, row.Text(2).c_str());
  TrapRegistrationAccess::SetTrapID(registration, ToIdentifier(row.Text(0)));
  registration.setTransport(static_cast<eTransportType>(row.Integer(1)));
  registration.setIPAddress(address);
  registration.setPort(static_cast<unsigned int>(row.Integer(3)));
  return registration;
}

// Nothing is stored where there is nothing to update.
void RequireChangedSettings(const Database& database) {
  if (database.Changes() == 0) throw Damaged("the settings are missing in the database");
}

void RequireRoomForATrapRegistration(Database& database) {
  Statement count = database.Prepare("SELECT count(*) FROM trap_registrations");
  count.Step();
  if (count.Integer(0) >= MostTrapRegistrations) {
    throw Refused("there are " + std::to_string(count.Integer(0)) +
                      " trap registrations already, which is the most; delete one first",
                  Result::CapacityOverflow);
  }
}

bool IsSameAddress(const std::string& one, const std::string& other) {
  AddressRules::Address addresses[2] = {};
  return AddressRules::ParseAddress({one.data(), one.size()}, addresses[0]) &&
         AddressRules::ParseAddress({other.data(), other.size()}, addresses[1]) &&
         AddressRules::SamePrefix(AddressRules::AddressBits, addresses[0], addresses[1]);
}

void RequireNoSuchTrapRegistration(Database& database, std::uint32_t transport, const std::string& address,
                                   std::uint32_t port) {
  Statement rows =
      database.Prepare("SELECT identifier, address FROM trap_registrations WHERE transport = ? AND port = ?");
  rows.Bind(transport).Bind(port);
  while (rows.Step()) {
    if (IsSameAddress(rows.Text(1), address)) {
      throw Refused("there is one already: trap registration " + rows.Text(0));
    }
  }
}

}  // namespace

AppConfig::AppConfig(Store& store, const Places& places, std::string user)
    : store_(store), places_(places), user_(std::move(user)) {}

void AppConfig::Change(const char* operation, const std::string& values,
                       const std::function<void(Database&)>& work) {
  std::optional<Refused> refusal;
  store_.Change([&](Database& database) {
    try {
      work(database);
    } catch (const Refused& reason) {
      refusal = reason;
    }
    database.Prepare(R"(INSERT INTO audit (user, operation, "values", result) VALUES (?, ?, ?, ?))")
        .Bind(Excerpt(user_))
        .Bind(operation)
        .Bind(values)
        .Bind(refusal ? std::string("refused: ") + refusal->what() : "stored")
        .Step();
  });
  if (refusal) throw Refused(*refusal);
}

std::int64_t AppConfig::ReadInteger(const char* query) {
  std::int64_t value = 0;
  store_.Read([&](Database& database) {
    Statement statement = database.Prepare(query);
    if (!statement.Step()) throw Damaged("the settings are missing in the database");
    value = statement.Integer(0);
  });
  return value;
}

Result::Code AppConfig::setSNMPVersions(const TarnAbstract::List<eSNMPVersion, 4>& versions) {
  return Answer("setSNMPVersions", [&] {
    const std::vector<eSNMPVersion> wanted = ToVector(versions);
    Change("setSNMPVersions", Excerpt(ToText(wanted)), [&](Database& database) {
      for (const eSNMPVersion version : wanted) RequireSNMPVersion(version);
      database.Run("DELETE FROM snmp_versions");
      for (const eSNMPVersion version : wanted) {
        database.Prepare("INSERT OR IGNORE INTO snmp_versions (version) VALUES (?)").Bind(version).Step();
      }
    });
  });
}

Result::Code AppConfig::getSNMPVersions(TarnAbstract::List<eSNMPVersion, 4>& versions) {
  return Answer("getSNMPVersions", [&] {
    std::vector<eSNMPVersion> stored;
    store_.Read([&](Database& database) {
      Statement rows = database.Prepare("SELECT version FROM snmp_versions ORDER BY version");
      while (rows.Step()) stored.push_back(static_cast<eSNMPVersion>(rows.Integer(0)));
    });
    AppendAll(versions, stored);
  });
}

Result::Code AppConfig::setSSLEnabled(bool enabled) {
  return Answer("setSSLEnabled", [&] {
    store_.Read([](Database&) {});  // where there are no settings there is nothing to lock either
    // From the first read to the last step, also over processes.
    const FileLock turn(places_.database + ".ssl_lock", PatienceForTheMode);
    // Where the web service is not managed, the stored mode is all there is.
    const bool isManaged = access(places_.applyWebMode.c_str(), F_OK) == 0;
    StoreSSLEnabled(enabled, isManaged);
    if (!isManaged) return;
    try {
      RunScript(places_.applyWebMode);
    } catch (const ServiceError&) {
      // Where that fails it is said, too; the change fails with the first reason.
      static_cast<void>(Answer("setSSLEnabled", [&] { GoBackToTheModeOfBefore(); }));
      throw;
    }
    ForgetTheModeOfBefore();
  });
}

// The mode of before stays beside the new one until the web service has followed. One that is there already
// is of a change that was interrupted: the last mode in which the web service is known to have been.
void AppConfig::StoreSSLEnabled(bool enabled, bool keepsTheModeOfBefore) {
  Change("setSSLEnabled", ToText(enabled), [&](Database& database) {
    database
        .Prepare(
            "UPDATE settings SET ssl_enabled = ?, ssl_enabled_before = "
            "iif(?, ifnull(ssl_enabled_before, ssl_enabled), NULL)")
        .Bind(std::int64_t{enabled})
        .Bind(std::int64_t{keepsTheModeOfBefore})
        .Step();
    RequireChangedSettings(database);
  });
}

// What is stored is what is read as the mode in force.
void AppConfig::GoBackToTheModeOfBefore() {
  std::string values;
  Change("setSSLEnabled", values, [&](Database& database) {
    database.Run(
        "UPDATE settings SET ssl_enabled = ifnull(ssl_enabled_before, ssl_enabled), ssl_enabled_before = "
        "NULL");
    RequireChangedSettings(database);
    Statement mode = database.Prepare(SSLEnabledQuery);
    mode.Step();
    values = ToText(mode.Integer(0) != 0) + ", as before: the web service did not follow";
  });
  try {
    // A script that was killed may have gone half the way.
    RunScript(places_.applyWebMode);
  } catch (const ServiceError&) {
    // What the change fails with is why the first one failed; the next start brings both into line.
  }
}

// The change is done. A mode that stays matters only to a start that cannot bring the new one into force.
void AppConfig::ForgetTheModeOfBefore() {
  Answer("setSSLEnabled", [&] {
    store_.Change([](Database& database) { database.Run("UPDATE settings SET ssl_enabled_before = NULL"); });
  });
}

Result::Code AppConfig::getSSLEnabled(std::uint32_t& enabled) {
  return Answer("getSSLEnabled", [&] { enabled = ReadInteger(SSLEnabledQuery) != 0 ? 1 : 0; });
}

Result::Code AppConfig::createTrapRegistration(TrapRegistration& registration) {
  return Answer("createTrapRegistration", [&] {
    const std::string address = StringAccess::Text(registration.getIPAddress());
    const std::uint32_t transport = registration.getTransport();
    const std::uint32_t port = registration.getPort();
    const GUID identifier = NewIdentifier();
    std::string values = "transport " + std::to_string(transport) + ", address " + Excerpt(address) +
                         ", port " + std::to_string(port);
    Change("createTrapRegistration", values, [&](Database& database) {
      RequireTrapReceiver(transport, address, port);
      RequireRoomForATrapRegistration(database);
      RequireNoSuchTrapRegistration(database, transport, address, port);
      database
          .Prepare(
              "INSERT INTO trap_registrations (identifier, transport, address, port) VALUES (?, ?, ?, ?)")
          .Bind(ToText(identifier))
          .Bind(transport)
          .Bind(address)
          .Bind(port)
          .Step();
      values += ", id " + ToText(identifier);
    });
    TrapRegistrationAccess::SetTrapID(registration, identifier);
  });
}

Result::Code AppConfig::deleteTrapRegistration(GUID& trapID) {
  return Answer("deleteTrapRegistration", [&] {
    const std::string identifier = ToText(trapID);
    Change("deleteTrapRegistration", "id " + identifier, [&](Database& database) {
      database.Prepare("DELETE FROM trap_registrations WHERE identifier = ?").Bind(identifier).Step();
      if (database.Changes() == 0) {
        throw Refused("there is no trap registration " + identifier, Result::ElementNotFound);
      }
    });
  });
}

Result::Code AppConfig::getTrapRegistrations(TarnAbstract::List<TrapRegistration, 4>& registrations) {
  return Answer("getTrapRegistrations", [&] {
    std::vector<TrapRegistration> stored;
    store_.Read([&](Database& database) {
      Statement rows = database.Prepare(
          "SELECT identifier, transport, address, port FROM trap_registrations ORDER BY number");
      while (rows.Step()) stored.push_back(ToRegistration(rows));
    });
    AppendAll(registrations, stored);
  });
}

Result::Code AppConfig::restartSNMP() {
  return Answer("restartSNMP", [&] { RunScript(places_.restartSNMP); });
}

Result::Code AppConfig::setReadCommunity(TarnAbstract::String& community) {
  return Answer("setReadCommunity", [&] {
    const std::string text = StringAccess::Text(community);
    Change("setReadCommunity", Excerpt(text), [&](Database& database) {
      RequireCommunity(text);
      database.Prepare("UPDATE settings SET read_community = ?").Bind(text).Step();
      RequireChangedSettings(database);
    });
  });
}

Result::Code AppConfig::getReadCommunity(TarnAbstract::String& community) {
  return Answer("getReadCommunity", [&] {
    store_.Read([&](Database& database) {
      Statement statement = database.Prepare("SELECT read_community FROM settings");
      if (!statement.Step()) throw Damaged("the settings are missing in the database");
      StringAccess::Assign(community, statement.Text(0).c_str());
    });
  });
}

Result::Code AppConfig::setAuthTrapsEnabled(bool enabled) {
  return Answer("setAuthTrapsEnabled", [&] {
    Change("setAuthTrapsEnabled", ToText(enabled), [&](Database& database) {
      database.Prepare("UPDATE settings SET auth_traps_enabled = ?").Bind(std::int64_t{enabled}).Step();
      RequireChangedSettings(database);
    });
  });
}

Result::Code AppConfig::getAuthTrapsEnabled(bool& enabled) {
  return Answer("getAuthTrapsEnabled",
                [&] { enabled = ReadInteger("SELECT auth_traps_enabled FROM settings") != 0; });
}

}  // namespace Velm

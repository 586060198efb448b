#include "libvelm/app_config.h"

#include <sys/random.h>
#include <unistd.h>

#include <cerrno>
#include <cinttypes>
#include <cstdio>
#include <cstring>
#include <optional>
#include <utility>
#include <vector>

#include "libtarn/string_access.h"
#include "libvelm/script.h"
#include "libvelm/service_error.h"
#include "libvelm/snmp_rules.h"
#include "libvelm/trap_registration_access.h"

namespace Velm {
namespace {

using TarnAbstract::GUID;
using TarnAbstract::Result;
using TarnAbstract::StringAccess;

constexpr char SSLEnabledQuery[] = "SELECT ssl_enabled FROM settings";

std::string ToText(bool enabled) { return enabled ? "enabled" : "disabled"; }

std::string ToText(const GUID& identifier) {
  char text[3 * 9] = "";
  static_cast<void>(std::snprintf(text, sizeof(text), "%08" PRIx32 "-%08" PRIx32 "-%08" PRIx32,
                                  identifier.Word(0), identifier.Word(1), identifier.Word(2)));
  return text;
}

GUID ToIdentifier(const std::string& text) {
  std::uint32_t words[3] = {0, 0, 0};
  // NOLINTNEXTLINE(cert-err34-c): only ToText writes such a text
  if (std::sscanf(text.c_str(), "%" SCNx32 "-%" SCNx32 "-%" SCNx32, &words[0], &words[1], &words[2]) != 3) {
    throw ServiceError("stored identifier '" + Excerpt(text) + "' is no identifier");
  }
  return {words[0], words[1], words[2]};
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

void RequireRoomForATrapRegistration(Database& database) {
  Statement count = database.Prepare("SELECT count(*) FROM trap_registrations");
  count.Step();
  if (count.Integer(0) >= MostTrapRegistrations) {
    throw Refused("there are " + std::to_string(count.Integer(0)) +
                      " trap registrations already, which is the most; delete one first",
                  Result::CapacityOverflow);
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
    if (!statement.Step()) throw ServiceError("the settings are missing in the database");
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
    const bool before = ReadInteger(SSLEnabledQuery) != 0;
    StoreSSLEnabled(enabled, "");
    // Where the web service is not managed, the stored mode is all there is.
    if (access(places_.applyWebMode.c_str(), F_OK) != 0) return;
    try {
      RunScript(places_.applyWebMode);
    } catch (const ServiceError&) {
      // What is stored is what is read as the mode in force.
      StoreSSLEnabled(before, ", as before: the web service did not follow");
      throw;
    }
  });
}

void AppConfig::StoreSSLEnabled(bool enabled, const std::string& why) {
  Change("setSSLEnabled", ToText(enabled) + why, [&](Database& database) {
    database.Prepare("UPDATE settings SET ssl_enabled = ?").Bind(std::int64_t{enabled}).Step();
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
    });
  });
}

Result::Code AppConfig::getReadCommunity(TarnAbstract::String& community) {
  return Answer("getReadCommunity", [&] {
    store_.Read([&](Database& database) {
      Statement statement = database.Prepare("SELECT read_community FROM settings");
      if (!statement.Step()) throw ServiceError("the settings are missing in the database");
      StringAccess::Assign(community, statement.Text(0).c_str());
    });
  });
}

Result::Code AppConfig::setAuthTrapsEnabled(bool enabled) {
  return Answer("setAuthTrapsEnabled", [&] {
    Change("setAuthTrapsEnabled", ToText(enabled), [&](Database& database) {
      database.Prepare("UPDATE settings SET auth_traps_enabled = ?").Bind(std::int64_t{enabled}).Step();
    });
  });
}

Result::Code AppConfig::getAuthTrapsEnabled(bool& enabled) {
  return Answer("getAuthTrapsEnabled",
                [&] { enabled = ReadInteger("SELECT auth_traps_enabled FROM settings") != 0; });
}

}  // namespace Velm

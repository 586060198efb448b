#include "libvelm/schema.h"

namespace Velm {
namespace {

constexpr const char* WebServiceAndAudit = R"sql(
CREATE TABLE settings (
  only_row INTEGER PRIMARY KEY CHECK (only_row = 1),
  ssl_enabled INTEGER NOT NULL DEFAULT 0 CHECK (ssl_enabled IN (0, 1))
);
INSERT INTO settings (only_row) VALUES (1);

CREATE TABLE audit (
  number INTEGER PRIMARY KEY AUTOINCREMENT,
  time TEXT NOT NULL DEFAULT (strftime('%Y-%m-%dT%H:%M:%fZ', 'now')),
  user TEXT NOT NULL,
  operation TEXT NOT NULL,
  "values" TEXT NOT NULL,
  result TEXT NOT NULL -- 'stored', or 'refused: ' and why
);
)sql";

// The two views are for who configures the agent: trap_sinks.receiver is a transport address in the
// agent's own notation.
constexpr const char* SNMPAgent = R"sql(
ALTER TABLE settings ADD COLUMN read_community TEXT NOT NULL DEFAULT 'public';
ALTER TABLE settings ADD COLUMN auth_traps_enabled INTEGER NOT NULL DEFAULT 0
  CHECK (auth_traps_enabled IN (0, 1));

CREATE TABLE snmp_versions (
  version INTEGER PRIMARY KEY CHECK (version BETWEEN 1 AND 5)
);
INSERT INTO snmp_versions (version) VALUES (1), (2), (3), (4);

CREATE TABLE trap_registrations (
  number INTEGER PRIMARY KEY AUTOINCREMENT,
  identifier TEXT NOT NULL UNIQUE,
  transport INTEGER NOT NULL CHECK (transport IN (1, 2)),
  address TEXT NOT NULL,
  port INTEGER NOT NULL CHECK (port BETWEEN 1 AND 65535)
);

CREATE VIEW snmp_agent AS SELECT
  1 IN (SELECT version FROM snmp_versions) AS version1,
  2 IN (SELECT version FROM snmp_versions) AS version2,
  3 IN (SELECT version FROM snmp_versions) AS version3,
  4 IN (SELECT version FROM snmp_versions) AS trap1,
  5 IN (SELECT version FROM snmp_versions) AS trap2,
  auth_traps_enabled,
  read_community
FROM settings;

CREATE VIEW trap_sinks AS SELECT
  number,
  iif(transport = 1, 'udp', 'tcp')
    || iif(instr(address, ':') > 0, '6:[' || address || ']', ':' || address)
    || ':' || port AS receiver
FROM trap_registrations ORDER BY number;
)sql";

// The mode of before, while a change of the mode is brought to the web service: what is left of it when the
// change was interrupted tells the start what to go back to.
constexpr const char* InterruptedModeChange = R"sql(
ALTER TABLE settings ADD COLUMN ssl_enabled_before INTEGER CHECK (ssl_enabled_before IN (0, 1));
)sql";

// Whoever inserts a row, the oldest go first.
constexpr const char* EndOfTheAudit = R"sql(
CREATE TRIGGER audit_keeps_its_newest_rows AFTER INSERT ON audit BEGIN
  DELETE FROM audit WHERE number <= NEW.number - 10000;
END;
)sql";

}  // namespace

const std::vector<const char*>& SchemaSteps() {
  static const auto* const steps =
      new std::vector<const char*>{WebServiceAndAudit, SNMPAgent, InterruptedModeChange, EndOfTheAudit};
  return *steps;
}

}  // namespace Velm

// connectionLimits PORT...: ends connections to these ports of this machine that go beyond a limit: too many
// of one client, too many in all, a request that is still being sent long after it began, an answer that is
// not taken. The web server has no such limits. Stays in the foreground. A kernel that cannot end a
// connection of somebody else's is complained about once.
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <set>

#include "connection_limits/client_connections.h"
#include "connection_limits/socket_table.h"

namespace {

// Browsers open six, and a moment's worth of what a client opens beyond that is there until the next look.
constexpr Limits WebService = {64, 1024, 20, 300};
constexpr unsigned SecondsBetweenLooks = 1;

std::uint64_t secondsNow() {
  timespec now = {};
  clock_gettime(CLOCK_MONOTONIC, &now);
  return static_cast<std::uint64_t>(now.tv_sec);
}

void complainOnce(const char* what, int error) {
  static bool hasComplained = false;
  if (hasComplained) return;
  hasComplained = true;
  static_cast<void>(std::fprintf(stderr, "connectionLimits: %s: %s\n", what, std::strerror(error)));
}

void endThoseBeyondLimits(SocketTable& table, ClientConnections& connections,
                          const std::set<std::uint16_t>& ports) {
  connections.Begin(secondsNow());
  const bool isWhole = table.ForEach([&](const Connection& connection) {
    if (ports.count(connection.OwnPort()) != 0) connections.See(connection);
  });
  if (!isWhole) {
    complainOnce("the kernel does not show the connections", errno);
    return;
  }
  for (const Connection& connection : connections.BeyondLimits()) {
    const int error = table.End(connection);
    // It may have ended by itself.
    if (error != 0 && error != ENOENT) complainOnce("a connection beyond the limits cannot be ended", error);
  }
}

}  // namespace

int main(int count, char** arguments) {
  std::set<std::uint16_t> ports;
  for (int i = 1; i < count; ++i) {
    const long port = std::strtol(arguments[i], nullptr, 10);
    if (port < 1 || port > 65535) count = 0;
    ports.insert(static_cast<std::uint16_t>(port));
  }
  if (count < 2) {
    static_cast<void>(std::fputs("usage: connectionLimits PORT...\n", stderr));
    return 2;
  }
  SocketTable table;
  ClientConnections connections(WebService);
  for (;; sleep(SecondsBetweenLooks)) endThoseBeyondLimits(table, connections, ports);
}

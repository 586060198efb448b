// What is known of the connections of the web service from one look to the next, and which of them go beyond
// a limit.
#pragma once

#include <cstdint>
#include <map>
#include <vector>

#include "connection_limits/socket_table.h"

struct Limits {
  unsigned perClient;       // connections of one address, or of one network of IPv6
  unsigned inAll;           // of all clients
  unsigned requestSeconds;  // from the first byte of a request to its last one
  unsigned answerSeconds;   // until the client has taken all that is sent to it
};

class ClientConnections {
 public:
  explicit ClientConnections(const Limits& limits) : limits_(limits) {}

  // A look at the table: Begin, See for each connection, and the ones to be ended. The time only goes on.
  void Begin(std::uint64_t second);
  void See(const Connection& connection);
  std::vector<Connection> BeyondLimits();

 private:
  struct Known {
    Connection connection;
    std::uint64_t number;  // in the order in which they were seen first
    std::uint64_t requestBegan;
    std::uint64_t answerBegan;  // when all that was sent to it was taken, the last time
    bool isAsking;              // has sent something since it last got something
    bool isSending;             // has sent something since the last look
    std::uint64_t seen;
  };

  bool TakesTooLong(const Known& known) const;
  void Forget();

  const Limits limits_;
  std::map<std::uint64_t, Known> known_;  // by cookie
  std::uint64_t now_ = 0;
  std::uint64_t looks_ = 0;
  std::uint64_t numbers_ = 0;
};

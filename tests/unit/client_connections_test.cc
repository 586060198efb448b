// Which connections to the web service go beyond a limit.
#include "connection_limits/client_connections.h"

#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <sys/socket.h>

#include <cstdint>
#include <string>
#include <vector>

namespace {

constexpr Limits Small = {3, 5, 20};

// The connection of that number, of a client that has sent and got so many bytes on it.
Connection connection(std::uint32_t number, const std::string& client, std::uint64_t received = 1,
                      std::uint64_t sent = 0) {
  Connection result = {};
  result.id.idiag_cookie[0] = number;
  result.family = client.find(':') == std::string::npos ? AF_INET : AF_INET6;
  inet_pton(result.family, client.c_str(), result.id.idiag_dst);
  result.received = received;
  result.sent = sent;
  return result;
}

using Numbers = std::vector<std::uint32_t>;

Numbers beyond(ClientConnections& connections, std::uint64_t second, const std::vector<Connection>& all) {
  connections.Begin(second);
  for (const Connection& one : all) connections.See(one);
  Numbers numbers;
  for (const Connection& one : connections.BeyondLimits()) numbers.push_back(one.id.idiag_cookie[0]);
  return numbers;
}

TEST(ClientConnections, EndsTheNewestOfAClientBeyondItsShare) {
  ClientConnections connections(Small);
  const auto own = [](std::uint32_t number) { return connection(number, "10.20.0.2"); };
  EXPECT_EQ(Numbers(), beyond(connections, 1, {own(1), own(2), own(3), connection(4, "10.20.0.3")}));
  // The kernel shows them in any order.
  EXPECT_EQ(Numbers({5}),
            beyond(connections, 2, {own(5), own(3), own(1), own(2), connection(4, "10.20.0.3")}));
}

TEST(ClientConnections, GivesTheShareOfOneThatHasEndedToTheNext) {
  ClientConnections connections(Small);
  const auto own = [](std::uint32_t number) { return connection(number, "10.20.0.2"); };
  EXPECT_EQ(Numbers(), beyond(connections, 1, {own(1), own(2), own(3)}));
  EXPECT_EQ(Numbers(), beyond(connections, 2, {own(2), own(3), own(4)}));
}

TEST(ClientConnections, TakesANetworkOfIPv6ForOneClient) {
  ClientConnections connections(Small);
  EXPECT_EQ(Numbers({4}), beyond(connections, 1,
                                 {connection(1, "2001:db8:20::1"), connection(2, "2001:db8:20::2"),
                                  connection(3, "2001:db8:20:0:ffff::1"), connection(4, "2001:db8:20::4"),
                                  connection(5, "2001:db8:20:1::1")}));
}

TEST(ClientConnections, EndsOfTooManyInAllThoseThatHaveWaitedLongest) {
  ClientConnections connections(Small);
  const auto waiting = [](std::uint32_t number) {
    return connection(number, "10.20.0." + std::to_string(number));
  };
  std::vector<Connection> all = {waiting(1), waiting(2), waiting(3), waiting(4), waiting(5)};
  EXPECT_EQ(Numbers(), beyond(connections, 1, all));
  // The first one has got an answer since, and asks again.
  all[0] = connection(1, "10.20.0.1", 200, 3000);
  EXPECT_EQ(Numbers(), beyond(connections, 2, all));
  all.push_back(waiting(6));
  all.push_back(waiting(7));
  EXPECT_EQ(Numbers({2, 3}), beyond(connections, 3, all));
}

TEST(ClientConnections, EndsARequestThatIsSentForTooLong) {
  ClientConnections connections(Small);
  for (std::uint64_t second = 0; second <= Small.requestSeconds; ++second) {
    EXPECT_EQ(Numbers(), beyond(connections, 100 + second, {connection(1, "10.20.0.2", 1 + second)}));
  }
  EXPECT_EQ(Numbers({1}), beyond(connections, 121, {connection(1, "10.20.0.2", 22)}));
}

TEST(ClientConnections, WaitsForAnAnswerHoweverLongItTakes) {
  ClientConnections connections(Small);
  for (std::uint64_t second = 0; second < 300; ++second) {
    EXPECT_EQ(Numbers(), beyond(connections, second, {connection(1, "10.20.0.2", 400)}));
  }
}

TEST(ClientConnections, CountsTheTimeOfEachRequestByItself) {
  ClientConnections connections(Small);
  // A request every second for a minute, each answered.
  for (std::uint64_t second = 0; second < 60; ++second) {
    EXPECT_EQ(Numbers(),
              beyond(connections, second, {connection(1, "10.20.0.2", 400 * (second + 1), 3000 * second)}));
  }
}

}  // namespace

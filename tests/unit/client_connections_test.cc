// Which connections to the web service go beyond a limit.
#include "connection_limits/client_connections.h"

#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <sys/socket.h>

#include <cstdint>
#include <string>
#include <vector>

namespace {

constexpr Limits Small = {3, 5, 20, 300};

// The connection of that number, of a client that has sent and got so many bytes on it, and has still to
// get others.
Connection connection(std::uint32_t number, const std::string& client, std::uint64_t received = 1,
                      std::uint64_t sent = 0, std::uint32_t queued = 0) {
  Connection result = {};
  result.id.idiag_cookie[0] = number;
  result.family = client.find(':') == std::string::npos ? AF_INET : AF_INET6;
  inet_pton(result.family, client.c_str(), result.id.idiag_dst);
  result.received = received;
  result.sent = sent;
  result.queued = queued;
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

TEST(ClientConnections, EndsThoseOfTheAddressWithTheMostOfANetwork) {
  ClientConnections connections(Small);
  const auto of = [](std::uint32_t number, const std::string& end) {
    return connection(number, "2001:db8:20::" + end);
  };
  EXPECT_EQ(Numbers(), beyond(connections, 1, {of(1, "bad"), of(2, "bad"), of(3, "bad")}));
  // Neighbours who come later.
  EXPECT_EQ(Numbers({3}), beyond(connections, 2, {of(1, "bad"), of(2, "bad"), of(3, "bad"), of(4, "a")}));
  EXPECT_EQ(Numbers({2}), beyond(connections, 3, {of(1, "bad"), of(2, "bad"), of(4, "a"), of(5, "b")}));
  // Of addresses that have as many as one another the newest goes.
  EXPECT_EQ(Numbers({6}), beyond(connections, 4, {of(1, "bad"), of(4, "a"), of(5, "b"), of(6, "c")}));
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

// Each second a byte of the answer of before is taken, and one of the next request is sent; or one after the
// other.
TEST(ClientConnections, IsNotHeldUpByAnAnswerThatIsTakenSlowly) {
  ClientConnections together(Small);
  for (std::uint64_t second = 0; second <= Small.requestSeconds; ++second) {
    EXPECT_EQ(Numbers(),
              beyond(together, second, {connection(1, "10.20.0.2", 400 + second, 1 + second, 9000)}));
  }
  EXPECT_EQ(Numbers({1}), beyond(together, 21, {connection(1, "10.20.0.2", 421, 22, 9000)}));

  ClientConnections inTurn(Small);
  for (std::uint64_t second = 0; second <= Small.requestSeconds; ++second) {
    const Connection one = connection(1, "10.20.0.2", 400 + second / 2, 1 + (second + 1) / 2, 9000);
    EXPECT_EQ(Numbers(), beyond(inTurn, second, {one}));
  }
  EXPECT_EQ(Numbers(), beyond(inTurn, 21, {connection(1, "10.20.0.2", 410, 12, 9000)}));
  EXPECT_EQ(Numbers({1}), beyond(inTurn, 22, {connection(1, "10.20.0.2", 411, 12, 9000)}));
}

TEST(ClientConnections, TakesAShortAnswerForOne) {
  ClientConnections connections(Small);
  for (std::uint64_t second = 0; second < 60; ++second) {
    EXPECT_EQ(Numbers(),
              beyond(connections, second, {connection(1, "10.20.0.2", 400 * (second + 1), 200 * second)}));
  }
}

TEST(ClientConnections, EndsAnAnswerThatIsNotTaken) {
  ClientConnections connections(Small);
  for (std::uint64_t second = 0; second <= Small.answerSeconds; ++second) {
    EXPECT_EQ(Numbers(), beyond(connections, second, {connection(1, "10.20.0.2", 400, second, 9000)}));
  }
  EXPECT_EQ(Numbers({1}), beyond(connections, 301, {connection(1, "10.20.0.2", 400, 301, 9000)}));
}

TEST(ClientConnections, LeavesWhoHasTakenItsAnswerItsTime) {
  ClientConnections connections(Small);
  const auto with = [](std::uint32_t queued) { return connection(1, "10.20.0.2", 400, 9000, queued); };
  EXPECT_EQ(Numbers(), beyond(connections, 0, {with(9000)}));
  EXPECT_EQ(Numbers(), beyond(connections, 200, {with(0)}));
  EXPECT_EQ(Numbers(), beyond(connections, 500, {with(9000)}));
  EXPECT_EQ(Numbers({1}), beyond(connections, 501, {with(9000)}));
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

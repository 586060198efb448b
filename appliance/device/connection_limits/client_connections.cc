#include "connection_limits/client_connections.h"

#include <sys/socket.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <tuple>
#include <utility>

namespace {

// An address of IPv4; the first half of one of IPv6, because a client there has a whole network of them.
using Client = std::tuple<std::uint8_t, std::uint32_t, std::uint32_t>;
// Of a client, which may be many.
using Address = std::array<std::uint32_t, 2>;

Client clientOf(const Connection& connection) {
  const auto& address = connection.id.idiag_dst;
  return {connection.family, address[0], connection.family == AF_INET6 ? address[1] : 0};
}

Address addressOf(const Connection& connection) {
  const auto& address = connection.id.idiag_dst;
  return connection.family == AF_INET6 ? Address{address[2], address[3]} : Address{};
}

// In a second. Who takes less of an answer may take each byte of it alone, so as to have it last.
constexpr std::uint64_t FairShareOfAnAnswer = 1024;

}  // namespace

void ClientConnections::Begin(std::uint64_t second) {
  now_ = second;
  ++looks_;
}

void ClientConnections::See(const Connection& connection) {
  const auto [place, isNew] = known_.try_emplace(connection.Cookie());
  Known& known = place->second;
  const Connection before = isNew ? Connection{} : known.connection;
  const bool hasReceived = connection.received > before.received;
  const std::uint64_t sent = connection.sent - std::min(connection.sent, before.sent);
  // Bytes of an answer of before do not make the time of the next request begin anew.
  const bool hasSent = sent >= FairShareOfAnAnswer || (sent > 0 && connection.queued == 0);
  if (isNew) known.number = numbers_++;
  // One that has sent nothing at all has begun its request by connecting.
  if (isNew || hasSent || (hasReceived && !known.isAsking)) known.requestBegan = now_;
  if (isNew || connection.queued == 0) known.answerBegan = now_;
  known.isAsking = hasReceived || (known.isAsking && !hasSent);
  known.isSending = hasReceived;
  known.connection = connection;
  known.seen = looks_;
}

bool ClientConnections::TakesTooLong(const Known& known) const {
  return (known.isSending && now_ - known.requestBegan > limits_.requestSeconds) ||
         now_ - known.answerBegan > limits_.answerSeconds;
}

std::vector<Connection> ClientConnections::BeyondLimits() {
  Forget();
  std::vector<const Known*> byAge;
  byAge.reserve(known_.size());
  for (const auto& entry : known_) byAge.push_back(&entry.second);
  std::sort(byAge.begin(), byAge.end(), [](const Known* a, const Known* b) { return a->number < b->number; });

  std::vector<Connection> beyond;
  // The first ones of all addresses come first, then the second ones: an address with many loses its own.
  std::vector<std::pair<unsigned, const Known*>> byRank;
  std::map<std::pair<Client, Address>, unsigned> ofAddress;
  for (const Known* known : byAge) {
    if (TakesTooLong(*known)) {
      beyond.push_back(known->connection);
    } else {
      byRank.emplace_back(++ofAddress[{clientOf(known->connection), addressOf(known->connection)}], known);
    }
  }
  std::stable_sort(byRank.begin(), byRank.end(),
                   [](const auto& a, const auto& b) { return a.first < b.first; });
  std::vector<const Known*> within;
  std::map<Client, unsigned> ofClient;
  for (const auto& [rank, known] : byRank) {
    if (++ofClient[clientOf(known->connection)] > limits_.perClient) {
      beyond.push_back(known->connection);
    } else {
      within.push_back(known);
    }
  }
  // Of too many those go that have waited longest for their own next byte or answer.
  if (within.size() > limits_.inAll) {
    std::sort(within.begin(), within.end(), [](const Known* a, const Known* b) {
      return std::tie(a->requestBegan, a->number) < std::tie(b->requestBegan, b->number);
    });
    const auto end = within.begin() + static_cast<std::ptrdiff_t>(within.size() - limits_.inAll);
    std::transform(within.begin(), end, std::back_inserter(beyond),
                   [](const Known* k) { return k->connection; });
  }
  return beyond;
}

void ClientConnections::Forget() {
  for (auto place = known_.begin(); place != known_.end();) {
    place = place->second.seen == looks_ ? std::next(place) : known_.erase(place);
  }
}

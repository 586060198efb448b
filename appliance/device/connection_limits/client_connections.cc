#include "connection_limits/client_connections.h"

#include <sys/socket.h>

#include <algorithm>
#include <iterator>
#include <tuple>

namespace {

// An address of IPv4; the first half of one of IPv6, because a client there has a whole network of them.
using Client = std::tuple<std::uint8_t, std::uint32_t, std::uint32_t>;

Client clientOf(const Connection& connection) {
  const auto& address = connection.id.idiag_dst;
  return {connection.family, address[0], connection.family == AF_INET6 ? address[1] : 0};
}

}  // namespace

void ClientConnections::Begin(std::uint64_t second) {
  now_ = second;
  ++looks_;
}

void ClientConnections::See(const Connection& connection) {
  const auto [place, isNew] = known_.try_emplace(connection.Cookie());
  Known& known = place->second;
  const bool hasReceived = isNew ? connection.received > 0 : connection.received > known.connection.received;
  const bool hasSent = isNew ? connection.sent > 0 : connection.sent > known.connection.sent;
  if (isNew) known.number = numbers_++;
  // One that has sent nothing at all has begun its request by connecting.
  if (isNew || hasSent || (hasReceived && !known.isAsking)) known.requestBegan = now_;
  known.isAsking = hasReceived || (known.isAsking && !hasSent);
  known.isSending = hasReceived;
  known.connection = connection;
  known.seen = looks_;
}

std::vector<Connection> ClientConnections::BeyondLimits() {
  Forget();
  std::vector<const Known*> byAge;
  byAge.reserve(known_.size());
  for (const auto& entry : known_) byAge.push_back(&entry.second);
  std::sort(byAge.begin(), byAge.end(), [](const Known* a, const Known* b) { return a->number < b->number; });

  std::vector<Connection> beyond;
  std::vector<const Known*> within;
  std::map<Client, unsigned> ofClient;
  for (const Known* known : byAge) {
    const bool tooLong = known->isSending && now_ - known->requestBegan > limits_.requestSeconds;
    if (tooLong || ++ofClient[clientOf(known->connection)] > limits_.perClient) {
      beyond.push_back(known->connection);
    } else {
      within.push_back(known);
    }
  }
  // Of too many those go that have waited longest for their own next byte or answer.
  if (within.size() > limits_.inAll) {
    std::stable_sort(within.begin(), within.end(),
                     [](const Known* a, const Known* b) { return a->requestBegan < b->requestBegan; });
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

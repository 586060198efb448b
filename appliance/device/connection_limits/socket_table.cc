#include "connection_limits/socket_table.h"

#include <arpa/inet.h>
#include <linux/netlink.h>
#include <linux/rtnetlink.h>
#include <linux/sock_diag.h>
#include <linux/tcp.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstring>

namespace {

// Of the states of a TCP connection those in which a server's program has it: established, and closed by the
// client alone.
constexpr unsigned Established = 1;
constexpr unsigned ClosedByClient = 8;
constexpr unsigned OpenStates = 1U << Established | 1U << ClosedByClient;

constexpr std::size_t AnswerSize = 65536;
constexpr timeval LongestWait = {2, 0};

struct Request {
  nlmsghdr header;
  inet_diag_req_v2 what;
};

// The attribute with what the kernel has counted; an older kernel counts less.
void takeCounts(const nlmsghdr* message, Connection& connection) {
  const auto* const socket = static_cast<const inet_diag_msg*>(NLMSG_DATA(message));
  auto length = static_cast<int>(message->nlmsg_len - NLMSG_LENGTH(sizeof(*socket)));
  for (const auto* attribute = reinterpret_cast<const rtattr*>(socket + 1); RTA_OK(attribute, length);
       attribute = RTA_NEXT(attribute, length)) {
    if (attribute->rta_type != INET_DIAG_INFO) continue;
    tcp_info info = {};
    std::memcpy(&info, RTA_DATA(attribute), std::min<std::size_t>(RTA_PAYLOAD(attribute), sizeof(info)));
    connection.sent = info.tcpi_bytes_acked;
    connection.received = info.tcpi_bytes_received;
  }
}

Connection connectionOf(const nlmsghdr* message) {
  const auto* const socket = static_cast<const inet_diag_msg*>(NLMSG_DATA(message));
  Connection connection = {};
  connection.id = socket->id;
  connection.family = socket->idiag_family;
  connection.queued = socket->idiag_wqueue;
  takeCounts(message, connection);
  return connection;
}

}  // namespace

std::uint64_t Connection::Cookie() const {
  return static_cast<std::uint64_t>(id.idiag_cookie[1]) << 32 | id.idiag_cookie[0];
}

std::uint16_t Connection::OwnPort() const { return ntohs(id.idiag_sport); }

SocketTable::SocketTable() : socket_(socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC, NETLINK_SOCK_DIAG)) {
  setsockopt(socket_, SOL_SOCKET, SO_RCVTIMEO, &LongestWait, sizeof(LongestWait));
}

SocketTable::~SocketTable() { close(socket_); }

bool SocketTable::ForEach(const std::function<void(const Connection&)>& show) const {
  return ForEach(AF_INET, show) && ForEach(AF_INET6, show);
}

bool SocketTable::ForEach(std::uint8_t family, const std::function<void(const Connection&)>& show) const {
  const int error = Ask(SOCK_DIAG_BY_FAMILY, NLM_F_DUMP, family, {});
  errno = error;
  if (error != 0) return false;
  alignas(nlmsghdr) static char answer[AnswerSize];
  for (;;) {
    const ssize_t received = recv(socket_, answer, sizeof(answer), 0);
    if (received < 0 && errno == EINTR) continue;
    if (received <= 0) return false;
    auto length = static_cast<int>(received);
    for (const auto* message = reinterpret_cast<const nlmsghdr*>(answer); NLMSG_OK(message, length);
         message = NLMSG_NEXT(message, length)) {
      if (message->nlmsg_type == NLMSG_DONE) return true;
      if (message->nlmsg_type == NLMSG_ERROR) return false;
      show(connectionOf(message));
    }
  }
}

int SocketTable::End(const Connection& connection) const {
  const int error = Ask(SOCK_DESTROY, NLM_F_ACK, connection.family, connection.id);
  if (error != 0) return error;
  alignas(nlmsghdr) char answer[NLMSG_SPACE(sizeof(nlmsgerr)) + sizeof(Request)];
  if (recv(socket_, answer, sizeof(answer), 0) < static_cast<ssize_t>(NLMSG_LENGTH(sizeof(nlmsgerr))))
    return EIO;
  nlmsgerr outcome = {};
  std::memcpy(&outcome, answer + NLMSG_HDRLEN, sizeof(outcome));
  return -outcome.error;
}

int SocketTable::Ask(std::uint16_t type, std::uint16_t flags, std::uint8_t family,
                     const inet_diag_sockid& id) const {
  Request request = {};
  request.header.nlmsg_len = sizeof(request);
  request.header.nlmsg_type = type;
  request.header.nlmsg_flags = static_cast<std::uint16_t>(NLM_F_REQUEST | flags);
  request.what.sdiag_family = family;
  request.what.sdiag_protocol = IPPROTO_TCP;
  request.what.idiag_ext = 1U << (INET_DIAG_INFO - 1);
  request.what.idiag_states = OpenStates;
  request.what.id = id;
  return send(socket_, &request, sizeof(request), 0) == sizeof(request) ? 0 : errno;
}

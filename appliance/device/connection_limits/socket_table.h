// The kernel's table of TCP connections, and ending one of them. The kernel knows of each how much was sent
// and received, so that nothing has to stand between a client and its server to judge it.
#pragma once

#include <linux/inet_diag.h>

#include <cstdint>
#include <functional>

struct Connection {
  inet_diag_sockid id;  // as the kernel wants it to be named
  std::uint8_t family;
  std::uint64_t sent;  // bytes that the client has acknowledged
  std::uint64_t received;
  std::uint32_t queued;  // bytes for the client that it has not acknowledged yet

  std::uint64_t Cookie() const;  // no two connections have the same
  std::uint16_t OwnPort() const;
};

class SocketTable {
 public:
  SocketTable();
  ~SocketTable();
  SocketTable(const SocketTable&) = delete;
  SocketTable& operator=(const SocketTable&) = delete;

  // Shows every open connection; false with errno when the kernel does not.
  bool ForEach(const std::function<void(const Connection&)>& show) const;
  // 0 or the number of the error. The server sees it aborted.
  int End(const Connection& connection) const;

 private:
  bool ForEach(std::uint8_t family, const std::function<void(const Connection&)>& show) const;
  // 0 or the number of the error.
  int Ask(std::uint16_t type, std::uint16_t flags, std::uint8_t family, const inet_diag_sockid& id) const;

  int socket_;
};

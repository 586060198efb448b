#include "web_server/listening_sockets.h"

#include <netdb.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <fstream>

namespace {

constexpr int LongestQueue = 1024;  // as the web server has it for its own sockets

// What follows the beginning, if the line begins so.
bool follows(const std::string& line, const std::string& beginning, std::string& rest) {
  if (line.compare(0, beginning.size(), beginning) != 0) return false;
  rest = line.substr(beginning.size());
  return true;
}

std::string beforeQuote(const std::string& text) { return text.substr(0, text.find('"')); }

// The same options as the web server's own sockets have: further addresses of IPv4 have sockets of their own,
// and what is left of earlier connections keeps nobody from listening.
bool listenOn(int descriptor, const addrinfo& address) {
  const int yes = 1;
  return setsockopt(descriptor, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof(yes)) == 0 &&
         (address.ai_family != AF_INET6 ||
          setsockopt(descriptor, IPPROTO_IPV6, IPV6_V6ONLY, &yes, sizeof(yes)) == 0) &&
         bind(descriptor, address.ai_addr, address.ai_addrlen) == 0 && listen(descriptor, LongestQueue) == 0;
}

// -1 with errno where it cannot be listened on.
int listeningSocket(const addrinfo& address) {
  const int descriptor = socket(address.ai_family, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, IPPROTO_TCP);
  if (descriptor == -1 || listenOn(descriptor, address)) return descriptor;
  const int error = errno;
  close(descriptor);
  errno = error;
  return -1;
}

int listeningSocket(const std::string& address) {
  const std::size_t colon = address.rfind(':');
  std::string host = address.substr(0, colon);
  if (host.size() > 2 && host.front() == '[' && host.back() == ']') host = host.substr(1, host.size() - 2);
  const std::string port = colon == std::string::npos ? "" : address.substr(colon + 1);
  addrinfo hints = {};
  hints.ai_flags = AI_NUMERICHOST | AI_NUMERICSERV;
  hints.ai_socktype = SOCK_STREAM;
  addrinfo* found = nullptr;
  if (host.empty() || port.empty() || getaddrinfo(host.c_str(), port.c_str(), &hints, &found) != 0) {
    errno = EINVAL;
    return -1;
  }
  const int descriptor = listeningSocket(*found);
  const int error = errno;
  freeaddrinfo(found);
  errno = error;
  return descriptor;
}

}  // namespace

Addresses addressesToListenOn(const std::string& modeConfiguration) {
  Addresses addresses;
  std::ifstream configuration(modeConfiguration);
  std::string own;
  std::string port;
  std::string rest;
  for (std::string line; std::getline(configuration, line);) {
    if (follows(line, R"(server.bind = ")", rest)) own = beforeQuote(rest);
    if (follows(line, "server.port = ", rest)) port = rest;
    if (follows(line, R"($SERVER["socket"] == ")", rest)) addresses.insert(beforeQuote(rest));
  }
  if (!own.empty()) addresses.insert(own + ":" + port);
  return addresses;
}

ListeningSockets::~ListeningSockets() {
  for (const auto& [address, descriptor] : sockets_) close(descriptor);
}

bool ListeningSockets::Open(const Addresses& addresses, std::string& closed) {
  std::map<std::string, int> opened;
  for (const std::string& address : addresses) {
    if (sockets_.count(address) != 0) continue;
    const int descriptor = listeningSocket(address);
    if (descriptor == -1) {
      const int error = errno;
      for (const auto& [other, itsDescriptor] : opened) close(itsDescriptor);
      errno = error;
      closed = address;
      return false;
    }
    opened[address] = descriptor;
  }
  sockets_.insert(opened.begin(), opened.end());
  return true;
}

// A web server that has one of them open, and has not been scheduled for long, keeps nobody else from
// listening there: the socket itself ends.
void ListeningSockets::KeepOnly(const Addresses& addresses) {
  for (auto socket = sockets_.begin(); socket != sockets_.end();) {
    if (addresses.count(socket->first) != 0) {
      ++socket;
      continue;
    }
    shutdown(socket->second, SHUT_RDWR);
    close(socket->second);
    socket = sockets_.erase(socket);
  }
}

std::vector<int> ListeningSockets::Descriptors(const Addresses& addresses) const {
  std::vector<int> descriptors;
  for (const auto& [address, descriptor] : sockets_) {
    if (addresses.count(address) != 0) descriptors.push_back(descriptor);
  }
  return descriptors;
}

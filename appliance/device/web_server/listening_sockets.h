// The sockets that the web service listens on. They are not the web server's own: a connection that comes
// while one web server takes the place of another waits in a queue that both of them have.
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

// "10.20.0.5:80", "[::]:443"
using Addresses = std::set<std::string>;

// Those of the web server's configuration of the mode, as applyWebMode.sh writes it; none where it cannot
// be read.
Addresses addressesToListenOn(const std::string& modeConfiguration);

class ListeningSockets {
 public:
  ListeningSockets() = default;
  ListeningSockets(const ListeningSockets&) = delete;
  ListeningSockets& operator=(const ListeningSockets&) = delete;
  ~ListeningSockets();

  // Listens on these, too. False, and as before, where that is not possible for the one in `closed`; errno
  // says why.
  bool Open(const Addresses& addresses, std::string& closed);
  // Gives up all others, for everybody who has them.
  void KeepOnly(const Addresses& addresses);
  std::vector<int> Descriptors(const Addresses& addresses) const;

 private:
  std::map<std::string, int> sockets_;
};

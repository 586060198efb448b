// The sockets that the web service listens on: which they are, and that those that are given up are free.
#include "web_server/listening_sockets.h"

#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

namespace {

Addresses addressesOf(const std::string& text) {
  std::string path = testing::TempDir() + "mode.XXXXXX";
  const int descriptor = mkstemp(path.data());
  EXPECT_NE(-1, descriptor);
  close(descriptor);
  std::ofstream(path) << text;
  const Addresses addresses = addressesToListenOn(path);
  unlink(path.c_str());
  return addresses;
}

sockaddr_in onThisMachine(int port) {
  sockaddr_in address = {};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  address.sin_port = htons(static_cast<std::uint16_t>(port));
  return address;
}

// An address that nobody else has: the kernel gives out another port each time.
std::string freeAddress() {
  sockaddr_in address = onThisMachine(0);
  socklen_t size = sizeof(address);
  const int descriptor = socket(AF_INET, SOCK_STREAM, 0);
  EXPECT_EQ(0, bind(descriptor, reinterpret_cast<sockaddr*>(&address), size));
  EXPECT_EQ(0, getsockname(descriptor, reinterpret_cast<sockaddr*>(&address), &size));
  close(descriptor);
  return "127.0.0.1:" + std::to_string(ntohs(address.sin_port));
}

bool isConnected(const std::string& address) {
  const sockaddr_in there = onThisMachine(std::stoi(address.substr(address.rfind(':') + 1)));
  const int descriptor = socket(AF_INET, SOCK_STREAM, 0);
  const bool result = connect(descriptor, reinterpret_cast<const sockaddr*>(&there), sizeof(there)) == 0;
  close(descriptor);
  return result;
}

bool opens(ListeningSockets& sockets, const Addresses& addresses) {
  std::string closed;
  return sockets.Open(addresses, closed);
}

TEST(ListeningSockets, AddressesAreThoseOfTheConfiguration) {
  const Addresses both = {"0.0.0.0:80", "[::]:80", "0.0.0.0:443"};
  EXPECT_EQ(both, addressesOf(
                      "server.bind = \"0.0.0.0\"\nserver.port = 80\n$SERVER[\"socket\"] == \"[::]:80\" { }\n"
                      "ssl.privkey = \"/some/key.pem\"\n"
                      "$SERVER[\"socket\"] == \"0.0.0.0:443\" { ssl.engine = \"enable\" }\n"
                      "$HTTP[\"scheme\"] == \"http\" {\n  url.redirect-code = 307\n}\n"));
  EXPECT_EQ(Addresses{"127.0.0.1:8080"}, addressesOf("server.bind = \"127.0.0.1\"\nserver.port = 8080\n"));
}

TEST(ListeningSockets, WhereThereIsNoConfigurationThereAreNoAddresses) {
  EXPECT_EQ(Addresses{}, addressesOf(""));
  EXPECT_EQ(Addresses{}, addressesToListenOn("/nowhere/mode.conf"));
}

TEST(ListeningSockets, WhatIsOpenIsListenedOn) {
  const std::string first = freeAddress();
  const std::string second = freeAddress();
  ListeningSockets sockets;
  EXPECT_TRUE(opens(sockets, {first}));
  EXPECT_TRUE(opens(sockets, {first, second}));
  EXPECT_TRUE(isConnected(first));
  EXPECT_TRUE(isConnected(second));
  EXPECT_EQ(2U, sockets.Descriptors({first, second}).size());
  EXPECT_EQ(1U, sockets.Descriptors({second}).size());
}

TEST(ListeningSockets, WhatIsKeptIsTheSameSocket) {
  const std::string kept = freeAddress();
  const std::string other = freeAddress();
  ListeningSockets sockets;
  EXPECT_TRUE(opens(sockets, {kept, other}));
  const std::vector<int> before = sockets.Descriptors({kept});
  sockets.KeepOnly({kept});
  EXPECT_EQ(before, sockets.Descriptors({kept, other}));
  EXPECT_TRUE(isConnected(kept));
  EXPECT_FALSE(isConnected(other));
}

TEST(ListeningSockets, WhatIsGivenUpIsFreeWhoeverElseHasIt) {
  const std::string address = freeAddress();
  ListeningSockets sockets;
  EXPECT_TRUE(opens(sockets, {address}));
  const int hung = dup(sockets.Descriptors({address}).front());
  sockets.KeepOnly({});
  EXPECT_FALSE(isConnected(address));
  EXPECT_TRUE(opens(sockets, {address}));
  EXPECT_TRUE(isConnected(address));
  close(hung);
}

TEST(ListeningSockets, WhereOneCannotBeOpenedNoneIs) {
  const std::string taken = freeAddress();
  const std::string kept = freeAddress();
  ListeningSockets others;
  EXPECT_TRUE(opens(others, {taken}));
  const std::string free = freeAddress();
  ListeningSockets sockets;
  EXPECT_TRUE(opens(sockets, {kept}));
  std::string closed;
  EXPECT_FALSE(sockets.Open({free, taken}, closed));
  const int error = errno;
  EXPECT_EQ(taken, closed);
  EXPECT_EQ(EADDRINUSE, error);
  EXPECT_FALSE(isConnected(free));
  EXPECT_TRUE(isConnected(kept));
}

TEST(ListeningSockets, WhatIsNoAddressIsRefused) {
  ListeningSockets sockets;
  for (const char* const text : {"", ":", "80", ":80", "127.0.0.1", "127.0.0.1:", "127.0.0.1:http", "[]:80",
                                 "no\"socket:80", "library:80", "/run/socket"}) {
    std::string closed = "?";
    EXPECT_FALSE(sockets.Open({text}, closed)) << text;
    EXPECT_EQ(EINVAL, errno) << text;
    EXPECT_EQ(text, closed);
  }
}

}  // namespace

#include "libvelm/storage_library.h"

#include <arpa/inet.h>
#include <netinet/in.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <fstream>
#include <optional>
#include <utility>
#include <vector>

#include "libtarn/string_access.h"
#include "libvelm/service_error.h"

namespace Velm {
namespace Library {
namespace {

using Address = std::array<std::uint8_t, 16>;

constexpr unsigned int AddressBits = 128;
// An IPv4 address as IPv6: its 32 bits behind ::ffff.
constexpr unsigned int MappedPrefix = 96;

struct ParsedAddress {
  Address address;
  bool isIPv4;
};

std::optional<ParsedAddress> ParseAddress(const std::string& text) {
  ParsedAddress parsed = {{}, false};
  if (inet_pton(AF_INET6, text.c_str(), parsed.address.data()) == 1) return parsed;
  parsed = {{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xFF, 0xFF}, true};
  if (inet_pton(AF_INET, text.c_str(), parsed.address.data() + MappedPrefix / 8) == 1) return parsed;
  return std::nullopt;
}

struct Network {
  Address address;
  unsigned int prefixLength;
  std::string text;

  bool Contains(const Address& other) const {
    const unsigned int wholeBytes = prefixLength / 8;
    if (!std::equal(address.begin(), address.begin() + wholeBytes, other.begin())) return false;
    const unsigned int remainingBits = prefixLength % 8;
    if (remainingBits == 0) return true;
    const unsigned int difference = address[wholeBytes] ^ other[wholeBytes];
    return difference >> (8U - remainingBits) == 0;
  }
};

std::optional<Network> ParseNetwork(const std::string& text) {
  const std::size_t slash = text.find('/');
  if (slash == std::string::npos) return std::nullopt;
  const std::optional<ParsedAddress> parsed = ParseAddress(text.substr(0, slash));
  if (!parsed) return std::nullopt;
  unsigned int prefixLength = 0;
  const char* const end = text.data() + text.size();
  const auto [rest, error] = std::from_chars(text.data() + slash + 1, end, prefixLength);
  if (error != std::errc() || rest != end) return std::nullopt;
  const unsigned int fixed = parsed->isIPv4 ? MappedPrefix : 0;
  if (prefixLength > AddressBits - fixed) return std::nullopt;
  return Network{parsed->address, prefixLength + fixed, text};
}

// Throws ServiceError when the file names no network, or anything else.
std::vector<Network> ReadNetworks(const std::string& path) {
  std::ifstream file(path);
  std::vector<Network> networks;
  for (std::string line; std::getline(file, line);) {
    if (line.empty()) continue;
    const std::optional<Network> network = ParseNetwork(line);
    if (!network) throw ServiceError(path + ": '" + Excerpt(line) + "' is no network in CIDR notation");
    networks.push_back(*network);
  }
  // Reading stops at the end of the file or at what cannot be read, a missing file included.
  if (networks.empty() || file.bad()) throw ServiceError(path + " names no network or cannot be read");
  return networks;
}

void RequireOutside(const std::string& text, const std::string& internalNetworks) {
  const std::optional<ParsedAddress> parsed = ParseAddress(text);
  if (!parsed) return;
  for (const Network& network : ReadNetworks(internalNetworks)) {
    if (network.Contains(parsed->address)) {
      throw ServiceError("address " + text + " lies in the internal network " + network.text);
    }
  }
}

}  // namespace

StorageLibrary::StorageLibrary(std::string internalNetworks)
    : internalNetworks_(std::move(internalNetworks)) {}

TarnAbstract::Result::Code StorageLibrary::checkAddressConflict(TarnAbstract::String& ipAddress) {
  return Answer("checkAddressConflict",
                [&] { RequireOutside(TarnAbstract::StringAccess::Text(ipAddress), internalNetworks_); });
}

}  // namespace Library
}  // namespace Velm

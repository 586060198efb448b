#include "address_rules/addresses.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <string.h>

namespace AddressRules {
namespace {

constexpr Address Unspecified = {{}, false};
constexpr Address Mapped = {{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xFF, 0xFF}, true};
constexpr Address LinkLocal = {{0xFE, 0x80}, false};
constexpr unsigned int LoopbackNetwork = 127;
constexpr unsigned int FirstMulticastNetwork = 224;
constexpr unsigned char Multicast = 0xFF;

bool Parse(int family, Text text, unsigned char* bytes) {
  char terminated[INET6_ADDRSTRLEN] = "";
  if (text.length >= sizeof(terminated) || memchr(text.start, '\0', text.length) != nullptr) return false;
  memcpy(terminated, text.start, text.length);
  return inet_pton(family, terminated, bytes) == 1;
}

}  // namespace

bool ParseIPv4(Text text, Address& address) {
  address = Mapped;
  return Parse(AF_INET, text, address.bytes + MappedPrefixLength / 8);
}

bool ParseIPv6(Text text, Address& address) {
  address = Unspecified;
  return Parse(AF_INET6, text, address.bytes);
}

bool ParseAddress(Text text, Address& address) {
  return ParseIPv4(text, address) || ParseIPv6(text, address);
}

bool ParseNumber(Text text, unsigned int smallest, unsigned int largest, unsigned int& number) {
  number = 0;
  if (text.length == 0 || (text.length > 1 && *text.start == '0')) return false;
  for (size_t position = 0; position < text.length; ++position) {
    const char digit = text.start[position];
    if (digit < '0' || digit > '9') return false;
    number = 10 * number + static_cast<unsigned int>(digit - '0');
    if (number > largest) return false;
  }
  return number >= smallest;
}

bool ParseNetwork(Text text, Network& network) {
  Text address = {};
  Text length = {};
  if (!SplitAt('/', text, address, length) || !ParseAddress(address, network.address)) return false;
  const unsigned int fixed = network.address.isIPv4 ? MappedPrefixLength : 0;
  if (!ParseNumber(length, 0, AddressBits - fixed, network.prefixLength)) return false;
  network.prefixLength += fixed;
  return true;
}

bool SamePrefix(unsigned int prefixLength, const Address& one, const Address& other) {
  const unsigned int wholeBytes = prefixLength / 8;
  const unsigned int remainingBits = prefixLength % 8;
  if (memcmp(one.bytes, other.bytes, wholeBytes) != 0) return false;
  if (remainingBits == 0) return true;
  const auto difference = static_cast<unsigned int>(one.bytes[wholeBytes] ^ other.bytes[wholeBytes]);
  return difference >> (8U - remainingBits) == 0;
}

bool IsHostAddress(const Address& address) {
  if (SamePrefix(MappedPrefixLength, address, Mapped)) {
    const unsigned int first = address.bytes[MappedPrefixLength / 8];
    return address.isIPv4 && first != 0 && first != LoopbackNetwork && first < FirstMulticastNetwork;
  }
  // :: and ::1
  return !SamePrefix(AddressBits - 1, address, Unspecified) && address.bytes[0] != Multicast;
}

bool IsLinkLocal(const Address& address) { return SamePrefix(10, address, LinkLocal); }

}  // namespace AddressRules

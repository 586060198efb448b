// Addresses and networks as values: two notations of one address are equal.
#pragma once

#include "address_rules/text.h"

namespace AddressRules {

constexpr unsigned int AddressBits = 128;
// An IPv4 address counts as its mapped IPv6 address: its 32 bits behind ::ffff:.
constexpr unsigned int MappedPrefixLength = 96;

struct Address {
  unsigned char bytes[AddressBits / 8];
  bool isIPv4;  // whether it was written as one
};

struct Network {
  Address address;
  unsigned int prefixLength;  // of 128
};

// As the C library's inet_pton reads them, and nothing else: no zone, no prefix length, no leading zero in an
// IPv4 address, none with fewer than four numbers.
bool ParseIPv4(Text text, Address& address);
bool ParseIPv6(Text text, Address& address);
bool ParseAddress(Text text, Address& address);

// A number without sign and leading zeros.
bool ParseNumber(Text text, unsigned int smallest, unsigned int largest, unsigned int& number);

// Address, slash, prefix length.
bool ParseNetwork(Text text, Network& network);

// Whether the first bits of both agree, as many as prefixLength says.
bool SamePrefix(unsigned int prefixLength, const Address& one, const Address& other);

// Whether the address can be that of one host on a network: neither of none, of the host itself nor of many.
// An IPv4 address can only in its own notation.
bool IsHostAddress(const Address& address);

// fe80::/10
bool IsLinkLocal(const Address& address);

}  // namespace AddressRules

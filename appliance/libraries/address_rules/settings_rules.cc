#include "address_rules/settings_rules.h"

#include <netinet/in.h>
#include <stdint.h>
#include <stdio.h>
#include <string.h>

#include "address_rules/addresses.h"
#include "address_rules/internal_networks.h"

namespace AddressRules {
namespace {

constexpr size_t LongestReason = 256;
constexpr size_t LongestHostName = 64;
constexpr size_t LongestPart = 63;
constexpr char NotAHost[] = "cannot be the address of a host";
constexpr char TheAddressItself[] = "is the address itself";

constexpr Verdict AllRight = {Verdict::Right, ""};

// A value as sentences name it: by what it is, and as it was given.
struct Field {
  const char* what;
  Text value;
};

Verdict Refuse(Field field, const char* reason, Verdict::Status status = Verdict::Wrong) {
  Verdict verdict = {status, ""};
  snprintf(verdict.sentence, sizeof(verdict.sentence), "%s \"%s\" %s", field.what, Show(field.value).text,
           reason);
  return verdict;
}

// What is wrong with it, or nullptr.
const char* WhyNoHost(Text value, bool (*parse)(Text, Address&), const char* noAddress, Address& address) {
  if (!parse(value, address)) return noAddress;
  return IsHostAddress(address) ? nullptr : NotAHost;
}

Verdict RequireOutside(Field field, const Address& address, const char* list, Verdict::Status status) {
  const InternalNetwork network = FindInternalNetwork(list, address);
  Verdict verdict = AllRight;
  if (network.answer == InternalNetwork::Found) {
    char reason[LongestReason];
    snprintf(reason, sizeof(reason), "lies in the internal network %.200s", network.text);
    verdict = Refuse(field, reason, status);
  } else if (network.answer == InternalNetwork::Unknown) {
    verdict.status = Verdict::CannotTell;
    memcpy(verdict.sentence, network.text, sizeof(network.text));
  }
  return verdict;
}

// Neither the appliance itself nor its router.
Verdict RequireBothOutside(Field own, const Address& address, Field router, const Address& gateway,
                           const char* list) {
  const Verdict verdict = RequireOutside(own, address, list, Verdict::Wrong);
  return verdict.status == Verdict::Right ? RequireOutside(router, gateway, list, Verdict::Wrong) : verdict;
}

uint32_t IPv4Number(const Address& address) {
  in_addr_t number = 0;
  memcpy(&number, address.bytes + MappedPrefixLength / 8, sizeof(number));
  return ntohl(number);
}

unsigned int CountOnes(uint32_t number) {
  unsigned int ones = 0;
  for (; number != 0; number &= number - 1) ++ones;
  return ones;
}

// The first and the last address of a network stand for all of it, except where it has no others.
bool StandsForTheNetwork(const Address& address, uint32_t hostBits) {
  const uint32_t host = IPv4Number(address) & hostBits;
  return hostBits > 1 && (host == 0 || host == hostBits);
}

bool SplitIPv4(Text settings, Field& address, Field& netmask, Field& gateway) {
  Text rest = {};
  Text more = {};
  return SplitAt('?', settings, address.value, rest) && SplitAt('?', rest, netmask.value, gateway.value) &&
         !SplitAt('?', gateway.value, gateway.value, more);
}

bool SplitIPv6(Text settings, Field& address, Field& prefix, Field& gateway) {
  Text rest = {};
  Text more = {};
  return SplitAt('/', settings, address.value, rest) && SplitAt('?', rest, prefix.value, gateway.value) &&
         memchr(address.value.start, '?', address.value.length) == nullptr &&
         !SplitAt('/', prefix.value, prefix.value, more) &&
         !SplitAt('/', gateway.value, gateway.value, more) &&
         !SplitAt('?', gateway.value, gateway.value, more);
}

bool IsLetterOrDigit(char character) {
  return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z') ||
         (character >= '0' && character <= '9');
}

}  // namespace

Verdict JudgeIPv4(Text settings, const char* internalNetworks) {
  Field ownField = {"the address", {}};
  Field maskField = {"the netmask", {}};
  Field routerField = {"the gateway", {}};
  if (!SplitIPv4(settings, ownField, maskField, routerField)) {
    return Refuse({"the settings", settings}, "are not address?netmask?gateway");
  }
  Address own = {};
  Address mask = {};
  Address router = {};
  const char* reason = WhyNoHost(ownField.value, ParseIPv4, "is no IPv4 address", own);
  if (reason != nullptr) return Refuse(ownField, reason);
  if (!ParseIPv4(maskField.value, mask)) return Refuse(maskField, "is no IPv4 netmask");
  reason = WhyNoHost(routerField.value, ParseIPv4, "is no IPv4 address", router);
  if (reason != nullptr) return Refuse(routerField, reason);

  const uint32_t hostBits = ~IPv4Number(mask);
  if ((hostBits & (hostBits + 1)) != 0) return Refuse(maskField, "has a gap in its ones");
  if (IPv4Number(mask) == 0) return Refuse(maskField, "leaves nothing for the network");

  char wholeNetwork[LongestReason];
  snprintf(wholeNetwork, sizeof(wholeNetwork), "stands for the whole network with the netmask %s",
           Show(maskField.value).text);
  if (StandsForTheNetwork(own, hostBits)) return Refuse(ownField, wholeNetwork);
  if (!SamePrefix(AddressBits - CountOnes(hostBits), own, router)) {
    char outside[LongestReason];
    snprintf(outside, sizeof(outside), "is outside the network of %s with the netmask %s",
             Show(ownField.value).text, Show(maskField.value).text);
    return Refuse(routerField, outside);
  }
  if (StandsForTheNetwork(router, hostBits)) return Refuse(routerField, wholeNetwork);
  if (SamePrefix(AddressBits, own, router)) return Refuse(routerField, TheAddressItself);
  return RequireBothOutside(ownField, own, routerField, router, internalNetworks);
}

Verdict JudgeIPv6(Text settings, const char* internalNetworks) {
  Field ownField = {"the address", {}};
  Field prefixField = {"the prefix length", {}};
  Field routerField = {"the gateway", {}};
  if (!SplitIPv6(settings, ownField, prefixField, routerField)) {
    return Refuse({"the settings", settings}, "are not address/prefix?gateway");
  }
  Address own = {};
  Address router = {};
  unsigned int prefixLength = 0;
  const char* reason = WhyNoHost(ownField.value, ParseIPv6, "is no IPv6 address", own);
  if (reason != nullptr) return Refuse(ownField, reason);
  if (IsLinkLocal(own)) return Refuse(ownField, "is link-local, and eth0 has one of its own");
  if (!ParseNumber(prefixField.value, 1, AddressBits, prefixLength)) {
    return Refuse(prefixField, "is not a number from 1 to 128");
  }
  reason = WhyNoHost(routerField.value, ParseIPv6, "is no IPv6 address", router);
  if (reason != nullptr) return Refuse(routerField, reason);
  if (!IsLinkLocal(router) && !SamePrefix(prefixLength, own, router)) {
    char outside[LongestReason];
    snprintf(outside, sizeof(outside), "is neither link-local nor inside %s/%u", Show(ownField.value).text,
             prefixLength);
    return Refuse(routerField, outside);
  }
  if (SamePrefix(AddressBits, own, router)) return Refuse(routerField, TheAddressItself);
  return RequireBothOutside(ownField, own, routerField, router, internalNetworks);
}

Verdict JudgeNameServers(Text servers, const char* internalNetworks) {
  Field fields[] = {{"the name server", {}}, {"the name server", {}}};
  SplitAt(' ', servers, fields[0].value, fields[1].value);
  for (const Field& field : fields) {
    if (field.value.length == 0) continue;
    Address server = {};
    if (!ParseAddress(field.value, server)) return Refuse(field, "is no IPv4 or IPv6 address");
    const Verdict verdict = RequireOutside(field, server, internalNetworks, Verdict::InternalNameServer);
    if (verdict.status != Verdict::Right) return verdict;
    if (!IsHostAddress(server)) return Refuse(field, NotAHost);
  }
  return AllRight;
}

Verdict JudgeHostName(Text name) {
  const Field field = {"the host name", name};
  if (name.length == 0) return Refuse(field, "is empty");
  for (size_t position = 0; position < name.length; ++position) {
    const char character = name.start[position];
    if (!IsLetterOrDigit(character) && character != '-' && character != '.') {
      return Refuse(field, "has characters other than letters, digits, hyphens and dots");
    }
  }
  if (name.length > LongestHostName) return Refuse(field, "is longer than 64 characters");
  const char* wrongPart = nullptr;
  Text part = {};
  bool more = true;
  for (Text rest = name; more;) {
    more = SplitAt('.', rest, part, rest);
    if (part.length == 0) return Refuse(field, "has an empty part");
    if (wrongPart != nullptr) continue;
    if (part.start[0] == '-' || part.start[part.length - 1] == '-') {
      wrongPart = "has a part that starts or ends with a hyphen";
    } else if (part.length > LongestPart) {
      wrongPart = "has a part longer than 63 characters";
    }
  }
  return wrongPart == nullptr ? AllRight : Refuse(field, wrongPart);
}

}  // namespace AddressRules

// What the device takes as addresses, name servers and host names, and how it reads the list of the networks
// inside the appliance. Input: a letter for the kind, then the settings; for a list of networks, a name
// server in the first line and the list behind it.
#include <sys/mman.h>
#include <unistd.h>

#include <cstring>
#include <iterator>

#include "address_rules/settings_rules.h"
#include "reference.h"
#include "target.h"

int checkSettings(int count, char** arguments);

namespace {

using AddressRules::Text;
using AddressRules::Verdict;
using reference::agree;
using reference::Groups;
using reference::Pieces;

// A file without a place: its path leads to this process.
class ListFile {
 public:
  explicit ListFile(std::string_view content) : descriptor_(memfd_create("networks", MFD_CLOEXEC)) {
    Write(content);
  }
  void Write(std::string_view content) const {
    require(ftruncate(descriptor_, 0) == 0, "the list can be emptied");
    require(pwrite(descriptor_, content.data(), content.size(), 0) == static_cast<ssize_t>(content.size()),
            "the list can be written");
  }
  std::string Path() const { return "/proc/self/fd/" + std::to_string(descriptor_); }

 private:
  int descriptor_;
};

constexpr char ShippedNetworks[] = "192.168.250.0/24\nfd00:250::/64\n";

bool isInside(const Groups& address) {
  return agree(address, *reference::parseAddress("192.168.250.0"), 120) ||
         agree(address, *reference::parseIpv6("fd00:250::"), 64);
}

bool isHostIpv4(std::uint32_t address) {
  const std::uint32_t first = address >> 24U;
  return first > 0 && first < 224 && first != 127;
}

bool isHostIpv6(const Groups& address) {
  const bool isMapped = agree(address, *reference::parseIpv6("::ffff:0:0"), 96);
  return !isMapped && !agree(address, Groups(8, 0), 127) && address[0] < 0xFF00;
}

bool isLinkLocal(const Groups& address) { return agree(address, *reference::parseIpv6("fe80::"), 10); }

bool isRightIpv4(std::string_view settings) {
  const Pieces fields = reference::split(settings, '?');
  if (fields.size() != 3) return false;
  const auto own = reference::parseIpv4(fields[0]);
  const auto mask = reference::parseIpv4(fields[1]);
  const auto router = reference::parseIpv4(fields[2]);
  if (!own || !mask || !router || !isHostIpv4(*own) || !isHostIpv4(*router) || own == router) return false;
  unsigned int length = 0;
  while (length < 32 && (*mask >> (31 - length) & 1U) != 0) ++length;
  const std::uint32_t hosts = length == 32 ? 0 : 0xFFFFFFFFU >> length;
  if (length == 0 || *mask != ~hosts || (*own & *mask) != (*router & *mask)) return false;
  for (const std::uint32_t address : {*own & hosts, *router & hosts}) {
    if (length < 31 && (address == 0 || address == hosts)) return false;
  }
  return !isInside(*reference::parseAddress(fields[0])) && !isInside(*reference::parseAddress(fields[2]));
}

bool isPrefixLength(const std::string& text, unsigned long largest) {
  return !text.empty() && text.size() <= 3 && text.find_first_not_of("0123456789") == std::string::npos &&
         (text == "0" || text[0] != '0') && std::stoul(text) <= largest;
}

bool isRightIpv6(std::string_view settings) {
  // One slash, then one question mark.
  const Pieces halves = reference::split(settings, '?');
  if (halves.size() != 2) return false;
  Pieces fields = reference::split(halves[0], '/');
  if (fields.size() != 2 || halves[1].find('/') != std::string::npos) return false;
  fields.push_back(halves[1]);
  const auto own = reference::parseIpv6(fields[0]);
  const auto router = reference::parseIpv6(fields[2]);
  if (!own || !router || !isHostIpv6(*own) || !isHostIpv6(*router) || isLinkLocal(*own) || *own == *router)
    return false;
  if (!isPrefixLength(fields[1], 128) || fields[1] == "0") return false;
  const auto length = static_cast<unsigned int>(std::stoul(fields[1]));
  return (isLinkLocal(*router) || agree(*own, *router, length)) && !isInside(*own) && !isInside(*router);
}

bool isRightServer(std::string_view server) {
  if (server.empty()) return true;
  const auto ipv4 = reference::parseIpv4(server);
  const auto address = reference::parseAddress(server);
  return address && (ipv4 ? isHostIpv4(*ipv4) : isHostIpv6(*address)) && !isInside(*address);
}

bool areRightServers(std::string_view servers) {
  const std::size_t blank = servers.find(' ');
  return isRightServer(servers.substr(0, blank)) &&
         (blank == std::string_view::npos || isRightServer(servers.substr(blank + 1)));
}

bool isRightHostName(std::string_view name) {
  if (name.empty() || name.size() > 64) return false;
  for (const char character : name) {
    if (std::strchr("-.", character) == nullptr && std::isalnum(static_cast<unsigned char>(character)) == 0)
      return false;
    if (character == '\0') return false;
  }
  // A dot at the end has an empty part behind it.
  const Pieces parts = reference::split(name, '.');
  return std::all_of(parts.begin(), parts.end(), [](const std::string& part) {
    return !part.empty() && part.size() <= 63 && part.front() != '-' && part.back() != '-';
  });
}

// How many bytes the character has that the text begins with; 0 when it begins with none.
std::size_t characterLength(const unsigned char* text) {
  static const struct {
    unsigned char first, last, secondFirst, secondLast;
    std::size_t length;
  } forms[] = {{0xC2, 0xDF, 0x80, 0xBF, 2}, {0xE0, 0xE0, 0xA0, 0xBF, 3}, {0xE1, 0xEC, 0x80, 0xBF, 3},
               {0xED, 0xED, 0x80, 0x9F, 3}, {0xEE, 0xEF, 0x80, 0xBF, 3}, {0xF0, 0xF0, 0x90, 0xBF, 4},
               {0xF1, 0xF3, 0x80, 0xBF, 4}, {0xF4, 0xF4, 0x80, 0x8F, 4}};
  if (*text < 0x80) return 1;
  for (const auto& form : forms) {
    if (*text < form.first || *text > form.last) continue;
    if (text[1] < form.secondFirst || text[1] > form.secondLast) return 0;
    for (std::size_t i = 2; i < form.length; ++i) {
      if (text[i] < 0x80 || text[i] > 0xBF) return 0;
    }
    return form.length;
  }
  return 0;
}

void requireOneLine(const char* sentence) {
  const auto* text = reinterpret_cast<const unsigned char*>(sentence);
  while (*text != '\0') {
    require(*text >= 0x20 && *text != 0x7F, "a sentence has no control characters");
    const std::size_t length = characterLength(text);
    require(length > 0, "a sentence has whole characters");
    text += length;
  }
}

void requireVerdict(const Verdict& verdict, bool expected) {
  require((verdict.status == Verdict::Right) == expected, "right is what is right to the reference");
  require((*verdict.sentence == '\0') == expected, "there is a sentence exactly when it is wrong");
  require(strnlen(verdict.sentence, sizeof(verdict.sentence)) + 1 < sizeof(verdict.sentence),
          "the sentence is whole");
  requireOneLine(verdict.sentence);
}

void requireRightOrWrong(const Verdict& verdict) {
  require(verdict.status == Verdict::Right || verdict.status == Verdict::Wrong,
          "it can be told, and is of no name server");
}

// The program of the device says the same; its words end where a NUL is.
void requireProgram(const char* kind, std::string_view settings, std::string list, const Verdict& verdict) {
  if (settings.find('\0') != std::string_view::npos) return;
  std::string words[] = {"checkSettings", "--internal-networks", std::move(list), kind,
                         std::string(settings)};
  std::vector<char*> arguments;
  for (std::string& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  require(checkSettings(static_cast<int>(std::size(words)), arguments.data()) == verdict.status,
          "the program's exit status is the verdict");
}

bool saysNothing(const std::string& line) {
  return (!line.empty() && line[0] == '#') || line.find_first_not_of(" \t") == std::string::npos;
}

// The lines of a list: whether they are in order, and whether one of them has the address.
void judgeList(std::string_view list, const Groups& address, bool& inOrder, bool& inside) {
  std::size_t networks = 0;
  inOrder = true;
  inside = false;
  for (std::string line : reference::split(list, '\n')) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (saysNothing(line)) continue;
    const std::size_t slash = std::min(line.find('/'), line.size());
    const auto network = reference::parseAddress(line.substr(0, slash));
    const unsigned int fixed = reference::parseIpv4(line.substr(0, slash)) ? 96 : 0;
    const std::string length = line.substr(std::min(slash + 1, line.size()));
    inOrder = inOrder && network && isPrefixLength(length, 128 - fixed);
    if (!inOrder) return;
    inside = inside || agree(*network, address, fixed + static_cast<unsigned int>(std::stoul(length)));
    ++networks;
  }
  inOrder = networks > 0;
}

void tryList(std::string_view input) {
  static const ListFile file("");
  const std::string_view server = takeLine(input);
  const auto address = reference::parseAddress(server);
  if (!address || input.size() > 4096) return;
  file.Write(input);
  const std::string path = file.Path();
  const Verdict verdict = AddressRules::JudgeNameServers({server.data(), server.size()}, path.c_str());
  requireOneLine(verdict.sentence);
  requireProgram("dns", server, path, verdict);
  bool inOrder = false;
  bool inside = false;
  judgeList(input, *address, inOrder, inside);
  require((verdict.status == Verdict::CannotTell) == !inOrder, "nothing can be told without a list in order");
  require((verdict.status == Verdict::InternalNameServer) == (inOrder && inside),
          "a network that has it is found");
}

}  // namespace

void tryInput(std::string_view input) {
  if (input.empty()) return;
  static const ListFile shipped(ShippedNetworks);
  static const std::string list = shipped.Path();
  const char kind = input[0];
  input.remove_prefix(1);
  const Text settings = {input.data(), input.size()};
  switch (kind) {
    case '4': {
      Verdict verdict = JudgeIPv4(settings, list.c_str());
      if (faultIsPlanted() && input.find("?255.255.255.254?") != std::string_view::npos)
        verdict = {Verdict::Right, ""};
      requireVerdict(verdict, isRightIpv4(input));
      requireRightOrWrong(verdict);
      requireProgram("ipv4", input, list, verdict);
      break;
    }
    case '6': {
      const Verdict verdict = JudgeIPv6(settings, list.c_str());
      requireVerdict(verdict, isRightIpv6(input));
      requireRightOrWrong(verdict);
      requireProgram("ipv6", input, list, verdict);
      break;
    }
    case 'd': {
      // A blank in the second server is part of it.
      const Verdict verdict = AddressRules::JudgeNameServers(settings, list.c_str());
      requireVerdict(verdict, areRightServers(input));
      requireProgram("dns", input, list, verdict);
      break;
    }
    case 'h': {
      const Verdict verdict = AddressRules::JudgeHostName(settings);
      requireVerdict(verdict, isRightHostName(input));
      requireProgram("host-name", input, list, verdict);
      break;
    }
    case 'l':
      tryList(input);
      break;
    default:
      break;
  }
}

// The same as the product does, written a second time in the simplest way that can be thought of: for
// comparing.
#pragma once

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdint>
#include <cstdio>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace reference {

using Pieces = std::vector<std::string>;

// An empty delimiter occurs nowhere.
inline Pieces split(std::string_view text, std::string_view delimiter) {
  if (text.empty()) return {};
  Pieces pieces(1);
  for (std::size_t at = 0; at < text.size();) {
    if (!delimiter.empty() && text.substr(at, delimiter.size()) == delimiter) {
      pieces.emplace_back();
      at += delimiter.size();
    } else {
      pieces.back() += text[at];
      ++at;
    }
  }
  return pieces;
}

inline Pieces split(std::string_view text, char delimiter) {
  return split(text, std::string_view(&delimiter, 1));
}

// What a page gets of a text.
inline std::string untilNul(const std::string& text) { return text.substr(0, text.find('\0')); }

inline std::optional<std::uint32_t> parseIpv4(std::string_view text) {
  const Pieces numbers = split(text, '.');
  if (numbers.size() != 4) return std::nullopt;
  std::uint32_t address = 0;
  for (const std::string& number : numbers) {
    if (number.empty() || number.size() > 3 || (number.size() > 1 && number[0] == '0')) return std::nullopt;
    if (number.find_first_not_of("0123456789") != std::string::npos || std::stoi(number) > 255)
      return std::nullopt;
    address = address << 8U | static_cast<std::uint32_t>(std::stoi(number));
  }
  return address;
}

using Groups = std::vector<unsigned int>;

// Groups between colons; at the end an IPv4 address may stand for two.
inline std::optional<Groups> parseGroups(std::string_view text, bool isEnd) {
  Groups groups;
  const Pieces pieces = split(text, ':');
  for (std::size_t i = 0; i < pieces.size(); ++i) {
    const auto ipv4 = isEnd && i + 1 == pieces.size() ? parseIpv4(pieces[i]) : std::nullopt;
    if (ipv4) {
      groups.push_back(*ipv4 >> 16U);
      groups.push_back(*ipv4 & 0xFFFFU);
    } else if (pieces[i].empty() || pieces[i].size() > 4 ||
               pieces[i].find_first_not_of("0123456789abcdefABCDEF") != std::string::npos) {
      return std::nullopt;
    } else {
      groups.push_back(static_cast<unsigned int>(std::stoul(pieces[i], nullptr, 16)));
    }
  }
  return groups;
}

// The eight groups. "::" may stand once, for one group of zero or more.
inline std::optional<Groups> parseIpv6(std::string_view text) {
  const std::size_t gap = text.find("::");
  const auto front = parseGroups(text.substr(0, gap), gap == std::string_view::npos);
  if (gap == std::string_view::npos) return front && front->size() == 8 ? front : std::nullopt;
  const auto back = parseGroups(text.substr(gap + 2), true);
  if (!front || !back || front->size() + back->size() > 7) return std::nullopt;
  Groups groups = *front;
  groups.resize(8 - back->size(), 0);
  groups.insert(groups.end(), back->begin(), back->end());
  return groups;
}

// Of either family; an IPv4 address as its mapped one.
inline std::optional<Groups> parseAddress(std::string_view text) {
  const auto ipv4 = parseIpv4(text);
  if (ipv4) return Groups{0, 0, 0, 0, 0, 0xFFFF, *ipv4 >> 16U, *ipv4 & 0xFFFFU};
  return parseIpv6(text);
}

inline bool agree(const Groups& one, const Groups& other, unsigned int bits) {
  for (unsigned int bit = 0; bit < bits; ++bit) {
    const unsigned int mask = 0x8000U >> bit % 16;
    if ((one[bit / 16] & mask) != (other[bit / 16] & mask)) return false;
  }
  return true;
}

inline std::string join(const Groups& groups) {
  std::string text;
  for (const unsigned int group : groups) {
    char digits[sizeof("ffff")];
    std::snprintf(digits, sizeof(digits), "%x", group & 0xFFFFU);
    text += (text.empty() ? "" : ":") + std::string(digits);
  }
  return text;
}

// The long form, without a zone; of what is no address that of no address.
inline std::string expand(const std::string& text) {
  const auto groups =
      text.find('\0') == std::string::npos ? parseIpv6(text.substr(0, text.find('%'))) : std::nullopt;
  return join(groups ? *groups : Groups(8, 0));
}

}  // namespace reference

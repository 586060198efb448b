// 96-bit identifier: three 32-bit words, the first the most significant in its text form.
#pragma once

#include <cstdint>

namespace TarnAbstract {

class GUID {
 public:
  GUID() = default;
  GUID(std::uint32_t first, std::uint32_t second, std::uint32_t third) : words_{first, second, third} {}

  std::uint32_t Word(unsigned int index) const { return words_[index]; }
  bool operator==(const GUID& other) const {
    return words_[0] == other.words_[0] && words_[1] == other.words_[1] && words_[2] == other.words_[2];
  }

 private:
  std::uint32_t words_[3] = {0, 0, 0};
};

}  // namespace TarnAbstract

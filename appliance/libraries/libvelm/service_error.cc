#include "libvelm/service_error.h"

#include <cstdio>
#include <exception>
#include <new>

namespace Velm {
namespace {

constexpr std::size_t ExcerptLength = 128;
constexpr std::size_t MostContinuationBytes = 3;  // of a UTF-8 character

bool IsControl(unsigned char character) { return character < 0x20 || character == 0x7F; }

bool ContinuesACharacter(unsigned char byte) { return (byte & 0xC0U) == 0x80U; }

void Say(const char* operation, const char* sentence) {
  static_cast<void>(std::fprintf(stderr, "%s: %s\n", operation, sentence));
}

}  // namespace

TarnAbstract::Result::Code Answer(const char* operation, const std::function<void()>& work) noexcept {
  try {
    work();
    return TarnAbstract::Result::Succeeded;
  } catch (const ServiceError& error) {
    Say(operation, error.what());
    return error.Code();
  } catch (const std::bad_alloc&) {
    Say(operation, "out of memory");
    return TarnAbstract::Result::MemoryAllocationFailure;
  } catch (const std::exception& error) {
    Say(operation, error.what());
    return TarnAbstract::Result::Failed;
  }
}

std::string Excerpt(const std::string& text) {
  std::size_t length = text.size();
  if (length > ExcerptLength) {
    length = ExcerptLength;
    while (length > ExcerptLength - MostContinuationBytes &&
           ContinuesACharacter(static_cast<unsigned char>(text[length])))
      --length;
  }
  std::string excerpt;
  for (std::size_t index = 0; index < length; ++index) {
    const auto character = static_cast<unsigned char>(text[index]);
    if (IsControl(character)) {
      constexpr const char* Digits = "0123456789abcdef";
      excerpt += {'\\', 'x', Digits[character >> 4U], Digits[character & 0xFU]};
    } else {
      excerpt += text[index];
    }
  }
  if (length < text.size()) excerpt += "... (" + std::to_string(text.size()) + " bytes)";
  return excerpt;
}

}  // namespace Velm

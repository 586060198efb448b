#include "platform/String.h"

#include <atomic>
#include <cstdlib>
#include <cstring>
#include <new>

#include "libtarn/string_access.h"

namespace TarnAbstract {
namespace {

constexpr unsigned int CallersCharacters = 1;
constexpr unsigned int SharedCharacters = 2;

// Lies in front of shared characters.
using Holders = std::atomic<unsigned int>;

Holders* HoldersOf(const char* characters) {
  return reinterpret_cast<Holders*>(const_cast<char*>(characters)) - 1;
}

}  // namespace

String::String() : String("") {}
String::String(const char* text) : text_(text == nullptr ? "" : text), ownership_(CallersCharacters) {}
String::String(const char* text, const sp<IHeap>& /*heap*/) : String(text) {}
String::String(const String& other) : String() { StringAccess::Share(*this, other); }
String::~String() { StringAccess::Release(*this); }

String& String::operator=(const String& other) {
  if (this != &other) {
    StringAccess::Release(*this);
    StringAccess::Share(*this, other);
  }
  return *this;
}

void StringAccess::Share(String& string, const String& other) {
  string.text_ = other.text_;
  string.ownership_ = other.ownership_;
  if (string.ownership_ == SharedCharacters) HoldersOf(string.text_)->fetch_add(1);
}

void StringAccess::Release(String& string) {
  if (string.ownership_ != SharedCharacters) return;
  Holders* const holders = HoldersOf(string.text_);
  if (holders->fetch_sub(1) == 1) std::free(holders);
}

void StringAccess::Assign(String& string, const char* text) {
  const std::size_t size = std::strlen(text) + 1;
  void* const memory = std::malloc(sizeof(Holders) + size);
  if (memory == nullptr) std::abort();
  auto* const holders = new (memory) Holders(1);
  char* const characters = reinterpret_cast<char*>(holders + 1);
  std::memcpy(characters, text, size);
  Release(string);
  string.text_ = characters;
  string.ownership_ = SharedCharacters;
}

}  // namespace TarnAbstract

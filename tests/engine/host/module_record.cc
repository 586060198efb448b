#include "module_record.h"

#include <dlfcn.h>

#include <cstdint>
#include <cstring>

#include "engine.h"

namespace {

static_assert(sizeof(void*) == 4, "the offsets below are those of a 32-bit processor");

constexpr std::size_t FunctionEntrySize = 12;

// Big-endian, from the bytes themselves: whatever the compiler thinks the record looks like.
std::uint32_t bytesAt(const void* base, std::size_t offset, std::size_t width) {
  const auto* const bytes = static_cast<const unsigned char*>(base) + offset;
  std::uint32_t value = 0;
  for (std::size_t i = 0; i < width; ++i) value = value << 8U | bytes[i];
  return value;
}

template <class Pointer>
Pointer pointerAt(const void* base, std::size_t offset) {
  Pointer pointer = nullptr;
  std::memcpy(&pointer, static_cast<const unsigned char*>(base) + offset, sizeof(pointer));
  return pointer;
}

std::string place(std::size_t offset, std::size_t width) {
  return std::to_string(offset) + '+' + std::to_string(width) + ' ';
}

std::string number(const void* base, std::size_t offset, std::size_t width) {
  return place(offset, width) + std::to_string(bytesAt(base, offset, width)) + '\n';
}

std::string text(const void* base, std::size_t offset) {
  return place(offset, 4) + '"' + pointerAt<const char*>(base, offset) + "\"\n";
}

std::string lifeCycleCallback(const void* base, std::size_t offset) {
  const int result = pointerAt<int (*)(int, int)>(base, offset)(1, 1);
  return place(offset, 4) + "callback answers " + std::to_string(result) + '\n';
}

std::string functionTable(const void* base, std::size_t offset) {
  std::string lines = place(offset, 4) + "functions\n";
  const auto* entry = pointerAt<const unsigned char*>(base, offset);
  for (; bytesAt(entry, 0, 4) != 0; entry += FunctionEntrySize) {
    Dl_info info = {};
    const bool isInModule = dladdr(pointerAt<void*>(entry, 4), &info) != 0 && info.dli_fname != nullptr &&
                            std::strstr(info.dli_fname, "network.so") != nullptr;
    lines += std::string("  ") + pointerAt<const char*>(entry, 0);
    lines += isInModule ? "" : " (its handler is not in the module)";
    lines += bytesAt(entry, 8, 4) == 0 ? "\n" : " (with argument types)\n";
  }
  const bool ended = bytesAt(entry, 4, 4) == 0 && bytesAt(entry, 8, 4) == 0;
  return lines + (ended ? "  end\n" : "  (the last entry is not all null)\n");
}

}  // namespace

std::string moduleRecord(zend_module_entry* module) {
  std::string lines = number(module, 0, 2);  // size
  lines += number(module, 4, 4);             // API
  lines += number(module, 8, 1);             // debug
  lines += number(module, 9, 1);             // thread-safe
  lines += text(module, 12);                 // name
  lines += functionTable(module, 16);
  for (const std::size_t offset : {20, 24, 28, 32}) lines += lifeCycleCallback(module, offset);
  lines += place(36, 4) + (informationPage(module).empty() ? "nothing\n" : "information page\n");
  lines += text(module, 40);                                                             // version
  for (const std::size_t offset : {44, 48, 52, 56}) lines += number(module, offset, 4);  // globals; started
  lines += number(module, 60, 1);                                                        // type
  for (const std::size_t offset : {64, 68}) lines += number(module, offset, 4);          // handle; number
  return lines;
}

std::string informationPage(zend_module_entry* module) {
  return informationWrittenBy(pointerAt<void (*)(zend_module_entry*)>(module, 36), module);
}

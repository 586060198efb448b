#include "names.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <set>

#include "findings.h"
#include "platform/Result.h"
#include "platform/String.h"

namespace {

using TarnAbstract::Result;

bool isNameOfCxx(const Symbol& symbol) { return symbol.name.compare(0, 2, "_Z") == 0; }
std::string withoutParameters(const std::string& readable) { return readable.substr(0, readable.find('(')); }

// What the libraries have under the same name with other parameters, as the end of a sentence.
std::string insteadOf(const Symbol& symbol, const ClosedLibraries& libraries) {
  const std::string readable = withoutParameters(demangled(symbol.name));
  std::string found;
  for (const std::string& path : libraries.paths()) {
    for (const Symbol& other : fileOf(path).dynamicSymbols) {
      if (!other.defined || !isNameOfCxx(other)) continue;
      const std::string name = demangled(other.name);
      if (withoutParameters(name) == readable) found.append("; ").append(path).append(" has ").append(name);
    }
  }
  return found;
}

void reportMissing(const Symbol& symbol, const ClosedLibraries& libraries) {
  if (symbol.version.empty()) {
    wrong("the module needs " + demangled(symbol.name) + ", which none of its libraries has" +
          insteadOf(symbol, libraries));
  } else {
    wrong("the module needs " + demangled(symbol.name) + " in the version " + symbol.version +
          ", which the libraries of C and C++ do not have: the module was built with newer ones");
  }
}

// All values that the module reads out of the libraries are of 32 bits.
void checkSizeOfValue(const Symbol& symbol, const void* address) {
  const Place place = placeOf(address);
  const Symbol* const given = symbolOf(place.path, symbol.name);
  if (given == nullptr || !given->isData || given->size == sizeof(Result::Code)) return;
  wrong(demangled(symbol.name) + " has " + number(given->size) + " bytes, and the module reads " +
        number(sizeof(Result::Code)));
}

void checkResultCodes(const Module& module, const ClosedLibraries& libraries) {
  const struct {
    const char* name;
    bool succeeded;
  } codes[] = {{"Succeeded", true},
               {"Failed", false},
               {"ElementNotFound", false},
               {"CapacityOverflow", false},
               {"MemoryAllocationFailure", false}};
  for (const auto& code : codes) {
    const std::string name = std::string("TarnAbstract::Result::") + code.name;
    const void* const address = libraries.find(module, name);
    if (address == nullptr) continue;  // the module does not take it, or it was said to be missing
    Result::Code value = 0;
    std::memcpy(&value, address, sizeof(value));
    const std::string sentence = name + " is " + hexadecimal(value) + ", which the module takes for a " +
                                 (Result::IsSucceeded(value) ? "success" : "failure");
    if (Result::IsSucceeded(value) == code.succeeded) {
      right(sentence);
    } else {
      wrong(sentence);
    }
  }
}

// How many bytes the library writes for a text, of which it is handed more than the module has. What it
// writes may look like what was there.
std::size_t writtenBytes(void (*make)(void*, const char*)) {
  std::size_t size = 0;
  for (const unsigned char untouched : {0xA5, 0x5A}) {
    alignas(std::max_align_t) unsigned char memory[256];
    std::memset(memory, untouched, sizeof(memory));
    make(memory, "text");
    std::size_t written = sizeof(memory);
    while (written > 0 && memory[written - 1] == untouched) --written;
    size = std::max(size, written);
  }
  return size;
}

// Every constructor that we declare sets both fields: one that writes less has others. What the vendor's own
// headers declare may leave some alone.
bool isSizeOfText(std::size_t size) {
  struct Declared {
    const char* text;
    unsigned int ownership;
  };
  if (sizeof(TarnAbstract::String) != sizeof(Declared)) return size <= sizeof(TarnAbstract::String);
  return size == offsetof(Declared, ownership) + sizeof(Declared::ownership);
}

void checkSizeOfText(const Module& module, const ClosedLibraries& libraries) {
  using Make = void (*)(void*, const char*);
  void* const address = libraries.find(module, "TarnAbstract::String::String(char const*)");
  if (address == nullptr) return;  // said already
  const std::size_t size = writtenBytes(reinterpret_cast<Make>(address));
  const std::string sentence = "the library writes " + number(size) +
                               " bytes of a TarnAbstract::String, which has " +
                               number(sizeof(TarnAbstract::String)) + " in the module";
  if (isSizeOfText(size)) {
    right(sentence);
  } else {
    wrong(sentence);
  }
}

}  // namespace

void checkNames(const Module& module, const ClosedLibraries& libraries) {
  unsigned int found = 0;
  unsigned int missing = 0;
  std::set<std::string> ofInterpreter;
  for (const Symbol& symbol : module.file.dynamicSymbols) {
    if (symbol.defined || symbol.weak) continue;
    const void* const address = libraries.find(symbol);
    if (address != nullptr) {
      ++found;
      if (isNameOfCxx(symbol) && symbol.version.empty()) checkSizeOfValue(symbol, address);
    } else if (isNameOfCxx(symbol) || !symbol.version.empty()) {
      ++missing;
      reportMissing(symbol, libraries);
    } else {
      ofInterpreter.insert(symbol.name);
    }
  }
  const std::string summary = "the libraries have " + number(found) + " names that the module needs";
  if (missing == 0) right(summary + ", and lack none");
  if (missing > 0) note(summary + ", and lack " + number(missing));
  std::string list;
  for (const std::string& name : ofInterpreter) list += " " + name;
  note("the interpreter has to give" + list);
  checkResultCodes(module, libraries);
  checkSizeOfText(module, libraries);
}

// The names in a library's file, without loading it.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

struct Symbol {
  std::string name;
  std::string version;  // of a name that is taken from elsewhere; empty when any will do
  std::uintptr_t value = 0;
  std::size_t size = 0;
  bool defined = false;
  bool weak = false;
  bool isData = false;
};

struct ElfFile {
  std::vector<Symbol> dynamicSymbols;   // what it gives and takes
  std::vector<Symbol> internalSymbols;  // all that it has, unless it was stripped
  std::vector<std::string> needed;      // the libraries that it names
  bool forOtherProcessor = false;
  bool complete = false;  // all that its tables name lies in the file; it need have no names
};

// Of a file for the processor that this program runs on. False, with the reason as the end of a sentence
// ("... is empty"), when it is none or is damaged.
bool readElfFile(const std::string& path, ElfFile& file, std::string& reason);

// As the source says it; as it is when it is no name of C++.
std::string demangled(const std::string& name);

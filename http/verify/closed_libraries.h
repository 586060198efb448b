// The module's file, and the libraries that it names, loaded as they are for the module.
#pragma once

#include <string>
#include <vector>

#include "elf_file.h"

struct Module {
  std::string path;
  std::string folder;  // where it looks for its libraries first
  ElfFile file;
};

// False, said as a finding, when that cannot be read.
bool readModule(const std::string& path, Module& module);

// Whether the files of the libraries, and of those that they need, are what the loader expects, as far as
// they are found; each that is not is a finding.
bool readLibraries(const Module& module);

class ClosedLibraries {
 public:
  // Loads what the module needs; with findings, also about what the libraries take from elsewhere and do not
  // get.
  void load(const Module& module, bool withFindings);

  // The address that the module would get for the name, or null.
  void* find(const Symbol& symbol) const;

  // The same for a function or value as the source says it, if it is one that the module takes.
  void* find(const Module& module, const std::string& readableName) const;

  // The paths of those that were loaded.
  const std::vector<std::string>& paths() const { return paths_; }

 private:
  void* loadOne(const Module& module, const std::string& name, bool withFindings);

  std::vector<void*> handles_;
  std::vector<std::string> paths_;
};

// What stands at an address.
struct Place {
  std::string name;  // as the source says it; empty when the library does not say
  // All names that begin there: what is the same in machine code a compiler makes once.
  std::vector<std::string> names;
  std::string path;            // of its library; empty when the address is in none
  std::uintptr_t offset = 0;   // from the library's start
  std::size_t behindName = 0;  // bytes from the name's address on
  std::size_t nameSize = 0;    // bytes that belong to the name
};

Place placeOf(const void* address);

// The symbol of that name that the library at the path gives, or null.
const Symbol* symbolOf(const std::string& path, const std::string& name);
const ElfFile& fileOf(const std::string& path);

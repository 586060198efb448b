#include "closed_libraries.h"

#include <dlfcn.h>
#include <link.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <map>

#include "apart.h"
#include "findings.h"
#include "stand_ins.h"

namespace {

constexpr unsigned int MostStandIns = 1000;

std::map<std::string, ElfFile> files;  // those that were read, by their paths

// The name in the loader's sentence "FILE: undefined symbol: NAME, version VERSION"; empty in any other.
std::string missingName(const std::string& sentence) {
  const std::string words = "undefined symbol: ";
  const std::size_t start = sentence.find(words);
  if (start == std::string::npos) return "";
  const std::size_t name = start + words.size();
  return sentence.substr(name, sentence.find_first_of(", \t", name) - name);
}

// Only the interpreter and the C library give names of C; what else the closed libraries take is each
// other's.
bool isNameOfCxx(const std::string& name) { return name.compare(0, 2, "_Z") == 0; }

void noteInterpreter(const std::string& library, unsigned int names) {
  note(library + " takes " + number(names) + " names from the interpreter");
}

void reportFailure(const std::string& library, const std::string& reason) {
  wrong(library + " cannot be loaded: " + reason);
}

void reportOwnNeed(const std::string& library, const std::string& missing) {
  wrong(library + " itself needs " + demangled(missing) + ", which no library here has");
}

std::string besideModule(const Module& module, const std::string& name) {
  std::string path = module.folder;
  path.append("/").append(name);
  return access(path.c_str(), F_OK) == 0 ? path : "";
}

// What is to be searched by name; the loader knows more, which only it can tell.
std::vector<std::string> searchedFolders() {
  const char* const variable = std::getenv("LD_LIBRARY_PATH");
  std::string list = variable == nullptr ? "" : variable;
  std::vector<std::string> folders;
  while (!list.empty()) {
    const std::size_t size = list.find_first_of(":;");
    folders.push_back(list.substr(0, size));
    list = size == std::string::npos ? "" : list.substr(size + 1);
  }
  folders.emplace_back("/lib");
  folders.emplace_back("/usr/lib");
  return folders;
}

// The file that the loader would take, read; the loader passes over those for other processors, unless it is
// told the path. False, with the reason, when it cannot be loaded; true, too, when none is found.
bool readLibrary(const Module& module, const std::string& name, ElfFile& file, std::string& reason) {
  std::string path = besideModule(module, name);
  bool readable = path.empty() || readElfFile(path, file, reason) || file.complete;
  if (path.empty()) {
    for (const std::string& folder : searchedFolders()) {
      path = folder;
      if (!path.empty()) path.append("/");
      path.append(name);
      if (access(path.c_str(), F_OK) != 0) continue;
      file = ElfFile();
      readable = readElfFile(path, file, reason) || file.complete || file.forOtherProcessor;
      if (!file.forOtherProcessor) break;
    }
  }
  reason = path + " " + reason;
  return readable;
}

std::string pathOf(void* handle, const std::string& name) {
  const link_map* map = nullptr;
  if (dlinfo(handle, RTLD_DI_LINKMAP, static_cast<void*>(&map)) != 0 || map == nullptr) return name;
  return map->l_name;
}

bool contains(const Symbol& symbol, std::uintptr_t offset) {
  return symbol.defined && symbol.value <= offset && offset - symbol.value <= symbol.size;
}

// A name that begins at the offset is better than one that the offset is inside of.
void takeName(const std::vector<Symbol>& symbols, Place& place) {
  for (const Symbol& symbol : symbols) {
    if (!contains(symbol, place.offset)) continue;
    const std::size_t behind = place.offset - symbol.value;
    if (behind == 0) place.names.push_back(demangled(symbol.name));
    if (!place.name.empty() && behind >= place.behindName) continue;
    if (behind > 0 && behind == symbol.size) continue;
    place.name = demangled(symbol.name);
    place.behindName = behind;
    place.nameSize = symbol.size;
  }
}

}  // namespace

bool readModule(const std::string& path, Module& module) {
  module.path = path;
  const std::size_t slash = path.rfind('/');
  module.folder = slash == std::string::npos ? "." : path.substr(0, slash);
  std::string reason;
  if (readElfFile(path, module.file, reason)) return true;
  wrong("the module " + path + " " + reason);
  return false;
}

bool readLibraries(const Module& module) {
  std::vector<std::string> names = module.file.needed;
  bool all = true;
  for (std::size_t index = 0; index < names.size(); ++index) {
    ElfFile file;
    std::string reason;
    if (!readLibrary(module, names[index], file, reason)) {
      reportFailure(names[index], reason);
      all = false;
    }
    for (const std::string& name : file.needed) {
      if (std::find(names.begin(), names.end(), name) == names.end()) names.push_back(name);
    }
  }
  return all;
}

void ClosedLibraries::load(const Module& module, bool withFindings) {
  for (const std::string& name : module.file.needed) {
    sayWhere("while " + name + " was loaded");
    void* const handle = loadOne(module, name, withFindings);
    sayWhere("");
    if (handle == nullptr) continue;
    handles_.push_back(handle);
    paths_.push_back(pathOf(handle, name));
    if (withFindings) right(name + " is loaded: " + paths_.back());
  }
}

// What the interpreter would give is stood in for, one name after the other, as the loader asks for them.
void* ClosedLibraries::loadOne(const Module& module, const std::string& name, bool withFindings) {
  std::string path = besideModule(module, name);
  if (path.empty()) path = name;
  std::string former;
  unsigned int ofInterpreter = 0;
  for (unsigned int count = 0; count < MostStandIns; ++count) {
    void* const handle = dlopen(path.c_str(), RTLD_LAZY | RTLD_GLOBAL);
    if (handle != nullptr) {
      if (withFindings && ofInterpreter > 0) noteInterpreter(name, ofInterpreter);
      return handle;
    }
    const std::string sentence = dlerror();
    const std::string missing = missingName(sentence);
    std::string reason = sentence;
    if (missing.empty() || missing == former || !standIn(missing, reason)) {
      if (withFindings) reportFailure(name, reason);
      return nullptr;
    }
    former = missing;
    if (!isNameOfCxx(missing)) {
      ++ofInterpreter;
    } else if (withFindings) {
      reportOwnNeed(name, missing);
    }
  }
  return nullptr;
}

void* ClosedLibraries::find(const Symbol& symbol) const {
  for (void* const handle : handles_) {
    void* const address = symbol.version.empty()
                              ? dlsym(handle, symbol.name.c_str())
                              : dlvsym(handle, symbol.name.c_str(), symbol.version.c_str());
    if (address != nullptr) return address;
  }
  return nullptr;
}

void* ClosedLibraries::find(const Module& module, const std::string& readableName) const {
  for (const Symbol& symbol : module.file.dynamicSymbols) {
    if (!symbol.defined && demangled(symbol.name) == readableName) return find(symbol);
  }
  return nullptr;
}

const ElfFile& fileOf(const std::string& path) {
  const auto known = files.find(path);
  if (known != files.end()) return known->second;
  std::string reason;
  ElfFile& file = files[path];
  readElfFile(path, file, reason);
  return file;
}

const Symbol* symbolOf(const std::string& path, const std::string& name) {
  for (const Symbol& symbol : fileOf(path).dynamicSymbols) {
    if (symbol.defined && symbol.name == name) return &symbol;
  }
  return nullptr;
}

Place placeOf(const void* address) {
  Place place;
  Dl_info info;
  if (dladdr(address, &info) == 0 || info.dli_fname == nullptr) return place;
  place.path = info.dli_fname;
  place.offset = reinterpret_cast<std::uintptr_t>(address) - reinterpret_cast<std::uintptr_t>(info.dli_fbase);
  takeName(fileOf(place.path).dynamicSymbols, place);
  takeName(fileOf(place.path).internalSymbols, place);
  return place;
}

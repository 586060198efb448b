#include "operations.h"

#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <vector>

#include "findings.h"
#include "management/IMgmtAppConfig.h"
#include "management/IStorageLibrary.h"

namespace {

// What a handle is in memory. It takes and drops no reference: that would be a call by a table that may not
// be what we think.
struct RawHandle {
  RawHandle() = default;
  // Not trivial, as the real one's are not: that decides how a handle is returned.
  RawHandle(const RawHandle& other) : object(other.object) {}  // NOLINT(modernize-use-equals-default)
  RawHandle& operator=(const RawHandle& other) = default;
  ~RawHandle() {}  // NOLINT(modernize-use-equals-default)
  const void* object = nullptr;
};

struct Operation {
  const char* name;
  unsigned int entry;  // in the table, as the compiler counts: with those of the base
};

// The compiler's own word for "the operation at this place of the table" is the distance in bytes, and one.
template <class Member>
unsigned int entryOf(Member operation) {
  std::uintptr_t word = 0;
  std::memcpy(&word, &operation, sizeof(word));
  return static_cast<unsigned int>((word - 1) / sizeof(void*));
}

#define OPERATION(interface, name) \
  Operation { #name, entryOf(&interface::name) }

std::vector<Operation> operationsOfMgmtAppConfig() {
  using Velm::IMgmtAppConfig;
  return {
      OPERATION(IMgmtAppConfig, setSNMPVersions),        OPERATION(IMgmtAppConfig, getSNMPVersions),
      OPERATION(IMgmtAppConfig, setSSLEnabled),          OPERATION(IMgmtAppConfig, getSSLEnabled),
      OPERATION(IMgmtAppConfig, createTrapRegistration), OPERATION(IMgmtAppConfig, deleteTrapRegistration),
      OPERATION(IMgmtAppConfig, getTrapRegistrations),   OPERATION(IMgmtAppConfig, restartSNMP),
      OPERATION(IMgmtAppConfig, setReadCommunity),       OPERATION(IMgmtAppConfig, getReadCommunity),
      OPERATION(IMgmtAppConfig, setAuthTrapsEnabled),    OPERATION(IMgmtAppConfig, getAuthTrapsEnabled)};
}

// The first operation that the module calls is number 6 of its interface; what the table has before those is
// the base's.
constexpr unsigned int NumberOfSetSNMPVersions = 6;
unsigned int operationsOfBase() {
  return entryOf(&Velm::IMgmtAppConfig::setSNMPVersions) - NumberOfSetSNMPVersions;
}

// Whether that many bytes can be read there: the kernel says so before this program would end.
bool canBeRead(const void* address, std::size_t size) {
  int ends[2];
  if (pipe(ends) != 0) return false;
  const bool readable = write(ends[1], address, size) == static_cast<ssize_t>(size);
  close(ends[0]);
  close(ends[1]);
  return readable;
}

bool readWord(const void* address, const void*& word) {
  if (!canBeRead(address, sizeof(word))) return false;
  std::memcpy(&word, address, sizeof(word));
  return true;
}

class Table {
 public:
  // False, said as a finding, when what the service gave has no table.
  bool read(const std::string& interface, const void* object, unsigned int entries) {
    interface_ = interface;
    const void* table = nullptr;
    if (!readWord(object, table) || placeOf(table).path.empty()) {
      wrong("what the service gives for " + interface + " does not begin with a table of operations");
      return false;
    }
    const Place place = placeOf(table);
    if (!place.name.empty() && place.nameSize > place.behindName) {
      entries = static_cast<unsigned int>((place.nameSize - place.behindName) / sizeof(void*));
      note(interface + " has the " + place.name + ", with " + number(entries) + " entries");
    }
    for (unsigned int index = 0; index < entries; ++index) {
      const void* address = nullptr;
      if (!readWord(static_cast<const char*>(table) + index * sizeof(void*), address)) break;
      entries_.push_back(placeOf(address));
    }
    return true;
  }

  unsigned int size() const { return static_cast<unsigned int>(entries_.size()); }

  // The end of a sentence about what is there.
  std::string at(unsigned int entry) const {
    if (entry >= entries_.size()) return "not there";
    const Place& place = entries_[entry];
    if (place.path.empty()) return "no operation";
    if (hasName(entry)) return place.names[0];
    return "a nameless one (" + place.path + " at " + hexadecimal(place.offset) + ")";
  }

  bool hasName(unsigned int entry) const { return entry < entries_.size() && !entries_[entry].names.empty(); }

  bool is(unsigned int entry, const std::string& operation) const {
    if (entry >= entries_.size()) return false;
    const std::vector<std::string>& names = entries_[entry].names;
    return std::any_of(names.begin(), names.end(), [&operation](const std::string& name) {
      return name.find("::" + operation + "(") != std::string::npos;
    });
  }

  // The entry that the operation has, or size().
  unsigned int find(const std::string& operation) const {
    unsigned int entry = 0;
    while (entry < size() && !is(entry, operation)) ++entry;
    return entry;
  }

 private:
  std::string interface_;
  std::vector<Place> entries_;
};

// One line: what is at the entry that the module calls, and at the one it would be without the base.
void checkOperation(const std::string& interface, const Table& table, const Operation& operation) {
  const unsigned int slot = operation.entry - operationsOfBase();
  const std::string counted = interface + ", operation " + number(slot) + ", " + operation.name + ": entry " +
                              number(operation.entry) + ", behind the base's " + number(operationsOfBase()) +
                              ", is " + table.at(operation.entry) + "; entry " + number(slot) +
                              ", from the table's start, is " + table.at(slot);
  if (table.is(operation.entry, operation.name)) {
    right(counted);
  } else if (table.find(operation.name) < table.size()) {
    wrong(counted + "; " + operation.name + " is entry " + number(table.find(operation.name)));
  } else if (operation.entry < table.size() && !table.hasName(operation.entry)) {
    unknown(counted);
  } else {
    wrong(counted);
  }
}

// When all are as far away from where we call them, then it is the base that is another one.
void summarize(const std::string& interface, const Table& table, const std::vector<Operation>& operations) {
  const auto distanceOf = [&table](const Operation& operation) {
    return static_cast<long>(table.find(operation.name)) - static_cast<long>(operation.entry);
  };
  const long distance = distanceOf(operations[0]);
  for (const Operation& operation : operations) {
    if (table.find(operation.name) == table.size() || distanceOf(operation) != distance) return;
  }
  if (distance == 0) return;
  wrong("all operations of " + interface + " stand " +
        number(static_cast<unsigned long>(distance < 0 ? -distance : distance)) + " entries " +
        (distance < 0 ? "before" : "behind") + " those that the module calls: the base of this device has " +
        number(static_cast<unsigned long>(static_cast<long>(operationsOfBase()) + distance)) +
        " operations, and the module counts on " + number(operationsOfBase()));
}

// The function's result is handed over in memory that the caller names first; the object follows, as for a
// member.
const void* serviceOf(const Module& module, const ClosedLibraries& libraries, const std::string& getter,
                      const std::string& interface) {
  using GetProxy = void* (*)();
  using CurrentThread = RawHandle (*)();
  using GetService = RawHandle (*)(void*);
  void* const getProxy = libraries.find(module, "StorageLibraryProxy::getInstance()");
  void* const currentThread = libraries.find(module, "TarnAbstract::TarnThreading::CurrentThread()");
  void* const getService = libraries.find(module, "StorageLibraryProxy::" + getter + "()");
  if (getProxy == nullptr || currentThread == nullptr || getService == nullptr) {
    unknown("the service " + interface + " cannot be asked for: a name is missing");
    return nullptr;
  }
  void* const proxy = reinterpret_cast<GetProxy>(getProxy)();
  const RawHandle thread = reinterpret_cast<CurrentThread>(currentThread)();
  if (thread.object == nullptr) note("the platform gives no handle to this thread");
  const RawHandle service = reinterpret_cast<GetService>(getService)(proxy);
  if (service.object == nullptr) {
    unknown("the service " + interface + " is not there now: the library gives an empty handle");
  }
  return service.object;
}

void checkInterface(const std::string& interface, const void* object,
                    const std::vector<Operation>& operations) {
  Table table;
  constexpr unsigned int Further = 16;  // where a table does not say how long it is
  if (object == nullptr || !table.read(interface, object, operations.back().entry + 1 + Further)) return;
  note(interface + ", the two that take and drop a reference: entry 0 is " + table.at(0) + ", entry 1 is " +
       table.at(1));
  for (const Operation& operation : operations) checkOperation(interface, table, operation);
  summarize(interface, table, operations);
}

}  // namespace

void checkMgmtAppConfig(const Module& module, const ClosedLibraries& libraries) {
  const char* const interface = "IMgmtAppConfig";
  checkInterface(interface, serviceOf(module, libraries, "getAppMgmtConfigInterface", interface),
                 operationsOfMgmtAppConfig());
}

void checkStorageLibrary(const Module& module, const ClosedLibraries& libraries) {
  const char* const interface = "IStorageLibrary";
  using Velm::Library::IStorageLibrary;
  checkInterface(interface, serviceOf(module, libraries, "getStorageLibraryInterface", interface),
                 {OPERATION(IStorageLibrary, checkAddressConflict)});
}

#include "libvelm/copies.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <filesystem>

#include "libvelm/file_lock.h"
#include "libvelm/service_error.h"
#include "libvelm/store.h"

namespace Velm {

const char* const RestorationInTheAudit = "restoreSettings";

namespace {

constexpr std::chrono::seconds Patience(10);
// What SQLite keeps beside a database.
constexpr const char* Companions[] = {"-wal", "-shm"};

[[noreturn]] void FailAt(const std::string& path) { throw ServiceError(path + ": " + std::strerror(errno)); }

void Sync(const std::string& path) {
  const int descriptor = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  const bool isSynced = descriptor >= 0 && fsync(descriptor) == 0;
  const int error = errno;
  if (descriptor >= 0) close(descriptor);
  errno = error;
  if (!isSynced) FailAt(path);
}

void Rename(const std::string& from, const std::string& to) {
  if (std::rename(from.c_str(), to.c_str()) != 0) FailAt(from);
}

void Remove(const std::string& path) {
  if (unlink(path.c_str()) != 0 && errno != ENOENT) FailAt(path);
}

// The new file is on the disk before it gets the name.
void Replace(const std::string& path, const std::string& by) {
  Sync(by);
  Rename(by, path);
  Sync(path.substr(0, path.rfind('/') + 1));
}

// Also a folder with all that is in it.
void RemoveAll(const std::string& path) {
  std::error_code error;
  std::filesystem::remove_all(path, error);
  if (error) throw ServiceError(path + ": " + error.message());
}

void RemoveDatabase(const std::string& path) {
  for (const char* companion : Companions) RemoveAll(path + companion);
  RemoveAll(path);
}

// Whatever it is.
bool Exists(const std::string& path) { return access(path.c_str(), F_OK) == 0; }

// The database before its log: a start that is interrupted between the two leaves both to the next one, which
// puts the log beside what was put aside already.
void PutAside(const std::string& path) {
  const std::string aside = path + ".damaged";
  if (Exists(path)) {
    RemoveDatabase(aside);
    Rename(path, aside);
  }
  for (const char* companion : Companions) {
    if (!Exists(path + companion)) continue;
    RemoveAll(aside + companion);
    Rename(path + companion, aside + companion);
  }
}

std::int64_t SettingsRows(Database& database) {
  Statement count = database.Prepare("SELECT count(*) FROM settings");
  count.Step();
  return count.Integer(0);
}

// What root makes here belongs to whom the database belongs to: another user than root may be the one that
// replaces it.
void GiveToOwnerOf(const std::string& path, const std::string& file) {
  struct stat status = {};
  if (geteuid() == 0 && stat(path.c_str(), &status) == 0 &&
      lchown(file.c_str(), status.st_uid, status.st_gid) != 0) {
    FailAt(file);
  }
}

void KeepCopy(Database& database, const std::string& path) {
  const FileLock turn(path + ".copy_lock", Patience);
  const std::string fresh = path + ".copy.new";
  Remove(fresh);
  if (SettingsRows(database) != 1) return;
  database.Prepare("VACUUM INTO ?").Bind(fresh).Step();
  GiveToOwnerOf(path, fresh);
  Replace(path + ".copy", fresh);
}

bool IsThere(const std::string& path) {
  struct stat status = {};
  return stat(path.c_str(), &status) == 0 && status.st_size > 0;
}

// All that is read of the settings can be read, and every page of the file is what it is taken for.
void RequireInOrder(Database& database) {
  Statement check = database.Prepare("PRAGMA quick_check(1)");
  if (!check.Step() || check.Text(0) != "ok") throw Damaged(check.Text(0));
  if (SettingsRows(database) != 1) throw Damaged("the settings are missing in it");
  for (const char* part : {"SELECT * FROM snmp_agent", "SELECT * FROM trap_sinks", "SELECT * FROM audit"}) {
    Statement rows = database.Prepare(part);
    while (rows.Step()) {
    }
  }
}

// Throws Damaged for a folder, say, in the place of one of its files.
void RequireFiles(const std::string& path) {
  for (const char* ending : {"", "-wal", "-shm"}) {
    if (Exists(path + ending) && !std::filesystem::is_regular_file(path + ending)) {
      throw Damaged(path + ending + " is no file");
    }
  }
}

// SQLite takes an empty file for a new database; a new one has nothing beside it yet.
void RequireNotLost(const std::string& path) {
  if (IsThere(path)) return;
  for (const char* ending : {".copy", ".restored", "-wal"}) {
    if (IsThere(path + ending)) throw Damaged("it is missing or empty");
  }
}

// Empty, or what is damaged.
std::string DamageOf(const std::string& path) {
  try {
    RequireFiles(path);
    RequireNotLost(path);
    Database database(path, Patience);
    RequireInOrder(database);
    return "";
  } catch (const Damaged& damage) {
    return damage.what();
  }
}

// Whether the copy is now the database at path.
bool TakeCopy(const std::string& copy, const std::string& path) {
  std::error_code error;
  std::filesystem::copy_file(copy, path, error);
  if (!error && IsThere(path) && DamageOf(path).empty()) return true;
  RemoveDatabase(path);
  return false;
}

void Restore(const std::string& path, const std::string& damage) {
  const std::string fresh = path + ".restored";
  RemoveDatabase(fresh);
  const std::string outcome = TakeCopy(path + ".copy", fresh) ? "are back as they were kept last"
                                                              : "are now those of a new appliance";
  {
    Database database(fresh, Patience);
    database.Prepare(R"(INSERT INTO audit (user, operation, "values", result) VALUES ('', ?, ?, 'stored'))")
        .Bind(RestorationInTheAudit)
        .Bind("The settings of the management services were damaged and " + outcome + ".")
        .Step();
  }
  PutAside(path);
  Replace(path, fresh);
  static_cast<void>(
      std::fprintf(stderr,
                   "The settings of the management services were damaged and %s; what was there "
                   "is kept as %s.damaged: %s\n",
                   outcome.c_str(), path.c_str(), Excerpt(damage).c_str()));
}

}  // namespace

void TryToKeepCopy(Database& database, const std::string& path) noexcept {
  static_cast<void>(Answer("a copy of the settings", [&] { KeepCopy(database, path); }));
}

void BringIntoOrder(const std::string& path) {
  const std::string damage = DamageOf(path);
  if (!damage.empty()) Restore(path, damage);
  Database database(path, Patience);
  TryToKeepCopy(database, path);
}

}  // namespace Velm

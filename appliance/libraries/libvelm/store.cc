#include "libvelm/store.h"

#include <fcntl.h>
#include <pthread.h>
#include <sqlite3.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <mutex>
#include <set>
#include <thread>
#include <utility>

#include "libvelm/schema.h"
#include "libvelm/service_error.h"

namespace Velm {
namespace {

[[noreturn]] void Fail(const std::string& path, sqlite3* connection) {
  throw ServiceError("database " + path + ": " + sqlite3_errmsg(connection));
}

[[noreturn]] void Fail(sqlite3* connection) {
  const char* const path = sqlite3_db_filename(connection, "main");
  Fail(path == nullptr ? "" : path, connection);
}

std::int64_t NewestVersion() { return static_cast<std::int64_t>(SchemaSteps().size()); }

// Held while a database is opened: of several processes that find none, or an old one, one prepares it
// and the others wait. SQLite alone turns some of them away, because the change to write-ahead logging
// does not wait for others.
class OpeningTurn {
 public:
  explicit OpeningTurn(const std::string& database) {
    const std::size_t slash = database.rfind('/');
    const std::string folder = slash == std::string::npos ? "." : database.substr(0, slash + 1);
    descriptor_ = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor_ < 0) throw ServiceError("folder " + folder + ": " + std::strerror(errno));
    int result = 0;
    do {
      result = flock(descriptor_, LOCK_EX);
    } while (result != 0 && errno == EINTR);
    if (result == 0) return;
    const std::string reason = std::strerror(errno);
    close(descriptor_);
    throw ServiceError("lock of folder " + folder + ": " + reason);
  }
  ~OpeningTurn() { close(descriptor_); }
  OpeningTurn(const OpeningTurn&) = delete;
  OpeningTurn& operator=(const OpeningTurn&) = delete;

 private:
  int descriptor_;
};

class Transaction {
 public:
  explicit Transaction(Database& database) : database_(database) { database_.Run("BEGIN IMMEDIATE"); }
  ~Transaction() {
    if (!committed_) database_.Rollback();
  }
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;

  void Commit() {
    database_.Run("COMMIT");
    committed_ = true;
  }

 private:
  Database& database_;
  bool committed_ = false;
};

}  // namespace

Statement::Statement(sqlite3* connection, const char* command) : connection_(connection) {
  if (sqlite3_prepare_v2(connection_, command, -1, &statement_, nullptr) != SQLITE_OK) Fail(connection_);
}

Statement::~Statement() { sqlite3_finalize(statement_); }

Statement& Statement::Bind(std::int64_t value) {
  if (sqlite3_bind_int64(statement_, ++bound_, value) != SQLITE_OK) Fail(connection_);
  return *this;
}

Statement& Statement::Bind(const std::string& value) {
  if (sqlite3_bind_text64(statement_, ++bound_, value.data(), value.size(), SQLITE_TRANSIENT, SQLITE_UTF8) !=
      SQLITE_OK) {
    Fail(connection_);
  }
  return *this;
}

bool Statement::Step() {
  const int result = sqlite3_step(statement_);
  if (result != SQLITE_ROW && result != SQLITE_DONE) Fail(connection_);
  return result == SQLITE_ROW;
}

std::int64_t Statement::Integer(int column) const { return sqlite3_column_int64(statement_, column); }

std::string Statement::Text(int column) const {
  const auto* const text = reinterpret_cast<const char*>(sqlite3_column_text(statement_, column));
  return text == nullptr ? "" : text;
}

Database::Database(const std::string& path, std::chrono::milliseconds patience)
    : path_(path), patience_(patience) {
  const OpeningTurn turn(path);
  sqlite3* connection = nullptr;
  constexpr int Mode = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX;
  const int result = sqlite3_open_v2(path.c_str(), &connection, Mode, nullptr);
  connection_.reset(connection);
  if (result != SQLITE_OK) Fail(path, connection);
  sqlite3_busy_handler(connection, WaitForTurn, this);
  RequireKnownVersion();
  // A change that has been answered survives the loss of power, too.
  Run("PRAGMA journal_mode = WAL; PRAGMA synchronous = FULL; PRAGMA foreign_keys = ON");
  Migrate();
}

void Database::Close::operator()(sqlite3* connection) const { sqlite3_close(connection); }

// SQLite's own way of waiting asks ever more seldom, so that a process that makes one change after the
// other keeps everyone else out. The database's locks give no event that could be waited for.
int Database::WaitForTurn(void* database, int attempts) {
  auto* const self = static_cast<Database*>(database);
  const auto now = std::chrono::steady_clock::now();
  if (attempts == 0) self->patienceEnds_ = now + self->patience_;
  if (now >= self->patienceEnds_) return 0;
  std::this_thread::sleep_for(std::chrono::milliseconds(1));
  return 1;
}

void Database::RequireKnownVersion() {
  const std::int64_t version = Version();
  if (version >= 0 && version <= NewestVersion()) return;
  throw ServiceError("database " + path_ + ": has version " + std::to_string(version) +
                     ", this program knows versions up to " + std::to_string(NewestVersion()) +
                     "; it stays untouched, use the program that wrote it or a newer one");
}

void Database::Migrate() {
  if (Version() == NewestVersion()) return;
  Transaction transaction(*this);
  for (std::int64_t version = Version(); version < NewestVersion(); ++version) {
    Run(SchemaSteps()[static_cast<std::size_t>(version)]);
  }
  Run(("PRAGMA user_version = " + std::to_string(NewestVersion())).c_str());
  transaction.Commit();
}

std::int64_t Database::Version() {
  Statement statement = Prepare("PRAGMA user_version");
  statement.Step();
  return statement.Integer(0);
}

void Database::Run(const char* commands) {
  if (sqlite3_exec(connection_.get(), commands, nullptr, nullptr, nullptr) != SQLITE_OK) {
    Fail(connection_.get());
  }
}

void Database::Rollback() { sqlite3_exec(connection_.get(), "ROLLBACK", nullptr, nullptr, nullptr); }

int Database::Changes() const { return sqlite3_changes(connection_.get()); }

bool Database::HasMoved() const {
  int moved = 0;
  sqlite3_file_control(connection_.get(), "main", SQLITE_FCNTL_HAS_MOVED, &moved);
  return moved != 0;
}

// SQLite's bookkeeping of locks must not come into a child: the child would count its parent's locks as
// its own. So a fork waits until no operation is under way, and finds all databases closed.
class ForkHandlers {
 public:
  static std::mutex& Operations() { return instance().operations_; }
  static void Add(Store* store) {
    const std::lock_guard<std::mutex> lock(Operations());
    instance().stores_.insert(store);
  }
  static void Remove(Store* store) {
    const std::lock_guard<std::mutex> lock(Operations());
    instance().stores_.erase(store);
  }

 private:
  ForkHandlers() { pthread_atfork(BeforeFork, AfterFork, AfterFork); }

  // Never destroyed: threads may still be at work while the process ends.
  static ForkHandlers& instance() {
    static auto* const handlers = new ForkHandlers;
    return *handlers;
  }
  static void BeforeFork() {
    Operations().lock();
    for (Store* store : instance().stores_) store->database_.reset();
  }
  static void AfterFork() { Operations().unlock(); }

  std::mutex operations_;
  std::set<Store*> stores_;
};

Store::Store(std::string path, std::chrono::milliseconds patience)
    : path_(std::move(path)), patience_(patience) {
  ForkHandlers::Add(this);
}

Store::~Store() { ForkHandlers::Remove(this); }

void Store::Read(const std::function<void(Database&)>& work) {
  const std::lock_guard<std::mutex> lock(ForkHandlers::Operations());
  work(Open());
}

void Store::Change(const std::function<void(Database&)>& work) {
  const std::lock_guard<std::mutex> lock(ForkHandlers::Operations());
  Database& database = Open();
  Transaction transaction(database);
  work(database);
  transaction.Commit();
}

Database& Store::Open() {
  if (database_ != nullptr && database_->HasMoved()) database_.reset();
  if (database_ == nullptr) database_ = std::make_unique<Database>(path_, patience_);
  return *database_;
}

}  // namespace Velm

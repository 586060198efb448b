#include "libvelm/store.h"

#include <pthread.h>
#include <sqlite3.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <memory>
#include <mutex>
#include <thread>
#include <utility>

#include "libvelm/copies.h"
#include "libvelm/schema.h"
#include "libvelm/service_error.h"

namespace Velm {
namespace {

[[noreturn]] void Fail(const std::string& path, sqlite3* connection) {
  const std::string sentence = "database " + path + ": " + sqlite3_errmsg(connection);
  switch (sqlite3_extended_errcode(connection)) {
    case SQLITE_IOERR_READ:
    case SQLITE_IOERR_SHORT_READ:
    case SQLITE_IOERR_CORRUPTFS:
      throw Damaged(sentence);
    default:
      break;
  }
  switch (sqlite3_errcode(connection)) {
    case SQLITE_ERROR:     // a table is not there: all commands are right
    case SQLITE_CANTOPEN:  // the folder is there
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
      throw Damaged(sentence);
    default:
      throw ServiceError(sentence);
  }
}

[[noreturn]] void Fail(sqlite3* connection) {
  const char* const path = sqlite3_db_filename(connection, "main");
  Fail(path == nullptr ? "" : path, connection);
}

// A higher one, or one below 0, was written by no program of ours.
constexpr std::int64_t HighestVersionThatMayCome = 9999;

std::int64_t NewestVersion() { return static_cast<std::int64_t>(SchemaSteps().size()); }

void RequireFolder(const std::string& database) {
  const std::string folder = database.substr(0, database.rfind('/') + 1);
  if (!folder.empty() && access(folder.c_str(), F_OK) != 0) {
    throw ServiceError("folder " + folder + ": " + std::strerror(errno));
  }
}

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
  RequireFolder(path);
  sqlite3* connection = nullptr;
  constexpr int Mode = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX;
  const int result = sqlite3_open_v2(path.c_str(), &connection, Mode, nullptr);
  connection_.reset(connection);
  if (result != SQLITE_OK) Fail(path, connection);
  sqlite3_busy_handler(connection, WaitForTurn, this);
  RequireKnownVersion();
  UseWriteAheadLog();
  // A change that has been answered survives the loss of power, too.
  Run("PRAGMA synchronous = FULL; PRAGMA foreign_keys = ON");
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

// The only command for which SQLite does not wait by itself, while several processes make the database.
void Database::UseWriteAheadLog() {
  int attempts = 0;
  int result = SQLITE_BUSY;
  while (result == SQLITE_BUSY && (attempts == 0 || WaitForTurn(this, attempts - 1) != 0)) {
    result = sqlite3_exec(connection_.get(), "PRAGMA journal_mode = WAL", nullptr, nullptr, nullptr);
    ++attempts;
  }
  if (result != SQLITE_OK) Fail(connection_.get());
}

void Database::RequireKnownVersion() {
  const std::int64_t version = Version();
  if (version >= 0 && version <= NewestVersion()) return;
  if (version < 0 || version > HighestVersionThatMayCome) {
    throw Damaged("database " + path_ + ": has the impossible version " + std::to_string(version));
  }
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

bool Database::Serves(const std::string& path, std::chrono::milliseconds patience) const {
  int moved = 0;
  sqlite3_file_control(connection_.get(), "main", SQLITE_FCNTL_HAS_MOVED, &moved);
  return moved == 0 && path == path_ && patience == patience_;
}

namespace {

// The process's open database, and whose turn it is to use it. SQLite's bookkeeping of locks must not come
// into a child: the child would count its parent's locks as its own. So a fork waits until no operation is
// under way, and leaves the database closed.
class OpenDatabase {
 public:
  // Never destroyed: threads may still be at work while the process ends.
  static OpenDatabase& OfThisProcess() {
    static auto* const open = [] {
      pthread_atfork(BeforeFork, AfterFork, AfterFork);
      return new OpenDatabase;
    }();
    return *open;
  }

  std::unique_lock<std::mutex> Turn() { return std::unique_lock<std::mutex>(operations_); }
  // For whose turn it is.
  Database& Get(const std::string& path, std::chrono::milliseconds patience) {
    if (database_ != nullptr && !database_->Serves(path, patience)) database_.reset();
    if (database_ == nullptr) database_ = std::make_unique<Database>(path, patience);
    return *database_;
  }

 private:
  static void BeforeFork() {
    OfThisProcess().operations_.lock();
    OfThisProcess().database_.reset();
  }
  static void AfterFork() { OfThisProcess().operations_.unlock(); }

  std::mutex operations_;
  std::unique_ptr<Database> database_;
};

}  // namespace

Store::Store(std::string path, std::chrono::milliseconds patience)
    : path_(std::move(path)), patience_(patience) {}

void Store::Read(const std::function<void(Database&)>& work) {
  OpenDatabase& open = OpenDatabase::OfThisProcess();
  const auto turn = open.Turn();
  work(open.Get(path_, patience_));
}

void Store::Change(const std::function<void(Database&)>& work) {
  OpenDatabase& open = OpenDatabase::OfThisProcess();
  const auto turn = open.Turn();
  Database& database = open.Get(path_, patience_);
  Transaction transaction(database);
  work(database);
  transaction.Commit();
  TryToKeepCopy(database, path_);
}

}  // namespace Velm

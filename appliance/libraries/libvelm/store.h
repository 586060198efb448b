// The management database: one SQLite file that any number of processes and threads share. A change is
// one transaction, whole or not at all also when its process is killed in the middle.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

struct sqlite3;
struct sqlite3_stmt;

namespace Velm {

// One prepared command on its way: values bound in order, then rows read one after the other.
// Everything here throws ServiceError when the database fails.
class Statement {
 public:
  Statement(sqlite3* connection, const char* command);
  ~Statement();
  Statement(const Statement&) = delete;
  Statement& operator=(const Statement&) = delete;

  Statement& Bind(std::int64_t value);
  Statement& Bind(const std::string& value);
  // Whether there is a further row.
  bool Step();
  // Columns of the current row, counted from 0.
  std::int64_t Integer(int column) const;
  std::string Text(int column) const;

 private:
  sqlite3* connection_;
  sqlite3_stmt* statement_ = nullptr;
  int bound_ = 0;
};

// An open database.
class Database {
 public:
  // Created when it is missing and brought to the current version when it is older.
  // patience: how long to wait for the changes of other processes.
  Database(const std::string& path, std::chrono::milliseconds patience);
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;

  Statement Prepare(const char* command) { return {connection_.get(), command}; }
  // For commands without values and rows.
  void Run(const char* commands);
  // Leaves the transaction under way, if SQLite has not left it by itself already.
  void Rollback();
  // How many rows the last command changed.
  int Changes() const;
  // Whether this is the database at path still: another file, or none, may lie there now.
  bool Serves(const std::string& path, std::chrono::milliseconds patience) const;

 private:
  static int WaitForTurn(void* database, int attempts);
  void RequireKnownVersion();
  void UseWriteAheadLog();
  void Migrate();
  std::int64_t Version();

  struct Close {
    void operator()(sqlite3* connection) const;
  };
  const std::string path_;
  const std::chrono::milliseconds patience_;
  std::chrono::steady_clock::time_point patienceEnds_;
  std::unique_ptr<sqlite3, Close> connection_;
};

// The way to one database. A process keeps the one that it used last open, until the next fork: no process
// ever has a connection that another one opened.
class Store {
 public:
  explicit Store(std::string path, std::chrono::milliseconds patience = std::chrono::seconds(10));

  // One command is one consistent view.
  void Read(const std::function<void(Database&)>& work);
  // Everything that work does is one transaction; nothing of it remains when work throws.
  void Change(const std::function<void(Database&)>& work);

 private:
  const std::string path_;
  const std::chrono::milliseconds patience_;
};

}  // namespace Velm

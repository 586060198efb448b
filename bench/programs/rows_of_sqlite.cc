// rows_of_sqlite TIMES LINES ERRORS QUERY...: runs the queries in the management database and reads all their
// rows, by a connection that stays open, and writes LINES lines of the trace and ERRORS of the error log (0:
// none). The word COPY instead of a query keeps a copy of the database, as is done after a change. Prints how
// many nanoseconds one time took.
#include <sqlite3.h>

#include <cstring>

#include "bare.h"

namespace {

constexpr const char* Database = "/home/embedded/library/CoreService/dat/management.db";
constexpr const char* Log = "/home/embedded/library/HTTPService/lighttpd/logs/php_extension.log";
constexpr const char* Copy = "/home/embedded/library/CoreService/dat/bench.copy";
constexpr const char* FreshCopy = "/home/embedded/library/CoreService/dat/bench.fresh";
constexpr const char* Folder = "/home/embedded/library/CoreService/dat";
constexpr char Line[] = "TRACE[2001-01-01 00:00:00.000 +0000]:Before slp->getAppMgmtConfigInterface():<>\n";

volatile unsigned long seen = 0;  // so that the columns are read

void readRows(sqlite3* database, const char* query) {
  sqlite3_stmt* statement = nullptr;
  if (sqlite3_prepare_v2(database, query, -1, &statement, nullptr) != SQLITE_OK) bare::stop(query);
  int result = sqlite3_step(statement);
  for (; result == SQLITE_ROW; result = sqlite3_step(statement)) {
    for (int column = 0; column < sqlite3_column_count(statement); ++column) {
      const unsigned char* const text = sqlite3_column_text(statement, column);
      if (text != nullptr) seen = seen + text[0];
    }
  }
  if (result != SQLITE_DONE) bare::stop(query);
  sqlite3_finalize(statement);
}

void sync(const char* path) {
  const int descriptor = open(path, O_RDONLY | O_CLOEXEC);
  if (descriptor < 0 || fsync(descriptor) != 0 || close(descriptor) != 0) bare::stop(path);
}

void keepCopy(sqlite3* database) {
  (void)unlink(FreshCopy);
  readRows(database, "VACUUM INTO '/home/embedded/library/CoreService/dat/bench.fresh'");
  sync(FreshCopy);
  if (std::rename(FreshCopy, Copy) != 0) bare::stop(Copy);
  sync(Folder);
}

void run(sqlite3* database, const char* query) {
  if (std::strcmp(query, "COPY") == 0) {
    keepCopy(database);
  } else {
    readRows(database, query);
  }
}

}  // namespace

int main(int count, char** arguments) {
  if (count < 5) return 2;
  const int times = std::atoi(arguments[1]);
  const int lines = std::atoi(arguments[2]);
  const int errors = std::atoi(arguments[3]);
  sqlite3* database = nullptr;
  constexpr int Mode = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX;
  if (sqlite3_open_v2(Database, &database, Mode, nullptr) != SQLITE_OK) bare::stop(Database);
  readRows(database, "SELECT count(*) FROM settings");  // the first reading opens the file
  const double start = bare::nanoseconds();
  for (int time = 0; time < times; ++time) {
    for (char** query = arguments + 4; *query != nullptr; ++query) run(database, *query);
    for (int line = 0; line < lines; ++line) bare::appendLine(Log, Line, sizeof(Line) - 1);
    for (int line = 0; line < errors; ++line)
      (void)std::fprintf(stderr, "1 - 192.0.2.1 - %d - 00000001\n", line);
  }
  std::printf("%.1f\n", (bare::nanoseconds() - start) / times);
  sqlite3_close(database);
}

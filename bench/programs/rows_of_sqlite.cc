// rows_of_sqlite TIMES LINES QUERY...: reads all rows of the queries from the management database, by a
// connection that stays open, and writes LINES lines of the trace (0: only reads). Prints how many
// nanoseconds one time took.
#include <sqlite3.h>

#include "bare.h"

namespace {

constexpr const char* Database = "/home/embedded/library/CoreService/dat/management.db";
constexpr const char* Log = "/home/embedded/library/HTTPService/lighttpd/logs/php_extension.log";
constexpr char Line[] = "TRACE[2001-01-01 00:00:00.000]:Before slp->getAppMgmtConfigInterface():<>\n";

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

}  // namespace

int main(int count, char** arguments) {
  if (count < 5) return 2;
  const int times = std::atoi(arguments[1]);
  const int lines = std::atoi(arguments[2]);
  const int errors = std::atoi(arguments[3]);
  sqlite3* database = nullptr;
  constexpr int Mode = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX;
  if (sqlite3_open_v2(Database, &database, Mode, nullptr) != SQLITE_OK) bare::stop(Database);
  readRows(database, arguments[4]);  // the first reading opens the file
  const double start = bare::nanoseconds();
  for (int time = 0; time < times; ++time) {
    for (char** query = arguments + 4; *query != nullptr; ++query) readRows(database, *query);
    for (int line = 0; line < lines; ++line) bare::appendLine(Log, Line, sizeof(Line) - 1);
    for (int line = 0; line < errors; ++line)
      (void)std::fprintf(stderr, "1 - 192.0.2.1 - %d - 00000001\n", line);
  }
  std::printf("%.1f\n", (bare::nanoseconds() - start) / times);
  sqlite3_close(database);
}

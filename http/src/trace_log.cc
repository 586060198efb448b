#include "trace_log.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

#include "utility/thetime.h"

namespace {

constexpr const char* Level = "TRACE";
constexpr mode_t ReadAndWriteForAll = 0666;  // less the process's mask

const char* orNull(const char* text) { return text == nullptr ? "NULL" : text; }

// One write on a descriptor in append mode: lines of concurrent writers cannot mix.
void appendToLog(const std::string& line) {
  const int log = open(TraceLogFile, O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, ReadAndWriteForAll);
  if (log < 0) return;
  while (write(log, line.data(), line.size()) < 0 && errno == EINTR) {
  }
  close(log);
}

}  // namespace

std::string traceLine(const std::string& level, const char* message, const char* extra) {
  std::string line = level;
  line += '[';
  line += thetime();
  line += "]:";
  line += orNull(message);
  line += ":<";
  line += orNull(extra);
  line += ">\n";
  return line;
}

void logEntry(const std::string& level, const char* message, const char* extra) {
  appendToLog(traceLine(level, message, extra));
}

void logEntry(const std::string& level, const char* message, const int& value) {
  appendToLog(traceLine(level, message, std::to_string(value).c_str()));
}

void trace(const char* message, const char* extra) { logEntry(Level, message, extra); }
void trace(const char* message, const std::string& extra) { logEntry(Level, message, extra.c_str()); }
void trace(const char* message, int value) { logEntry(Level, message, value); }

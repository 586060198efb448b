// What is written into the log file. Its path is fixed and need not be there on this machine: this program's
// own open() leads it to a file of the test.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <sstream>
#include <string>

#include "trace_log.h"

namespace {

std::string logOfTheTest() { return testing::TempDir() + "log_entry_test." + std::to_string(getpid()); }

class LogEntry : public testing::Test {
 protected:
  ~LogEntry() override { std::remove(logOfTheTest().c_str()); }

  // The time masked.
  static std::string Written() {
    std::ostringstream text;
    text << std::ifstream(logOfTheTest()).rdbuf();
    std::string line = text.str();
    const std::size_t begin = line.find('[') + 1;
    return line.erase(begin, line.find(']', begin) - begin);
  }
};

}  // namespace

extern "C" int open(const char* path, int flags, ...) {
  va_list rest;
  va_start(rest, flags);
  const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
  va_end(rest);
  const bool isLog =
      std::strcmp(path, "/home/embedded/library/HTTPService/lighttpd/logs/php_extension.log") == 0;
  return static_cast<int>(syscall(SYS_openat, AT_FDCWD, isLog ? logOfTheTest().c_str() : path, flags, mode));
}

TEST_F(LogEntry, OfATextWithoutAMessageSaysNull) {
  logEntry("TRACE", nullptr, "x");
  EXPECT_EQ("TRACE[]:NULL:<x>\n", Written());
}

TEST_F(LogEntry, OfANumberWithoutAMessageSaysNull) {
  logEntry("TRACE", nullptr, -7);
  EXPECT_EQ("TRACE[]:NULL:<-7>\n", Written());
}

TEST_F(LogEntry, WithoutAnExtraTextSaysNull) {
  const char* const noText = nullptr;
  logEntry("TRACE", "m", noText);
  EXPECT_EQ("TRACE[]:m:<NULL>\n", Written());
}

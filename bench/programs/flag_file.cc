// flag_file FUNCTION WHAT TIMES FLAG: what is_ipv6_enabled() asks of the kernel, and the texts that it
// writes: three lines of the trace with the FUNCTION's name and WHAT it looks for, and a look for a file.
// Prints how many nanoseconds one time took.
//
// flag_file FUNCTION WHAT START END FLAG: from START to END, in nanoseconds of the monotonic clock; prints
// how often.
#include <sys/time.h>

#include <string>

#include "bare.h"

namespace {

constexpr const char* Log = "/home/embedded/library/HTTPService/lighttpd/logs/php_extension.log";

void writeLine(const char* message) {
  static std::time_t second = 0;
  static char date[64];
  static char zone[16];
  std::timespec now = {};
  clock_gettime(CLOCK_REALTIME, &now);
  if (now.tv_sec != second) {
    std::tm parts = {};
    second = now.tv_sec;
    localtime_r(&second, &parts);
    std::strftime(date, sizeof(date), "%Y-%m-%d %H:%M:%S", &parts);
    std::strftime(zone, sizeof(zone), "%z", &parts);
  }
  char line[256];
  const int length = std::snprintf(line, sizeof(line), "TRACE[%s.%03ld %s]:%s:<>\n", date,
                                   now.tv_nsec / 1000000, zone, message);
  bare::appendLine(Log, line, static_cast<std::size_t>(length));
}

// The lines of a function, and the flag it looks for.
struct Look {
  Look(const std::string& function, const std::string& what, const char* flag)
      : entering("Entering " + function),
        enabled(what + " was enabled"),
        notEnabled(what + " was NOT enabled"),
        exiting("Exiting " + function),
        path(flag) {}
  std::string entering, enabled, notEnabled, exiting;
  const char* path;
};

void once(const Look& look) {
  writeLine(look.entering.c_str());
  const int file = open(look.path, O_RDONLY | O_CLOEXEC);
  if (file >= 0) close(file);
  writeLine(file >= 0 ? look.enabled.c_str() : look.notEnabled.c_str());
  writeLine(look.exiting.c_str());
}

// As count_calls.php does it with the module's.
int countLooks(const Look& look, double start, double end) {
  once(look);
  if (bare::nanoseconds() >= start) bare::stop("too late to start");
  while (bare::nanoseconds() < start) usleep(500);
  int looks = 0;
  for (; bare::nanoseconds() < end; ++looks) once(look);
  std::printf("%d\n", looks);
  return 0;
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 5 && count != 6) return 2;
  const Look look(arguments[1], arguments[2], arguments[count - 1]);
  if (count == 6) return countLooks(look, std::atof(arguments[3]), std::atof(arguments[4]));
  const int times = std::atoi(arguments[3]);
  const double start = bare::nanoseconds();
  for (int time = 0; time < times; ++time) once(look);
  std::printf("%.1f\n", (bare::nanoseconds() - start) / times);
}

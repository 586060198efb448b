// flag_file TIMES FLAG: what is_ipv6_enabled() asks of the kernel, and the texts that it writes: three lines
// of the trace and a look for a file. Prints how many nanoseconds one time took.
// flag_file START END FLAG: from START to END, in nanoseconds of the monotonic clock; prints how often.
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

void look(const char* path) {
  writeLine("Entering is_ipv6_enabled");
  const int file = open(path, O_RDONLY | O_CLOEXEC);
  if (file >= 0) close(file);
  writeLine(file >= 0 ? "IPv6 was enabled" : "IPv6 was NOT enabled");
  writeLine("Exiting is_ipv6_enabled");
}

// As count_calls.php does it with the module's.
int countLooks(double start, double end, const char* path) {
  look(path);
  if (bare::nanoseconds() >= start) bare::stop("too late to start");
  while (bare::nanoseconds() < start) usleep(500);
  int looks = 0;
  for (; bare::nanoseconds() < end; ++looks) look(path);
  std::printf("%d\n", looks);
  return 0;
}

}  // namespace

int main(int count, char** arguments) {
  if (count == 4) return countLooks(std::atof(arguments[1]), std::atof(arguments[2]), arguments[3]);
  if (count != 3) return 2;
  const int times = std::atoi(arguments[1]);
  const double start = bare::nanoseconds();
  for (int time = 0; time < times; ++time) look(arguments[2]);
  std::printf("%.1f\n", (bare::nanoseconds() - start) / times);
}

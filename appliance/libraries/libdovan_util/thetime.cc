#include "utility/thetime.h"

#include <cstddef>
#include <ctime>

namespace {

// 2026-11-21 10:15:30.123 +0100
constexpr char Format[] = "%Y-%m-%d %H:%M:%S.000 %z";
constexpr std::size_t Milliseconds = sizeof("2026-11-21 10:15:30.") - 1;

struct Text {
  std::time_t second = -1;
  char characters[64];
};

// Asking for the time zone is what costs: done once a second.
void writeSecond(Text& text, std::time_t second) {
  std::tm parts = {};
  localtime_r(&second, &parts);
  std::strftime(text.characters, sizeof(text.characters), Format, &parts);
  text.second = second;
}

}  // namespace

const char* thetime() {
  static thread_local Text text;
  std::timespec now = {};
  clock_gettime(CLOCK_REALTIME, &now);
  if (now.tv_sec != text.second) writeSecond(text, now.tv_sec);
  long rest = now.tv_nsec / 1000000;
  for (std::size_t digit = Milliseconds + 3; digit > Milliseconds; rest /= 10) {
    text.characters[--digit] = static_cast<char>('0' + rest % 10);
  }
  return text.characters;
}

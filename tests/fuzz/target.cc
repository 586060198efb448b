#include "target.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {

// The product's own standard error goes nowhere: see run.
const int complaints = fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, 0);

}  // namespace

void require(bool holds, const char* sentence) {
  if (holds) return;
  dprintf(complaints, "does not hold: %s\n", sentence);
  std::abort();
}

bool faultIsPlanted() {
  static const bool planted = std::getenv("FUZZ_PLANTED_FAULT") != nullptr;
  return planted;
}

std::string_view takeLine(std::string_view& rest) {
  const std::size_t end = rest.find('\n');
  const std::string_view line = rest.substr(0, end);
  rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  return line;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  tryInput({reinterpret_cast<const char*>(data), size});
  return 0;
}

// Looks at the device that it runs on and says, a line for each finding, whether the module can work there.
// It changes nothing of the device.
#include <cstdio>
#include <cstring>
#include <string>

#include "apart.h"
#include "closed_libraries.h"
#include "findings.h"
#include "names.h"
#include "operations.h"
#include "places.h"

namespace {

constexpr int StatusUsage = 64;

void printUsage(std::FILE* stream) {
  std::fputs(
      "Usage: verify [MODULE]\n"
      "\n"
      "Says whether the module, MODULE or network.so beside this program, can work on this device: a line "
      "for each finding.\n"
      "Best run as the user of the web service. It changes nothing.\n"
      "\n"
      "Exit status: 0 when all is right, 1 when something is wrong or unknown, 64 for wrong usage.\n",
      stream);
}

std::string besideThisProgram(const std::string& program) {
  const std::size_t slash = program.rfind('/');
  return (slash == std::string::npos ? "." : program.substr(0, slash)) + "/network.so";
}

// What keeps one library from being loaded keeps all that is asked of them from being told: it is said once.
void checkAll(const Module& module) {
  if (!readLibraries(module)) return;
  const bool loaded = apart("the libraries", [&module] {
    ClosedLibraries libraries;
    libraries.load(module, true);
    checkNames(module, libraries);
  });
  if (!loaded) return;
  apart("IMgmtAppConfig", [&module] {
    ClosedLibraries libraries;
    libraries.load(module, false);
    checkMgmtAppConfig(module, libraries);
  });
  apart("IStorageLibrary", [&module] {
    ClosedLibraries libraries;
    libraries.load(module, false);
    checkStorageLibrary(module, libraries);
  });
}

}  // namespace

int main(int argc, char** argv) {
  if (argc > 2 || (argc == 2 && argv[1][0] == '-')) {
    const bool asked = std::strcmp(argv[1], "--help") == 0;
    printUsage(asked ? stdout : stderr);
    return asked ? 0 : StatusUsage;
  }
  // A line is there at once, whatever becomes of the next check.
  std::setvbuf(stdout, nullptr, _IOLBF, BUFSIZ);
  Module module;
  if (readModule(argc == 2 ? argv[1] : besideThisProgram(argv[0]), module)) checkAll(module);
  checkPlaces();
  if (allRight()) note("all is right");
  if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) {
    std::fputs("verify: its findings could not be written\n", stderr);
    return 1;
  }
  return allRight() ? 0 : 1;
}

// Looks at the device that it runs on and says, a line for each finding, whether the module can work there.
// It changes nothing of the device.
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstring>
#include <string>

#include "closed_libraries.h"
#include "findings.h"
#include "names.h"
#include "operations.h"
#include "places.h"

namespace {

constexpr unsigned int SecondsForAnswer = 10;
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

// The vendor's code runs in processes of their own: one that ends there, or never answers, is a finding like
// others.
template <class Check>
void apart(const std::string& what, const Check& check) {
  std::fflush(stdout);
  const pid_t process = fork();
  if (process == 0) {
    alarm(SecondsForAnswer);
    check();
    std::fflush(stdout);
    _exit(allRight() ? 0 : 1);
  }
  int status = 0;
  if (process < 0 || waitpid(process, &status, 0) < 0) {
    unknown(what + " cannot be looked at: no process can be started");
  } else if (WIFSIGNALED(status) && WTERMSIG(status) == SIGALRM) {
    wrong(what + ": no answer within " + number(SecondsForAnswer) + " seconds");
  } else if (WIFSIGNALED(status)) {
    wrong(what + ": the libraries ended with signal " + number(WTERMSIG(status)) + ", " +
          strsignal(WTERMSIG(status)));
  } else if (WEXITSTATUS(status) != 0) {
    someWasWrong();
  }
}

void checkAll(const Module& module) {
  apart("the libraries", [&module] {
    ClosedLibraries libraries;
    libraries.load(module, true);
    checkNames(module, libraries);
  });
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

// The command wrapper as a program of its own.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <climits>
#include <csignal>
#include <cstdlib>
#include <string>

#include "utility/Runtime.h"

namespace {

// It lies beside the libraries, one folder above the tests.
std::string wrapper() {
  char path[PATH_MAX];
  const ssize_t length = readlink("/proc/self/exe", path, sizeof(path));
  const std::string program(path, static_cast<std::size_t>(length));
  const std::string folder = program.substr(0, program.rfind('/'));
  return folder.substr(0, folder.rfind('/')) + "/cmdwrap";
}

struct Outcome {
  std::string output;
  std::string standardError;
  int waitStatus;
};

Outcome wrap(const std::string& arguments) {
  Outcome outcome;
  testing::internal::CaptureStderr();
  Runtime::getInstance()->execute(wrapper() + " " + arguments, outcome.output, outcome.waitStatus);
  outcome.standardError = testing::internal::GetCapturedStderr();
  return outcome;
}

void expectOutput(const std::string& output, const std::string& arguments) {
  const Outcome outcome = wrap(arguments);
  EXPECT_EQ(output, outcome.output);
  EXPECT_EQ("", outcome.standardError);
  EXPECT_EQ(0, outcome.waitStatus);
}

void expectWrongUsage(const std::string& sentence, const std::string& arguments) {
  const Outcome outcome = wrap(arguments);
  EXPECT_EQ("", outcome.output);
  EXPECT_EQ(0U, outcome.standardError.find("cmdwrap: " + sentence + "\nusage: ")) << outcome.standardError;
  EXPECT_EQ(2 << 8, outcome.waitStatus);
}

}  // namespace

TEST(CommandWrapper, AddsNothingToTheOutputOfTheCommand) {
  expectOutput("a", "-NO_END_OF_FILE printf a");
  expectOutput("a", "printf a");
  expectOutput("", "-NO_END_OF_FILE true");
}

TEST(CommandWrapper, HandsTheArgumentsOnUnchanged) {
  expectOutput("<-NO_END_OF_FILE><a  b><><*><-x>",
               R"(-NO_END_OF_FILE printf <%s> -NO_END_OF_FILE "a  b" "" * -x)");
}

TEST(CommandWrapper, SearchesAPlainNameInThePath) { expectOutput("a", "-NO_END_OF_FILE sh -c \"printf a\""); }

TEST(CommandWrapper, ReplacesItselfByTheCommand) {
  // The command's parent is this process: no wrapper stands between.
  expectOutput(std::to_string(getpid()), "-NO_END_OF_FILE sh -c \"echo $PPID\"");
}

TEST(CommandWrapper, EndsAsTheCommandEnds) {
  EXPECT_EQ(44 << 8, wrap("-NO_END_OF_FILE sh -c \"exit 44\"").waitStatus);
  EXPECT_EQ(SIGTERM, wrap("-NO_END_OF_FILE sh -c \"kill $$\"").waitStatus);
}

TEST(CommandWrapper, AMissingCommandIsExitStatus127) {
  const Outcome outcome = wrap("-NO_END_OF_FILE /no/such/program word");
  EXPECT_EQ("", outcome.output);
  EXPECT_EQ("cmdwrap: cannot run '/no/such/program': No such file or directory\n", outcome.standardError);
  EXPECT_EQ(127 << 8, outcome.waitStatus);
}

TEST(CommandWrapper, ACommandThatIsNotExecutableIsExitStatus126) {
  std::string path = "/tmp/cmdwrap_test.XXXXXX";
  close(mkstemp(path.data()));  // for its owner to read and write
  const Outcome outcome = wrap("-NO_END_OF_FILE " + path);
  unlink(path.c_str());
  EXPECT_EQ("cmdwrap: cannot run '" + path + "': Permission denied\n", outcome.standardError);
  EXPECT_EQ(126 << 8, outcome.waitStatus);
}

TEST(CommandWrapper, WithoutACommandSaysHowItIsUsed) {
  expectWrongUsage("no command given", "");
  expectWrongUsage("no command given", "-NO_END_OF_FILE");
}

TEST(CommandWrapper, RefusesAnOptionThatItDoesNotKnow) {
  expectWrongUsage("unknown option -END", "-END true");
  expectWrongUsage("unknown option -NO_END_OF_FILE", "-NO_END_OF_FILE -NO_END_OF_FILE true");
}

TEST(CommandWrapper, ExplainsItself) {
  const Outcome outcome = wrap("--help");
  EXPECT_EQ(0U, outcome.output.find("usage: cmdwrap [-NO_END_OF_FILE] COMMAND [ARGUMENT...]\n"));
  EXPECT_EQ("", outcome.standardError);
  EXPECT_EQ(0, outcome.waitStatus);
}

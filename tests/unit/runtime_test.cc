#include "utility/Runtime.h"

#include <dirent.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstdlib>
#include <ctime>
#include <string>
#include <thread>
#include <vector>

#include "libdovan_util/command_words.h"
#include "libdovan_util/commands_at_once.h"

namespace {

constexpr int NoSuchProgram = 127 << 8;
constexpr int CannotBeRun = 126 << 8;

struct Outcome {
  bool succeeded;
  std::string output;
  int waitStatus;
};

Outcome run(const std::string& command) {
  Outcome outcome = {false, "what an earlier command printed", -1};
  outcome.succeeded = Runtime::getInstance()->execute(command, outcome.output, outcome.waitStatus);
  return outcome;
}

std::string outputOf(const std::string& command) {
  const Outcome outcome = run(command);
  EXPECT_TRUE(outcome.succeeded) << command;
  EXPECT_EQ(0, outcome.waitStatus) << command;
  return outcome.output;
}

// Both ways of running: the same failure, no output, and a sentence that holds reason.
void expectRefusal(const std::string& command, int waitStatus, const std::string& reason) {
  testing::internal::CaptureStderr();
  const Outcome outcome = run(command);
  EXPECT_FALSE(outcome.succeeded);
  EXPECT_EQ("", outcome.output);
  EXPECT_EQ(waitStatus, outcome.waitStatus);
  EXPECT_EQ(waitStatus, Runtime::getInstance()->execute(command));
  const std::string sentences = testing::internal::GetCapturedStderr();
  EXPECT_EQ(2, std::count(sentences.begin(), sentences.end(), '\n')) << sentences;
  EXPECT_NE(std::string::npos, sentences.find(reason)) << sentences;
}

int openDescriptors() {
  int count = 0;
  DIR* const directory = opendir("/proc/self/fd");
  while (readdir(directory) != nullptr) ++count;
  closedir(directory);
  return count;
}

// Of one that the host starts without Runtime.
std::ptrdiff_t descriptorsOfAProgram() {
  testing::internal::CaptureStdout();
  EXPECT_EQ(0, system("ls /proc/self/fd"));
  const std::string numbers = testing::internal::GetCapturedStdout();
  return std::count(numbers.begin(), numbers.end(), '\n');
}

bool hasChildren() { return waitpid(-1, nullptr, WNOHANG) != -1 || errno != ECHILD; }

class TemporaryFile {
 public:
  TemporaryFile(const std::string& content, mode_t mode) {
    const int file = mkstemp(path_.data());
    EXPECT_EQ(static_cast<ssize_t>(content.size()), write(file, content.data(), content.size()));
    EXPECT_EQ(0, fchmod(file, mode));
    close(file);
  }
  ~TemporaryFile() { unlink(path_.c_str()); }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  const std::string& Path() const { return path_; }

 private:
  std::string path_ = "/tmp/runtime_test.XXXXXX";
};

// Used by this thread.
double processorSeconds() {
  timespec used = {};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &used);
  return static_cast<double>(used.tv_sec) + static_cast<double>(used.tv_nsec) / 1e9;
}

// A disposition of this process, until the end of the test.
class SignalAction {
 public:
  SignalAction(int number, void (*handler)(int)) : number_(number) {
    struct sigaction action = {};
    action.sa_handler = handler;  // no SA_RESTART
    sigaction(number, &action, &former_);
  }
  ~SignalAction() { sigaction(number_, &former_, nullptr); }
  SignalAction(const SignalAction&) = delete;
  SignalAction& operator=(const SignalAction&) = delete;

 private:
  int number_;
  struct sigaction former_ = {};
};

bool isIgnored(int number) {
  struct sigaction action = {};
  sigaction(number, nullptr, &action);
  return action.sa_handler == SIG_IGN;
}

// Each command answers with a word and an exit status of its own.
void runManyTimes(int thread) {
  for (int round = 0; round < 40; ++round) {
    const std::string word = std::to_string(thread * 1000 + round);
    const Outcome outcome = run("sh -c \"echo " + word + "; exit " + std::to_string(thread) + "\"");
    EXPECT_EQ(word, outcome.output);
    EXPECT_EQ(thread << 8, outcome.waitStatus);
  }
}

void runOnManyThreads() {
  std::vector<std::thread> threads(8);
  int number = 0;
  for (std::thread& thread : threads) thread = std::thread(runManyTimes, number++);
  for (std::thread& thread : threads) thread.join();
}

volatile std::sig_atomic_t alarms = 0;

// A signal each millisecond.
class Alarms {
 public:
  Alarms() { Set(1000); }
  ~Alarms() {
    Set(0);
    std::signal(SIGALRM, SIG_IGN);  // forgets one that has not been delivered yet
  }
  Alarms(const Alarms&) = delete;
  Alarms& operator=(const Alarms&) = delete;

 private:
  static void Set(suseconds_t interval) {
    const itimerval timer = {{0, interval}, {0, interval}};
    setitimer(ITIMER_REAL, &timer, nullptr);
  }
  SignalAction action_{SIGALRM, [](int) { alarms = alarms + 1; }};
};

}  // namespace

TEST(Runtime, IsOnePerProcess) { EXPECT_EQ(Runtime::getInstance(), Runtime::getInstance()); }

TEST(Runtime, OutputReplacesWhatTheVariableHeld) { EXPECT_EQ("hello", outputOf("/bin/echo hello")); }

TEST(Runtime, TheProgramIsSearchedInThePath) { EXPECT_EQ("hello", outputOf("echo hello")); }

TEST(Runtime, RemovesAllLineEndsAtTheEndAndNoOthers) {
  EXPECT_EQ("1", outputOf("printf 1\\n"));
  EXPECT_EQ("1", outputOf("printf 1\\r\\n"));
  EXPECT_EQ("1", outputOf("printf 1\\n\\r\\n\\n"));
  EXPECT_EQ("a\nb", outputOf("printf a\\nb"));
  EXPECT_EQ("a\r", outputOf("printf a\\r"));
  EXPECT_EQ("a\r", outputOf("printf a\\r\\r\\n"));
  EXPECT_EQ("a ", outputOf("printf \"a \\n\""));
  EXPECT_EQ("", outputOf("printf \\n\\r\\n"));
}

TEST(Runtime, ACommandThatPrintsNothingGivesTheEmptyText) { EXPECT_EQ("", outputOf("true")); }

TEST(Runtime, OutputMayHoldAnyByte) {
  EXPECT_EQ(std::string("a\0b\377\r c", 7), outputOf("printf \"a\\000b\\377\\r c\\n\""));
}

TEST(Runtime, OutputOf64MiBIsWholeAndCopiedOnlyNowAndThen) {
  constexpr std::size_t Size = 64U << 20U;
  const double before = processorSeconds();
  const std::string output = outputOf("head -c 67108864 /dev/zero");
  EXPECT_GT(5, processorSeconds() - before);  // copied with each piece that is read, it takes over a minute
  EXPECT_EQ(Size, output.size());
  EXPECT_EQ(std::string::npos, output.find_first_not_of('\0'));
}

TEST(Runtime, AFailingCommandLeavesItsOutputAndItsRawWaitStatus) {
  const Outcome outcome = run("sh -c \"echo partial; exit 44\"");
  EXPECT_FALSE(outcome.succeeded);
  EXPECT_EQ("partial", outcome.output);
  EXPECT_EQ(11264, outcome.waitStatus);
}

TEST(Runtime, ASignalsNumberIsTheWaitStatusOfTheCommandThatItEnds) {
  const Outcome outcome = run("sh -c \"echo partial; kill -9 $$\"");
  EXPECT_FALSE(outcome.succeeded);
  EXPECT_EQ("partial", outcome.output);
  EXPECT_EQ(SIGKILL, outcome.waitStatus);
  EXPECT_EQ(SIGKILL, Runtime::getInstance()->execute("sh -c \"kill -9 $$\""));
}

TEST(Runtime, WithoutAnOutputGivesZeroForSuccessAndTheWaitStatusForFailure) {
  EXPECT_EQ(0, Runtime::getInstance()->execute("true"));
  EXPECT_EQ(3 << 8, Runtime::getInstance()->execute("sh -c \"exit 3\""));
}

TEST(Runtime, WithoutAnOutputTheCommandsOwnGoesNowhere) {
  testing::internal::CaptureStdout();
  const int result = Runtime::getInstance()->execute("echo lost");
  EXPECT_EQ("", testing::internal::GetCapturedStdout());
  EXPECT_EQ(0, result);
}

TEST(Runtime, AMissingProgramIsAFailureThatNamesIt) {
  expectRefusal("/no/such/program with words", NoSuchProgram,
                "'/no/such/program with words' failed: No such file");
  expectRefusal("no-such-program", NoSuchProgram, "'no-such-program' failed: No such file");
  expectRefusal("\"\" word", NoSuchProgram, "' word' failed: No such file");
}

TEST(Runtime, AFileThatIsNotExecutableIsAFailure) {
  const TemporaryFile file("#!/bin/sh\n", 0644);
  expectRefusal(file.Path(), CannotBeRun, "Permission denied");
}

TEST(Runtime, AFileThatIsNoProgramIsAFailure) {
  const TemporaryFile file("neither machine code nor a script\n", 0755);
  expectRefusal(file.Path(), CannotBeRun, "Exec format error");
}

TEST(Runtime, ACommandWithoutWordsIsAFailure) {
  expectRefusal("", CannotBeRun, "names no program");
  expectRefusal(" \t ", CannotBeRun, "names no program");
}

TEST(Runtime, ANulInTheCommandIsAFailureAndNothingRuns) {
  const TemporaryFile file("", 0644);
  expectRefusal(std::string("rm ") + file.Path() + std::string("\0.old", 5), CannotBeRun, "NUL");
  EXPECT_EQ(0, access(file.Path().c_str(), F_OK));
}

TEST(Runtime, AnUnclosedQuoteIsAFailureAndNothingRuns) {
  const TemporaryFile file("", 0644);
  expectRefusal("rm " + file.Path() + " \"", CannotBeRun, "quote is not closed");
  EXPECT_EQ(0, access(file.Path().c_str(), F_OK));
}

TEST(Runtime, AWordOfAMebibyteIsAFailureWithAShortSentence) {
  const std::string command = "echo " + std::string(1U << 20U, 'x');
  expectRefusal(command, CannotBeRun, "xxx...' failed: Argument list too long\n");
  expectRefusal(std::string(1U << 20U, 'x'), CannotBeRun, "xxx...' failed: File name too long\n");
}

TEST(Runtime, WithoutADescriptorToSpareTheCommandFails) {
  rlimit former = {};
  getrlimit(RLIMIT_NOFILE, &former);
  testing::internal::CaptureStderr();
  const rlimit none = {3, former.rlim_max};
  setrlimit(RLIMIT_NOFILE, &none);
  const Outcome outcome = run("echo hello");
  setrlimit(RLIMIT_NOFILE, &former);
  EXPECT_FALSE(outcome.succeeded);
  EXPECT_EQ(CannotBeRun, outcome.waitStatus);
  EXPECT_EQ("command 'echo hello' failed: Too many open files\n", testing::internal::GetCapturedStderr());
}

TEST(Runtime, WhatAShellWouldActOnIsOnlyText) {
  const std::string text = "; reboot | cat & $(id) `id` $HOME * ? [a-z] ~ # 'x y' > /no/such < y {a,b} \\ !";
  EXPECT_EQ(text, outputOf("echo " + text));
}

TEST(Runtime, DoubleQuotesKeepAWordTogether) {
  EXPECT_EQ("<10.1.1.1  10.1.1.2><b><>", outputOf("printf <%s> \"10.1.1.1  10.1.1.2\" b \"\""));
}

TEST(Runtime, StandardInputIsEmptyWhateverTheHostsHolds) {
  const TemporaryFile request("the request's body", 0644);
  const int former = fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, 10);
  const int input = open(request.Path().c_str(), O_RDONLY | O_CLOEXEC);
  dup2(input, STDIN_FILENO);
  const Outcome outcome = run("cat");
  dup2(former, STDIN_FILENO);
  close(former);
  close(input);
  EXPECT_EQ("", outcome.output);
  EXPECT_EQ(0, outcome.waitStatus);
}

TEST(Runtime, StandardErrorIsPassedThrough) {
  testing::internal::CaptureStderr();
  EXPECT_EQ("out", outputOf("sh -c \"echo wrong >&2; echo out\""));
  EXPECT_EQ("wrong\n", testing::internal::GetCapturedStderr());
}

TEST(Runtime, NoOtherDescriptorOfTheHostReachesTheCommand) {
  const int first = open("/dev/null", O_RDONLY);  // NOLINT(android-cloexec-open): to be inherited
  const int high = dup2(first, 200);
  EXPECT_EQ("0\n1\n2\n3", outputOf("ls /proc/self/fd"));  // 3 is the folder that it lists
  close(high);
  close(first);
}

TEST(Runtime, ProgramsThatTheHostStartsItselfDoNotInheritThePipe) {
  const std::string gate = "/tmp/runtime_test." + std::to_string(getpid());
  ASSERT_EQ(0, mkfifo(gate.c_str(), 0600));
  std::thread command([&gate] { EXPECT_EQ("", outputOf("cat " + gate)); });
  const int opened = open(gate.c_str(), O_WRONLY | O_CLOEXEC);  // returns when the command runs
  const std::ptrdiff_t descriptors = descriptorsOfAProgram();
  close(opened);
  command.join();
  unlink(gate.c_str());
  EXPECT_EQ(descriptorsOfAProgram(), descriptors);
}

TEST(Runtime, WorksInAHostWithoutStandardInputAndOutput) {
  const int input = fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, 10);
  const int output = fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 10);
  close(STDIN_FILENO);
  close(STDOUT_FILENO);
  const Outcome readAndWrite = run("sh -c \"cat; echo hello\"");  // the pipe got the numbers 0 and 1
  dup2(output, STDOUT_FILENO);
  const Outcome writeOnly = run("sh -c \"cat; echo hello\"");
  dup2(input, STDIN_FILENO);
  close(input);
  close(output);
  EXPECT_EQ("hello", readAndWrite.output);
  EXPECT_EQ(0, readAndWrite.waitStatus);
  EXPECT_EQ("hello", writeOnly.output);
  EXPECT_EQ(0, writeOnly.waitStatus);
}

TEST(Runtime, SignalsBlockedOrIgnoredByTheHostAreNotSoInTheCommand) {
  constexpr unsigned long long CLibrarysOwn = 3ULL << 31U;  // 32 and 33: it ignores them in each child
  const SignalAction ignoring(SIGPIPE, SIG_IGN);
  sigset_t signals;
  sigset_t former;
  sigfillset(&signals);
  pthread_sigmask(SIG_BLOCK, &signals, &former);
  const std::string blocked = outputOf("sed -n s/SigBlk:.//p /proc/self/status");
  const std::string ignored = outputOf("sed -n s/SigIgn:.//p /proc/self/status");
  pthread_sigmask(SIG_SETMASK, &former, nullptr);
  EXPECT_EQ("0000000000000000", blocked);
  EXPECT_EQ(16U, ignored.size());
  EXPECT_EQ(0U, std::stoull(ignored, nullptr, 16) & ~CLibrarysOwn) << ignored;
}

TEST(Runtime, SignalsToTheHostInterruptNothing) {
  const Alarms ringing;
  alarms = 0;
  EXPECT_EQ(8U << 20U,
            outputOf("sh -c \"sleep 0.1; head -c 8388608 /dev/zero; exec >&-; sleep 0.1\"").size());
  EXPECT_EQ(3 << 8, Runtime::getInstance()->execute("sh -c \"sleep 0.1; exit 3\""));
  EXPECT_LT(50, alarms);
}

TEST(Runtime, AHostThatIgnoresItsChildrenStillLearnsTheStatus) {
  const SignalAction ignoring(SIGCHLD, SIG_IGN);
  const Outcome outcome = run("sh -c \"echo out; exit 3\"");
  EXPECT_EQ("out", outcome.output);
  EXPECT_EQ(3 << 8, outcome.waitStatus);
  EXPECT_TRUE(isIgnored(SIGCHLD));
}

TEST(Runtime, AHostThatIgnoresItsChildrenMayRunCommandsAtTheSameTime) {
  const SignalAction ignoring(SIGCHLD, SIG_IGN);
  runOnManyThreads();
  EXPECT_TRUE(isIgnored(SIGCHLD));
}

TEST(Runtime, AStatusThatTheHostsOwnHandlerTookIsAFailure) {
  const SignalAction reaping(SIGCHLD, [](int) { waitpid(-1, nullptr, WNOHANG); });
  testing::internal::CaptureStderr();
  // The shell ends at once; what it started keeps the output open.
  const Outcome outcome = run("sh -c \"sleep 0.2 & echo out\"");
  EXPECT_NE(std::string::npos, testing::internal::GetCapturedStderr().find("taken its exit status"));
  EXPECT_EQ("out", outcome.output);
  EXPECT_EQ(CannotBeRun, outcome.waitStatus);
}

TEST(Runtime, ACommandFindsTheSameEnvironmentWhateverTheHostHas) {
  ASSERT_EQ(0, setenv("LD_PRELOAD_OF_SOMEBODY", "x", 1));
  EXPECT_EQ("PATH=/usr/sbin:/usr/bin:/sbin:/bin", run("/usr/bin/env").output);
  unsetenv("LD_PRELOAD_OF_SOMEBODY");
  char** const own = environ;
  environ = nullptr;  // as a library may see it
  EXPECT_EQ("PATH=/usr/sbin:/usr/bin:/sbin:/bin", run("/usr/bin/env").output);
  environ = own;
}

TEST(Runtime, ManyThreadsGetTheirOwnAnswersAndLeaveNothingBehind) {
  const int before = openDescriptors();
  runOnManyThreads();
  EXPECT_EQ(before, openDescriptors());
  EXPECT_FALSE(hasChildren());
}

TEST(Runtime, FailuresLeaveNothingBehind) {
  const int before = openDescriptors();
  testing::internal::CaptureStderr();
  for (const char* command : {"/no/such/program", "", "\"", "sh -c \"exit 1\"", "sh -c \"kill -9 $$\""}) {
    EXPECT_FALSE(run(command).succeeded) << command;
    EXPECT_NE(0, Runtime::getInstance()->execute(command)) << command;
  }
  testing::internal::GetCapturedStderr();
  EXPECT_EQ(before, openDescriptors());
  EXPECT_FALSE(hasChildren());
}

namespace {

using Words = std::vector<std::string>;

Words split(std::string command) {
  std::vector<char*> words;
  EXPECT_EQ(nullptr, splitCommand(command, words)) << command;
  EXPECT_EQ(nullptr, words.back());
  words.pop_back();
  return {words.begin(), words.end()};
}

}  // namespace

// Each waits until the other one is there: one after the other, neither would come to its end.
TEST(RunAtOnce, CommandsRunAtTheSameTime) {
  char folder[] = "/tmp/runtime_test.XXXXXX";
  ASSERT_NE(nullptr, mkdtemp(folder));
  const std::string fifo = std::string(folder) + "/fifo";
  ASSERT_EQ(0, mkfifo(fifo.c_str(), 0600));
  const std::vector<CommandAnswer> answers = runAtOnce(
      {"timeout 20 sh -c \"cat " + fifo + "\"", "timeout 20 sh -c \"echo met >" + fifo + "; echo said\""});
  ASSERT_EQ(2U, answers.size());
  EXPECT_TRUE(answers[0].succeeded);
  EXPECT_EQ("met", answers[0].output);
  EXPECT_TRUE(answers[1].succeeded);
  EXPECT_EQ("said", answers[1].output);
  EXPECT_EQ(0, std::system(("rm -r " + std::string(folder)).c_str()));
}

TEST(RunAtOnce, AnswersAreInTheOrderOfTheCommandsWhateverEndsFirst) {
  const std::vector<CommandAnswer> answers =
      runAtOnce({"sh -c \"sleep 0.2; echo slow\"", "echo fast", "false", ""});
  ASSERT_EQ(4U, answers.size());
  EXPECT_EQ("slow", answers[0].output);
  EXPECT_EQ("fast", answers[1].output);
  EXPECT_TRUE(answers[1].succeeded);
  EXPECT_FALSE(answers[2].succeeded);
  EXPECT_FALSE(answers[3].succeeded);
}

// More than a pipe holds, of one that is read late.
TEST(RunAtOnce, NoneWaitsForeverForItsReader) {
  const std::vector<CommandAnswer> answers =
      runAtOnce({"head -c 3000000 /dev/zero", "head -c 2000000 /dev/zero"});
  ASSERT_EQ(2U, answers.size());
  EXPECT_EQ(3000000U, answers[0].output.size());
  EXPECT_EQ(2000000U, answers[1].output.size());
}

// Room for one pipe, of which the reader keeps one end.
TEST(RunAtOnce, WithTooFewDescriptorsForAllTheyRunOneAfterTheOther) {
  rlimit before = {};
  ASSERT_EQ(0, getrlimit(RLIMIT_NOFILE, &before));
  rlimit few = before;
  few.rlim_cur = 64;
  testing::internal::CaptureStderr();
  ASSERT_EQ(0, setrlimit(RLIMIT_NOFILE, &few));
  std::vector<int> filling;
  for (int number = dup(STDERR_FILENO); number >= 0; number = dup(STDERR_FILENO)) filling.push_back(number);
  ASSERT_LE(2U, filling.size());
  for (int i = 0; i < 2; ++i, filling.pop_back()) close(filling.back());
  const std::vector<CommandAnswer> answers = runAtOnce({"echo 1", "echo 2", "echo 3", "/no/such/program"});
  for (const int number : filling) close(number);
  const std::string complaints = testing::internal::GetCapturedStderr();
  ASSERT_EQ(0, setrlimit(RLIMIT_NOFILE, &before));
  ASSERT_EQ(4U, answers.size());
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_TRUE(answers[i].succeeded);
    EXPECT_EQ(std::to_string(i + 1), answers[i].output);
  }
  EXPECT_FALSE(answers[3].succeeded);
  EXPECT_EQ("command '/no/such/program' failed: No such file or directory\n", complaints);
}

TEST(RunAtOnce, WithoutAnyDescriptorEachIsRefused) {
  rlimit before = {};
  ASSERT_EQ(0, getrlimit(RLIMIT_NOFILE, &before));
  rlimit few = before;
  few.rlim_cur = 64;
  testing::internal::CaptureStderr();
  ASSERT_EQ(0, setrlimit(RLIMIT_NOFILE, &few));
  std::vector<int> filling;
  for (int number = dup(STDERR_FILENO); number >= 0; number = dup(STDERR_FILENO)) filling.push_back(number);
  const std::vector<CommandAnswer> answers = runAtOnce({"echo 1", "echo 2"});
  for (const int number : filling) close(number);
  ASSERT_EQ(0, setrlimit(RLIMIT_NOFILE, &before));
  EXPECT_EQ("command 'echo 1' failed: Too many open files\ncommand 'echo 2' failed: Too many open files\n",
            testing::internal::GetCapturedStderr());
  ASSERT_EQ(2U, answers.size());
  EXPECT_FALSE(answers[0].succeeded);
  EXPECT_FALSE(answers[1].succeeded);
  EXPECT_EQ("", answers[0].output + answers[1].output);
}

TEST(RunAtOnce, NoneIsLeftBehind) {
  runAtOnce({"true", "false", "/no/such/program", "echo"});
  EXPECT_EQ(-1, waitpid(-1, nullptr, WNOHANG));
  EXPECT_EQ(ECHILD, errno);
}

TEST(SplitCommand, BlanksAndTabsPartWordsHoweverManyTheyAre) {
  EXPECT_EQ((Words{"a", "bc", "d"}), split("a bc d"));
  EXPECT_EQ((Words{"a", "bc", "d"}), split(" \ta  bc\t\td \t"));
}

TEST(SplitCommand, QuotesHoldBlanksAndMayStandWithinAWord) {
  EXPECT_EQ((Words{"-D", "10.1.1.1 10.1.1.2"}), split("-D \"10.1.1.1 10.1.1.2\""));
  EXPECT_EQ((Words{"ab cd"}), split("a\"b c\"d"));
  EXPECT_EQ((Words{"a b"}), split("\"a\"\" \"\"b\""));
}

TEST(SplitCommand, AQuoteInAQuotedValueMakesMoreWords) {
  EXPECT_EQ((Words{"-D", "10.1.1.1 -r", "x y"}), split("-D \"10.1.1.1 -r\" \"x y\""));
}

TEST(SplitCommand, EmptyQuotesAreAnEmptyWord) {
  EXPECT_EQ((Words{"", "a", ""}), split("\"\" a \"\""));
  EXPECT_EQ((Words{" "}), split("\" \""));
}

TEST(SplitCommand, EverythingElseIsALetter) {
  for (const char* word : {"'", "\\", "a\nb", "a\r\vb", "$HOME", "$(id)", "`id`", ";", "|", "&", "*", "?",
                           "~", "#", "<", ">", "\303\274", "\377", "a\\"}) {
    EXPECT_EQ((Words{"x", word, "y"}), split(std::string("x ") + word + " y")) << word;
  }
  EXPECT_EQ((Words{"a\\", "b\\"}), split("a\\ \"b\\\""));
}

TEST(SplitCommand, LeavesACommandThatItRefusesAsItIs) {
  for (const std::string& command : {std::string("a \"b c"), std::string("a b\0c", 5)}) {
    std::string copy = command;
    std::vector<char*> words;
    EXPECT_NE(nullptr, splitCommand(copy, words));
    EXPECT_EQ(command, copy);
    EXPECT_TRUE(words.empty());
  }
}

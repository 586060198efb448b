#include "utility/Runtime.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <exception>
#include <vector>

#include "libdovan_util/command_words.h"
#include "libtarn/child_statuses.h"
#include "libtarn/command_environment.h"

namespace {

// As a shell puts them.
constexpr int NoSuchProgram = W_EXITCODE(127, 0);
constexpr int CannotBeRun = W_EXITCODE(126, 0);

constexpr const char* NullDevice = "/dev/null";
constexpr std::size_t ReadSize = 16384;
constexpr int ShownCharacters = 400;

class Descriptor {
 public:
  Descriptor() = default;
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() { Close(); }

  void Take(int number) { number_ = number; }
  int Number() const { return number_; }
  bool IsOpen() const { return number_ >= 0; }
  void Close() {
    if (IsOpen()) close(number_);
    number_ = -1;
  }

 private:
  int number_ = -1;
};

// Says why there is no answer of the command's own, and gives the wait status that stands for that.
int refuse(const std::string& command, const char* reason, int waitStatus = CannotBeRun) {
  const char* const more = command.size() > ShownCharacters ? "..." : "";
  std::fprintf(stderr, "command '%.*s%s' failed: %s\n", ShownCharacters, command.c_str(), more, reason);
  return waitStatus;
}

int refuse(const std::vector<char*>& words, const char* reason, int waitStatus = CannotBeRun) {
  std::string command = words[0];
  for (std::size_t i = 1; words[i] != nullptr; ++i) (command += ' ') += words[i];
  return refuse(command, reason, waitStatus);
}

// 0 or the number of the error.
int openPipe(Descriptor& reader, Descriptor& writer) {
  int ends[2];
  if (pipe2(ends, O_CLOEXEC) != 0) return errno;
  reader.Take(ends[0]);
  writer.Take(ends[1]);
  return 0;
}

// The output goes first: when the host has its own standard input closed, the pipe may have got that
// number. No other descriptor of the host stays open: a daemon that a script starts would keep it.
int arrangeDescriptors(posix_spawn_file_actions_t& actions, const Descriptor& output) {
  int error = output.IsOpen()
                  ? posix_spawn_file_actions_adddup2(&actions, output.Number(), STDOUT_FILENO)
                  : posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, NullDevice, O_WRONLY, 0);
  if (error == 0) {
    error = posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, NullDevice, O_RDONLY, 0);
  }
  if (error == 0) error = posix_spawn_file_actions_addclosefrom_np(&actions, STDERR_FILENO + 1);
  return error;
}

// The host's blocked and ignored signals are the host's.
void arrangeSignals(posix_spawnattr_t& attributes) {
  sigset_t signals;
  sigemptyset(&signals);
  posix_spawnattr_setsigmask(&attributes, &signals);
  sigfillset(&signals);
  posix_spawnattr_setsigdefault(&attributes, &signals);
  posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
}

// 0 or the number of the error; child is written on success only.
int spawn(const std::vector<char*>& words, const Descriptor& output, pid_t& child) {
  posix_spawn_file_actions_t actions;
  posix_spawnattr_t attributes;
  posix_spawn_file_actions_init(&actions);
  posix_spawnattr_init(&attributes);
  int error = arrangeDescriptors(actions, output);
  arrangeSignals(attributes);
  if (error == 0) {
    error = posix_spawnp(&child, words[0], &actions, &attributes, words.data(),
                         TarnAbstract::commandEnvironment());
  }
  posix_spawnattr_destroy(&attributes);
  posix_spawn_file_actions_destroy(&actions);
  return error;
}

// Null, or why not all of it could be read.
const char* readAll(const Descriptor& source, std::string& text) try {
  char piece[ReadSize];
  for (;;) {
    const ssize_t length = read(source.Number(), piece, sizeof(piece));
    if (length > 0) {
      text.append(piece, static_cast<std::size_t>(length));
    } else if (length == 0) {
      return nullptr;
    } else if (errno != EINTR) {
      return std::strerror(errno);
    }
  }
} catch (const std::exception&) {  // bad_alloc or length_error
  return "its output does not fit into the memory";
}

// Null, or why the child's status is not known.
const char* waitFor(pid_t child, int& waitStatus) {
  while (waitpid(child, &waitStatus, 0) < 0) {
    if (errno != EINTR) return "another part of the process has taken its exit status";
  }
  return nullptr;
}

void removeLineEnds(std::string& text) {
  std::size_t length = text.size();
  while (length > 0 && text[length - 1] == '\n') {
    --length;
    if (length > 0 && text[length - 1] == '\r') --length;
  }
  text.resize(length);
}

// The raw wait status. Without an output the command's own goes nowhere: it must not get into a page.
int run(std::string& command, std::string* output) {
  std::vector<char*> words;
  const char* fault = splitCommand(command, words);
  if (fault != nullptr) return refuse(command, fault);

  Descriptor reader;
  Descriptor writer;
  int error = output == nullptr ? 0 : openPipe(reader, writer);
  const TarnAbstract::ChildStatuses statuses;
  pid_t child = -1;
  if (error == 0) error = spawn(words, writer, child);
  if (error != 0) {
    return refuse(words, std::strerror(error), error == ENOENT ? NoSuchProgram : CannotBeRun);
  }

  writer.Close();
  if (output != nullptr) fault = readAll(reader, *output);
  reader.Close();  // a command that still writes ends by that
  int waitStatus = 0;
  const char* const waitFault = waitFor(child, waitStatus);
  if (fault == nullptr) fault = waitFault;
  return fault == nullptr ? waitStatus : refuse(words, fault);
}

int runOrRefuse(std::string& command, std::string* output) try {
  return run(command, output);
} catch (const std::exception& exception) {
  return refuse(command, exception.what());
}

}  // namespace

Runtime* Runtime::getInstance() {
  static Runtime instance;
  return &instance;
}

int Runtime::execute(std::string command) { return runOrRefuse(command, nullptr); }

bool Runtime::execute(std::string command, std::string& output, int& waitStatus) {
  output.clear();
  waitStatus = runOrRefuse(command, &output);
  removeLineEnds(output);
  return waitStatus == 0;
}

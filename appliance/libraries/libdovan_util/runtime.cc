#include "utility/Runtime.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <deque>
#include <exception>
#include <utility>
#include <vector>

#include "libdovan_util/command_words.h"
#include "libdovan_util/commands_at_once.h"
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

// One that has been started is waited for, whatever becomes of it otherwise. Without output the command's own
// goes nowhere: it must not get into a page.
class RunningCommand {
 public:
  enum class Output { Dropped, Read };

  RunningCommand(std::string command, Output output) : command_(std::move(command)) {
    try {
      Start(output);
    } catch (const std::exception& exception) {
      waitStatus_ = refuse(command_, exception.what());
    }
  }
  ~RunningCommand() {
    if (child_ >= 0) WaitFor(nullptr);
  }
  RunningCommand(const RunningCommand&) = delete;
  RunningCommand& operator=(const RunningCommand&) = delete;

  // It has not been started, for want of what others may give back when they end.
  bool LacksRoom() const {
    return spawnError_ == EAGAIN || spawnError_ == ENOMEM || spawnError_ == EMFILE || spawnError_ == ENFILE;
  }

  // The raw wait status. What the command printed comes behind the output.
  int WaitFor(std::string* output) try {
    if (spawnError_ != 0) {
      return refuse(words_, std::strerror(spawnError_), spawnError_ == ENOENT ? NoSuchProgram : CannotBeRun);
    }
    if (child_ < 0) return waitStatus_;
    const char* fault = output == nullptr ? nullptr : readAll(reader_, *output);
    reader_.Close();  // a command that still writes ends by that
    const char* const waitFault = waitFor(child_, waitStatus_);
    child_ = -1;
    if (fault == nullptr) fault = waitFault;
    return fault == nullptr ? waitStatus_ : refuse(words_, fault);
  } catch (const std::exception& exception) {
    return refuse(command_, exception.what());
  }

 private:
  void Start(Output output) {
    const char* const fault = splitCommand(command_, words_);
    if (fault != nullptr) {
      waitStatus_ = refuse(command_, fault);
      return;
    }
    Descriptor writer;
    int error = output == Output::Dropped ? 0 : openPipe(reader_, writer);
    if (error == 0) error = spawn(words_, writer, child_);
    if (error == 0) return;
    child_ = -1;
    reader_.Close();
    spawnError_ = error;
  }

  std::string command_;
  std::vector<char*> words_;
  const TarnAbstract::ChildStatuses statuses_;
  Descriptor reader_;
  pid_t child_ = -1;  // below 0: none runs
  int spawnError_ = 0;
  int waitStatus_ = 0;
};

// Replaces the output, without the line ends at its end.
bool answer(RunningCommand& command, std::string& output, int& waitStatus) {
  output.clear();
  waitStatus = command.WaitFor(&output);
  removeLineEnds(output);
  return waitStatus == 0;
}

}  // namespace

Runtime* Runtime::getInstance() {
  static Runtime instance;
  return &instance;
}

int Runtime::execute(std::string command) {
  return RunningCommand(std::move(command), RunningCommand::Output::Dropped).WaitFor(nullptr);
}

bool Runtime::execute(std::string command, std::string& output, int& waitStatus) {
  RunningCommand running(std::move(command), RunningCommand::Output::Read);
  return answer(running, output, waitStatus);
}

std::vector<CommandAnswer> runAtOnce(const std::vector<std::string>& commands) {
  std::vector<CommandAnswer> answers(commands.size());
  std::deque<RunningCommand> running;
  for (const std::string& command : commands) running.emplace_back(command, RunningCommand::Output::Read);
  int waitStatus = 0;
  for (std::size_t i = 0; i < commands.size(); ++i) {
    if (!running[i].LacksRoom()) answers[i].succeeded = answer(running[i], answers[i].output, waitStatus);
  }
  for (std::size_t i = 0; i < commands.size(); ++i) {
    if (!running[i].LacksRoom()) continue;
    answers[i].succeeded = Runtime::getInstance()->execute(commands[i], answers[i].output, waitStatus);
  }
  return answers;
}

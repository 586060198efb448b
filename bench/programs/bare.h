// What the product is set beside: the system calls and nothing else.
#pragma once

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <ctime>

namespace bare {

// Where a measurement cannot go on there is nothing to be measured.
[[noreturn]] inline void stop(const char* what) {
  std::perror(what);
  std::exit(1);
}

inline double nanoseconds() {
  std::timespec now = {};
  clock_gettime(CLOCK_MONOTONIC, &now);
  return static_cast<double>(now.tv_sec) * 1e9 + static_cast<double>(now.tv_nsec);
}

inline void appendLine(const char* path, const char* line, std::size_t length) {
  const int log = open(path, O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0666);
  if (log < 0 || write(log, line, length) != static_cast<ssize_t>(length) || close(log) != 0) stop(path);
}

struct Command {
  pid_t process;
  int output;
};

// With its standard output in a pipe, from which the caller reads.
inline Command start(char* const* words) {
  int ends[2];
  if (pipe2(ends, O_CLOEXEC) != 0) stop("pipe");
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
  Command command = {-1, ends[0]};
  if (posix_spawnp(&command.process, words[0], &actions, nullptr, words, environ) != 0) stop(words[0]);
  posix_spawn_file_actions_destroy(&actions);
  close(ends[1]);
  return command;
}

// The wait status.
inline int finish(const Command& command) {
  close(command.output);
  int status = 0;
  if (waitpid(command.process, &status, 0) != command.process) stop("waitpid");
  return status;
}

inline int readAndFinish(const Command& command) {
  char output[16384];
  ssize_t length = 0;
  do length = read(command.output, output, sizeof(output));
  while (length > 0);
  if (length < 0) stop("read");
  return finish(command);
}

inline int run(char* const* words) { return readAndFinish(start(words)); }

}  // namespace bare

// The command runner: looks the exact command line up instead of running it.
#include "utility/Runtime.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <vector>

#include "answers.h"
#include "libdovan_util/command_words.h"
#include "transcript.h"

namespace {

constexpr int CommandNotFound = 127 << 8;

// The answer to "beside each command" is a program that is really run, by a runner that does nothing about
// what a child inherits; what it prints becomes part of the transcript.
void runBeside() {
  const std::optional<Answer> program = answerTo("beside each command");
  if (!program) return;
  std::string characters = word(*program, 0);
  std::vector<char*> words;
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, STDERR_FILENO, STDOUT_FILENO);
  pid_t child = -1;
  if (splitCommand(characters, words) != nullptr ||
      posix_spawnp(&child, words[0], &actions, nullptr, words.data(), environ) != 0 ||
      waitpid(child, nullptr, 0) != child) {
    record("unexpected: the program beside the command was not run");
  }
  posix_spawn_file_actions_destroy(&actions);
}

// Words of an answer: the wait status, then what the command prints; for a runner that does not even write
// the output of what it cannot start, then "output left alone".
Answer answerToCommand(const std::string& verb, const std::string& command) {
  record(verb + ": " + shownCommand(command));
  runBeside();
  if (const std::optional<Answer> answer = answerTo(command)) return *answer;
  record("unexpected: the test has no answer to [" + shown(command) + "]");
  return {std::to_string(CommandNotFound), ""};
}

}  // namespace

Runtime* Runtime::getInstance() {
  if (answerTo("instances")) record("runner asked for");
  static Runtime instance;
  return &instance;
}

int Runtime::execute(std::string command) {
  return static_cast<int>(number(word(answerToCommand("run", command), 0)));
}

bool Runtime::execute(std::string command, std::string& output, int& waitStatus) {
  const Answer answer = answerToCommand("read", command);
  waitStatus = static_cast<int>(number(word(answer, 0)));
  if (answer.size() < 3 || answer[2] != "output left alone") output = word(answer, 1);
  return waitStatus == 0;
}

// The command runner: looks the exact command line up instead of running it.
#include "utility/Runtime.h"

#include "answers.h"
#include "transcript.h"

namespace {

constexpr int CommandNotFound = 127 << 8;

// Words of an answer: the wait status, then what the command prints.
Answer answerToCommand(const std::string& verb, const std::string& command) {
  record(verb + ": " + shownCommand(command));
  if (const std::optional<Answer> answer = answerTo(command)) return *answer;
  record("unexpected: the test has no answer to [" + shown(command) + "]");
  return {std::to_string(CommandNotFound), ""};
}

}  // namespace

Runtime* Runtime::getInstance() {
  static Runtime instance;
  return &instance;
}

int Runtime::execute(std::string command) {
  return static_cast<int>(number(word(answerToCommand("run", command), 0)));
}

bool Runtime::execute(std::string command, std::string& output, int& waitStatus) {
  const Answer answer = answerToCommand("read", command);
  waitStatus = static_cast<int>(number(word(answer, 0)));
  output = word(answer, 1);
  return waitStatus == 0;
}

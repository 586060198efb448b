// Command lines taken apart into words: a whole line, and the line that a page's name servers become. Then
// the command wrapper, which gets the words. Input: a command line; the same two lines are the two servers.
#include "libdovan_util/command_words.h"

#include <sys/socket.h>
#include <sys/utsname.h>

#include <cerrno>

#include "command_lines.h"
#include "handlers.h"
#include "page.h"
#include "reference.h"
#include "target.h"

using Words = std::vector<std::string>;

namespace {

// What the wrapper would become.
struct Execution {
  std::string program;
  Words arguments;
} execution;

}  // namespace

extern "C" int cmdwrap(int count, char** arguments);
extern "C" int fuzz_connect(int /*door*/, const struct sockaddr* /*address*/, socklen_t /*length*/) {
  errno = ENOENT;
  return -1;
}
extern "C" int fuzz_execvp(const char* program, char* const* arguments) {
  execution.program = program;
  for (; *arguments != nullptr; ++arguments) execution.arguments.emplace_back(*arguments);
  errno = ENOENT;
  return -1;
}

namespace {

// By the letter: a character at a time, and whether a word has begun.
Words wordsOf(std::string_view command) {
  Words words;
  bool inWord = false;
  bool quoted = false;
  for (const char character : command) {
    if (!quoted && (character == ' ' || character == '\t')) {
      inWord = false;
      continue;
    }
    if (!inWord) words.emplace_back();
    inWord = true;
    if (character == '"') {
      quoted = !quoted;
    } else {
      words.back() += character;
    }
  }
  return words;
}

bool isRefused(std::string_view command) {
  return command.find('\0') != std::string_view::npos ||
         std::count(command.begin(), command.end(), '"') % 2 != 0 || wordsOf(command).empty();
}

void tryWrapper(std::vector<char*> words) {
  const Words given(words.begin(), words.end() - 1);
  execution = {};
  const int status = cmdwrap(static_cast<int>(given.size()), words.data());
  const std::size_t first = given.size() > 1 && given[1] == "-NO_END_OF_FILE" ? 2 : 1;
  const bool runs = given.size() > first && (given[first].empty() || given[first][0] != '-');
  require(runs == !execution.arguments.empty(), "it runs what is no option");
  if (runs) {
    require(execution.program == given[first], "the program is the first word");
    require(execution.arguments == Words(given.begin() + static_cast<long>(first), given.end()),
            "all words are passed on");
    require(status == 127, "where there is no such program that is said");
  } else {
    require(status == (given.size() > first && given[first] == "--help" ? 0 : 2), "a wrong call is refused");
  }
}

void tryCommand(std::string_view text) {
  std::string command(text);
  std::vector<char*> words = {nullptr};
  const bool refused = splitCommand(command, words) != nullptr;
  require(refused == isRefused(text), "what is no command is refused, and nothing else");
  if (refused) {
    require(command == text, "a command that is refused stays as it is");
    return;
  }
  require(words.back() == nullptr, "the words have an end");
  Words found(words.begin(), words.end() - 1);
  if (faultIsPlanted() && text.substr(text.size() - 1) == " " && found.size() > 2) found.pop_back();
  require(found == wordsOf(text), "the words are the reference's");
  tryWrapper(words);
}

// A value is a value, whatever stands in it: only quotes can part it.
void tryServers(std::string_view text) {
  call = {};
  call.object.texts["dnsPrimary"] = reference::untilNul(std::string(takeLine(text)));
  call.object.texts["dnsSecondary"] = reference::untilNul(std::string(text));
  const std::string servers = call.object.texts["dnsPrimary"] + ' ' + call.object.texts["dnsSecondary"];
  returnedBy(set_network_dns);
  require(call.commands.size() == 1, "one command is run");
  std::string command = call.commands[0];
  if (servers.find('"') != std::string::npos) {
    tryCommand(command);
    return;
  }
  std::vector<char*> words;
  require(splitCommand(command, words) == nullptr, "it is a command");
  Words expected = wordsOf(CommandLine::SetDns);
  expected.push_back(servers);
  require(Words(words.begin(), words.end() - 1) == expected, "the servers are one word, and the last one");
}

std::string ownHostName() {
  utsname names = {};
  uname(&names);
  return names.nodename;
}

// The same for a host name without blanks and quotes.
void tryHostName(std::string_view text) {
  if (text.find_first_of(" \t\"") != std::string_view::npos) return;
  call = {};
  call.text = text;
  returnedBy(set_network_hostname);
  if (call.commands.empty()) {
    require(ownHostName() == reference::untilNul(call.text), "what is not set is the name that is");
    return;
  }
  require(call.commands.size() == 1, "one command is run");
  Words expected = wordsOf(CommandLine::SetHostName);
  if (!reference::untilNul(call.text).empty()) expected.push_back(reference::untilNul(call.text));
  require(wordsOf(call.commands[0]) == expected, "the name is one word, and the last one");
}

}  // namespace

void tryInput(std::string_view input) {
  tryCommand(input);
  tryServers(input);
  tryHostName(input);
}

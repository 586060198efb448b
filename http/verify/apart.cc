#include "apart.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstring>

#include "findings.h"

namespace {

constexpr unsigned int SecondsForAnswer = 10;

// The process says through a pipe where it is, a line each time, and last that it is done: how it ends says
// little, as a library may end it with any status.
const char* const Done = "done";
int ends[2] = {-1, -1};
pid_t process = -1;

void tell(const std::string& line) {
  const std::string text = line + "\n";
  (void)!write(ends[1], text.c_str(), text.size());
}

// The last line that the process has told. It has ended: what it told is all there, and nothing is waited
// for.
std::string lastTold() {
  std::string told;
  char buffer[4096];
  ssize_t count = 0;
  while ((count = read(ends[0], buffer, sizeof(buffer))) > 0)
    told.append(buffer, static_cast<std::size_t>(count));
  if (told.empty()) return "";
  told.resize(told.size() - 1);
  return told.substr(told.rfind('\n') + 1);
}

// How it ended, as the end of a sentence.
std::string howEnded(int status) {
  if (WIFSIGNALED(status) && WTERMSIG(status) == SIGALRM)
    return "no answer within " + number(SecondsForAnswer) + " seconds";
  if (WIFSIGNALED(status)) {
    return "the libraries ended with signal " + number(static_cast<unsigned long>(WTERMSIG(status))) + ", " +
           strsignal(WTERMSIG(status));
  }
  return "the libraries ended the program with exit status " +
         number(static_cast<unsigned long>(WEXITSTATUS(status)));
}

}  // namespace

void sayWhere(const std::string& where) { tell(where); }

bool beginApart() {
  std::fflush(stdout);
  process = pipe2(ends, O_CLOEXEC | O_NONBLOCK) == 0 ? fork() : -1;
  if (process == 0) alarm(SecondsForAnswer);
  return process == 0;
}

void endApart() {
  std::fflush(stdout);
  tell(Done);
  _exit(allRight() ? 0 : 1);
}

bool judgeApart(const std::string& what) {
  int status = 0;
  const bool ended = process > 0 && waitpid(process, &status, 0) == process;
  const std::string last = ended ? lastTold() : "";
  for (int& end : ends) {
    if (end >= 0) close(end);
    end = -1;
  }
  if (!ended) {
    unknown(what + " cannot be looked at: no process can be started");
  } else if (!WIFEXITED(status) || last != Done) {
    wrong(what + ": " + howEnded(status) + (last.empty() ? "" : ", " + last));
    return last.empty();
  } else if (WEXITSTATUS(status) != 0) {
    someWasWrong();
  }
  return true;
}

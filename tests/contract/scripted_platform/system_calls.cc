// The operations of the C library that the module's behaviour shows in.
#include <dlfcn.h>
#include <fcntl.h>
#include <pthread.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <memory>

#include "answers.h"
#include "transcript.h"

namespace {

template <class Function>
Function* real(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

struct Thread {
  void* (*start)(void*);
  void* argument;
};

// A thread waits at the gate until the test opens it, and says when it has ended: so the transcript shows
// first what the caller did, then what the thread did. Both are named pipes of the test.
void waitAtGate() { close(open(scriptedPlatformFile("gate").c_str(), O_RDONLY | O_CLOEXEC)); }

void sayEnded() {
  const int pipe = open(scriptedPlatformFile("end").c_str(), O_WRONLY | O_CLOEXEC);
  if (write(pipe, ".", 1) != 1) record("unexpected: a thread's end could not be told");
  close(pipe);
}

// The interpreter's timers are for the interpreter's own thread.
void checkTimersAreBlocked() {
  sigset_t blocked;
  pthread_sigmask(SIG_SETMASK, nullptr, &blocked);
  for (const int timer : {SIGALRM, SIGVTALRM, SIGPROF}) {
    if (sigismember(&blocked, timer) == 1) continue;
    record("unexpected: a thread starts with signal " + std::to_string(timer) + " not blocked");
  }
}

void* runThread(void* block) {
  const std::unique_ptr<Thread> thread(static_cast<Thread*>(block));
  waitAtGate();
  checkTimersAreBlocked();
  void* const result = thread->start(thread->argument);
  if (answerTo("results of threads"))
    record(result == nullptr ? "thread ended" : "thread ended with a result");
  sayEnded();
  return result;
}

std::string nameOf(void* (*function)(void*)) {
  Dl_info info = {};
  const void* const address = reinterpret_cast<void*>(function);
  if (dladdr(address, &info) == 0 || info.dli_saddr != address) return "a function that is not exported";
  return info.dli_sname;
}

}  // namespace

extern "C" {

int usleep(useconds_t microseconds) {
  record("usleep: " + std::to_string(microseconds));
  return 0;
}

// A name that fills the buffer is cut without a NUL. An answer without a name leaves the buffer as it is.
int gethostname(char* buffer, size_t size) noexcept {
  record("gethostname: into " + std::to_string(size) + " bytes");
  const std::optional<Answer> answer = answerTo("gethostname");
  if (!answer) record("unexpected: the test has no answer to gethostname");
  if (answer && answer->empty()) {
    errno = EFAULT;
    return -1;
  }
  const std::string name = answer ? word(*answer, 0) : "";
  std::memcpy(buffer, name.c_str(), std::min(size, name.size() + 1));
  if (name.size() < size) return 0;
  errno = ENAMETOOLONG;
  return -1;
}

// Words of the answer: the result, and the error number that the call leaves behind; without one, that stays.
int system(const char* command) {
  record("system: " + shownCommand(command));
  const std::optional<Answer> answer = answerTo(command);
  if (!answer) record("unexpected: the test has no answer to [" + shown(command) + "]");
  const int result = answer ? static_cast<int>(number(word(*answer, 0))) : -1;
  if (answer && answer->size() > 1) errno = static_cast<int>(number(word(*answer, 1)));
  return result;
}

// The answer, when there is one, is the error number.
int pthread_create(pthread_t* thread, const pthread_attr_t* attributes, void* (*start)(void*),
                   void* argument) noexcept {
  const std::optional<Answer> refusal = answerTo("pthread_create");
  record("thread " + nameOf(start) + (refusal ? ": refused" : ": created") +
         (attributes == nullptr ? "" : " with attributes"));
  if (refusal) return static_cast<int>(number(word(*refusal, 0)));
  return real<decltype(pthread_create)>("pthread_create")(thread, attributes, runThread,
                                                          new Thread{start, argument});
}

int pthread_detach(pthread_t thread) noexcept {
  record("thread detached");
  return real<decltype(pthread_detach)>("pthread_detach")(thread);
}

}  // extern "C"

// What the test starts itself is not part of what it observes.
__attribute__((constructor)) static void forgetPreload() { unsetenv("LD_PRELOAD"); }

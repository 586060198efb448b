// keepWebServer PROCESS MODE COMMAND...: keeps a web server running, in the foreground, on the sockets of its
// configuration of the mode. COMMAND becomes a web server that takes these sockets as systemd hands them
// over. The number of this process is in the file PROCESS from when the web server answers until this ends.
//
// By USR1 and HUP another web server, with the configuration as it is now, is put in the place of the one
// that runs. That one is told when the other one answers: it takes no connection any more, and ends with its
// last answer. When the other one does not start, it goes on. TERM ends all of them at once. A web server
// that ends by itself ends this.
//
// Why the web server does not start anew by itself: lighttpd 1.4.69 loses the connections that come in the
// wrong millisecond of that.
#include <fcntl.h>
#include <poll.h>
#include <sys/signalfd.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <set>
#include <string>
#include <vector>

#include "web_server/listening_sockets.h"

namespace {

using Clock = std::chrono::steady_clock;
using Time = Clock::time_point;
constexpr std::chrono::seconds LongestStart(20);
constexpr std::chrono::seconds LongestEnd(3);
// For an address that a web server has opened by itself, because its configuration was newer than what was
// read here.
constexpr std::chrono::seconds LongestWaitForAddress(5);
constexpr std::chrono::milliseconds BetweenTries(50);

void complain(const std::string& what) {
  static_cast<void>(std::fprintf(stderr, "keepWebServer: %s\n", what.c_str()));
}

int exitStatusOf(int status) { return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status); }

// A first question to a web server that is being started, through a socket that it alone has: the answer says
// that it answers all others, too.
class FirstQuestion {
 public:
  FirstQuestion() = default;
  FirstQuestion(const FirstQuestion&) = delete;
  FirstQuestion& operator=(const FirstQuestion&) = delete;
  ~FirstQuestion() { End(); }

  // The path is free again afterwards. False with errno.
  bool Ask(const std::string& path);
  int Listener() const { return listener_; }
  // The web server has it now. When that ends, there is nobody who could answer.
  void ListenerIsHandedOver() { closeOne(listener_); }
  int Answer() const { return answer_; }
  bool IsAnswered();
  void End() {
    closeOne(listener_);
    closeOne(answer_);
  }

 private:
  static void closeOne(int& descriptor) {
    if (descriptor != -1) close(descriptor);
    descriptor = -1;
  }
  bool AskAt(const sockaddr_un& address);

  int listener_ = -1;
  int answer_ = -1;
};

bool FirstQuestion::Ask(const std::string& path) {
  End();
  sockaddr_un address = {};
  address.sun_family = AF_UNIX;
  if (path.size() >= sizeof(address.sun_path)) {
    errno = ENAMETOOLONG;
    return false;
  }
  path.copy(address.sun_path, path.size());
  const mode_t mask = umask(077);
  unlink(path.c_str());
  const bool isAsked = AskAt(address);
  const int error = errno;
  unlink(path.c_str());
  umask(mask);
  if (!isAsked) End();
  errno = error;
  return isAsked;
}

bool FirstQuestion::AskAt(const sockaddr_un& address) {
  static const std::string question = "HEAD /style.css HTTP/1.0\r\n\r\n";
  const auto* const anyAddress = reinterpret_cast<const sockaddr*>(&address);
  listener_ = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
  answer_ = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
  return listener_ != -1 && answer_ != -1 && bind(listener_, anyAddress, sizeof(address)) == 0 &&
         listen(listener_, 1) == 0 && connect(answer_, anyAddress, sizeof(address)) == 0 &&
         send(answer_, question.data(), question.size(), MSG_NOSIGNAL) ==
             static_cast<ssize_t>(question.size());
}

// Where there is nobody any more who could answer, that process ends, which is noticed elsewhere.
bool FirstQuestion::IsAnswered() {
  char byte = 0;
  const ssize_t length = recv(answer_, &byte, 1, MSG_DONTWAIT);
  if (length == 0 || (length == -1 && errno != EAGAIN && errno != EINTR)) closeOne(answer_);
  return length == 1;
}

// Becomes the command, in the child: with these as descriptors 3, 4, ... and in the words of systemd.
void becomeServer(char** command, const std::vector<int>& descriptors) {
  const int first = 3;
  const int number = static_cast<int>(descriptors.size());
  std::vector<int> copies;  // none of them in the way of another
  copies.reserve(descriptors.size());
  for (const int descriptor : descriptors)
    copies.push_back(fcntl(descriptor, F_DUPFD_CLOEXEC, first + number));
  for (int i = 0; i < number; ++i) dup2(copies[static_cast<std::size_t>(i)], first + i);
  setenv("LISTEN_PID", std::to_string(getpid()).c_str(), 1);
  setenv("LISTEN_FDS", std::to_string(number).c_str(), 1);
  sigset_t none = {};
  sigemptyset(&none);
  sigprocmask(SIG_SETMASK, &none, nullptr);
  execv(command[0], command);
  complain(std::string(command[0]) + ": " + std::strerror(errno));
  _exit(127);
}

class WebServerKeeper {
 public:
  WebServerKeeper(const char* process, const char* mode, char** command)
      : process_(process), mode_(mode), command_(command) {}
  WebServerKeeper(const WebServerKeeper&) = delete;
  WebServerKeeper& operator=(const WebServerKeeper&) = delete;
  ~WebServerKeeper() {
    if (signals_ != -1) close(signals_);
  }

  // Its exit status.
  int Run();

 private:
  bool TakeSignals();
  void LookForSignals();
  void LookForEnded();
  void LookForAnswer();
  void Ended(pid_t server, int status);
  void WantAnother();
  void StartAnother();
  bool Start(const Addresses& addresses);
  void PutInPlace();
  void Tell(pid_t server);
  void SayThatItAnswers();
  void Finish(int status);
  void EndAll();
  void SignalAll(int signal) const;
  bool HasServers() const { return current_ != 0 || starting_ != 0 || !leaving_.empty(); }
  void Wait();
  int MillisecondsToWait() const;

  const std::string process_;
  const std::string mode_;
  char** const command_;
  int signals_ = -1;

  ListeningSockets sockets_;
  FirstQuestion question_;
  pid_t current_ = 0;  // has answered
  Addresses currentAddresses_;
  pid_t starting_ = 0;  // has not answered yet
  Addresses startingAddresses_;
  Time latestAnswer_;
  std::set<pid_t> leaving_;  // are told; answer what is under way

  bool isAnotherWanted_ = true;
  Time nextTry_ = Clock::now();
  Time lastTry_ = Clock::now();
  bool isSaid_ = false;
  bool isOver_ = false;
  int status_ = 0;
};

int WebServerKeeper::Run() {
  if (!TakeSignals()) {
    complain(std::string("signals cannot be received: ") + std::strerror(errno));
    return 1;
  }
  while (!isOver_) {
    if (isAnotherWanted_ && starting_ == 0 && Clock::now() >= nextTry_) StartAnother();
    if (isOver_) break;
    Wait();
    LookForSignals();
    LookForEnded();
    LookForAnswer();
  }
  EndAll();
  unlink(process_.c_str());
  return status_;
}

bool WebServerKeeper::TakeSignals() {
  sigset_t taken = {};
  sigemptyset(&taken);
  for (const int signal : {SIGUSR1, SIGHUP, SIGTERM, SIGCHLD}) sigaddset(&taken, signal);
  if (sigprocmask(SIG_BLOCK, &taken, nullptr) != 0) return false;
  signals_ = signalfd(-1, &taken, SFD_CLOEXEC | SFD_NONBLOCK);
  return signals_ != -1;
}

void WebServerKeeper::Wait() {
  pollfd news[] = {{signals_, POLLIN, 0}, {question_.Answer(), POLLIN, 0}};
  poll(news, 2, MillisecondsToWait());
}

int WebServerKeeper::MillisecondsToWait() const {
  if (starting_ == 0 && !isAnotherWanted_) return -1;
  const auto left = (starting_ != 0 ? latestAnswer_ : nextTry_) - Clock::now();
  const auto milliseconds = std::chrono::duration_cast<std::chrono::milliseconds>(left).count() + 1;
  return milliseconds > 0 ? static_cast<int>(milliseconds) : 0;
}

void WebServerKeeper::LookForSignals() {
  signalfd_siginfo news = {};
  while (read(signals_, &news, sizeof(news)) == static_cast<ssize_t>(sizeof(news))) {
    if (news.ssi_signo == SIGTERM) Finish(0);
    if (news.ssi_signo != SIGUSR1 && news.ssi_signo != SIGHUP) continue;
    WantAnother();
  }
}

void WebServerKeeper::WantAnother() {
  isAnotherWanted_ = true;
  nextTry_ = Clock::now();
  lastTry_ = nextTry_ + LongestWaitForAddress;
}

void WebServerKeeper::LookForEnded() {
  int status = 0;
  for (pid_t server = 0; (server = waitpid(-1, &status, WNOHANG)) > 0;) Ended(server, status);
}

void WebServerKeeper::Ended(pid_t server, int status) {
  if (server == starting_) {
    starting_ = 0;
    question_.End();
    sockets_.KeepOnly(currentAddresses_);
    if (current_ != 0 && !isOver_) complain("another web server does not start; the one of before goes on");
  } else if (server == current_) {
    current_ = 0;
  } else {
    leaving_.erase(server);
    return;
  }
  if (current_ == 0 && starting_ == 0) Finish(exitStatusOf(status));
}

void WebServerKeeper::LookForAnswer() {
  if (starting_ == 0 || isOver_) return;
  if (question_.Answer() != -1 && question_.IsAnswered()) {
    PutInPlace();
  } else if (Clock::now() >= latestAnswer_) {
    complain("another web server does not answer");
    kill(starting_, SIGKILL);
    latestAnswer_ = Clock::now() + LongestStart;
  }
}

void WebServerKeeper::StartAnother() {
  const Addresses addresses = addressesToListenOn(mode_);
  std::string closed;
  const bool isOpen = sockets_.Open(addresses, closed);
  if (!isOpen && errno == EADDRINUSE && Clock::now() < lastTry_) {
    nextTry_ = Clock::now() + BetweenTries;
    return;
  }
  isAnotherWanted_ = false;
  std::string failure;
  if (!isOpen) {
    failure = closed + " cannot be listened on: " + std::strerror(errno);
  } else if (addresses.empty()) {
    failure = mode_ + " names no address to listen on";
  } else if (!Start(addresses)) {
    failure = std::string("no web server can be started: ") + std::strerror(errno);
  }
  if (failure.empty()) return;
  complain(failure);
  question_.End();
  sockets_.KeepOnly(currentAddresses_);
  if (current_ == 0) Finish(1);
}

// False with errno.
bool WebServerKeeper::Start(const Addresses& addresses) {
  if (!question_.Ask(process_ + ".question")) return false;
  std::vector<int> descriptors = sockets_.Descriptors(addresses);
  descriptors.push_back(question_.Listener());
  const pid_t server = fork();
  if (server == -1) return false;
  if (server == 0) becomeServer(command_, descriptors);
  question_.ListenerIsHandedOver();
  starting_ = server;
  startingAddresses_ = addresses;
  latestAnswer_ = Clock::now() + LongestStart;
  return true;
}

// It may have read a configuration that is newer than what was read here, and have opened further sockets by
// itself. That one gives them up, and another one gets them from here.
void WebServerKeeper::PutInPlace() {
  const pid_t server = starting_;
  starting_ = 0;
  question_.End();
  if (addressesToListenOn(mode_) != startingAddresses_) {
    Tell(server);
    WantAnother();
    return;
  }
  if (current_ != 0) Tell(current_);
  current_ = server;
  currentAddresses_ = startingAddresses_;
  sockets_.KeepOnly(currentAddresses_);
  SayThatItAnswers();
}

// Told once, when it answers: told twice, or while it starts, it would end at once.
void WebServerKeeper::Tell(pid_t server) {
  kill(server, SIGINT);
  leaving_.insert(server);
}

void WebServerKeeper::SayThatItAnswers() {
  if (isSaid_) return;
  isSaid_ = true;
  std::ofstream file(process_);
  file << getpid() << std::endl;
  if (file) return;
  complain(process_ + " cannot be written");
  Finish(1);
}

void WebServerKeeper::Finish(int status) {
  if (!isOver_) status_ = status;
  isOver_ = true;
}

void WebServerKeeper::EndAll() {
  SignalAll(SIGTERM);
  const Time latestEnd = Clock::now() + LongestEnd;
  while (HasServers()) {
    if (Clock::now() >= latestEnd) SignalAll(SIGKILL);
    pollfd news = {signals_, POLLIN, 0};
    poll(&news, 1, static_cast<int>(BetweenTries.count()));
    LookForSignals();
    LookForEnded();
  }
}

void WebServerKeeper::SignalAll(int signal) const {
  if (current_ != 0) kill(current_, signal);
  if (starting_ != 0) kill(starting_, signal);
  for (const pid_t server : leaving_) kill(server, signal);
}

}  // namespace

int main(int count, char** arguments) {
  if (count < 4) {
    static_cast<void>(std::fputs("usage: keepWebServer PROCESS MODE COMMAND...\n", stderr));
    return 2;
  }
  return WebServerKeeper(arguments[1], arguments[2], arguments + 3).Run();
}

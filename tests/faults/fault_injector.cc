// Runs a command and lets a fault happen at one of its system calls, in whichever of its processes that is:
//
//   fault_injector LOG [FAULT OCCURRENCE CALL] -- COMMAND...
//
// LOG gets a line for each system call with which the command or a process that it has started writes,
// renames, removes, syncs, starts a process or opens for writing, just before the call: "PROGRAM CALL WHAT".
// When such a line equals CALL for the OCCURRENCEth time, FAULT happens in place of the call: "kill" ends all
// of the command's processes at once, as when the power goes, and "ENOSPC", "EROFS" or "EACCES" is what the
// call fails with. LOG then gets the line "fault".
//
// Ends as the command does, with 137 after "kill", and with 124 when the command has taken a minute and was
// ended for that. What the command leaves running goes on.
//
// strace can do the same to the Nth call of each process, but not to one call of one of many processes.
#include <fcntl.h>
#include <linux/filter.h>
#include <linux/sched.h>
#include <linux/seccomp.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <sys/user.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <string>
#include <vector>

namespace {

enum class What { Path, PathAt, Renamed, RenamedAt, Descriptor, Program, Nothing };

struct TracedCall {
  int number;
  const char* name;
  What what;
  int argument = 0;        // which one the path or descriptor is
  int flags = -1;          // which one the flags are that tell whether the call counts, if any
  std::uint32_t mask = 0;  // it counts when one of these is set ...
  bool unless = false;     // ... or when none is
};

constexpr int MillisecondsForCommand = 60000;
constexpr int TookTooLong = 124;
constexpr std::uint32_t ForWriting = O_WRONLY | O_RDWR | O_CREAT | O_TRUNC;

const std::vector<TracedCall> tracedCalls = {
#ifdef SYS_open  // not there on younger processors
    {SYS_open, "open", What::Path, 0, 1, ForWriting},
    {SYS_rename, "rename", What::Renamed},
    {SYS_unlink, "remove", What::Path},
    {SYS_rmdir, "remove", What::Path},
    {SYS_mkdir, "mkdir", What::Path},
    {SYS_mknod, "mknod", What::Path},
    {SYS_link, "link", What::Renamed},
    {SYS_fork, "fork", What::Nothing},
    {SYS_vfork, "fork", What::Nothing},
#endif
    {SYS_openat, "open", What::PathAt, 1, 2, ForWriting},
    {SYS_renameat, "rename", What::RenamedAt},
    {SYS_renameat2, "rename", What::RenamedAt},
    {SYS_unlinkat, "remove", What::PathAt, 1},
    {SYS_mkdirat, "mkdir", What::PathAt, 1},
    {SYS_mknodat, "mknod", What::PathAt, 1},
    {SYS_linkat, "link", What::RenamedAt},
    {SYS_truncate, "truncate", What::Path},
    {SYS_ftruncate, "truncate", What::Descriptor},
    {SYS_fallocate, "write", What::Descriptor},
    {SYS_write, "write", What::Descriptor},
    {SYS_writev, "write", What::Descriptor},
    {SYS_pwrite64, "write", What::Descriptor},
    {SYS_sendto, "send", What::Descriptor},
    {SYS_sendmsg, "send", What::Descriptor},
    {SYS_fsync, "sync", What::Descriptor},
    {SYS_fdatasync, "sync", What::Descriptor},
    {SYS_syncfs, "sync", What::Descriptor},
    {SYS_sync, "sync", What::Nothing},
    {SYS_sethostname, "sethostname", What::Nothing},
    {SYS_clone, "fork", What::Nothing, 0, 0, CLONE_THREAD, true},
    {SYS_execve, "exec", What::Program},
};

struct Fault {
  std::string call;
  int occurrence = 0;
  int error = 0;  // 0 kills
};

[[noreturn]] void fail(const char* what) {
  std::perror(what);
  std::_Exit(125);
}

// The kernel stops a process only at the calls that count; everything else runs at full speed.
void installFilter() {
  std::vector<sock_filter> filter;
  const auto add = [&](std::uint16_t code, std::uint8_t yes, std::uint8_t no, std::uint32_t value) {
    filter.push_back({code, yes, no, value});
  };
  const auto load = [&](std::size_t offset) {
    add(BPF_LD | BPF_W | BPF_ABS, 0, 0, static_cast<std::uint32_t>(offset));
  };
  for (const TracedCall& call : tracedCalls) {
    load(offsetof(seccomp_data, nr));
    if (call.flags < 0) {
      add(BPF_JMP | BPF_JEQ | BPF_K, 0, 1, static_cast<std::uint32_t>(call.number));
      add(BPF_RET | BPF_K, 0, 0, SECCOMP_RET_TRACE);
    } else {
      add(BPF_JMP | BPF_JEQ | BPF_K, 0, 3, static_cast<std::uint32_t>(call.number));
      load(offsetof(seccomp_data, args) + sizeof(std::uint64_t) * static_cast<std::size_t>(call.flags));
      add(BPF_JMP | BPF_JSET | BPF_K, call.unless ? 1 : 0, call.unless ? 0 : 1, call.mask);
      add(BPF_RET | BPF_K, 0, 0, SECCOMP_RET_TRACE);
    }
  }
  add(BPF_RET | BPF_K, 0, 0, SECCOMP_RET_ALLOW);
  const sock_fprog program = {static_cast<unsigned short>(filter.size()), filter.data()};
  if (prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0 ||
      prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) != 0)
    fail("seccomp");
}

std::string linkOf(pid_t process, const std::string& name) {
  char target[4096];
  const std::string path = "/proc/" + std::to_string(process) + "/" + name;
  const ssize_t length = readlink(path.c_str(), target, sizeof target);
  return length < 0 ? "?" : std::string(target, static_cast<std::size_t>(length));
}

std::string programOf(pid_t process) {
  char name[64];
  const std::string path = "/proc/" + std::to_string(process) + "/comm";
  const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  const ssize_t length = read(file, name, sizeof name);
  close(file);
  return length <= 1 ? "?" : std::string(name, static_cast<std::size_t>(length) - 1);
}

// Up to the end of the page that is no longer there, if the text goes on to that.
std::string textAt(pid_t process, std::uint64_t address) {
  std::string text;
  while (address != 0 && text.size() < 4096) {
    char part[64];
    const std::size_t size = sizeof part - address % sizeof part;
    const iovec here = {part, size};
    const iovec there = {reinterpret_cast<void*>(address), size};  // NOLINT(performance-no-int-to-ptr)
    if (process_vm_readv(process, &here, 1, &there, 1, 0) != static_cast<ssize_t>(size)) break;
    const std::size_t length = strnlen(part, size);
    text.append(part, length);
    if (length < size) break;
    address += size;
  }
  return text;
}

std::string commandAt(pid_t process, std::uint64_t arguments) {
  std::string command;
  for (int count = 0; count < 30; ++count, arguments += sizeof(std::uint64_t)) {
    std::uint64_t argument = 0;
    const iovec here = {&argument, sizeof argument};
    const iovec there = {reinterpret_cast<void*>(arguments),
                         sizeof argument};  // NOLINT(performance-no-int-to-ptr)
    if (process_vm_readv(process, &here, 1, &there, 1, 0) != sizeof argument || argument == 0) break;
    if (count > 0) command += " " + textAt(process, argument).substr(0, 100);
  }
  return command;
}

std::string pathAt(pid_t process, std::uint64_t folder, std::uint64_t address) {
  std::string path = textAt(process, address);
  if (path.empty() || path[0] == '/') return path;
  const int descriptor = static_cast<int>(folder);
  return linkOf(process, descriptor == AT_FDCWD ? "cwd" : "fd/" + std::to_string(descriptor)) + "/" + path;
}

std::string whatOf(pid_t process, const TracedCall& call, const std::uint64_t* arguments) {
  switch (call.what) {
    case What::Path:
      return pathAt(process, static_cast<std::uint64_t>(AT_FDCWD), arguments[0]);
    case What::PathAt:
      return pathAt(process, arguments[0], arguments[1]);
    case What::Renamed:
      return textAt(process, arguments[0]) + " " + textAt(process, arguments[1]);
    case What::RenamedAt:
      return pathAt(process, arguments[0], arguments[1]) + " " + pathAt(process, arguments[2], arguments[3]);
    case What::Descriptor:
      return linkOf(process, "fd/" + std::to_string(arguments[0]));
    case What::Program:
      return textAt(process, arguments[0]) + commandAt(process, arguments[1]);
    case What::Nothing:
      break;
  }
  return "";
}

// The same in every run: on one line, and without the numbers of processes and sockets.
std::string normalized(const std::string& text) {
  std::string result;
  for (std::size_t at = 0; at < text.size();) {
    for (const char* numbered : {"/proc/", "pipe:[", "socket:[", "--pid=", "kill "}) {
      const std::size_t length = std::strlen(numbered);
      if (at < length || text.compare(at - length, length, numbered) != 0) continue;
      const std::size_t end = text.find_first_not_of("0123456789", at);
      if (end != at) {
        result += "N";
        at = end == std::string::npos ? text.size() : end;
      }
    }
    if (at == text.size()) break;
    const auto byte = static_cast<unsigned char>(text[at++]);
    result += byte < ' ' || byte == 127 ? '~' : static_cast<char>(byte);
  }
  return result;
}

// At this stop the call has not begun; numbered -1 it never will, and what is in the result's register is the
// result.
void failCall(pid_t process, int error) {
#if defined __x86_64__
  user_regs_struct registers = {};
  if (ptrace(PTRACE_GETREGS, process, nullptr, &registers) != 0) fail("registers");
  registers.orig_rax = static_cast<unsigned long long>(-1);
  registers.rax = static_cast<unsigned long long>(-error);
  if (ptrace(PTRACE_SETREGS, process, nullptr, &registers) != 0) fail("registers");
#elif defined __aarch64__
  user_regs_struct registers = {};
  iovec all = {&registers, sizeof registers};
  int number = -1;
  iovec one = {&number, sizeof number};
  if (ptrace(PTRACE_GETREGSET, process, 1 /* NT_PRSTATUS */, &all) != 0) fail("registers");
  registers.regs[0] = static_cast<unsigned long long>(-error);
  if (ptrace(PTRACE_SETREGSET, process, 1, &all) != 0) fail("registers");
  if (ptrace(PTRACE_SETREGSET, process, 0x404 /* NT_ARM_SYSTEM_CALL */, &one) != 0) fail("registers");
#else
#error "It is not known here how this processor's calls are made to fail."
#endif
}

class Tracer {
 public:
  Tracer(int log, Fault fault, pid_t command, int report)
      : log_(log), fault_(std::move(fault)), command_(command), report_(report) {}

  [[noreturn]] void run() {
    int status = 0;
    for (pid_t process = waitpid(-1, &status, __WALL); process > 0; process = waitpid(-1, &status, __WALL)) {
      if (!WIFSTOPPED(status)) {
        if (process == command_) reportEnd(status);
        continue;
      }
      const int signal = WSTOPSIG(status);
      const int event = status >> 16;
      if (event == PTRACE_EVENT_SECCOMP) atCall(process);
      const bool stopped = signal == SIGSTOP || signal == SIGTSTP || signal == SIGTTIN || signal == SIGTTOU;
      if (event == PTRACE_EVENT_STOP && stopped) {
        ptrace(PTRACE_LISTEN, process, nullptr, nullptr);
      } else {
        ptrace(PTRACE_CONT, process, nullptr, event == 0 ? signal : 0);
      }
    }
    std::_Exit(0);
  }

 private:
  void say(const std::string& line) const {
    const std::string text = line + "\n";
    if (write(log_, text.data(), text.size()) != static_cast<ssize_t>(text.size())) fail("the log");
  }

  // What it has left running is looked after as long as it runs, but is not part of it any more.
  void reportEnd(int status) {
    if (write(report_, &status, sizeof status) != sizeof status) std::_Exit(125);
    close(report_);
    ended_ = true;
  }

  void atCall(pid_t process) {
    __ptrace_syscall_info info = {};
    if (ended_ || ptrace(PTRACE_GET_SYSCALL_INFO, process, sizeof info, &info) <= 0) return;
    for (const TracedCall& call : tracedCalls) {
      if (static_cast<std::uint64_t>(call.number) != info.seccomp.nr) continue;
      const std::string what = whatOf(process, call, info.seccomp.args);
      // Programs are tried in one folder after the other.
      if (call.what == What::Program && access(textAt(process, info.seccomp.args[0]).c_str(), X_OK) != 0)
        return;
      atCountedCall(process, normalized(programOf(process) + " " + call.name + " " + what));
      return;
    }
  }

  void atCountedCall(pid_t process, const std::string& line) {
    say(line);
    if (line != fault_.call || ++seen_ != fault_.occurrence) return;
    say("fault");
    if (fault_.error == 0) std::_Exit(0);  // and all that is traced goes with this process
    failCall(process, fault_.error);
  }

  int log_;
  Fault fault_;
  pid_t command_;
  int report_;
  int seen_ = 0;
  bool ended_ = false;
};

// Becomes the command, once it is traced.
[[noreturn]] void becomeCommand(int go, char** command) {
  char byte = 0;
  if (read(go, &byte, 1) != 1) std::_Exit(125);
  close(go);
  installFilter();
  execvp(command[0], command);
  fail(command[0]);
}

[[noreturn]] void trace(int log, const Fault& fault, int report, char** command) {
  int go[2];
  if (pipe2(go, O_CLOEXEC) != 0) fail("pipe");
  const pid_t process = fork();
  if (process < 0) fail("fork");
  if (process == 0) becomeCommand(go[0], command);
  const long options = PTRACE_O_EXITKILL | PTRACE_O_TRACESECCOMP | PTRACE_O_TRACEFORK | PTRACE_O_TRACEVFORK |
                       PTRACE_O_TRACECLONE;
  if (ptrace(PTRACE_SEIZE, process, nullptr, options) != 0) fail("ptrace");
  // Who waits for the end of the command's output is not to wait for this process.
  const int nothing = open("/dev/null", O_RDWR | O_CLOEXEC);
  for (const int descriptor : {0, 1, 2}) dup2(nothing, descriptor);
  setsid();
  if (write(go[1], "", 1) != 1) fail("go");
  close(go[0]);
  close(go[1]);
  Tracer(log, fault, process, report).run();
}

Fault parsedFault(char** words) {
  const std::map<std::string, int> errors = {
      {"kill", 0}, {"ENOSPC", ENOSPC}, {"EROFS", EROFS}, {"EACCES", EACCES}};
  const auto error = errors.find(words[0]);
  if (error == errors.end()) {
    std::fprintf(stderr, "fault_injector: no fault \"%s\"\n", words[0]);
    std::exit(125);
  }
  return {words[2], std::atoi(words[1]), error->second};
}

// As soon as the command has ended; after "kill", and when it takes too long, when all of its processes have.
int waitFor(int report, pid_t tracer) {
  pollfd ended = {report, POLLIN, 0};
  int status = 0;
  const bool inTime = poll(&ended, 1, MillisecondsForCommand) > 0;
  if (inTime && read(report, &status, sizeof status) == sizeof status)
    return WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
  kill(tracer, SIGKILL);
  while (wait(nullptr) > 0 || errno == EINTR) {
  }
  return inTime ? 128 + SIGKILL : TookTooLong;
}

}  // namespace

int main(int count, char** arguments) {
  const int command = count > 2 && std::strcmp(arguments[2], "--") == 0 ? 3 : 6;
  if (count <= command || std::strcmp(arguments[command - 1], "--") != 0) {
    std::fputs("usage: fault_injector LOG [FAULT OCCURRENCE CALL] -- COMMAND...\n", stderr);
    return 125;
  }
  const Fault fault = command == 6 ? parsedFault(arguments + 2) : Fault();
  const int log = open(arguments[1], O_WRONLY | O_CREAT | O_TRUNC | O_APPEND | O_CLOEXEC, 0666);
  int report[2];
  if (log < 0 || pipe2(report, O_CLOEXEC) != 0) fail(arguments[1]);
  // The killed command's processes are this one's children in the end, so that it can wait for them.
  prctl(PR_SET_CHILD_SUBREAPER, 1, 0, 0, 0);
  const pid_t tracer = fork();
  if (tracer < 0) fail("fork");
  if (tracer == 0) trace(log, fault, report[1], arguments + command);
  close(report[1]);
  return waitFor(report[0], tracer);
}

// Runs a command as on a machine that allows less than this one:
//
//   allow_less WHAT... -- COMMAND...
//
// namespaces   a container as most are: no CAP_SYS_ADMIN, and a filter that refuses namespaces and mounts
// ipv6         a kernel without IPv6: there are no sockets of that kind. (What it has in /proc is for the
// caller to hide.) traces       no process may look into another newer-calls  the system calls that a library
// asks for first and does without on an older kernel
//
// The command cannot undo it. For a container is no machine on which a program gives rights: nor does it
// here.
#include <linux/capability.h>
#include <linux/filter.h>
#include <linux/sched.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

namespace {

constexpr std::uint32_t AnyNamespace =
    CLONE_NEWNS | CLONE_NEWUTS | CLONE_NEWIPC | CLONE_NEWUSER | CLONE_NEWPID | CLONE_NEWNET | CLONE_NEWCGROUP;

class Filter {
 public:
  // What the call is refused with, whatever its arguments.
  void refuse(long call, int error) {
    program_.push_back(BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)));
    program_.push_back(BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, static_cast<std::uint32_t>(call), 0, 1));
    end_with(error);
  }

  // Only when the first argument is the value, or has one of its bits.
  void refuse_with(long call, std::uint16_t comparison, std::uint32_t value, int error) {
    program_.push_back(BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)));
    program_.push_back(BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, static_cast<std::uint32_t>(call), 0, 3));
    program_.push_back(BPF_STMT(BPF_LD | BPF_W | BPF_ABS, first_argument));
    program_.push_back(BPF_JUMP(static_cast<std::uint16_t>(BPF_JMP | comparison | BPF_K), value, 0, 1));
    end_with(error);
  }

  bool install() {
    program_.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW));
    const sock_fprog program = {static_cast<unsigned short>(program_.size()), program_.data()};
    return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
           prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
  }

 private:
  // The half of it in which all bits are that are looked at.
  static constexpr std::size_t first_argument =
      offsetof(seccomp_data, args) + (__BYTE_ORDER__ == __ORDER_BIG_ENDIAN__ ? sizeof(std::uint32_t) : 0);

  void end_with(int error) {
    program_.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | static_cast<std::uint32_t>(error)));
  }

  std::vector<sock_filter> program_;
};

void refuse_namespaces(Filter& filter) {
  filter.refuse_with(SYS_unshare, BPF_JSET, AnyNamespace, EPERM);
  filter.refuse_with(SYS_clone, BPF_JSET, AnyNamespace, EPERM);
  // Its flags are in memory, where a filter cannot look: libraries go on with the call above.
  filter.refuse(SYS_clone3, ENOSYS);
  for (const long call : {SYS_setns, SYS_mount, SYS_umount2, SYS_pivot_root, SYS_sethostname}) {
    filter.refuse(call, EPERM);
  }
  for (const long call : {SYS_open_tree, SYS_move_mount, SYS_fsopen, SYS_fsmount, SYS_mount_setattr}) {
    filter.refuse(call, ENOSYS);
  }
}

// A user without it has none to lose.
bool give_up_administration() {
  return prctl(PR_CAPBSET_READ, CAP_SYS_ADMIN, 0, 0, 0) != 1 ||
         prctl(PR_CAPBSET_DROP, CAP_SYS_ADMIN, 0, 0, 0) == 0 || errno == EPERM;
}

bool refuse(const std::string& what, Filter& filter) {
  if (what == "namespaces") {
    refuse_namespaces(filter);
    return give_up_administration();
  }
  if (what == "ipv6") {
    filter.refuse_with(SYS_socket, BPF_JEQ, AF_INET6, EAFNOSUPPORT);
  } else if (what == "traces") {
    filter.refuse(SYS_ptrace, EPERM);
  } else if (what == "newer-calls") {
    for (const long call : {SYS_statx, SYS_faccessat2, SYS_openat2, SYS_close_range})
      filter.refuse(call, ENOSYS);
  } else {
    errno = EINVAL;
    return false;
  }
  return true;
}

}  // namespace

int main(int count, char** arguments) {
  Filter filter;
  int next = 1;
  for (; next < count && std::strcmp(arguments[next], "--") != 0; ++next) {
    if (!refuse(arguments[next], filter)) {
      std::perror(arguments[next]);
      return 2;
    }
  }
  if (next + 1 >= count || !filter.install()) {
    std::perror("allow_less");
    return 2;
  }
  execvp(arguments[next + 1], arguments + next + 1);
  std::perror(arguments[next + 1]);
  return 127;
}

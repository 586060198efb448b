// Runs a command as on a machine that allows less than this one:
//
//   allow_less WHAT... -- COMMAND...
//
// namespaces   a container as most are: few capabilities, and a filter that refuses namespaces and mounts
// ipv6         a kernel without IPv6: no such sockets. (What there is of it in /proc the caller hides.)
//
// The command cannot undo it. No program gives it more rights, such as sudo would.
#include <linux/capability.h>
#include <linux/filter.h>
#include <linux/sched.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <iterator>
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

// What containers leave to root, as a rule.
constexpr int KeptCapabilities[] = {
    CAP_CHOWN,   CAP_DAC_OVERRIDE, CAP_FOWNER,           CAP_FSETID,     CAP_KILL,
    CAP_SETGID,  CAP_SETUID,       CAP_SETPCAP,          CAP_NET_RAW,    CAP_MKNOD,
    CAP_SETFCAP, CAP_SYS_CHROOT,   CAP_NET_BIND_SERVICE, CAP_AUDIT_WRITE};

// A user without capabilities has none to lose, and may not say so.
bool give_up_capabilities() {
  for (int capability = 0; prctl(PR_CAPBSET_READ, capability, 0, 0, 0) >= 0; ++capability) {
    if (std::find(std::begin(KeptCapabilities), std::end(KeptCapabilities), capability) !=
        std::end(KeptCapabilities)) {
      continue;
    }
    if (prctl(PR_CAPBSET_DROP, capability, 0, 0, 0) != 0 && errno != EPERM) return false;
  }
  return true;
}

bool refuse(const std::string& what, Filter& filter) {
  if (what == "namespaces") {
    refuse_namespaces(filter);
    return give_up_capabilities();
  }
  if (what == "ipv6") {
    filter.refuse_with(SYS_socket, BPF_JEQ, AF_INET6, EAFNOSUPPORT);
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

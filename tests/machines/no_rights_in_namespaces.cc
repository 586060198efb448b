// What a machine does that lets everybody have a user namespace, but no rights in it (AppArmor's
// apparmor_restrict_unprivileged_userns): to be loaded into `unshare` with LD_PRELOAD.
#include <linux/capability.h>
#include <sched.h>
#include <sys/syscall.h>
#include <unistd.h>

extern "C" int unshare(int flags) noexcept {
  if (syscall(SYS_unshare, flags) != 0) return -1;
  if ((flags & CLONE_NEWUSER) == 0) return 0;
  __user_cap_header_struct header = {_LINUX_CAPABILITY_VERSION_3, 0};
  __user_cap_data_struct none[_LINUX_CAPABILITY_U32S_3] = {};
  return static_cast<int>(syscall(SYS_capset, &header, none));
}

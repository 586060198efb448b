#include "libtarn/child_statuses.h"

#include <csignal>
#include <mutex>

namespace TarnAbstract {
namespace {

// The disposition of a signal belongs to the whole process: the first command changes it, the last one
// that runs beside others restores it.
std::mutex guard;
unsigned int commands = 0;
bool changed = false;
struct sigaction hosts = {};

bool throwsStatusesAway(const struct sigaction& action) {
  return action.sa_handler == SIG_IGN || (action.sa_flags & SA_NOCLDWAIT) != 0;
}

}  // namespace

ChildStatuses::ChildStatuses() {
  const std::lock_guard<std::mutex> lock(guard);
  if (commands++ > 0) return;
  sigaction(SIGCHLD, nullptr, &hosts);
  changed = throwsStatusesAway(hosts);
  if (!changed) return;
  struct sigaction keeping = {};
  keeping.sa_handler = SIG_DFL;
  sigaction(SIGCHLD, &keeping, nullptr);
}

ChildStatuses::~ChildStatuses() {
  const std::lock_guard<std::mutex> lock(guard);
  if (--commands == 0 && changed) sigaction(SIGCHLD, &hosts, nullptr);
}

}  // namespace TarnAbstract

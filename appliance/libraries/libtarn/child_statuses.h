// Keeps the statuses of children while commands run. The kernel throws them away in a process that
// ignores SIGCHLD, as one does whose parent ignored it; so long as one of these exists, it does not. It lives
// in the library that all others use, because a process has one disposition and they must count together.
#pragma once

namespace TarnAbstract {

class ChildStatuses {
 public:
  ChildStatuses();
  ~ChildStatuses();
  ChildStatuses(const ChildStatuses&) = delete;
  ChildStatuses& operator=(const ChildStatuses&) = delete;
};

}  // namespace TarnAbstract

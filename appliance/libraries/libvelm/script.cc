#include "libvelm/script.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstring>

#include "libtarn/child_statuses.h"
#include "libtarn/command_environment.h"
#include "libvelm/service_error.h"

namespace Velm {
namespace {

// What the child is to find instead of the caller's descriptors and signal settings. A service that the
// script starts must not keep a page's connection open.
class SpawnSettings {
 public:
  SpawnSettings() {
    posix_spawn_file_actions_init(&actions_);
    posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions_, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addclosefrom_np(&actions_, STDERR_FILENO + 1);
    posix_spawnattr_init(&attributes_);
    sigset_t signals;
    sigfillset(&signals);
    posix_spawnattr_setsigdefault(&attributes_, &signals);
    sigemptyset(&signals);
    posix_spawnattr_setsigmask(&attributes_, &signals);
    posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK);
  }
  ~SpawnSettings() {
    posix_spawnattr_destroy(&attributes_);
    posix_spawn_file_actions_destroy(&actions_);
  }
  SpawnSettings(const SpawnSettings&) = delete;
  SpawnSettings& operator=(const SpawnSettings&) = delete;

  const posix_spawn_file_actions_t* Actions() const { return &actions_; }
  const posix_spawnattr_t* Attributes() const { return &attributes_; }

 private:
  posix_spawn_file_actions_t actions_ = {};
  posix_spawnattr_t attributes_ = {};
};

}  // namespace

void RunScript(const std::string& path) {
  const SpawnSettings settings;
  std::string name = path;
  char* const arguments[] = {name.data(), nullptr};
  const TarnAbstract::ChildStatuses statuses;
  pid_t child = 0;
  const int error = posix_spawn(&child, path.c_str(), settings.Actions(), settings.Attributes(), arguments,
                                TarnAbstract::commandEnvironment());
  if (error != 0) throw ServiceError(path + " cannot be started: " + std::strerror(error));
  int status = 0;
  while (waitpid(child, &status, 0) < 0) {
    if (errno != EINTR) throw ServiceError("waiting for " + path + ": " + std::strerror(errno));
  }
  if (WIFSIGNALED(status)) {
    throw ServiceError(path + " was ended by signal " + std::to_string(WTERMSIG(status)));
  }
  if (WEXITSTATUS(status) != 0) {
    throw ServiceError(path + " ended with exit status " + std::to_string(WEXITSTATUS(status)));
  }
}

}  // namespace Velm

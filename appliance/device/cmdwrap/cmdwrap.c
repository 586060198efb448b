/* Runs a command of the device. Where the web service has no rights of its own, the service behind DOOR runs
   it, with output and errors that are this process's own; else it takes the place of this process. Either way
   its output, exit status and signals are the command's own. */
#include <errno.h>
#include <fcntl.h>
#include <signal.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/socket.h>
#include <sys/uio.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include "door.h"

#define NO_END_OF_FILE "-NO_END_OF_FILE"

static const char Usage[] =
    "usage: cmdwrap [" NO_END_OF_FILE
    "] COMMAND [ARGUMENT...]\n"
    "Runs COMMAND, a path or a name that is searched in PATH. Where there is the socket " DOOR
    ",\n"
    "the service behind it runs COMMAND, if that is one of the device's own.\n"
    "  " NO_END_OF_FILE
    "  add nothing behind the output of COMMAND. Nothing is added without it\n"
    "                   either.\n"
    "Exit status: that of COMMAND; 127 when there is no such program, 126 when it cannot be run,\n"
    "2 when the command line is wrong.\n";

static int refuse(const char* what, const char* which) {
  fprintf(stderr, "cmdwrap: %s%s\n%s", what, which, Usage);
  return WrongUsage;
}

static int cannotRun(const char* command, int error) {
  fprintf(stderr, "cmdwrap: cannot run '%s': %s\n", command, strerror(error));
  return error == ENOENT ? NoSuchProgram : CannotBeRun;
}

static int replaceBy(char** command) {
  execvp(*command, command);
  return cannotRun(*command, errno);
}

/* The connection, or -1 with errno. */
static int connectToDoor(void) {
  const struct sockaddr_un address = {.sun_family = AF_UNIX, .sun_path = DOOR};
  const int door = socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0);
  if (door < 0 || connect(door, (const struct sockaddr*)&address, sizeof(address)) == 0) return door;
  const int error = errno;
  close(door);
  errno = error;
  return -1;
}

/* The words of the command in one piece; 0 when they do not fit. */
static size_t putTogether(char** command, char* text) {
  size_t length = 0;
  for (; *command != NULL; ++command) {
    const size_t word = strlen(*command) + 1;
    if (word > LongestCommand - length) return 0;
    memcpy(text + length, *command, word);
    length += word;
  }
  return length;
}

/* One that is closed here is nowhere there. */
static int openDescriptor(int descriptor) {
  return fcntl(descriptor, F_GETFD) >= 0 ? descriptor : open("/dev/null", O_WRONLY | O_CLOEXEC);
}

static int sendCommand(int door, char* text, size_t length) {
  const int descriptors[PassedDescriptors] = {openDescriptor(STDOUT_FILENO), openDescriptor(STDERR_FILENO)};
  struct iovec words = {.iov_base = text, .iov_len = length};
  union {
    char bytes[CMSG_SPACE(sizeof(descriptors))];
    struct cmsghdr alignment;
  } passed = {.bytes = {0}};
  struct msghdr message = {.msg_iov = &words, .msg_iovlen = 1, .msg_control = passed.bytes};
  message.msg_controllen = sizeof(passed.bytes);
  struct cmsghdr* const header = CMSG_FIRSTHDR(&message);
  header->cmsg_level = SOL_SOCKET;
  header->cmsg_type = SCM_RIGHTS;
  header->cmsg_len = CMSG_LEN(sizeof(descriptors));
  memcpy(CMSG_DATA(header), descriptors, sizeof(descriptors));
  ssize_t sent = 0;
  do sent = sendmsg(door, &message, MSG_NOSIGNAL);
  while (sent < 0 && errno == EINTR);
  return sent == (ssize_t)length;
}

/* Whether it came. */
static int receiveStatus(int door, int* waitStatus) {
  ssize_t length = 0;
  do length = recv(door, waitStatus, sizeof(*waitStatus), 0);
  while (length < 0 && errno == EINTR);
  return length == sizeof(*waitStatus);
}

/* As the command ended. */
static int endLike(int waitStatus) {
  if (!WIFSIGNALED(waitStatus)) return WEXITSTATUS(waitStatus);
  sigset_t all;
  sigemptyset(&all);
  sigprocmask(SIG_SETMASK, &all, NULL);
  signal(WTERMSIG(waitStatus), SIG_DFL);
  raise(WTERMSIG(waitStatus));
  return 128 + WTERMSIG(waitStatus);
}

static int runBehind(int door, char** command) {
  static char text[LongestCommand];
  const size_t length = putTogether(command, text);
  if (length == 0) return refuse("a command longer than any of the device: ", "");
  int waitStatus = 0;
  if (sendCommand(door, text, length) && receiveStatus(door, &waitStatus)) return endLike(waitStatus);
  fprintf(stderr, "cmdwrap: the service behind " DOOR " does not run '%.200s'\n", *command);
  return CannotBeRun;
}

int main(int count, char** arguments) {
  char** command = arguments + (count > 0);
  if (*command != NULL && strcmp(*command, NO_END_OF_FILE) == 0) ++command;
  if (*command == NULL) return refuse("no command given", "");
  if (strcmp(*command, "--help") == 0) return fputs(Usage, stdout) < 0;
  if (**command == '-') return refuse("unknown option ", *command);

  const int door = connectToDoor();
  if (door >= 0) return runBehind(door, command);
  if (errno == ENOENT || errno == ENOTDIR) return replaceBy(command);
  fprintf(stderr, "cmdwrap: nobody opens " DOOR ": %s\n", strerror(errno));
  return CannotBeRun;
}

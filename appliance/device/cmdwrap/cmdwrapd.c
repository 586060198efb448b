/* The one door to root: runs the device scripts by their fixed paths and the two commands for the flag file
   of IPv6, and nothing else, whoever asks. The command wrapper asks it where the web service has no rights of
   its own.

     cmdwrapd USER GROUP    numbers; besides root only this user may ask, and the socket is open to this group

   Each request has a process of its own from the start, which becomes the script: a client that asks for
   nothing, or sends what is no request, holds up nobody but itself. A script whose client is ended, is ended
   with it: to whoever asked, the client is the command. */
#define _GNU_SOURCE
#include <dirent.h>
#include <errno.h>
#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include "door.h"

#define LIBRARY "/home/embedded/library"
#define SCRIPTS LIBRARY "/AppManager/bin/"
#define IPV6_FLAG LIBRARY "/CoreService/dat/ipv6Enabled"
#define READY "/run/appmanager/door.pid"

enum {
  AtOnce = 64,        /* requests under way; the others wait in the queue of the socket */
  SecondsToAsk = 5,   /* from the connection to the request */
  MostWords = 1024,   /* of a command */
  MostTriesToEnd = 5, /* all processes of a script */
  FlagMode = 0644,
  MayTakeAnything = -1, /* the script itself judges its arguments */
};

struct Script {
  const char* path;
  int words; /* behind the path */
};

static const struct Script Scripts[] = {
    {SCRIPTS "ipv4Manager.sh", MayTakeAnything},
    {SCRIPTS "ipv6Manager.sh", MayTakeAnything},
    {SCRIPTS "probeAddress.sh", 1},
    {SCRIPTS "pingAddress.sh", 1},
    {SCRIPTS "lookUpName.sh", 1},
    {SCRIPTS "applyWebMode.sh", 0},
    {SCRIPTS "restartSNMP.sh", 0},
    {LIBRARY "/testTrapRegistration.sh", 0},
};

struct Request {
  int connection; /* -1: free */
  pid_t process;
  int isEnding; /* it was told to */
};

static struct Request requests[AtOnce];
static volatile sig_atomic_t childEnded;

static void noteEnd(int number) {
  (void)number;
  childEnded = 1;
}

static void fail(const char* what) {
  fprintf(stderr, "cmdwrapd: %s: %s\n", what, strerror(errno));
  exit(1);
}

static int isShell(const char* word) { return strcmp(word, "/bin/sh") == 0 || strcmp(word, "sh") == 0; }

static int isDeviceScript(char** words, int count) {
  if (count < 2 || !isShell(words[0])) return 0;
  for (size_t i = 0; i < sizeof(Scripts) / sizeof(*Scripts); ++i) {
    if (strcmp(words[1], Scripts[i].path) != 0) continue;
    return Scripts[i].words == MayTakeAnything || Scripts[i].words == count - 2;
  }
  return 0;
}

static int isFlagCommand(char** words, int count, const char* program) {
  return count == 2 && strcmp(words[0], program) == 0 && strcmp(words[1], IPV6_FLAG) == 0;
}

/* As the two programs do it. Here and not by them, because a link in the place of the flag is not to be
   followed: its folder is open to the interpreter's user. */
static int touchFlag(void) {
  const int flag =
      open(IPV6_FLAG, O_WRONLY | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC, FlagMode);
  if (flag >= 0 && futimens(flag, NULL) == 0) return 0;
  fprintf(stderr, "touch: cannot touch '" IPV6_FLAG "': %s\n", strerror(errno));
  return 1;
}

static int removeFlag(void) {
  if (unlink(IPV6_FLAG) == 0) return 0;
  fprintf(stderr, "rm: cannot remove '" IPV6_FLAG "': %s\n", strerror(errno));
  return 1;
}

static int runScript(char** words) {
  static char* const environment[] = {"PATH=/usr/sbin:/usr/bin:/sbin:/bin", "BEHIND_THE_DOOR=yes", NULL};
  execve("/bin/sh", words, environment);
  fprintf(stderr, "cmdwrap: cannot run '%s': %s\n", words[0], strerror(errno));
  return CannotBeRun;
}

static int runCommand(char** words, int count) {
  if (isFlagCommand(words, count, "/bin/touch")) return touchFlag();
  if (isFlagCommand(words, count, "/bin/rm")) return removeFlag();
  if (isDeviceScript(words, count)) return runScript(words);
  fprintf(stderr, "cmdwrap: '%.200s%s%.200s' is no command of the device\n", words[0], count > 1 ? " " : "",
          count > 1 ? words[1] : "");
  return CannotBeRun;
}

/* The number of words in the text, to which words then points; 0 when it is no request. */
static int takeApart(char* text, size_t length, char** words) {
  int count = 0;
  if (length == 0 || text[length - 1] != '\0') return 0;
  for (size_t at = 0; at < length; at += strlen(text + at) + 1) {
    if (count == MostWords) return 0;
    words[count++] = text + at;
  }
  words[count] = NULL;
  return count;
}

/* The length of the request, whose descriptors are then standard output and standard error; 0 when it is
 * none. */
static size_t receiveRequest(int connection, char* text) {
  int descriptors[PassedDescriptors];
  union {
    char bytes[CMSG_SPACE(sizeof(descriptors))];
    struct cmsghdr alignment;
  } passed = {.bytes = {0}};
  struct iovec words = {.iov_base = text, .iov_len = LongestCommand};
  struct msghdr message = {.msg_iov = &words, .msg_iovlen = 1, .msg_control = passed.bytes};
  message.msg_controllen = sizeof(passed.bytes);
  const ssize_t length = recvmsg(connection, &message, MSG_CMSG_CLOEXEC);
  const struct cmsghdr* const header = length > 0 ? CMSG_FIRSTHDR(&message) : NULL;
  if (header == NULL || (message.msg_flags & (MSG_TRUNC | MSG_CTRUNC)) != 0 ||
      header->cmsg_type != SCM_RIGHTS || header->cmsg_level != SOL_SOCKET ||
      header->cmsg_len != CMSG_LEN(sizeof(descriptors))) {
    return 0;
  }
  memcpy(descriptors, CMSG_DATA(header), sizeof(descriptors));
  for (int i = 0; i < PassedDescriptors; ++i) {
    if (dup2(descriptors[i], STDOUT_FILENO + i) < 0) return 0;
  }
  return (size_t)length;
}

/* The process of one request. All other descriptors close by themselves; standard input is this service's,
 * and empty. */
static int serve(int connection) {
  static char text[LongestCommand];
  static char* words[MostWords + 1];
  alarm(SecondsToAsk);
  setsid();
  signal(SIGCHLD, SIG_DFL);
  sigset_t none;
  sigemptyset(&none);
  sigprocmask(SIG_SETMASK, &none, NULL);
  const size_t length = receiveRequest(connection, text);
  alarm(0);
  const int count = takeApart(text, length, words);
  return count == 0 ? WrongUsage : runCommand(words, count);
}

static struct Request* requestOf(pid_t process) {
  for (int i = 0; i < AtOnce; ++i) {
    if (requests[i].connection >= 0 && requests[i].process == process) return &requests[i];
  }
  return NULL;
}

static struct Request* freeRequest(void) {
  for (int i = 0; i < AtOnce; ++i) {
    if (requests[i].connection < 0) return &requests[i];
  }
  return NULL;
}

static void answerEnded(void) {
  int waitStatus = 0;
  pid_t process = 0;
  childEnded = 0;
  while ((process = waitpid(-1, &waitStatus, WNOHANG)) > 0) {
    struct Request* const request = requestOf(process);
    if (request == NULL) continue;
    send(request->connection, &waitStatus, sizeof(waitStatus), MSG_NOSIGNAL | MSG_DONTWAIT);
    close(request->connection);
    request->connection = -1;
  }
}

static int mayAsk(int connection, uid_t user) {
  struct ucred asking;
  socklen_t length = sizeof(asking);
  return getsockopt(connection, SOL_SOCKET, SO_PEERCRED, &asking, &length) == 0 &&
         (asking.uid == 0 || asking.uid == user);
}

static void take(int door, struct Request* request, uid_t user) {
  const int connection = accept4(door, NULL, NULL, SOCK_CLOEXEC);
  if (connection < 0) return;
  const pid_t process = mayAsk(connection, user) ? fork() : -1;
  if (process == 0) _exit(serve(connection));
  if (process < 0) {
    close(connection);
    return;
  }
  request->connection = connection;
  request->process = process;
  request->isEnding = 0;
}

/* The session of a process, or 0. */
static pid_t sessionOf(const char* process) {
  char path[64];
  char text[512];
  int session = 0;
  snprintf(path, sizeof(path), "/proc/%.20s/stat", process);
  const int file = open(path, O_RDONLY | O_CLOEXEC);
  const ssize_t length = file < 0 ? 0 : read(file, text, sizeof(text) - 1);
  if (file >= 0) close(file);
  text[length > 0 ? length : 0] = '\0';
  /* The name, in brackets, may hold anything. */
  const char* const behindName = strrchr(text, ')');
  return behindName != NULL && sscanf(behindName, ") %*c %*d %*d %d", &session) == 1 ? session : 0;
}

/* How many there were: one that is just being made is not among them. */
static int endProcessesOf(pid_t session) {
  int found = 0;
  DIR* const processes = opendir("/proc");
  if (processes == NULL) return 0;
  for (const struct dirent* entry = readdir(processes); entry != NULL; entry = readdir(processes)) {
    const pid_t process = (pid_t)strtol(entry->d_name, NULL, 10); /* 0: no process's */
    /* The script itself stays, so that its number stays its own, until it is waited for. */
    if (process <= 0 || process == session || sessionOf(entry->d_name) != session) continue;
    kill(process, SIGKILL);
    ++found;
  }
  closedir(processes);
  return found;
}

/* With all that it has started, but for what was given a session of its own to outlive it. */
static void endAbandoned(struct Request* request) {
  request->isEnding = 1;
  kill(request->process, SIGKILL);
  for (int tries = 0; tries < MostTriesToEnd && endProcessesOf(request->process) > 0; ++tries) continue;
}

/* Waits for a request, or the end of a script or of a client. Whether there is a request. */
static int waitForNews(int door, const sigset_t* signals) {
  struct pollfd news[1 + AtOnce];
  for (int i = 0; i < AtOnce; ++i) {
    news[i] =
        (struct pollfd){.fd = requests[i].isEnding ? -1 : requests[i].connection}; /* tells its end anyway */
  }
  news[AtOnce] = (struct pollfd){.fd = freeRequest() == NULL ? -1 : door, .events = POLLIN};
  const int ready = ppoll(news, 1 + AtOnce, NULL, signals);
  for (int i = 0; ready > 0 && i < AtOnce; ++i) {
    if ((news[i].revents & POLLHUP) != 0) endAbandoned(&requests[i]);
  }
  return ready > 0 && news[AtOnce].revents != 0;
}

/* Nobody else is let in before it is the group's: its folder is root's alone. */
static int openDoor(uid_t owner, gid_t group) {
  const struct sockaddr_un address = {.sun_family = AF_UNIX, .sun_path = DOOR};
  const int door = socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0);
  unlink(DOOR);
  umask(0177);
  if (door < 0 || bind(door, (const struct sockaddr*)&address, sizeof(address)) != 0) fail(DOOR);
  if (chown(DOOR, owner, group) != 0 || chmod(DOOR, 0660) != 0 || listen(door, AtOnce) != 0) fail(DOOR);
  umask(022);
  return door;
}

static void sayReady(void) {
  FILE* const file = fopen(READY, "we");
  if (file == NULL || fprintf(file, "%d\n", (int)getpid()) < 0 || fclose(file) != 0) fail(READY);
}

/* A number of a user or group, or the end. */
static unsigned int number(const char* text) {
  char* end = NULL;
  const unsigned long value = strtoul(text, &end, 10);
  if (*text < '0' || *text > '9' || *end != '\0' || value > 0xfffffffeUL) {
    fprintf(stderr, "cmdwrapd: '%s' is no number of a user or group\n", text);
    exit(WrongUsage);
  }
  return (unsigned int)value;
}

int main(int count, char** arguments) {
  if (count != 3) {
    fprintf(stderr, "usage: cmdwrapd USER GROUP\n");
    return WrongUsage;
  }
  const uid_t user = number(arguments[1]);
  const int door = openDoor(0, number(arguments[2]));
  for (int i = 0; i < AtOnce; ++i) requests[i].connection = -1;

  sigset_t ends;
  sigset_t before;
  sigemptyset(&ends);
  sigaddset(&ends, SIGCHLD);
  sigprocmask(SIG_BLOCK, &ends, &before);
  const struct sigaction action = {.sa_handler = noteEnd};
  sigaction(SIGCHLD, &action, NULL);
  if (chdir("/") != 0) fail("/");
  sayReady();

  for (;;) {
    const int isAsked = waitForNews(door, &before);
    if (childEnded) answerEnded();
    if (isAsked) take(door, freeRequest(), user);
  }
}

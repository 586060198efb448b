/* Replaces itself by a command of the device. Nothing of it is left while the command runs, so the
   command's output, exit status and signals are the command's own. */
#include <errno.h>
#include <stdio.h>
#include <string.h>
#include <unistd.h>

#define NO_END_OF_FILE "-NO_END_OF_FILE"

enum ExitStatus {
  WrongUsage = 2,
  /* as a shell puts them */
  CannotBeRun = 126,
  NoSuchProgram = 127,
};

static const char Usage[] =
    "usage: cmdwrap [" NO_END_OF_FILE
    "] COMMAND [ARGUMENT...]\n"
    "Runs COMMAND, a path or a name that is searched in PATH, in place of this process.\n"
    "  " NO_END_OF_FILE
    "  add nothing behind the output of COMMAND. Nothing is added without it\n"
    "                   either: there is no wrapper left when COMMAND ends.\n"
    "Exit status: that of COMMAND; 127 when there is no such program, 126 when it cannot be run,\n"
    "2 when the command line is wrong.\n";

static int refuse(const char* what, const char* which) {
  fprintf(stderr, "cmdwrap: %s%s\n%s", what, which, Usage);
  return WrongUsage;
}

int main(int count, char** arguments) {
  char** command = arguments + (count > 0);
  if (*command != NULL && strcmp(*command, NO_END_OF_FILE) == 0) ++command;
  if (*command == NULL) return refuse("no command given", "");
  if (strcmp(*command, "--help") == 0) return fputs(Usage, stdout) < 0;
  if (**command == '-') return refuse("unknown option ", *command);

  execvp(*command, command);
  const int error = errno;
  fprintf(stderr, "cmdwrap: cannot run '%s': %s\n", *command, strerror(error));
  return error == ENOENT ? NoSuchProgram : CannotBeRun;
}

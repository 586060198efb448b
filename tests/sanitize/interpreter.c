// Stands in for an interpreter: runs the real one under what looks for its faults. As a program of its own,
// and linked statically, because a test may already have named a library that is to be loaded into the
// interpreter: a shell would load that, too. It is compiled with
//
//   PROGRAM    the words that the interpreter is run with: "/usr/bin/php", or "valgrind", "OPTION",
//   "/usr/bin/php" SETTINGS   environment variables for it: "NAME=value", "NAME=value" PRELOADED  what is to
//   be loaded into it besides, with ":" between the files; may be empty
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <unistd.h>

static char* const program[] = {PROGRAM};
static char* const settings[] = {SETTINGS};
static const char variable[] = "LD_PRELOAD";

enum {
  PROGRAM_WORDS = sizeof(program) / sizeof(program[0]),
  SETTINGS_COUNT = sizeof(settings) / sizeof(settings[0])
};

// What the test names comes first: its doubles stand in front of the operations that a sanitizer takes over.
static void preload(void) {
  static char libraries[4096];
  const char* const tests = getenv(variable);
  const int length = snprintf(libraries, sizeof(libraries), "%s%s%s", tests == NULL ? "" : tests,
                              tests == NULL || *PRELOADED == '\0' ? "" : ":", PRELOADED);
  if (length >= (int)sizeof(libraries)) abort();
  if (length > 0) setenv(variable, libraries, 1);
}

// Who looks for leaks has to trace the process, which only one can. A test may have a tracer of its own.
static void leaveLeaksToTracer(void) {
  static const char key[] = "TracerPid:";
  static char options[4096];
  const char* const name = "ASAN_OPTIONS";
  const char* const given = getenv(name);
  char line[256];
  int tracer = 0;
  FILE* const status = fopen("/proc/self/status", "r");
  if (status == NULL) abort();
  while (fgets(line, sizeof(line), status) != NULL) {
    if (strncmp(line, key, strlen(key)) == 0) tracer = atoi(line + strlen(key));
  }
  fclose(status);
  if (tracer == 0 || given == NULL) return;
  if (snprintf(options, sizeof(options), "%s:detect_leaks=0", given) >= (int)sizeof(options)) abort();
  setenv(name, options, 1);
}

int main(int count, char** words) {
  char** const command = calloc(PROGRAM_WORDS + (size_t)count, sizeof(*command));
  if (command == NULL) abort();
  memcpy(command, program, sizeof(program));
  memcpy(command + PROGRAM_WORDS, words + 1, (size_t)count * sizeof(*command));  // with the NULL at the end
  for (int i = 0; i < SETTINGS_COUNT; ++i) putenv(settings[i]);
  leaveLeaksToTracer();
  preload();
  execv(command[0], command);
  perror(command[0]);
  return 127;
}

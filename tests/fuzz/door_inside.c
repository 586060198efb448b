/* The service behind the door, from the inside: what it does to the machine is told to the target instead. */
#define _GNU_SOURCE
#include <fcntl.h>
#include <unistd.h>

int fuzz_open(const char* path, int flags, ...);
int fuzz_unlink(const char* path);
int fuzz_execve(const char* path, char* const* words, char* const* environment);
int fuzz_request(char* text, size_t length);

#define open fuzz_open
#define unlink fuzz_unlink
#define execve fuzz_execve
#define main cmdwrapd
#include "cmdwrapd.c"

/* As serve() does with what it has received. */
int fuzz_request(char* text, size_t length) {
  static char* words[MostWords + 1];
  const int count = takeApart(text, length, words);
  return count == 0 ? WrongUsage : runCommand(words, count);
}

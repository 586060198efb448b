// Loaded into an interpreter together with a sanitizer, in front of it.
#define _GNU_SOURCE
#include <dlfcn.h>
#include <stdlib.h>

// The interpreter has a module search itself and its own libraries first. That would go past the sanitizer,
// which therefore refuses it.
__attribute__((visibility("default"))) void* dlopen(const char* file, int mode) {
  void* (*const next)(const char*, int) = (void* (*)(const char*, int))dlsym(RTLD_NEXT, "dlopen");
  return next(file, mode & ~RTLD_DEEPBIND);
}

// The commands that the interpreter starts are not looked at: the device's shell has faults of its own.
__attribute__((constructor)) static void forgetPreload(void) { unsetenv("LD_PRELOAD"); }

// Loaded into an interpreter behind the sanitizer: the commands that it starts are not looked at, the
// device's shell has faults of its own.
#include <stdlib.h>

__attribute__((constructor)) static void forgetPreload(void) { unsetenv("LD_PRELOAD"); }

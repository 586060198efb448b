#include <php.h>

#include "platform/Result.h"
#include "utility/checkResultCode.h"

void checkResultCode(unsigned int code, char* message, char* file, int line) {
  if (TarnAbstract::Result::IsSucceeded(code)) return;
  php_error_docref(nullptr, E_WARNING, "%s (code 0x%08X, %s:%d)", message, code, file, line);
}

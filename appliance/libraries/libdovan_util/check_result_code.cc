#include "libdovan_util/engine.h"
#include "platform/Result.h"
#include "utility/checkResultCode.h"

void checkResultCode(unsigned int code, char* message, char* file, int line) {
  if (!TarnAbstract::Result::IsSucceeded(code)) warnPage(message, code, file, line);
}

// Failure reports: recorded instead of being shown to the page.
#include "transcript.h"
#include "utility/checkResultCode.h"

void checkResultCode(unsigned int code, char* message, char* file, int line) {
  if (TarnAbstract::Result::IsSucceeded(code)) return;
  record("report: " + shownCode(code) + " \"" + shown(message) + "\" " + file + ':' + std::to_string(line));
}

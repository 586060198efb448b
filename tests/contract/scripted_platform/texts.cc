// The platform's texts over C strings, as the platform library makes them; on demand the transcript shows
// when one is built and when it goes.
#include <cstdlib>

#include "libtarn/string_access.h"
#include "platform/String.h"
#include "transcript.h"

using TarnAbstract::String;

namespace {

// Asked once: at the end of the process the interpreter has given its environment away.
bool areTextsShown() {
  static const bool shown = std::getenv("SCRIPTED_PLATFORM_SHOWS_TEXTS") != nullptr;
  return shown;
}

void recordText(const char* text, const char* event) {
  if (areTextsShown()) record("text \"" + shown(text) + "\" " + event);
}

}  // namespace

String::String(const char* text) : text_(text == nullptr ? "" : text), ownership_(1) {
  recordText(text_, "built");
}

String::~String() {
  recordText(text_, "gone");
  StringAccess::Release(*this);
}

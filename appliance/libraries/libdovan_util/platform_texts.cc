#include "utility/platform_texts.h"

#include "libtarn/identifier_text.h"
#include "libtarn/string_access.h"

using TarnAbstract::GUID;

const char* tarnStringToCString(const TarnAbstract::String& text) {
  return TarnAbstract::StringAccess::Text(text);
}

GUID cStringToGUID(char* text) {
  GUID identifier;
  if (text != nullptr) TarnAbstract::readIdentifier(text, identifier);
  return identifier;
}

const char* guidToCString(const GUID& identifier) {
  static thread_local char text[TarnAbstract::IdentifierTextLength + 1];
  TarnAbstract::writeIdentifier(identifier, text);
  return text;
}

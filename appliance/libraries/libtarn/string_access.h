// A platform text from the inside: what the management services need to fill one, and the utility
// library to read one.
#pragma once

#include "platform/String.h"

namespace TarnAbstract {

class StringAccess {
 public:
  // Valid as long as the String is; never null.
  static const char* Text(const String& string) { return string.text_; }

  // Gives the String characters of its own: a copy of text. Copies of the String share them.
  static void Assign(String& string, const char* text);

 private:
  friend class String;

  static void Share(String& string, const String& other);
  static void Release(String& string);
};

}  // namespace TarnAbstract

// The platform's text. One built from a C string refers to the caller's characters, which must outlive
// it; one that a management operation fills owns its characters.
#pragma once

#include "platform/Heap.h"
#include "platform/MemoryMgmt.h"
#include "platform/sp.h"

namespace TarnAbstract {

class String {
 public:
  String();
  explicit String(const char* text);
  // The heap serves whatever the text may need later; the text itself is not copied.
  String(const char* text, const sp<IHeap>& heap);
  String(const String& other);
  ~String();
  String& operator=(const String& other);

 private:
  friend class StringAccess;  // the platform library's own view

  const char* text_;
  unsigned int ownership_;  // 1: the characters are the caller's
};

}  // namespace TarnAbstract

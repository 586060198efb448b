// Platform texts and identifiers as C strings, and back.
#pragma once

#include "platform/GUID.h"
#include "platform/String.h"

// Valid as long as the String is; never null.
const char* tarnStringToCString(const TarnAbstract::String& text);

// A text that is no identifier gives the zero identifier.
TarnAbstract::GUID cStringToGUID(char* text);

// Three groups of eight hexadecimal digits joined by "-", in lower case. Valid until the next call on
// the same thread.
const char* guidToCString(const TarnAbstract::GUID& identifier);

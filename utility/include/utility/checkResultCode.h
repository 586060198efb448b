// Failure reports of a request. The name is the library's: it checks, and it warns the page.
#pragma once

// A success code has no effect. A failure code is reported to the page of the current request with the
// message, the source file and the line; then the caller goes on.
void checkResultCode(unsigned int code, char* message, char* file, int line);

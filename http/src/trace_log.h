// The trace log: one line for each event of the module, in one file that the device rotates. It is the
// module's only diagnostic channel besides the failure reports.
#pragma once

#include <string>

constexpr const char* TraceLogFile = "/home/embedded/library/HTTPService/lighttpd/logs/php_extension.log";

// LEVEL[time]:message:<extra> and a line end. A null text is written as NULL.
std::string traceLine(const std::string& level, const char* message, const char* extra);

// Appends the line to the log file, which is opened and closed for it. A line that cannot be written is
// lost in silence: no call may fail for its trace.
void logEntry(const std::string& level, const char* message, const char* extra);
void logEntry(const std::string& level, const char* message, const int& value);

// At the module's only level.
void trace(const char* message, const char* extra = "");
void trace(const char* message, const std::string& extra);
void trace(const char* message, int value);

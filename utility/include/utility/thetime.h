// The time in log lines.
#pragma once

// The current local time as text. From any thread; valid until the next call on the same thread.
const char* thetime();

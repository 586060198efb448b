// The environment of every command that the libraries start: that of a device's scripts and nothing of the
// caller's. So a desk and a device agree, and `environ` is not asked for: an engine that has a library search
// its own symbols first shows it the C library's copy, which is empty.
#pragma once

namespace TarnAbstract {

inline char* const* commandEnvironment() {
  static char path[] = "PATH=/usr/sbin:/usr/bin:/sbin:/bin";
  static char* const environment[] = {path, nullptr};
  return environment;
}

}  // namespace TarnAbstract

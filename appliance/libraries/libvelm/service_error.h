// How an operation of the management services fails: inside by exception, outside by result code and a
// sentence on standard error.
#pragma once

#include <functional>
#include <stdexcept>
#include <string>

#include "platform/Result.h"

namespace Velm {

class ServiceError : public std::runtime_error {
 public:
  explicit ServiceError(const std::string& sentence,
                        TarnAbstract::Result::Code code = TarnAbstract::Result::Failed)
      : std::runtime_error(sentence), code_(code) {}
  TarnAbstract::Result::Code Code() const { return code_; }

 private:
  TarnAbstract::Result::Code code_;
};

// What was asked for is against the rules; nothing has been changed.
class Refused : public ServiceError {
 public:
  using ServiceError::ServiceError;
};

// What is stored is not what these services have stored: overwritten, cut off, or gone.
class Damaged : public ServiceError {
 public:
  using ServiceError::ServiceError;
};

// Runs work for the named operation and turns its end into a result code. No exception passes.
TarnAbstract::Result::Code Answer(const char* operation, const std::function<void()>& work) noexcept;

// A text of unknown origin, fit for a line of a log: control characters escaped, shortened when long.
std::string Excerpt(const std::string& text);

}  // namespace Velm

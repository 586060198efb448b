#include "address_rules/internal_networks.h"

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

namespace AddressRules {
namespace {

// A file that is read line by line, the last one without a line end, too.
class Lines {
 public:
  explicit Lines(const char* path) : file_(fopen(path, "re")) {}
  ~Lines() {
    free(line_);
    if (file_ != nullptr) fclose(file_);
  }
  Lines(const Lines&) = delete;
  Lines& operator=(const Lines&) = delete;

  // The line without its end.
  bool Next(Text& line) {
    if (file_ == nullptr) return false;
    const ssize_t length = getline(&line_, &room_, file_);
    if (length < 0) return false;
    line = {line_, static_cast<size_t>(length)};
    DropLast(line, '\n');
    DropLast(line, '\r');
    return true;
  }
  // Whether all that there is has been read.
  bool Complete() const { return file_ != nullptr && feof(file_) != 0 && ferror(file_) == 0; }

 private:
  static void DropLast(Text& line, char character) {
    if (line.length > 0 && line.start[line.length - 1] == character) --line.length;
  }

  FILE* file_;
  char* line_ = nullptr;
  size_t room_ = 0;
};

bool SaysNothing(Text line) {
  if (line.length > 0 && *line.start == '#') return true;
  for (size_t position = 0; position < line.length; ++position) {
    if (line.start[position] != ' ' && line.start[position] != '\t') return false;
  }
  return true;
}

}  // namespace

InternalNetwork FindInternalNetwork(const char* list, const Address& address) {
  InternalNetwork found = {InternalNetwork::None, ""};
  const Shown path = Show(WholeText(list));
  const auto unknown = [&](const char* reason) {
    found.answer = InternalNetwork::Unknown;
    snprintf(found.text, sizeof(found.text), "the list of internal networks, %s, %s", path.text, reason);
    return found;
  };
  bool empty = true;
  Lines lines(list);
  for (Text line = {}; lines.Next(line);) {
    if (SaysNothing(line)) continue;
    const Shown shown = Show(line);
    Network network = {};
    if (!ParseNetwork(line, network)) {
      found.answer = InternalNetwork::Unknown;
      snprintf(found.text, sizeof(found.text), "%s: '%s' is no network in CIDR notation", path.text,
               shown.text);
      return found;
    }
    empty = false;
    if (found.answer == InternalNetwork::None && SamePrefix(network.prefixLength, network.address, address)) {
      found.answer = InternalNetwork::Found;
      memcpy(found.text, shown.text, sizeof(shown.text));
    }
  }
  if (!lines.Complete()) return unknown("cannot be read");
  return empty ? unknown("names no network") : found;
}

}  // namespace AddressRules

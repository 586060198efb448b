// The one door to root: a request is words, each with a zero behind it. Input: a line for each word, with its
// end; so that the corpus can be read.
#include <cerrno>
#include <cstddef>

#include "reference.h"
#include "target.h"

using Words = std::vector<std::string>;

namespace {

// What was done to the machine.
struct Deeds {
  Words run;
  Words environment;
  Words touched;
  Words removed;
} deeds;

}  // namespace

extern "C" int fuzz_request(char* text, std::size_t length);
extern "C" int fuzz_open(const char* path, int /*flags*/, ...) {
  deeds.touched.emplace_back(path);
  errno = EACCES;
  return -1;
}
extern "C" int fuzz_unlink(const char* path) {
  deeds.removed.emplace_back(path);
  return 0;
}
extern "C" int fuzz_execve(const char* path, char* const* words, char* const* environment) {
  deeds.run.emplace_back(path);
  for (; *words != nullptr; ++words) deeds.run.emplace_back(*words);
  for (; *environment != nullptr; ++environment) deeds.environment.emplace_back(*environment);
  errno = ENOEXEC;
  return -1;
}

namespace {

constexpr char Flag[] = "/home/embedded/library/CoreService/dat/ipv6Enabled";

// How many words may follow the script: none or one, or any number for those that judge themselves.
bool isScript(const Words& words) {
  if (words.size() < 2 || (words[0] != "/bin/sh" && words[0] != "sh")) return false;
  const std::size_t more = words.size() - 2;
  const std::string folder = "/home/embedded/library/AppManager/bin/";
  for (const char* name : {"ipv4Manager.sh", "ipv6Manager.sh"}) {
    if (words[1] == folder + name) return true;
  }
  for (const char* name : {"probeAddress.sh", "pingAddress.sh", "lookUpName.sh"}) {
    if (words[1] == folder + name) return more == 1;
  }
  return more == 0 && (words[1] == folder + "applyWebMode.sh" || words[1] == folder + "restartSNMP.sh" ||
                       words[1] == "/home/embedded/library/testTrapRegistration.sh");
}

}  // namespace

void tryInput(std::string_view input) {
  std::vector<char> text(input.begin(), input.end());
  std::replace(text.begin(), text.end(), '\n', '\0');
  Words words = reference::split({text.data(), text.size()}, '\0');
  const bool isRequest = !text.empty() && text.back() == '\0' && words.size() <= 1025;
  if (isRequest) words.pop_back();  // behind the last zero
  deeds = {};
  const int status = fuzz_request(text.data(), text.size());
  if (faultIsPlanted() && words.size() == 4 && !deeds.run.empty()) deeds.run.pop_back();

  const bool runs = isRequest && isScript(words);
  Words expected = {"/bin/sh"};
  expected.insert(expected.end(), words.begin(), words.end());
  require(deeds.run == (runs ? expected : Words()),
          "a script of the device is run with its words, and nothing else");
  require(!runs || deeds.environment == Words{"PATH=/usr/sbin:/usr/bin:/sbin:/bin", "BEHIND_THE_DOOR=yes"},
          "a script gets nothing of whoever asks");
  const bool touches = isRequest && words == Words{"/bin/touch", Flag};
  const bool removes = isRequest && words == Words{"/bin/rm", Flag};
  require(deeds.touched == (touches ? Words{Flag} : Words()), "only the flag is made");
  require(deeds.removed == (removes ? Words{Flag} : Words()), "only the flag is removed");
  require(status == (!isRequest ? 2 : touches ? 1 : removes ? 0 : 126), "the status says what became of it");
}

#include "places.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <string>

#include "command_lines.h"
#include "findings.h"
#include "trace_log.h"

namespace {

// The words of a command line of the module, which have no quotes where the files are named.
std::string word(const std::string& line, unsigned int index) {
  std::size_t start = 0;
  for (; index > 0; --index) start = line.find(' ', start) + 1;
  return line.substr(start, line.find(' ', start) - start);
}

std::string folderOf(const std::string& path) { return path.substr(0, path.rfind('/')); }

// "mode 0644 of user 0, group 0", as the end of a sentence; empty when there is no such file.
std::string rightsOf(const std::string& path) {
  struct stat status = {};
  if (stat(path.c_str(), &status) != 0) return "";
  char mode[16];
  std::snprintf(mode, sizeof(mode), "%04o", static_cast<unsigned int>(status.st_mode & 07777U));
  return std::string("mode ") + mode + " of user " + number(status.st_uid) + ", group " +
         number(status.st_gid);
}

std::string me() { return "user " + number(geteuid()); }

enum class Kind { File, Folder };

bool isOfKind(const std::string& path, Kind kind) {
  struct stat status = {};
  return stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode) == (kind == Kind::Folder);
}

// As who runs this: the web service's user is who matters.
void check(const std::string& what, const std::string& path, Kind kind, int access,
           const std::string& forWhat) {
  const std::string rights = rightsOf(path);
  if (rights.empty()) {
    wrong(what + " " + path + " cannot be found: " + std::strerror(errno));
  } else if (eaccess(path.c_str(), access) != 0 || !isOfKind(path, kind)) {
    wrong(what + " " + path + " is no " + (kind == Kind::File ? "file" : "folder") + " that " + me() +
          " may " + forWhat + ": " + rights);
  } else {
    right(what + " " + path + ": " + rights);
  }
}

// Its existence is the setting.
void checkFlagFile(const std::string& path) {
  const std::string rights = rightsOf(path);
  if (!rights.empty()) {
    right("the flag file " + path + " is there: " + rights);
  } else if (!rightsOf(folderOf(path)).empty()) {
    right("the flag file " + path + " is not there, its folder is: " + rightsOf(folderOf(path)));
  } else {
    wrong("the folder of the flag file " + path + " is not there");
  }
}

void checkTraceLog() {
  if (!rightsOf(TraceLogFile).empty()) {
    check("the trace", TraceLogFile, Kind::File, W_OK, "write");
  } else {
    check("there is no trace yet; its folder", folderOf(TraceLogFile), Kind::Folder, W_OK | X_OK,
          "write into");
  }
}

}  // namespace

void checkPlaces() {
  checkTraceLog();
  checkFlagFile(FlagFile::Ipv6Enabled);
  checkFlagFile(FlagFile::Ipv6Dhcp);
  check("the command wrapper", word(CommandLine::ReadHostName, 0), Kind::File, X_OK, "run");
  check("the script", word(CommandLine::ReadHostName, 3), Kind::File, R_OK, "read");
  check("the script", word(CommandLine::ReadStateless, 3), Kind::File, R_OK, "read");
  check("the script", word(CommandLine::TestTrapRegistrations, 3), Kind::File, R_OK, "read");
}

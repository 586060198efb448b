// Management services on a database in a folder of the test's own.
#pragma once

#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

#include "libtarn/string_access.h"
#include "libvelm/app_config.h"
#include "libvelm/places.h"
#include "libvelm/store.h"
#include "platform/MemoryMgmt.h"

namespace velm_test {

using Config = TarnAbstract::sp<Velm::IMgmtAppConfig>;
using Versions = TarnAbstract::List<Velm::eSNMPVersion, 4>;
using Registrations = TarnAbstract::List<Velm::TrapRegistration, 4>;

inline TarnAbstract::sp<TarnAbstract::IHeap> Heap() {
  return TarnAbstract::TarnMemoryMgmt::getSystemTransientObjHeap();
}

inline void Append(Versions& list, const std::vector<unsigned int>& numbers) {
  for (const unsigned int number : numbers) list.Append(static_cast<Velm::eSNMPVersion>(number));
}

inline Velm::TrapRegistration Receiver(const char* address, unsigned int port = 162,
                                       unsigned int transport = 1) {
  Velm::TrapRegistration registration;
  registration.setIPAddress(TarnAbstract::String(address));
  registration.setPort(port);
  registration.setTransport(static_cast<Velm::eTransportType>(transport));
  return registration;
}

// The process ends with status 0 when work holds no failed expectation.
inline pid_t InChild(const std::function<void()>& work) {
  const pid_t child = fork();
  if (child != 0) return child;
  work();
  _exit(testing::Test::HasFailure() ? 1 : 0);
}

inline int StatusOf(pid_t child) {
  int status = -1;
  EXPECT_EQ(child, waitpid(child, &status, 0));
  return status;
}

// What the database at path answers, through a connection of its own: columns joined by "|", a line
// per row.
inline std::string Query(const std::string& path, const std::string& commands) {
  sqlite3* connection = nullptr;
  EXPECT_EQ(SQLITE_OK, sqlite3_open(path.c_str(), &connection));
  sqlite3_busy_timeout(connection, 10000);
  std::string answer;
  const auto addRow = [](void* text, int count, char** values, char**) {
    for (int i = 0; i < count; ++i) {
      *static_cast<std::string*>(text) +=
          std::string(i > 0 ? "|" : "") + (values[i] != nullptr ? values[i] : "");
    }
    *static_cast<std::string*>(text) += '\n';
    return 0;
  };
  char* error = nullptr;
  sqlite3_exec(connection, commands.c_str(), addRow, &answer, &error);
  EXPECT_EQ(nullptr, error) << commands << ": " << error;
  sqlite3_free(error);
  sqlite3_close(connection);
  return answer;
}

class Services : public testing::Test {
 protected:
  Services() {
    char name[] = "/tmp/velm_test.XXXXXX";
    folder = mkdtemp(name);
    places.database = folder + "/management.db";
    places.internalNetworks = folder + "/internal_networks";
    places.applyWebMode = folder + "/applyWebMode.sh";
    places.restartSNMP = folder + "/restartSNMP.sh";
  }
  ~Services() override { std::filesystem::remove_all(folder); }

  Config Open(Velm::Store& store, const char* user = "operator") const {
    return Config(new Velm::AppConfig(store, places, user));
  }
  std::string Ask(const std::string& commands) const { return Query(places.database, commands); }
  // Operation, values and result of every row.
  std::string Audit() const {
    return Ask(R"(SELECT operation, "values", result FROM audit ORDER BY number)");
  }
  void WriteScript(const std::string& path, const std::string& lines) const {
    std::ofstream(path) << "#!/bin/sh\n" << lines << "\n";
    std::filesystem::permissions(path, std::filesystem::perms::owner_all);
  }
  std::string Contents(const std::string& path) const {
    std::ifstream file(path);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  }

  std::string folder;
  Velm::Places places;
};

// With one store and one object on it.
class AppConfigTest : public Services {
 protected:
  std::string Community() const {
    TarnAbstract::String community;
    EXPECT_EQ(TarnAbstract::Result::Succeeded, config->getReadCommunity(community));
    return TarnAbstract::StringAccess::Text(community);
  }
  TarnAbstract::Result::Code SetCommunity(const std::string& text) const {
    TarnAbstract::String community(text.c_str());
    return config->setReadCommunity(community);
  }
  // What work says on standard error.
  std::string Said(const std::function<void()>& work) const {
    testing::internal::CaptureStderr();
    work();
    return testing::internal::GetCapturedStderr();
  }

  Velm::Store store{places.database, std::chrono::milliseconds(200)};
  Config config = Open(store);
};

}  // namespace velm_test

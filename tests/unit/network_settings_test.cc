// The object of all settings where a management service fails after it has filled in its answer. The
// development services never do that: services, scripts and script objects are doubles here.
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "libdovan_util/commands_at_once.h"
#include "libdovan_util/property_values.h"
#include "utility/Runtime.h"
#include "utility/StorageLibraryProxy.h"
#include "utility/checkResultCode.h"
#include "utility/getNetworkSettings.h"
#include "utility/page_properties.h"

using TarnAbstract::GUID;
using TarnAbstract::List;
using TarnAbstract::Result;
using TarnAbstract::sp;
using TarnAbstract::String;
using Velm::eSNMPVersion;
using Velm::IMgmtAppConfig;
using Velm::TrapRegistration;

namespace {

// Fills what it is given and answers what the test says.
class Config : public IMgmtAppConfig {
 public:
  void TakeReference() override {}
  void DropReference() override {}
  Result::Code getSNMPVersions(List<eSNMPVersion, 4>& versions) override {
    versions.Append(Velm::SNMP_VERSION_1);
    return answer;
  }
  Result::Code getSSLEnabled(std::uint32_t& enabled) override {
    enabled = 1;
    return answer;
  }

  Result::Code setSNMPVersions(const List<eSNMPVersion, 4>&) override { return Unexpected(); }
  Result::Code setSSLEnabled(bool) override { return Unexpected(); }
  Result::Code createTrapRegistration(TrapRegistration&) override { return Unexpected(); }
  Result::Code deleteTrapRegistration(GUID&) override { return Unexpected(); }
  Result::Code getTrapRegistrations(List<TrapRegistration, 4>&) override { return Unexpected(); }
  Result::Code restartSNMP() override { return Unexpected(); }
  Result::Code setReadCommunity(String&) override { return Unexpected(); }
  Result::Code getReadCommunity(String&) override { return Unexpected(); }
  Result::Code setAuthTrapsEnabled(bool) override { return Unexpected(); }
  Result::Code getAuthTrapsEnabled(bool&) override { return Unexpected(); }

  Result::Code answer = Result::Succeeded;

 private:
  static Result::Code Unexpected() {
    ADD_FAILURE() << "an operation that the settings do not need";
    return Result::Failed;
  }
};

Config config;
bool serviceIsThere = true;
std::map<std::string, bool> flags;
std::map<std::string, unsigned int> reports;

class NetworkSettings : public testing::Test {
 protected:
  NetworkSettings() {
    config.answer = Result::Succeeded;
    serviceIsThere = true;
    flags.clear();
    reports.clear();
  }

  static void expectServices(bool on) {
    ASSERT_EQ(1U, flags.count("snmpEnabled"));
    ASSERT_EQ(1U, flags.count("sslEnabled"));
    EXPECT_EQ(on, flags["snmpEnabled"]);
    EXPECT_EQ(on, flags["sslEnabled"]);
  }
  static void expectReports(unsigned int code) {
    EXPECT_EQ(code, reports["Could not get SNMP versions"]);
    EXPECT_EQ(code, reports["Could not get SSL settings"]);
  }
};

}  // namespace

// Every device script answers with nothing.
Runtime* Runtime::getInstance() {
  static Runtime instance;
  return &instance;
}
bool Runtime::execute(std::string, std::string& output, int& waitStatus) {
  output.clear();
  waitStatus = 0;
  return true;
}

std::vector<CommandAnswer> runAtOnce(const std::vector<std::string>& commands) {
  return std::vector<CommandAnswer>(commands.size(), CommandAnswer{true, ""});
}

StorageLibraryProxy* StorageLibraryProxy::getInstance() {
  static StorageLibraryProxy instance;
  return &instance;
}
sp<IMgmtAppConfig> StorageLibraryProxy::getAppMgmtConfigInterface() {
  return sp<IMgmtAppConfig>(serviceIsThere ? &config : nullptr);
}

void checkResultCode(unsigned int code, char* message, char*, int) {
  if (Result::IsSucceeded(code)) return;
  EXPECT_EQ(0U, reports.count(message)) << message << ": reported again";
  reports[message] = code;
}

void addFlag(zval*, const char* name, bool flag) { flags[name] = flag; }
void addNumber(zval*, const char*, int) {}
void addTexts(zval*, const char*, const std::vector<std::string>&) {}
void add_property_string_q(zval*, const char*, const char*, int) {}

TEST_F(NetworkSettings, OfServicesThatAnswerAreWhatTheyFilledIn) {
  getNetworkSettings(nullptr);
  expectServices(true);
  EXPECT_EQ(0U, reports.count("Could not get SNMP versions"));
  EXPECT_EQ(0U, reports.count("Could not get SSL settings"));
}

TEST_F(NetworkSettings, OfServicesThatFailAfterFillingInAreReportedAndOff) {
  config.answer = Result::MemoryAllocationFailure;
  getNetworkSettings(nullptr);
  expectServices(false);
  expectReports(Result::MemoryAllocationFailure);
}

TEST_F(NetworkSettings, OfServicesThatAreNotThereAreReportedAndOff) {
  serviceIsThere = false;
  getNetworkSettings(nullptr);
  expectServices(false);
  expectReports(Result::Failed);
}

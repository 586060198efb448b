#include <csignal>
#include <cstdio>
#include <regex>

#include "velm_fixture.h"

using TarnAbstract::GUID;
using TarnAbstract::Result;
using TarnAbstract::String;
using TarnAbstract::StringAccess;
using Velm::TrapRegistration;
using velm_test::AppConfigTest;
using velm_test::Heap;
using velm_test::InChild;
using velm_test::Receiver;
using velm_test::Registrations;
using velm_test::StatusOf;
using velm_test::Versions;

namespace {

std::vector<unsigned int> Numbers(const Versions& list) {
  std::vector<unsigned int> numbers;
  for (unsigned int i = 0; i < list.Size(); ++i) {
    Velm::eSNMPVersion version = {};
    EXPECT_EQ(Result::Succeeded, list.Item(i, version));
    numbers.push_back(version);
  }
  return numbers;
}

using Texts = std::vector<std::string>;

Texts Addresses(const Registrations& list) {
  Texts addresses;
  for (unsigned int i = 0; i < list.Size(); ++i) {
    TrapRegistration registration;
    EXPECT_EQ(Result::Succeeded, list.Item(i, registration));
    addresses.emplace_back(StringAccess::Text(registration.getIPAddress()));
  }
  return addresses;
}

}  // namespace

TEST_F(AppConfigTest, AFreshDatabaseHoldsTheDefaults) {
  std::uint32_t ssl = 7;
  EXPECT_EQ(Result::Succeeded, config->getSSLEnabled(ssl));
  EXPECT_EQ(0U, ssl);
  bool authTraps = true;
  EXPECT_EQ(Result::Succeeded, config->getAuthTrapsEnabled(authTraps));
  EXPECT_FALSE(authTraps);
  Versions versions(Heap());
  EXPECT_EQ(Result::Succeeded, config->getSNMPVersions(versions));
  EXPECT_EQ((std::vector<unsigned int>{1, 2, 3, 4}), Numbers(versions));
  EXPECT_EQ("public", Community());
  Registrations registrations(Heap());
  EXPECT_EQ(Result::Succeeded, config->getTrapRegistrations(registrations));
  EXPECT_EQ(0U, registrations.Size());
  EXPECT_EQ("", Audit());
}

TEST_F(AppConfigTest, FlagsAreKept) {
  std::uint32_t ssl = 7;
  EXPECT_EQ(Result::Succeeded, config->setSSLEnabled(true));
  EXPECT_EQ(Result::Succeeded, config->getSSLEnabled(ssl));
  EXPECT_EQ(1U, ssl);
  EXPECT_EQ(Result::Succeeded, config->setSSLEnabled(false));
  EXPECT_EQ(Result::Succeeded, config->getSSLEnabled(ssl));
  EXPECT_EQ(0U, ssl);
  bool authTraps = false;
  EXPECT_EQ(Result::Succeeded, config->setAuthTrapsEnabled(true));
  EXPECT_EQ(Result::Succeeded, config->getAuthTrapsEnabled(authTraps));
  EXPECT_TRUE(authTraps);
  EXPECT_EQ(
      "setSSLEnabled|enabled|stored\nsetSSLEnabled|disabled|stored\nsetAuthTrapsEnabled|enabled|stored\n",
      Audit());
}

TEST_F(AppConfigTest, EverythingIsThereForALaterStoreOnTheSameFile) {
  Versions versions(Heap());
  velm_test::Append(versions, {3, 5});
  TrapRegistration registration = Receiver("10.20.0.9");
  config->setSNMPVersions(versions);
  config->setSSLEnabled(true);
  config->setAuthTrapsEnabled(true);
  SetCommunity("later");
  config->createTrapRegistration(registration);

  Velm::Store laterStore(places.database);
  config = Open(laterStore);
  Versions laterVersions(Heap());
  config->getSNMPVersions(laterVersions);
  EXPECT_EQ((std::vector<unsigned int>{3, 5}), Numbers(laterVersions));
  std::uint32_t ssl = 0;
  config->getSSLEnabled(ssl);
  EXPECT_EQ(1U, ssl);
  bool authTraps = false;
  config->getAuthTrapsEnabled(authTraps);
  EXPECT_TRUE(authTraps);
  EXPECT_EQ("later", Community());
  Registrations registrations(Heap());
  config->getTrapRegistrations(registrations);
  EXPECT_EQ(Texts{"10.20.0.9"}, Addresses(registrations));
}

TEST_F(AppConfigTest, AuditRowsNameUserAndTime) {
  const velm_test::Config others = Open(store, "J\xc3\xb6rg\n\x7f");
  others->setAuthTrapsEnabled(true);
  EXPECT_EQ("J\xc3\xb6rg\\x0a\\x7f\n", Ask("SELECT user FROM audit"));
  EXPECT_EQ("1\n", Ask("SELECT abs(julianday('now') - julianday(time)) * 86400 < 60 FROM audit"));
  const std::string time = Ask("SELECT time FROM audit");
  EXPECT_TRUE(std::regex_match(time, std::regex("\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\d\\.\\d{3}Z\n")))
      << time;
}

TEST_F(AppConfigTest, SNMPVersionsAreReplacedAsAWhole) {
  Versions three(Heap());
  velm_test::Append(three, {3});
  EXPECT_EQ(Result::Succeeded, config->setSNMPVersions(three));
  Versions all(Heap());
  velm_test::Append(all, {3, 1, 2, 4, 5});
  EXPECT_EQ(Result::Succeeded, config->setSNMPVersions(all));
  Versions stored(Heap());
  config->getSNMPVersions(stored);
  EXPECT_EQ((std::vector<unsigned int>{1, 2, 3, 4, 5}), Numbers(stored));
  EXPECT_EQ(Result::Succeeded, config->setSNMPVersions(three));
  Versions remaining(Heap());
  config->getSNMPVersions(remaining);
  EXPECT_EQ(std::vector<unsigned int>{3}, Numbers(remaining));
  EXPECT_EQ("setSNMPVersions|3|stored\nsetSNMPVersions|3 1 2 4 5|stored\nsetSNMPVersions|3|stored\n",
            Audit());
}

TEST_F(AppConfigTest, SNMPVersionsAreASet) {
  Versions repeated(Heap());
  velm_test::Append(repeated, {3, 1, 3});
  EXPECT_EQ(Result::Succeeded, config->setSNMPVersions(repeated));
  Versions none(Heap());
  Versions stored(Heap());
  config->getSNMPVersions(stored);
  EXPECT_EQ((std::vector<unsigned int>{1, 3}), Numbers(stored));
  EXPECT_EQ(Result::Succeeded, config->setSNMPVersions(none));
  Versions nothing(Heap());
  config->getSNMPVersions(nothing);
  EXPECT_EQ(0U, nothing.Size());
}

TEST_F(AppConfigTest, AnUnknownSNMPVersionRefusesTheWholeSet) {
  for (const unsigned int wrong : {0U, 6U, 4294967295U}) {
    Versions versions(Heap());
    velm_test::Append(versions, {5, wrong});
    const std::string said = Said([&] { EXPECT_EQ(Result::Failed, config->setSNMPVersions(versions)); });
    const std::string reason = "SNMP version number " + std::to_string(wrong) + " is not one of 1 to 5";
    EXPECT_EQ("setSNMPVersions: " + reason + "\n", said);
    EXPECT_EQ("5 " + std::to_string(wrong) + "|refused: " + reason + "\n",
              Ask(R"(SELECT "values", result FROM audit ORDER BY number DESC LIMIT 1)"));
  }
  Versions stored(Heap());
  config->getSNMPVersions(stored);
  EXPECT_EQ((std::vector<unsigned int>{1, 2, 3, 4}), Numbers(stored));
}

TEST_F(AppConfigTest, ReadingAppendsToTheCallersList) {
  Versions versions(Heap());
  velm_test::Append(versions, {5});
  EXPECT_EQ(Result::Succeeded, config->getSNMPVersions(versions));
  EXPECT_EQ((std::vector<unsigned int>{5, 1, 2, 3, 4}), Numbers(versions));
}

TEST_F(AppConfigTest, AListThatCannotGrowFailsTheReading) {
  for (unsigned int port = 1; port <= 5; ++port) {
    TrapRegistration registration = Receiver("10.20.0.9", port);
    EXPECT_EQ(Result::Succeeded, config->createTrapRegistration(registration));
  }
  Registrations withoutHeap((TarnAbstract::sp<TarnAbstract::IHeap>()));
  const std::string said =
      Said([&] { EXPECT_EQ(Result::CapacityOverflow, config->getTrapRegistrations(withoutHeap)); });
  EXPECT_EQ("getTrapRegistrations: the caller's list takes no further element\n", said);
  EXPECT_EQ(4U, withoutHeap.Size());
}

TEST_F(AppConfigTest, ACommunityOfAnyAllowedCharacterAndLengthIsKept) {
  std::string every;
  for (char character = '!'; character <= '~'; ++character) {
    if (character != '"' && character != '\'') every += character;
  }
  for (std::size_t start = 0; start < every.size(); start += 32) {
    const std::string community = every.substr(start, 32);
    EXPECT_EQ(Result::Succeeded, SetCommunity(community));
    EXPECT_EQ(community, Community());
  }
  EXPECT_EQ(Result::Succeeded, SetCommunity("x"));
  EXPECT_EQ("x", Community());
  EXPECT_EQ("x|stored\n", Ask(R"(SELECT "values", result FROM audit ORDER BY number DESC LIMIT 1)"));
}

TEST_F(AppConfigTest, AWrongCommunityIsRefused) {
  const struct {
    const char* community;
    const char* reason;
  } wrong[] = {
      {"", "community '' has 0 characters; allowed are 1 to 32"},
      {"abcdefghijklmnopqrstuvwxyz0123456",
       "community 'abcdefghijklmnopqrstuvwxyz0123456' has 33 "
       "characters; allowed are 1 to 32"},
      {"a b", "community 'a b' holds ' '; allowed are printable ASCII characters except blanks and quotes"},
      {"a\"b",
       "community 'a\"b' holds '\"'; allowed are printable ASCII characters except blanks and quotes"},
      {"a'b", "community 'a'b' holds '''; allowed are printable ASCII characters except blanks and quotes"},
      {"a\nb",
       "community 'a\\x0ab' holds '\\x0a'; allowed are printable ASCII characters except blanks and "
       "quotes"},
      {"a\x7f",
       "community 'a\\x7f' holds '\\x7f'; allowed are printable ASCII characters except blanks and "
       "quotes"},
      {"\xc3\xbc",
       "community '\xc3\xbc' holds '\xc3'; allowed are printable ASCII characters except blanks "
       "and quotes"},
  };
  std::string rows;
  for (const auto& refused : wrong) {
    const std::string said = Said([&] { EXPECT_EQ(Result::Failed, SetCommunity(refused.community)); });
    EXPECT_EQ(std::string("setReadCommunity: ") + refused.reason + "\n", said);
    rows += std::string("refused: ") + refused.reason + "\n";
  }
  EXPECT_EQ("public", Community());
  EXPECT_EQ(rows, Ask("SELECT result FROM audit ORDER BY number"));
}

TEST_F(AppConfigTest, AHugeWrongValueLeavesAShortSentenceAndRow) {
  const std::string said = Said([&] { EXPECT_EQ(Result::Failed, SetCommunity(std::string(1 << 20, 'x'))); });
  const std::string shown = std::string(128, 'x') + "... (1048576 bytes)";
  EXPECT_EQ("setReadCommunity: community '" + shown + "' has 1048576 characters; allowed are 1 to 32\n",
            said);
  EXPECT_EQ(shown + "\n", Ask(R"(SELECT "values" FROM audit)"));
}

TEST_F(AppConfigTest, ALongUserNameIsShortenedBetweenCharacters) {
  Open(store, (std::string(127, 'x') + "\xc3\xb6rg").c_str())->setAuthTrapsEnabled(true);
  EXPECT_EQ(std::string(127, 'x') + "... (131 bytes)\n", Ask("SELECT user FROM audit"));
}

TEST_F(AppConfigTest, ATrapRegistrationIsKeptWithAnIdentifierOfItsOwn) {
  TrapRegistration registration = Receiver("2001:db8:20::9", 65535, 2);
  EXPECT_EQ(Result::Succeeded, config->createTrapRegistration(registration));
  EXPECT_FALSE(GUID() == registration.getTrapID());
  Registrations stored(Heap());
  EXPECT_EQ(Result::Succeeded, config->getTrapRegistrations(stored));
  ASSERT_EQ(1U, stored.Size());
  TrapRegistration read;
  stored.Item(0, read);
  EXPECT_STREQ("2001:db8:20::9", StringAccess::Text(read.getIPAddress()));
  EXPECT_EQ(65535U, read.getPort());
  EXPECT_EQ(2U, read.getTransport());
  EXPECT_TRUE(registration.getTrapID() == read.getTrapID());
  EXPECT_EQ("createTrapRegistration|transport 2, address 2001:db8:20::9, port 65535, id " +
                Ask("SELECT identifier || '|stored' FROM trap_registrations"),
            Audit());
}

TEST_F(AppConfigTest, TrapRegistrationsComeInTheOrderOfTheirCreation) {
  GUID second;
  for (const char* address : {"10.20.0.9", "10.20.0.8", "::1", "10.20.0.7", "10.20.0.6", "10.20.0.5"}) {
    TrapRegistration registration = Receiver(address);
    ASSERT_EQ(Result::Succeeded, config->createTrapRegistration(registration));
    if (std::string(address) == "10.20.0.8") second = registration.getTrapID();
  }
  Registrations six(Heap());
  config->getTrapRegistrations(six);
  EXPECT_EQ((Texts{"10.20.0.9", "10.20.0.8", "::1", "10.20.0.7", "10.20.0.6", "10.20.0.5"}), Addresses(six));
  EXPECT_EQ(Result::Succeeded, config->deleteTrapRegistration(second));
  TrapRegistration last = Receiver("10.20.0.4");
  config->createTrapRegistration(last);
  Registrations others(Heap());
  config->getTrapRegistrations(others);
  EXPECT_EQ((Texts{"10.20.0.9", "::1", "10.20.0.7", "10.20.0.6", "10.20.0.5", "10.20.0.4"}),
            Addresses(others));
}

TEST_F(AppConfigTest, AWrongTrapReceiverIsRefused) {
  struct {
    TrapRegistration registration;
    const char* reason;
  } wrong[] = {
      {Receiver(""), "trap receiver '' is no IPv4 or IPv6 address"},
      {Receiver("lan.test"), "trap receiver 'lan.test' is no IPv4 or IPv6 address"},
      {Receiver("10.20.0.256"), "trap receiver '10.20.0.256' is no IPv4 or IPv6 address"},
      {Receiver("10.20.0.9 "), "trap receiver '10.20.0.9 ' is no IPv4 or IPv6 address"},
      {Receiver("fe80::1%eth0"), "trap receiver 'fe80::1%eth0' is no IPv4 or IPv6 address"},
      {Receiver("10.20.0.9", 0), "port 0 is not one of 1 to 65535"},
      {Receiver("10.20.0.9", 65536), "port 65536 is not one of 1 to 65535"},
      {Receiver("10.20.0.9", 4294967295U), "port 4294967295 is not one of 1 to 65535"},
      {Receiver("10.20.0.9", 162, 0), "transport 0 is neither 1 (UDP) nor 2 (TCP)"},
      {Receiver("10.20.0.9", 162, 3), "transport 3 is neither 1 (UDP) nor 2 (TCP)"},
  };
  std::string rows;
  for (auto& refused : wrong) {
    const std::string said =
        Said([&] { EXPECT_EQ(Result::Failed, config->createTrapRegistration(refused.registration)); });
    EXPECT_EQ(std::string("createTrapRegistration: ") + refused.reason + "\n", said);
    EXPECT_TRUE(GUID() == refused.registration.getTrapID());
    rows += std::string("refused: ") + refused.reason + "\n";
  }
  EXPECT_EQ("0\n", Ask("SELECT count(*) FROM trap_registrations"));
  EXPECT_EQ(rows, Ask("SELECT result FROM audit ORDER BY number"));
}

TEST_F(AppConfigTest, TwentyTrapRegistrationsAreTheMost) {
  TrapRegistration registration;
  for (unsigned int port = 1; port <= 20; ++port) {
    registration = Receiver("10.20.0.9", port);
    ASSERT_EQ(Result::Succeeded, config->createTrapRegistration(registration)) << port;
  }
  TrapRegistration further = Receiver("10.20.0.21");
  const std::string said =
      Said([&] { EXPECT_EQ(Result::CapacityOverflow, config->createTrapRegistration(further)); });
  EXPECT_EQ(
      "createTrapRegistration: there are 20 trap registrations already, which is the most; delete one "
      "first\n",
      said);
  EXPECT_EQ("20\n", Ask("SELECT count(*) FROM trap_registrations"));
  EXPECT_EQ("20\n", Ask("SELECT count(DISTINCT identifier) FROM trap_registrations"));
  EXPECT_EQ("transport 1, address 10.20.0.21, port 162|refused\n",
            Ask(R"(SELECT "values", substr(result, 1, 7) FROM audit ORDER BY number DESC LIMIT 1)"));
  GUID identifier = registration.getTrapID();
  EXPECT_EQ(Result::Succeeded, config->deleteTrapRegistration(identifier));
  EXPECT_EQ(Result::Succeeded, config->createTrapRegistration(further));
}

TEST_F(AppConfigTest, AStoredIdentifierThatIsNoneIsNotReadAsAnother) {
  TrapRegistration registration = Receiver("10.20.0.9");
  ASSERT_EQ(Result::Succeeded, config->createTrapRegistration(registration));
  for (const char* stored : {"", "1-2-3", "00000001-00000002-0000", "00000001-00000002-00000003x",
                             "000000001-00000002-00000003", "0000000A-00000002-00000003"}) {
    Ask(std::string("UPDATE trap_registrations SET identifier = '") + stored + "'");
    Registrations registrations(Heap());
    EXPECT_EQ(std::string("getTrapRegistrations: stored identifier '") + stored + "' is no identifier\n",
              Said([&] { EXPECT_EQ(Result::Failed, config->getTrapRegistrations(registrations)); }));
    EXPECT_EQ(0U, registrations.Size());
  }
}

TEST_F(AppConfigTest, AReceiverThatIsThereAlreadyIsRefusedInAnyNotation) {
  for (TrapRegistration registration : {Receiver("10.20.0.9"), Receiver("2001:db8::9", 162, 2)}) {
    ASSERT_EQ(Result::Succeeded, config->createTrapRegistration(registration));
  }
  for (TrapRegistration again :
       {Receiver("10.20.0.9"), Receiver("::ffff:10.20.0.9"), Receiver("2001:DB8:0:0::9", 162, 2)}) {
    const std::string said = Said([&] { EXPECT_EQ(Result::Failed, config->createTrapRegistration(again)); });
    EXPECT_EQ(0U, said.find("createTrapRegistration: there is one already: trap registration ")) << said;
    EXPECT_TRUE(GUID() == again.getTrapID());
  }
  EXPECT_EQ("3\n", Ask("SELECT count(*) FROM audit WHERE result LIKE 'refused: there is one already: %'"));
  for (TrapRegistration other : {Receiver("10.20.0.9", 163), Receiver("10.20.0.9", 162, 2),
                                 Receiver("10.20.0.8"), Receiver("2001:db8::9")}) {
    EXPECT_EQ(Result::Succeeded, config->createTrapRegistration(other));
  }
  EXPECT_EQ("6\n", Ask("SELECT count(*) FROM trap_registrations"));
}

TEST_F(AppConfigTest, TheAuditKeepsItsNewestTenThousandRows) {
  ASSERT_EQ(Result::Succeeded, SetCommunity("first"));
  Ask(R"(WITH RECURSIVE numbers(number) AS (SELECT 2 UNION ALL SELECT number + 1 FROM numbers WHERE number < 9999)
         INSERT INTO audit (user, operation, "values", result) SELECT '', 'filler', number, 'stored' FROM numbers)");
  ASSERT_EQ(Result::Succeeded, SetCommunity("10000th"));
  EXPECT_EQ("10000|1|10000\n", Ask("SELECT count(*), min(number), max(number) FROM audit"));
  Said([&] { EXPECT_EQ(Result::Failed, SetCommunity("")); });
  EXPECT_EQ("10000|2|10001\n", Ask("SELECT count(*), min(number), max(number) FROM audit"));
  EXPECT_EQ("refused\n", Ask("SELECT substr(result, 1, 7) FROM audit WHERE number = 10001"));
}

TEST_F(AppConfigTest, WithoutTheRowOfTheSettingsNothingIsSaidToBeStored) {
  ASSERT_EQ(Result::Succeeded, SetCommunity("before"));
  Ask("DELETE FROM settings");
  const std::string said = Said([&] {
    EXPECT_EQ(Result::Failed, SetCommunity("after"));
    EXPECT_EQ(Result::Failed, config->setAuthTrapsEnabled(true));
    EXPECT_EQ(Result::Failed, config->setSSLEnabled(true));
  });
  const std::string reason = ": the settings are missing in the database\n";
  EXPECT_EQ("setReadCommunity" + reason + "setAuthTrapsEnabled" + reason + "setSSLEnabled" + reason, said);
  EXPECT_EQ("setReadCommunity|before|stored\n", Audit());
}

TEST_F(AppConfigTest, DeletingAnUnknownIdentifierIsRefused) {
  TrapRegistration registration = Receiver("10.20.0.9");
  config->createTrapRegistration(registration);
  GUID zero;
  GUID other(registration.getTrapID().Word(0), registration.getTrapID().Word(1),
             registration.getTrapID().Word(2) ^ 1U);
  for (GUID* unknown : {&zero, &other}) {
    Said([&] { EXPECT_EQ(Result::ElementNotFound, config->deleteTrapRegistration(*unknown)); });
  }
  EXPECT_EQ("1\n", Ask("SELECT count(*) FROM trap_registrations"));
  EXPECT_EQ(
      "id 00000000-00000000-00000000|refused: there is no trap registration 00000000-00000000-00000000\n",
      Ask(R"(SELECT "values", result FROM audit WHERE number = 2)"));
  GUID known = registration.getTrapID();
  EXPECT_EQ(Result::Succeeded, config->deleteTrapRegistration(known));
  EXPECT_EQ(Result::ElementNotFound, [&] {
    Result::Code code = 0;
    Said([&] { code = config->deleteTrapRegistration(known); });
    return code;
  }());
}

TEST_F(AppConfigTest, TextsFromTheServiceOutliveIt) {
  SetCommunity("own-text");
  String community;
  config->getReadCommunity(community);
  SetCommunity("another");
  config.ReleaseReference();
  EXPECT_STREQ("own-text", StringAccess::Text(community));
}

TEST_F(AppConfigTest, TheViewsSayWhatTheAgentIsToDo) {
  Versions versions(Heap());
  velm_test::Append(versions, {3, 5});
  config->setSNMPVersions(versions);
  config->setAuthTrapsEnabled(true);
  SetCommunity("field");
  for (TrapRegistration registration : {Receiver("10.20.0.9"), Receiver("2001:db8:20::9", 1162),
                                        Receiver("10.20.0.8", 162, 2), Receiver("::1", 162, 2)}) {
    ASSERT_EQ(Result::Succeeded, config->createTrapRegistration(registration));
  }
  EXPECT_EQ("0|0|1|0|1|1|field\n",
            Ask("SELECT version1, version2, version3, trap1, trap2, auth_traps_enabled, read_community "
                "FROM snmp_agent"));
  EXPECT_EQ("udp:10.20.0.9:162\nudp6:[2001:db8:20::9]:1162\ntcp:10.20.0.8:162\ntcp6:[::1]:162\n",
            Ask("SELECT receiver FROM trap_sinks"));
}

TEST_F(AppConfigTest, AChangeOfTheModeIsBroughtToTheWebServiceWhenItIsStored) {
  WriteScript(places.applyWebMode,
              "sqlite3 " + places.database + " 'SELECT ssl_enabled FROM settings' >" + folder + "/seen");
  EXPECT_EQ(Result::Succeeded, config->setSSLEnabled(true));
  EXPECT_EQ("1\n", Contents(folder + "/seen"));
}

TEST_F(AppConfigTest, AScriptFindsNothingOfTheCallersEnvironment) {
  ASSERT_EQ(0, setenv("OF_THE_CALLER", "x", 1));
  WriteScript(places.applyWebMode, "echo ${OF_THE_CALLER-none} $PATH >" + folder + "/seen");
  EXPECT_EQ(Result::Succeeded, config->setSSLEnabled(true));
  EXPECT_EQ("none /usr/sbin:/usr/bin:/sbin:/bin\n", Contents(folder + "/seen"));
  unsetenv("OF_THE_CALLER");
}

TEST_F(AppConfigTest, AWebServiceThatDoesNotFollowFailsTheChangeOfTheModeWhichStaysAsItWas) {
  WriteScript(places.applyWebMode, "exit 3");
  const std::string said = Said([&] { EXPECT_EQ(Result::Failed, config->setSSLEnabled(true)); });
  EXPECT_EQ("setSSLEnabled: " + places.applyWebMode + " ended with exit status 3\n", said);
  std::uint32_t ssl = 7;
  config->getSSLEnabled(ssl);
  EXPECT_EQ(0U, ssl);
  EXPECT_EQ(
      "setSSLEnabled|enabled|stored\n"
      "setSSLEnabled|disabled, as before: the web service did not follow|stored\n",
      Audit());
}

TEST_F(AppConfigTest, AChangeOfTheModeThatCannotBeTakenBackFailsWithItsFirstReason) {
  WriteScript(places.applyWebMode, "sqlite3 " + places.database + " 'DELETE FROM settings'; exit 3");
  const std::string said = Said([&] { EXPECT_EQ(Result::Failed, config->setSSLEnabled(true)); });
  EXPECT_EQ("setSSLEnabled: the settings are missing in the database\nsetSSLEnabled: " + places.applyWebMode +
                " ended with exit status 3\n",
            said);
}

// Of two that meet, the second must not take what the first has stored for the mode of before.
TEST_F(AppConfigTest, TwoChangesOfTheModeAtOnceThatBothFailLeaveTheModeThatWas) {
  WriteScript(places.applyWebMode, "echo >>" + folder + "/begun; sleep 0.5; exit 1");
  const auto change = [&](const char* name) {
    return InChild([this, name] {
      Velm::Store own(places.database);
      EXPECT_NE(nullptr, std::freopen("/dev/null", "w", stderr));
      EXPECT_EQ(Result::Failed, Open(own, name)->setSSLEnabled(true));
    });
  };
  const pid_t first = change("first");
  while (Contents(folder + "/begun").empty()) usleep(1000);
  const pid_t second = change("second");
  EXPECT_EQ(0, StatusOf(first));
  EXPECT_EQ(0, StatusOf(second));
  EXPECT_EQ("0|\n", Ask("SELECT ssl_enabled, ssl_enabled_before FROM settings"));
  EXPECT_EQ("first|enabled\nfirst|disabled, as before\nsecond|enabled\nsecond|disabled, as before\n",
            Ask(R"(SELECT user, replace("values", ': the web service did not follow', '') FROM audit
                   ORDER BY number)"));
}

TEST_F(AppConfigTest, AChangeOfTheModeThatWasKilledLeavesTheModeOfBeforeToGoBackTo) {
  WriteScript(places.applyWebMode, "echo >" + folder + "/begun; exec sleep 600");
  const pid_t child = InChild([this] {
    setpgid(0, 0);
    Velm::Store own(places.database);
    Open(own)->setSSLEnabled(true);
  });
  while (Contents(folder + "/begun").empty()) usleep(1000);
  kill(-child, SIGKILL);
  EXPECT_EQ(SIGKILL, StatusOf(child));
  EXPECT_EQ("1|0\n", Ask("SELECT ssl_enabled, ssl_enabled_before FROM settings"));

  WriteScript(places.applyWebMode, "exit 1");
  Said([&] { EXPECT_EQ(Result::Failed, config->setSSLEnabled(true)); });
  EXPECT_EQ("0|\n", Ask("SELECT ssl_enabled, ssl_enabled_before FROM settings"));
  WriteScript(places.applyWebMode, "exit 0");
  EXPECT_EQ(Result::Succeeded, config->setSSLEnabled(true));
  EXPECT_EQ("1|\n", Ask("SELECT ssl_enabled, ssl_enabled_before FROM settings"));
}

TEST_F(AppConfigTest, AWebServiceThatDoesNotFollowIsBroughtIntoTheModeOfBeforeAgain) {
  WriteScript(places.applyWebMode, "mode=$(sqlite3 " + places.database +
                                       " 'SELECT ssl_enabled FROM settings'); echo $mode >>" + folder +
                                       "/seen; exit $mode");
  Said([&] { EXPECT_EQ(Result::Failed, config->setSSLEnabled(true)); });
  EXPECT_EQ("1\n0\n", Contents(folder + "/seen"));
}

TEST_F(AppConfigTest, TheLockOfTheModeIsForNobodyElse) {
  EXPECT_EQ(Result::Succeeded, config->setSSLEnabled(true));
  EXPECT_EQ(std::filesystem::perms(0600),
            std::filesystem::status(places.database + ".ssl_lock").permissions());
}

// As in a process whose parent ignored it: the kernel throws the statuses of children away.
TEST_F(AppConfigTest, AScriptsStatusIsKnownInAProcessThatIgnoresTheEndsOfChildren) {
  struct sigaction ignoring = {};
  struct sigaction hosts = {};
  struct sigaction after = {};
  ignoring.sa_handler = SIG_IGN;
  ASSERT_EQ(0, sigaction(SIGCHLD, &ignoring, &hosts));
  WriteScript(places.applyWebMode, "exit 0");
  EXPECT_EQ(Result::Succeeded, config->setSSLEnabled(true));
  WriteScript(places.restartSNMP, "exit 7");
  const std::string said = Said([&] { EXPECT_EQ(Result::Failed, config->restartSNMP()); });
  EXPECT_EQ("restartSNMP: " + places.restartSNMP + " ended with exit status 7\n", said);
  ASSERT_EQ(0, sigaction(SIGCHLD, &hosts, &after));
  EXPECT_EQ(SIG_IGN, after.sa_handler);
  EXPECT_EQ("1\n", Ask("SELECT ssl_enabled FROM settings"));
}

TEST_F(AppConfigTest, RestartingTheAgentSucceedsOnlyWithExitStatusZero) {
  WriteScript(places.restartSNMP, "exit 0");
  EXPECT_EQ(Result::Succeeded, config->restartSNMP());
  WriteScript(places.restartSNMP, "echo no agent >&2; exit 1");
  std::string said = Said([&] { EXPECT_EQ(Result::Failed, config->restartSNMP()); });
  EXPECT_EQ("no agent\nrestartSNMP: " + places.restartSNMP + " ended with exit status 1\n", said);
  WriteScript(places.restartSNMP, "kill -9 $$");
  said = Said([&] { EXPECT_EQ(Result::Failed, config->restartSNMP()); });
  EXPECT_EQ("restartSNMP: " + places.restartSNMP + " was ended by signal 9\n", said);
  std::filesystem::remove(places.restartSNMP);
  said = Said([&] { EXPECT_EQ(Result::Failed, config->restartSNMP()); });
  EXPECT_EQ("restartSNMP: " + places.restartSNMP + " cannot be started: No such file or directory\n", said);
}

TEST_F(AppConfigTest, AScriptGetsNoInputNoOutputAndNoDescriptorOfTheCaller) {
  int inherited[2] = {};
  ASSERT_EQ(0, pipe(inherited));
  WriteScript(places.restartSNMP, "standard=$(readlink /proc/$$/fd/0 /proc/$$/fd/1)\n" +
                                      ("echo \"$standard\" >" + folder) + "/standard\n" +
                                      "[ ! -e /proc/$$/fd/" + std::to_string(inherited[1]) + " ]");
  EXPECT_EQ(Result::Succeeded, config->restartSNMP());
  EXPECT_EQ("/dev/null\n/dev/null\n", Contents(folder + "/standard"));
  close(inherited[0]);
  close(inherited[1]);
}

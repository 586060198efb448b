// A damaged management database at the start: what becomes of it, and of the settings.
#include "libvelm/copies.h"
#include "velm_fixture.h"

using TarnAbstract::Result;
using velm_test::InChild;
using velm_test::Receiver;
using velm_test::StatusOf;

namespace {

constexpr std::size_t PageSize = 4096;

class CopiesTest : public velm_test::Services {
 protected:
  // Stored by another process, so that this one has nothing of the file in its memory.
  void Store(const std::string& community) const {
    EXPECT_EQ(0, StatusOf(InChild([&] {
                Velm::Store own(places.database);
                TarnAbstract::String text(community.c_str());
                EXPECT_EQ(Result::Succeeded, Open(own)->setReadCommunity(text));
              })));
  }
  std::string BringIntoOrder() const {
    testing::internal::CaptureStderr();
    Velm::BringIntoOrder(places.database);
    return testing::internal::GetCapturedStderr();
  }
  // All of it in the one file.
  void Settle() const { Ask("PRAGMA wal_checkpoint(TRUNCATE)"); }
  void OverwriteBehind(std::size_t start, const std::string& path) const {
    const std::size_t size = std::filesystem::file_size(path);
    ASSERT_GT(size, start);
    std::fstream file(path, std::ios::in | std::ios::out | std::ios::binary);
    file.seekp(static_cast<std::streamoff>(start));
    file << std::string(size - start, 'x');
  }
  std::string CommunityNow() const { return Ask("SELECT read_community FROM settings"); }
  std::string Sentence(const char* outcome) const {
    return std::string("The settings of the management services were damaged and ") + outcome;
  }
  void ExpectKept() const {
    const std::string said = BringIntoOrder();
    EXPECT_EQ(0U, said.find(Sentence("are back as they were kept last; what was there is kept as ") +
                            places.database + ".damaged: "))
        << said;
    EXPECT_EQ(said.size() - 1, said.find('\n')) << said;
    EXPECT_EQ("kept\n", CommunityNow());
    EXPECT_EQ(Sentence("are back as they were kept last.") + "|stored\n",
              Ask(R"(SELECT "values", result FROM audit WHERE operation = 'restoreSettings')"));
    EXPECT_EQ("ok\n", Ask("PRAGMA integrity_check"));
  }
  void ExpectDefaults() const {
    const std::string said = BringIntoOrder();
    EXPECT_EQ(0U, said.find(Sentence("are now those of a new appliance; "))) << said;
    EXPECT_EQ("public\n", CommunityNow());
    EXPECT_EQ(Sentence("are now those of a new appliance.") + "|stored\n",
              Ask(R"(SELECT "values", result FROM audit)"));
  }
};

}  // namespace

TEST_F(CopiesTest, ADatabaseInOrderStaysAsItIs) {
  EXPECT_EQ("", BringIntoOrder());
  EXPECT_EQ("public\n", CommunityNow());
  Store("kept");
  EXPECT_EQ("", BringIntoOrder());
  EXPECT_EQ("kept\n", CommunityNow());
  EXPECT_FALSE(std::filesystem::exists(places.database + ".damaged"));
}

TEST_F(CopiesTest, EveryChangeAndEveryStartKeepsACopy) {
  Store("kept");
  EXPECT_EQ("kept\n", velm_test::Query(places.database + ".copy", "SELECT read_community FROM settings"));
  Ask("UPDATE settings SET read_community = 'later'");
  EXPECT_EQ("", BringIntoOrder());
  EXPECT_EQ("later\n", velm_test::Query(places.database + ".copy", "SELECT read_community FROM settings"));
  EXPECT_FALSE(std::filesystem::exists(places.database + ".copy.new"));
}

TEST_F(CopiesTest, PagesBehindTheFirstThatWereOverwrittenComeBackFromTheCopy) {
  Store("kept");
  Settle();
  OverwriteBehind(PageSize, places.database);
  const std::string damaged = Contents(places.database);
  ExpectKept();
  EXPECT_TRUE(damaged == Contents(places.database + ".damaged"));
}

TEST_F(CopiesTest, AnOverwrittenFirstPageComesBackFromTheCopy) {
  Store("kept");
  Settle();
  OverwriteBehind(0, places.database);
  ExpectKept();
}

TEST_F(CopiesTest, ARowOfTheSettingsThatIsGoneComesBackFromTheCopy) {
  Store("kept");
  Ask("DELETE FROM settings");
  ExpectKept();
}

TEST_F(CopiesTest, ATableThatIsGoneComesBackFromTheCopy) {
  Store("kept");
  Ask("DROP TABLE snmp_versions");
  ExpectKept();
}

TEST_F(CopiesTest, AnEmptyOrMissingFileComesBackFromTheCopy) {
  Store("kept");
  std::filesystem::resize_file(places.database, 0);
  ExpectKept();
  for (const char* ending : {"", "-wal", "-shm"}) std::filesystem::remove(places.database + ending);
  EXPECT_NE("", BringIntoOrder());
  EXPECT_EQ("kept\n", CommunityNow());
}

TEST_F(CopiesTest, AnImpossibleVersionComesBackFromTheCopy) {
  for (const char* version : {"-1", "-2147483648", "10000", "2147483647"}) {
    Store("kept");
    Ask("PRAGMA user_version = " + std::string(version));
    ExpectKept();
    Ask("DELETE FROM audit");
  }
}

// What is in the folder is kept, too.
TEST_F(CopiesTest, AFolderInThePlaceOfTheDatabaseIsPutAsideAndTheCopyComesBack) {
  Store("kept");
  Settle();
  for (const char* ending : {"", "-wal", "-shm"}) std::filesystem::remove(places.database + ending);
  std::filesystem::create_directories(places.database + "/inside");
  ExpectKept();
  EXPECT_TRUE(std::filesystem::is_directory(places.database + ".damaged/inside"));
}

TEST_F(CopiesTest, AFolderInThePlaceOfTheLogIsPutAsideAndTheCopyComesBack) {
  for (const char* ending : {"-wal", "-shm"}) {
    Store("kept");
    Settle();
    std::filesystem::remove(places.database + ending);
    std::filesystem::create_directories(places.database + ending + "/inside");
    ExpectKept();
    EXPECT_TRUE(std::filesystem::is_directory(places.database + ".damaged" + ending + "/inside")) << ending;
    Ask("DELETE FROM audit");
  }
}

TEST_F(CopiesTest, FoldersInTheWayOfWhatIsPutAsideAndOfWhatIsRestoredGo) {
  Store("kept");
  Settle();
  for (const char* ending : {".damaged", ".damaged-wal", ".damaged-shm", ".restored", ".restored-wal"}) {
    std::filesystem::create_directories(places.database + ending + "/inside");
  }
  OverwriteBehind(0, places.database);
  const std::string damaged = Contents(places.database);
  ExpectKept();
  EXPECT_TRUE(damaged == Contents(places.database + ".damaged"));
  EXPECT_FALSE(std::filesystem::exists(places.database + ".damaged-wal/inside"));
}

// As a start leaves it that was interrupted when the damaged database had been put aside, but not yet its
// log.
TEST_F(CopiesTest, AStartThatIsInterruptedKeepsTheLogWithItsDatabase) {
  Store("kept");
  const std::string log = "the log";
  std::ofstream(places.database + ".damaged") << "the database";
  std::ofstream(places.database + ".damaged-shm") << "its index";
  for (const char* ending : {"", "-wal", "-shm"}) std::filesystem::remove(places.database + ending);
  std::ofstream(places.database + "-wal") << log;
  ExpectKept();
  EXPECT_EQ("the database", Contents(places.database + ".damaged"));
  EXPECT_EQ(log, Contents(places.database + ".damaged-wal"));
  EXPECT_EQ("its index", Contents(places.database + ".damaged-shm"));
}

TEST_F(CopiesTest, ALogWithoutDatabaseAndCopyIsKeptAndSaid) {
  std::ofstream(places.database + "-wal") << "the log";
  ExpectDefaults();
  EXPECT_EQ("the log", Contents(places.database + ".damaged-wal"));
}

TEST_F(CopiesTest, ALinkToNowhereInThePlaceOfTheDatabaseIsReplacedByTheCopy) {
  Store("kept");
  Settle();
  for (const char* ending : {"", "-wal", "-shm"}) std::filesystem::remove(places.database + ending);
  std::filesystem::create_symlink("management.db", places.database);
  ExpectKept();
}

TEST_F(CopiesTest, ARestorationLeavesTheAuditItsNewestTenThousandRows) {
  Store("kept");
  Ask(R"(WITH RECURSIVE numbers(number) AS (SELECT 2 UNION ALL SELECT number + 1 FROM numbers WHERE number < 10000)
         INSERT INTO audit (user, operation, "values", result) SELECT '', 'filler', number, 'stored' FROM numbers)");
  EXPECT_EQ("", BringIntoOrder());
  Settle();
  OverwriteBehind(0, places.database);
  ExpectKept();
  EXPECT_EQ("10000|2|10001\n", Ask("SELECT count(*), min(number), max(number) FROM audit"));
}

TEST_F(CopiesTest, ALogThatIsLeftOfALostDatabaseIsNotAppliedToTheCopy) {
  Store("kept");
  const std::string copy = Contents(places.database + ".copy");
  Store("in-the-log");
  const std::string log = Contents(places.database + "-wal");
  ASSERT_NE("", log);
  std::ofstream(places.database + ".copy") << copy;
  std::filesystem::remove(places.database);
  ExpectKept();
  EXPECT_TRUE(log == Contents(places.database + ".damaged-wal"));
}

TEST_F(CopiesTest, WithoutAGoodCopyTheSettingsAreThoseOfANewAppliance) {
  Store("lost");
  Settle();
  OverwriteBehind(0, places.database);
  OverwriteBehind(PageSize, places.database + ".copy");
  ExpectDefaults();
}

TEST_F(CopiesTest, WithoutACopyTheSettingsAreThoseOfANewAppliance) {
  std::ofstream(places.database) << std::string(5000, 'x');
  ExpectDefaults();
  EXPECT_EQ(std::string(5000, 'x'), Contents(places.database + ".damaged"));
}

TEST_F(CopiesTest, DamagedSettingsThatSayStoredAreNotKept) {
  Store("kept");
  EXPECT_EQ(0, StatusOf(InChild([&] {
              Ask("DELETE FROM settings");
              Velm::Store own(places.database);
              Velm::TrapRegistration registration = Receiver("10.20.0.9");
              EXPECT_EQ(Result::Succeeded, Open(own)->createTrapRegistration(registration));
            })));
  ExpectKept();
}

TEST_F(CopiesTest, AfterItAChangeIsStoredAndKept) {
  Store("kept");
  Settle();
  OverwriteBehind(0, places.database);
  BringIntoOrder();
  Store("next");
  EXPECT_EQ("next\n", CommunityNow());
  EXPECT_EQ("next\n", velm_test::Query(places.database + ".copy", "SELECT read_community FROM settings"));
}

TEST_F(CopiesTest, ANewerDatabaseIsNotTakenForADamagedOne) {
  Ask("CREATE TABLE settings (something_else TEXT); PRAGMA user_version = 1000;");
  const std::string before = Contents(places.database);
  EXPECT_THROW(Velm::BringIntoOrder(places.database), std::exception);
  EXPECT_TRUE(before == Contents(places.database));
}

// The change is done, and it is the copy alone that is said to be missing.
TEST_F(CopiesTest, ACopyThatCannotBeKeptDoesNotFailTheChange) {
  std::filesystem::create_directories(places.database + ".copy.new/in-the-way");
  Velm::Store store(places.database);
  TarnAbstract::String text("kept");
  testing::internal::CaptureStderr();
  EXPECT_EQ(Result::Succeeded, Open(store)->setReadCommunity(text));
  EXPECT_EQ("a copy of the settings: " + places.database + ".copy.new: Is a directory\n",
            testing::internal::GetCapturedStderr());
  EXPECT_EQ("kept\n", CommunityNow());
}

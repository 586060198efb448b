// The management database among many processes, and when something is wrong with it.
#include <sys/resource.h>

#include <atomic>
#include <csignal>
#include <future>
#include <memory>
#include <thread>

#include "velm_fixture.h"

using TarnAbstract::GUID;
using TarnAbstract::Result;
using TarnAbstract::String;
using Velm::TrapRegistration;
using velm_test::AppConfigTest;
using velm_test::InChild;
using velm_test::Receiver;
using velm_test::StatusOf;

namespace {

using StoreTest = velm_test::Services;

// Another program that is changing the database: from its making to its end nobody else can.
class Writer {
 public:
  explicit Writer(const std::string& path) {
    EXPECT_EQ(SQLITE_OK, sqlite3_open(path.c_str(), &connection_));
    EXPECT_EQ(SQLITE_OK, sqlite3_exec(connection_, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr));
  }
  ~Writer() { sqlite3_close(connection_); }
  Writer(const Writer&) = delete;
  Writer& operator=(const Writer&) = delete;

 private:
  sqlite3* connection_ = nullptr;
};

// For a process whose failures are no news.
void Mute() { EXPECT_NE(nullptr, std::freopen("/dev/null", "w", stderr)); }

Result::Code SetCommunity(const velm_test::Config& config, const std::string& text) {
  String community(text.c_str());
  return config->setReadCommunity(community);
}

}  // namespace

TEST_F(StoreTest, SixteenProcessesThatStartTogetherLoseNoChange) {
  constexpr unsigned int Processes = 16;
  constexpr unsigned int Rounds = 20;
  std::vector<pid_t> children;
  children.reserve(Processes);
  for (unsigned int process = 0; process < Processes; ++process) {
    children.push_back(InChild([this, process] {
      Velm::Store store(places.database, std::chrono::seconds(60));
      const velm_test::Config config = Open(store, std::to_string(process).c_str());
      TrapRegistration kept = Receiver("10.20.0.9", 1000 + process);
      EXPECT_EQ(Result::Succeeded, config->createTrapRegistration(kept));
      for (unsigned int round = 0; round < Rounds; ++round) {
        EXPECT_EQ(Result::Succeeded,
                  SetCommunity(config, std::to_string(process) + "-" + std::to_string(round)));
      }
    }));
  }
  for (const pid_t child : children) EXPECT_EQ(0, StatusOf(child));
  EXPECT_EQ("16|1000|1015\n",
            Ask("SELECT count(DISTINCT port), min(port), max(port) FROM trap_registrations"));
  EXPECT_EQ("336|336\n", Ask("SELECT count(*), sum(result = 'stored') FROM audit"));
  // Each process's changes, in its order.
  EXPECT_EQ("320\n", Ask(R"(SELECT count(*) FROM (SELECT "values" AS given, user || '-' || (row_number() OVER
                (PARTITION BY user ORDER BY number) - 1) AS made FROM audit
                WHERE operation = 'setReadCommunity') WHERE given = made)"));
  EXPECT_EQ("1\n", Ask(R"(SELECT read_community = (SELECT "values" FROM audit
                          WHERE operation = 'setReadCommunity' ORDER BY number DESC LIMIT 1) FROM settings)"));
}

TEST_F(StoreTest, ThreadsShareAStore) {
  Velm::Store store(places.database);
  constexpr unsigned int Threads = 8;
  std::vector<std::thread> threads;
  threads.reserve(Threads);
  for (unsigned int thread = 0; thread < Threads; ++thread) {
    threads.emplace_back([this, &store] {
      const velm_test::Config config = Open(store);
      for (int round = 0; round < 10; ++round) {
        EXPECT_EQ(Result::Succeeded, config->setAuthTrapsEnabled(true));
        std::uint32_t ssl = 7;
        EXPECT_EQ(Result::Succeeded, config->getSSLEnabled(ssl));
        EXPECT_EQ(0U, ssl);
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ("80\n", Ask("SELECT count(*) FROM audit WHERE result = 'stored'"));
}

TEST_F(StoreTest, AKilledProcessLeavesWholeChanges) {
  int started[2] = {};
  for (int life = 0; life < 10; ++life) {
    ASSERT_EQ(0, pipe(started));
    const pid_t child = InChild([this, &started, life] {
      Mute();
      Velm::Store store(places.database);
      const velm_test::Config config = Open(store);
      for (int round = 0;; ++round) {
        TrapRegistration passing =
            Receiver("10.20.0.9", static_cast<unsigned int>(1000 * (life + 1) + round % 1000));
        config->createTrapRegistration(passing);
        SetCommunity(config, std::to_string(life) + "-" + std::to_string(round));
        GUID identifier = passing.getTrapID();
        // Every third one stays, until there are too many: then creations are refused.
        if (round % 3 != 0) config->deleteTrapRegistration(identifier);
        if (write(started[1], ".", 1) != 1) _exit(1);
      }
    });
    close(started[1]);
    // A different number of rounds each time, and somewhere in the next.
    char dots[16];
    for (ssize_t wanted = 1 + life; wanted > 0;) {
      const ssize_t got = read(started[0], dots, static_cast<std::size_t>(wanted));
      ASSERT_GT(got, 0);
      wanted -= got;
    }
    kill(child, SIGKILL);
    EXPECT_EQ(SIGKILL, StatusOf(child));
    close(started[0]);

    EXPECT_EQ("ok\n", Ask("PRAGMA integrity_check"));
    EXPECT_EQ("1\n", Ask(R"(SELECT read_community = ifnull((SELECT "values" FROM audit
        WHERE operation = 'setReadCommunity' ORDER BY number DESC LIMIT 1), 'public') FROM settings)"));
    EXPECT_EQ("1\n", Ask(R"(SELECT (SELECT count(*) FROM trap_registrations) = sum(
        (result = 'stored') * CASE operation WHEN 'createTrapRegistration' THEN 1
                              WHEN 'deleteTrapRegistration' THEN -1 ELSE 0 END) FROM audit)"));
  }
  EXPECT_EQ("1\n", Ask("SELECT count(*) > 100 FROM audit"));
}

TEST_F(AppConfigTest, AForkFindsTheDatabaseClosedAndBothSidesGoOn) {
  ASSERT_EQ(Result::Succeeded, SetCommunity("before"));
  const std::string descriptors = "/proc/self/fd";
  const pid_t child = InChild([&] {
    for (const auto& descriptor : std::filesystem::directory_iterator(descriptors)) {
      std::error_code vanished;
      const std::string target = std::filesystem::read_symlink(descriptor.path(), vanished).string();
      EXPECT_EQ(std::string::npos, target.find(folder)) << target;
    }
    EXPECT_EQ("before", Community());
    EXPECT_EQ(Result::Succeeded, SetCommunity("child"));
  });
  EXPECT_EQ(0, StatusOf(child));
  EXPECT_EQ("child", Community());
  EXPECT_EQ(Result::Succeeded, SetCommunity("parent"));
  EXPECT_EQ("before\nchild\nparent\n", Ask(R"(SELECT "values" FROM audit ORDER BY number)"));
}

TEST_F(StoreTest, AForkWhileAnotherThreadIsAtWorkLeavesAWorkingChild) {
  Velm::Store store(places.database, std::chrono::seconds(60));
  const velm_test::Config config = Open(store);
  std::atomic<bool> stop{false};
  std::thread worker([&] {
    while (!stop) EXPECT_EQ(Result::Succeeded, config->setAuthTrapsEnabled(true));
  });
  for (int i = 0; i < 20; ++i) {
    const pid_t child = InChild([&] { EXPECT_EQ(Result::Succeeded, SetCommunity(config, "child")); });
    EXPECT_EQ(0, StatusOf(child));
  }
  stop = true;
  worker.join();
  EXPECT_EQ("20\n", Ask("SELECT count(*) FROM audit WHERE operation = 'setReadCommunity'"));
  EXPECT_EQ("0\n", Ask("SELECT count(*) FROM audit WHERE result <> 'stored'"));
}

TEST_F(AppConfigTest, AnOlderDatabaseIsBroughtForwardWithWhatItHolds) {
  // The first version, as it was.
  Ask(R"(CREATE TABLE settings (
           only_row INTEGER PRIMARY KEY CHECK (only_row = 1),
           ssl_enabled INTEGER NOT NULL DEFAULT 0 CHECK (ssl_enabled IN (0, 1)));
         INSERT INTO settings VALUES (1, 1);
         CREATE TABLE audit (
           number INTEGER PRIMARY KEY AUTOINCREMENT,
           time TEXT NOT NULL DEFAULT (strftime('%Y-%m-%dT%H:%M:%fZ', 'now')),
           user TEXT NOT NULL, operation TEXT NOT NULL, "values" TEXT NOT NULL, result TEXT NOT NULL);
         INSERT INTO audit VALUES (7, '2020-01-02T03:04:05.678Z', 'first', 'setSSLEnabled', 'enabled', 'stored');
         PRAGMA user_version = 1;)");
  std::uint32_t ssl = 0;
  EXPECT_EQ(Result::Succeeded, config->getSSLEnabled(ssl));
  EXPECT_EQ(1U, ssl);
  EXPECT_EQ("public", Community());
  EXPECT_EQ(Result::Succeeded, SetCommunity("new"));
  EXPECT_EQ("7|first\n8|operator\n", Ask("SELECT number, user FROM audit ORDER BY number"));
  EXPECT_EQ("4\n", Ask("PRAGMA user_version"));
}

TEST_F(StoreTest, OfSeveralProcessesThatFindNoDatabaseOneMakesItAndTheOthersWait) {
  constexpr unsigned int Processes = 16;
  for (int round = 0; round < 25; ++round) {
    places.database = folder + "/" + std::to_string(round) + ".db";
    int gate[2] = {};
    ASSERT_EQ(0, pipe(gate));
    std::vector<pid_t> children;
    children.reserve(Processes);
    for (unsigned int process = 0; process < Processes; ++process) {
      children.push_back(InChild([this, &gate, process] {
        Velm::Store store(places.database, std::chrono::seconds(60));
        const velm_test::Config config = Open(store);
        close(gate[1]);
        char nothing = 0;
        EXPECT_EQ(0, read(gate[0], &nothing, 1));  // until the gate opens for all of them
        bool enabled = false;
        EXPECT_EQ(Result::Succeeded, process % 2 == 0 ? config->setAuthTrapsEnabled(true)
                                                      : config->getAuthTrapsEnabled(enabled));
      }));
    }
    close(gate[0]);
    close(gate[1]);
    for (const pid_t child : children) EXPECT_EQ(0, StatusOf(child));
    EXPECT_EQ("8\n", Ask("SELECT count(*) FROM audit"));
  }
}

TEST_F(AppConfigTest, ANewerDatabaseIsRefusedAndStaysUntouched) {
  Ask("CREATE TABLE settings (something_else TEXT); PRAGMA user_version = 5;");
  const std::string before = Contents(places.database);
  std::uint32_t ssl = 7;
  const std::string said = Said([&] {
    EXPECT_EQ(Result::Failed, config->getSSLEnabled(ssl));
    EXPECT_EQ(Result::Failed, config->setSSLEnabled(true));
  });
  EXPECT_EQ(7U, ssl);
  const std::string sentence = "database " + places.database +
                               ": has version 5, this program knows versions up to 4; it stays untouched, "
                               "use the program that wrote it or a newer one\n";
  EXPECT_EQ("getSSLEnabled: " + sentence + "setSSLEnabled: " + sentence, said);
  EXPECT_TRUE(before == Contents(places.database));
}

TEST_F(AppConfigTest, AFileThatIsNoDatabaseIsRefusedAndStaysUntouched) {
  std::ofstream(places.database) << std::string(5000, 'x');
  const std::string said = Said([&] { EXPECT_EQ(Result::Failed, SetCommunity("lost")); });
  EXPECT_EQ("setReadCommunity: database " + places.database + ": file is not a database\n", said);
  EXPECT_EQ(std::string(5000, 'x'), Contents(places.database));
}

TEST_F(AppConfigTest, WithoutItsFolderEveryOperationFailsAndTouchesNoOutput) {
  std::filesystem::remove_all(folder);
  std::uint32_t ssl = 7;
  bool authTraps = true;
  String community("mine");
  velm_test::Versions versions(velm_test::Heap());
  velm_test::Registrations registrations(velm_test::Heap());
  TrapRegistration registration = Receiver("10.20.0.9");
  GUID identifier;
  const std::string said = Said([&] {
    EXPECT_EQ(Result::Failed, config->getSSLEnabled(ssl));
    EXPECT_EQ(Result::Failed, config->setSSLEnabled(true));
    EXPECT_EQ(Result::Failed, config->getAuthTrapsEnabled(authTraps));
    EXPECT_EQ(Result::Failed, config->setAuthTrapsEnabled(true));
    EXPECT_EQ(Result::Failed, config->getReadCommunity(community));
    EXPECT_EQ(Result::Failed, config->setReadCommunity(community));
    EXPECT_EQ(Result::Failed, config->getSNMPVersions(versions));
    EXPECT_EQ(Result::Failed, config->setSNMPVersions(versions));
    EXPECT_EQ(Result::Failed, config->getTrapRegistrations(registrations));
    EXPECT_EQ(Result::Failed, config->createTrapRegistration(registration));
    EXPECT_EQ(Result::Failed, config->deleteTrapRegistration(identifier));
  });
  EXPECT_EQ(7U, ssl);
  EXPECT_TRUE(authTraps);
  EXPECT_STREQ("mine", TarnAbstract::StringAccess::Text(community));
  EXPECT_EQ(0U, versions.Size() + registrations.Size());
  EXPECT_TRUE(GUID() == registration.getTrapID());
  EXPECT_EQ(0U, said.find("getSSLEnabled: folder " + folder +
                          "/: No such file or directory\n"
                          "setSSLEnabled: folder "))
      << said;
  std::filesystem::create_directory(folder);
  EXPECT_EQ(Result::Succeeded, config->getSSLEnabled(ssl));
}

TEST_F(AppConfigTest, AChangeThatCannotHaveItsTurnFails) {
  ASSERT_EQ("public", Community());
  const Writer writer(places.database);
  const std::string said = Said([&] { EXPECT_EQ(Result::Failed, SetCommunity("late")); });
  EXPECT_EQ("setReadCommunity: database " + places.database + ": database is locked\n", said);
  EXPECT_EQ("public", Community());
}

TEST_F(StoreTest, AProcessWithManyChangesLetsOthersHaveTheirTurn) {
  Velm::Store store(places.database, std::chrono::seconds(5));
  const velm_test::Config config = Open(store);
  const pid_t busy = InChild([&] {
    while (true) config->setAuthTrapsEnabled(true);
  });
  for (int i = 0; i < 20; ++i) EXPECT_EQ(Result::Succeeded, SetCommunity(config, "now"));
  kill(busy, SIGKILL);
  StatusOf(busy);
}

TEST_F(StoreTest, AChangeWaitsForItsTurn) {
  Velm::Store store(places.database, std::chrono::seconds(60));
  const velm_test::Config config = Open(store);
  ASSERT_EQ(Result::Succeeded, config->setAuthTrapsEnabled(false));
  auto writer = std::make_unique<Writer>(places.database);
  std::future<Result::Code> change =
      std::async(std::launch::async, [&config] { return config->setAuthTrapsEnabled(true); });
  EXPECT_EQ(std::future_status::timeout, change.wait_for(std::chrono::milliseconds(300)));
  writer.reset();
  EXPECT_EQ(Result::Succeeded, change.get());
  EXPECT_EQ("1\n", Ask("SELECT auth_traps_enabled FROM settings"));
}

TEST_F(AppConfigTest, AChangeThatFindsNoRoomFailsAndLeavesEverything) {
  ASSERT_EQ(Result::Succeeded, SetCommunity("before"));
  const pid_t child = InChild([&] {
    Mute();
    ASSERT_EQ("before", Community());
    ASSERT_NE(SIG_ERR, signal(SIGXFSZ, SIG_IGN));
    const rlimit none = {0, 0};
    ASSERT_EQ(0, setrlimit(RLIMIT_FSIZE, &none));
    EXPECT_EQ(Result::Failed, SetCommunity("after"));
    EXPECT_EQ("before", Community());
  });
  EXPECT_EQ(0, StatusOf(child));
  EXPECT_EQ("before", Community());
  EXPECT_EQ("1\n", Ask("SELECT count(*) FROM audit"));
}

TEST_F(AppConfigTest, AReadOnlyDatabaseCanBeReadAndNotChanged) {
  ASSERT_EQ(Result::Succeeded, SetCommunity("before"));
  const pid_t child = InChild([&] {
    std::filesystem::permissions(places.database, std::filesystem::perms(0444));
    std::filesystem::permissions(folder, std::filesystem::perms(0777));
    // Permissions mean nothing to the superuser.
    constexpr uid_t Nobody = 65534;
    ASSERT_TRUE(geteuid() != 0 || seteuid(Nobody) == 0);
    EXPECT_EQ("before", Community());
    const std::string said = Said([&] { EXPECT_EQ(Result::Failed, SetCommunity("after")); });
    EXPECT_EQ("setReadCommunity: database " + places.database + ": attempt to write a readonly database\n",
              said);
  });
  EXPECT_EQ(0, StatusOf(child));
  EXPECT_EQ("before\n", Ask("SELECT read_community FROM settings"));
  EXPECT_EQ("1\n", Ask("SELECT count(*) FROM audit"));
}

TEST_F(AppConfigTest, ADatabaseThatWasReplacedIsNoticed) {
  ASSERT_EQ(Result::Succeeded, SetCommunity("before"));
  for (const char* ending : {"", "-wal", "-shm"}) std::filesystem::remove(places.database + ending);
  EXPECT_EQ("public", Community());
  EXPECT_EQ(Result::Succeeded, SetCommunity("after"));
  EXPECT_EQ("after\n", Ask("SELECT read_community FROM settings"));
}

TEST_F(AppConfigTest, TheDatabaseIsKeptTheWayThatSurvivesAKill) {
  ASSERT_EQ("public", Community());
  EXPECT_EQ("wal\n", Ask("PRAGMA journal_mode"));
  store.Read([](Velm::Database& database) {
    const auto setting = [&database](const char* question) {
      Velm::Statement statement = database.Prepare(question);
      EXPECT_TRUE(statement.Step());
      return statement.Integer(0);
    };
    EXPECT_EQ(2, setting("PRAGMA synchronous"));
    EXPECT_EQ(1, setting("PRAGMA foreign_keys"));
  });
}

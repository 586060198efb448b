// The module was built against interfaces whose operations have fixed positions. The table of operations
// begins with the two of the reference-counted base; position 0 of an interface lies behind them.
#include <cstring>

#include "libvelm/storage_library.h"
#include "velm_fixture.h"

using TarnAbstract::GUID;
using TarnAbstract::Result;
using TarnAbstract::String;
using TarnAbstract::StringAccess;
using Velm::IMgmtAppConfig;
using Velm::TrapRegistration;
using velm_test::Heap;
using velm_test::Receiver;
using velm_test::Registrations;
using velm_test::Versions;

namespace {

constexpr std::size_t OperationsOfTheBase = 2;

template <class Interface, class... Arguments>
using Operation = Result::Code (*)(Interface*, Arguments...);

using BaseOperation = void (*)(IMgmtAppConfig*);

const BaseOperation* Operations(IMgmtAppConfig* object) {
  const BaseOperation* operations = nullptr;
  std::memcpy(&operations, static_cast<const void*>(object), sizeof(operations));
  return operations;
}

template <class Interface, class... Arguments>
Result::Code CallSlot(const TarnAbstract::sp<Interface>& handle, std::size_t slot, Arguments... arguments) {
  Interface* const object = handle.operator->();
  const Operation<Interface, Arguments...>* operations = nullptr;
  std::memcpy(&operations, static_cast<const void*>(object), sizeof(operations));
  return operations[OperationsOfTheBase + slot](object, arguments...);
}

class MgmtAppConfigSlots : public velm_test::AppConfigTest {
 protected:
  unsigned int CountRegistrations() const {
    Registrations registrations(Heap());
    EXPECT_EQ(Result::Succeeded, (CallSlot<IMgmtAppConfig, Registrations&>(config, 12, registrations)));
    return registrations.Size();
  }
};

class Watched : public Velm::AppConfig {
 public:
  Watched(Velm::Store& store, const Velm::Places& places, bool& gone)
      : AppConfig(store, places, ""), gone_(gone) {}

 protected:
  ~Watched() override { gone_ = true; }

 private:
  bool& gone_;
};

using StorageLibrarySlots = velm_test::Services;

}  // namespace

TEST_F(MgmtAppConfigSlots, TheBaseTakesAndDropsAReference) {
  bool gone = false;
  IMgmtAppConfig* const object = new Watched(store, places, gone);
  Operations(object)[0](object);
  Operations(object)[0](object);
  Operations(object)[1](object);
  EXPECT_FALSE(gone);
  Operations(object)[1](object);
  EXPECT_TRUE(gone);
}

TEST_F(MgmtAppConfigSlots, SixAndSevenAreTheSNMPVersions) {
  Versions wanted(Heap());
  velm_test::Append(wanted, {5});
  EXPECT_EQ(Result::Succeeded, (CallSlot<IMgmtAppConfig, const Versions&>(config, 6, wanted)));
  Versions stored(Heap());
  EXPECT_EQ(Result::Succeeded, (CallSlot<IMgmtAppConfig, Versions&>(config, 7, stored)));
  ASSERT_EQ(1U, stored.Size());
  Velm::eSNMPVersion version = {};
  stored.Item(0, version);
  EXPECT_EQ(Velm::SNMP_TRAP_VERSION_2, version);
}

TEST_F(MgmtAppConfigSlots, EightAndNineAreTheSSLMode) {
  std::uint32_t enabled = 7;
  EXPECT_EQ(Result::Succeeded, (CallSlot<IMgmtAppConfig, bool>(config, 8, true)));
  EXPECT_EQ(Result::Succeeded, (CallSlot<IMgmtAppConfig, std::uint32_t&>(config, 9, enabled)));
  EXPECT_EQ(1U, enabled);
}

TEST_F(MgmtAppConfigSlots, TenToTwelveAreTheTrapRegistrations) {
  EXPECT_EQ(0U, CountRegistrations());
  TrapRegistration registration = Receiver("10.20.0.9");
  EXPECT_EQ(Result::Succeeded, (CallSlot<IMgmtAppConfig, TrapRegistration&>(config, 10, registration)));
  EXPECT_EQ(1U, CountRegistrations());
  GUID identifier = registration.getTrapID();
  EXPECT_EQ(Result::Succeeded, (CallSlot<IMgmtAppConfig, GUID&>(config, 11, identifier)));
  EXPECT_EQ(0U, CountRegistrations());
}

TEST_F(MgmtAppConfigSlots, FourteenRestartsTheAgent) {
  WriteScript(places.restartSNMP, ": >" + folder + "/restarted");
  EXPECT_EQ(Result::Succeeded, (CallSlot<IMgmtAppConfig>(config, 14)));
  EXPECT_TRUE(std::filesystem::exists(folder + "/restarted"));
}

TEST_F(MgmtAppConfigSlots, FifteenAndSixteenAreTheReadCommunity) {
  String wanted("field");
  String stored;
  EXPECT_EQ(Result::Succeeded, (CallSlot<IMgmtAppConfig, String&>(config, 15, wanted)));
  EXPECT_EQ(Result::Succeeded, (CallSlot<IMgmtAppConfig, String&>(config, 16, stored)));
  EXPECT_STREQ("field", StringAccess::Text(stored));
}

TEST_F(MgmtAppConfigSlots, SeventeenAndEighteenAreTheAuthenticationTraps) {
  bool enabled = false;
  EXPECT_EQ(Result::Succeeded, (CallSlot<IMgmtAppConfig, bool>(config, 17, true)));
  EXPECT_EQ(Result::Succeeded, (CallSlot<IMgmtAppConfig, bool&>(config, 18, enabled)));
  EXPECT_TRUE(enabled);
}

TEST_F(StorageLibrarySlots, SixtyNineChecksAnAddress) {
  std::ofstream(places.internalNetworks) << "192.168.250.0/24\n";
  const TarnAbstract::sp<Velm::Library::IStorageLibrary> library(
      new Velm::Library::StorageLibrary(places.internalNetworks));
  String inside("192.168.250.7");
  String outside("10.20.0.9");
  testing::internal::CaptureStderr();
  EXPECT_EQ(Result::Failed, (CallSlot<Velm::Library::IStorageLibrary, String&>(library, 69, inside)));
  EXPECT_EQ("checkAddressConflict: address 192.168.250.7 lies in the internal network 192.168.250.0/24\n",
            testing::internal::GetCapturedStderr());
  EXPECT_EQ(Result::Succeeded, (CallSlot<Velm::Library::IStorageLibrary, String&>(library, 69, outside)));
}

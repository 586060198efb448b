#include "libvelm/storage_library.h"
#include "velm_fixture.h"

using TarnAbstract::Result;

namespace {

class InternalNetworks : public velm_test::Services {
 protected:
  InternalNetworks() { Write("192.168.250.0/24\nfd00:250::/64\n"); }

  void Write(const std::string& lines) const { std::ofstream(places.internalNetworks) << lines; }

  bool Conflicts(const char* text) const {
    const TarnAbstract::sp<Velm::Library::IStorageLibrary> library(
        new Velm::Library::StorageLibrary(places.internalNetworks));
    TarnAbstract::String address(text);
    testing::internal::CaptureStderr();
    const bool conflicts = Result::IsFailed(library->checkAddressConflict(address));
    const std::string said = testing::internal::GetCapturedStderr();
    EXPECT_EQ(conflicts, !said.empty()) << said;
    return conflicts;
  }
};

}  // namespace

TEST_F(InternalNetworks, HoldTheirFirstAndLastAddressAndNoneBeyond) {
  EXPECT_TRUE(Conflicts("192.168.250.0"));
  EXPECT_TRUE(Conflicts("192.168.250.255"));
  EXPECT_FALSE(Conflicts("192.168.249.255"));
  EXPECT_FALSE(Conflicts("192.168.251.0"));
  EXPECT_TRUE(Conflicts("fd00:250::"));
  EXPECT_TRUE(Conflicts("fd00:250::ffff:ffff:ffff:ffff"));
  EXPECT_FALSE(Conflicts("fd00:24f:ffff:ffff:ffff:ffff:ffff:ffff"));
  EXPECT_FALSE(Conflicts("fd00:250:0:1::"));
  EXPECT_FALSE(Conflicts("10.20.0.9"));
  EXPECT_FALSE(Conflicts("::"));
}

TEST_F(InternalNetworks, HoldAnAddressInAnyNotation) {
  for (const char* same : {"::ffff:192.168.250.7", "::FFFF:C0A8:FA07", "0:0:0:0:0:ffff:c0a8:fa07",
                           "FD00:0250:0000:0000::0001", "fd00:250:0:0:0:0:192.168.250.7"}) {
    EXPECT_TRUE(Conflicts(same)) << same;
  }
  EXPECT_FALSE(Conflicts("::ffff:192.168.251.7"));
}

TEST_F(InternalNetworks, HoldNoTextThatIsNoAddress) {
  for (const char* text :
       {"", "192.168.250", "192.168.250.7 ", "192.168.250.7/24", "lan.test", "fd00:250::g"}) {
    EXPECT_FALSE(Conflicts(text)) << text;
  }
}

TEST_F(InternalNetworks, AreNamedWithTheAddressThatLiesThere) {
  const TarnAbstract::sp<Velm::Library::IStorageLibrary> library(
      new Velm::Library::StorageLibrary(places.internalNetworks));
  TarnAbstract::String address("fd00:250::7");
  testing::internal::CaptureStderr();
  EXPECT_EQ(Result::Failed, library->checkAddressConflict(address));
  EXPECT_EQ("checkAddressConflict: address fd00:250::7 lies in the internal network fd00:250::/64\n",
            testing::internal::GetCapturedStderr());
}

TEST_F(InternalNetworks, NeedNotEndAtAByte) {
  Write("10.64.0.0/10\n\n2001:db8:8000::/33\n");
  EXPECT_TRUE(Conflicts("10.64.0.0"));
  EXPECT_TRUE(Conflicts("10.127.255.255"));
  EXPECT_FALSE(Conflicts("10.128.0.0"));
  EXPECT_FALSE(Conflicts("10.63.255.255"));
  EXPECT_TRUE(Conflicts("2001:db8:ffff::"));
  EXPECT_FALSE(Conflicts("2001:db8:7fff::"));
}

TEST_F(InternalNetworks, MayBeOneAddressOrAll) {
  Write("192.0.2.1/32");
  EXPECT_TRUE(Conflicts("192.0.2.1"));
  EXPECT_FALSE(Conflicts("192.0.2.0"));
  Write("0.0.0.0/0");
  EXPECT_TRUE(Conflicts("192.0.2.1"));
  EXPECT_FALSE(Conflicts("2001:db8::1"));
  Write("::/0");
  EXPECT_TRUE(Conflicts("192.0.2.1"));
}

TEST_F(InternalNetworks, ThatCannotBeReadHoldEveryAddress) {
  Write("");
  EXPECT_TRUE(Conflicts("10.20.0.9"));
  EXPECT_FALSE(Conflicts("no address"));
  std::filesystem::remove(places.internalNetworks);
  EXPECT_TRUE(Conflicts("10.20.0.9"));
  std::filesystem::create_directory(places.internalNetworks);
  EXPECT_TRUE(Conflicts("10.20.0.9"));
}

TEST_F(InternalNetworks, RefuseALineThatIsNoNetwork) {
  for (const char* wrong : {"192.168.250.0", "192.168.250.0/33", "fd00::/129", "192.168.250.0/",
                            "192.168.250.0/x", "192.168.250.0/24 ", "lan/24", "192.168.250.0/-1"}) {
    Write(std::string(wrong) + "\n");
    const TarnAbstract::sp<Velm::Library::IStorageLibrary> library(
        new Velm::Library::StorageLibrary(places.internalNetworks));
    TarnAbstract::String address("10.20.0.9");
    testing::internal::CaptureStderr();
    EXPECT_EQ(Result::Failed, library->checkAddressConflict(address)) << wrong;
    EXPECT_EQ("checkAddressConflict: " + places.internalNetworks + ": '" + wrong +
                  "' is no network in CIDR notation\n",
              testing::internal::GetCapturedStderr());
  }
}

// What the appliance's engine and the closed libraries see of the same memory, on their processor: sizes,
// places and byte order.
#include <gtest/gtest.h>
#include <php.h>

#include <cstddef>
#include <cstring>
#include <string>

#include "management/SNMP.h"
#include "management/TrapRegistration.h"
#include "platform/GUID.h"
#include "platform/List.h"
#include "platform/MemoryMgmt.h"
#include "platform/Result.h"
#include "platform/String.h"
#include "platform/sp.h"
#include "utility/platform_texts.h"

using TarnAbstract::GUID;
using TarnAbstract::IHeap;
using TarnAbstract::List;
using TarnAbstract::ListElementPage;
using TarnAbstract::Result;
using TarnAbstract::sp;
using TarnAbstract::String;
using TarnAbstract::TarnMemoryMgmt::getSystemTransientObjHeap;
using Velm::eSNMPVersion;
using Velm::TrapRegistration;

static_assert(sizeof(zval) == 16);
static_assert(sizeof(zvalue_value) == 8);
static_assert(offsetof(zval, value.str.len) == 4);
static_assert(offsetof(zval, value.obj.properties) == 4);
static_assert(offsetof(zval, type) == 8);
static_assert(offsetof(zval, is_ref) == 9);
static_assert(offsetof(zval, refcount) == 10);

static_assert(sizeof(zend_function_entry) == 12);
static_assert(offsetof(zend_function_entry, handler) == 4);
static_assert(offsetof(zend_function_entry, func_arg_types) == 8);

static_assert(sizeof(zend_module_entry) == 72);
static_assert(offsetof(zend_module_entry, zend_api) == 4);
static_assert(offsetof(zend_module_entry, zts) == 9);
static_assert(offsetof(zend_module_entry, functions) == 16);
static_assert(offsetof(zend_module_entry, info_func) == 36);
static_assert(offsetof(zend_module_entry, globals_id) == 52);
static_assert(offsetof(zend_module_entry, handle) == 64);
static_assert(offsetof(zend_module_entry, module_number) == 68);

static_assert(sizeof(std::string) == sizeof(char*), "not the texts of the closed libraries' era");

static_assert(sizeof(sp<IHeap>) == 4);
static_assert(sizeof(String) == 8);
static_assert(sizeof(GUID) == 12);
static_assert(sizeof(TrapRegistration) == 32);
static_assert(sizeof(ListElementPage<eSNMPVersion, 4>) == 20);
static_assert(sizeof(List<eSNMPVersion, 4>) == 40);
static_assert(sizeof(ListElementPage<TrapRegistration, 4>) == 132);
static_assert(sizeof(List<TrapRegistration, 4>) == 152);

namespace {

// The 32-bit word at an offset, put together from its bytes: the most significant comes first.
unsigned int WordAt(const void* object, std::size_t offset) {
  unsigned char bytes[4];
  std::memcpy(bytes, static_cast<const unsigned char*>(object) + offset, sizeof(bytes));
  return static_cast<unsigned int>(bytes[0]) << 24U | static_cast<unsigned int>(bytes[1]) << 16U |
         static_cast<unsigned int>(bytes[2]) << 8U | bytes[3];
}

const void* PointerAt(const void* object, std::size_t offset) {
  const void* pointer = nullptr;
  std::memcpy(&pointer, static_cast<const unsigned char*>(object) + offset, sizeof(pointer));
  return pointer;
}

std::size_t Distance(const void* from, const void* to) {
  return static_cast<const unsigned char*>(to) - static_cast<const unsigned char*>(from);
}

}  // namespace

TEST(ValueLayout, TextAndLengthThenTypeReferenceAndCount) {
  char text[] = "library";
  zval value;
  std::memset(&value, 0xEE, sizeof(value));
  Z_STRVAL_P(&value) = text;
  Z_STRLEN_P(&value) = 7;
  Z_TYPE_P(&value) = IS_STRING;
  INIT_PZVAL(&value);
  EXPECT_EQ(text, PointerAt(&value, 0));
  EXPECT_EQ(7U, WordAt(&value, 4));
  EXPECT_EQ(0x03000001U, WordAt(&value, 8));  // string, no reference, one holder
}

TEST(ValueLayout, TypesHaveTheirNumbers) {
  const int types[] = {IS_NULL, IS_LONG, IS_DOUBLE, IS_STRING, IS_ARRAY, IS_OBJECT, IS_BOOL};
  for (int number = 0; number < 7; ++number) EXPECT_EQ(number, types[number]);
}

TEST(GUIDLayout, ThreeWordsTheirMostSignificantByteFirst) {
  const GUID identifier(0x01020304, 0x05060708, 0x090A0B0C);
  for (unsigned int i = 0; i < sizeof(identifier); ++i) {
    EXPECT_EQ(i + 1, reinterpret_cast<const unsigned char*>(&identifier)[i]);
  }
}

TEST(GUIDLayout, TextHasTheWordsInTheirOrder) {
  EXPECT_STREQ("01020304-05060708-090a0b0c", guidToCString(GUID(0x01020304, 0x05060708, 0x090A0B0C)));
  char text[] = "01020304-05060708-090a0b0c";
  EXPECT_TRUE(cStringToGUID(text) == GUID(0x01020304, 0x05060708, 0x090A0B0C));
}

TEST(StringLayout, PointerToTheCallersTextAndTheWordOne) {
  const char text[] = "192.0.2.7";
  const String string(text);
  EXPECT_EQ(text, PointerAt(&string, 0));
  EXPECT_EQ(1U, WordAt(&string, 4));
}

TEST(TrapRegistrationLayout, TablePortAddressIdentifierTransport) {
  const char address[] = "192.0.2.7";
  TrapRegistration registration;
  registration.setPort(162);
  registration.setIPAddress(String(address));
  registration.setTransport(static_cast<Velm::eTransportType>(0x01020304));
  EXPECT_EQ(162U, WordAt(&registration, 4));
  EXPECT_EQ(address, PointerAt(&registration, 8));
  EXPECT_EQ(1U, WordAt(&registration, 12));
  for (const std::size_t word : {16, 20, 24}) EXPECT_EQ(0U, WordAt(&registration, word));
  EXPECT_EQ(0x01020304U, WordAt(&registration, 28));
}

TEST(ListLayout, HeapCountFirstPageTailCursorAndItsIndex) {
  const sp<IHeap> heap = getSystemTransientObjHeap();
  List<eSNMPVersion, 4> list(heap);
  EXPECT_EQ(heap.operator->(), PointerAt(&list, 0));
  EXPECT_EQ(0U, WordAt(&list, 4));
  for (const std::size_t empty : {8, 12, 16, 20, 24, 28, 32, 36}) EXPECT_EQ(0U, WordAt(&list, empty));

  for (unsigned int version = 1; version <= 5; ++version) list.Append(static_cast<eSNMPVersion>(version));
  EXPECT_EQ(5U, WordAt(&list, 4));
  for (unsigned int slot = 0; slot < 4; ++slot) EXPECT_EQ(slot + 1, WordAt(&list, 8 + 4 * slot));
  const void* const secondPage = PointerAt(&list, 24);
  EXPECT_EQ(secondPage, PointerAt(&list, 28)) << "the tail";
  EXPECT_EQ(5U, WordAt(secondPage, 0));
  EXPECT_EQ(nullptr, PointerAt(secondPage, 16));

  eSNMPVersion version = {};
  list.Item(2, version);
  EXPECT_EQ(8U, Distance(&list, PointerAt(&list, 32))) << "the cursor is in the first page";
  EXPECT_EQ(3U, WordAt(&list, 36));
  list.Item(3, version);
  EXPECT_EQ(secondPage, PointerAt(&list, 32));
  EXPECT_EQ(4U, WordAt(&list, 36));
}

TEST(ListLayout, PageOfTrapRegistrationsHasARecordEach32BytesAndThenTheNextPage) {
  constexpr std::size_t FirstPage = 8;
  constexpr std::size_t Next = 128;
  const char* const addresses[] = {"192.0.2.1", "192.0.2.2", "192.0.2.3", "192.0.2.4", "192.0.2.5",
                                   "192.0.2.6", "192.0.2.7", "192.0.2.8", "192.0.2.9"};
  List<TrapRegistration, 4> list(getSystemTransientObjHeap());
  for (unsigned int index = 0; index < 9; ++index) {
    TrapRegistration registration;
    registration.setPort(1000 + index);
    registration.setIPAddress(String(addresses[index]));
    registration.setTransport(static_cast<Velm::eTransportType>(0x01020300 + index));
    ASSERT_EQ(Result::Succeeded, list.Append(registration));
  }
  const void* const tableOfRecords = PointerAt(&list, FirstPage);
  const auto* const secondPage = static_cast<const unsigned char*>(PointerAt(&list, FirstPage + Next));
  unsigned int index = 4;
  for (const std::size_t record : {0, 32, 64, 96}) {
    EXPECT_EQ(tableOfRecords, PointerAt(secondPage, record));
    EXPECT_EQ(1000 + index, WordAt(secondPage, record + 4));
    EXPECT_EQ(addresses[index], PointerAt(secondPage, record + 8));
    EXPECT_EQ(1U, WordAt(secondPage, record + 12));
    for (const std::size_t word : {16, 20, 24}) EXPECT_EQ(0U, WordAt(secondPage, record + word));
    EXPECT_EQ(0x01020300 + index, WordAt(secondPage, record + 28));
    ++index;
  }
  const void* const thirdPage = PointerAt(secondPage, Next);
  EXPECT_EQ(1008U, WordAt(thirdPage, 4));
  EXPECT_EQ(addresses[8], PointerAt(thirdPage, 8));
  EXPECT_EQ(nullptr, PointerAt(thirdPage, Next));
  EXPECT_EQ(thirdPage, PointerAt(&list, FirstPage + Next + 4)) << "the tail";
}

TEST(ListLayout, HeapHandleInTheWordInFrontOfAPage) {
  const sp<IHeap> heap = getSystemTransientObjHeap();
  List<eSNMPVersion, 4> list(heap);
  for (int i = 0; i < 5; ++i) list.Append(Velm::SNMP_VERSION_1);
  const auto* const secondPage = static_cast<const unsigned char*>(PointerAt(&list, 24));
  EXPECT_EQ(heap.operator->(), PointerAt(secondPage - sizeof(void*), 0));
}

TEST(Handle, IsTheObjectsAddress) {
  const sp<IHeap> heap = getSystemTransientObjHeap();
  EXPECT_EQ(heap.operator->(), PointerAt(&heap, 0));
}

TEST(ResultCodes, SuccessIsTheMostSignificantBitOfTheFirstByte) {
  EXPECT_EQ(0x80U, reinterpret_cast<const unsigned char*>(&Result::Succeeded)[0] & 0x80U);
  EXPECT_EQ(0U, reinterpret_cast<const unsigned char*>(&Result::Failed)[0] & 0x80U);
}

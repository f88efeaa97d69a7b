// Files and clipboard texts that are made to take as much memory and work as they can.

#include <gtest/gtest.h>

#include <string>

#include "allocation_meter.h"
#include "case_name.h"
#include "hostile_library.h"
#include "library_testing.h"
#include "little_memory.h"
#include "number_text.h"
#include "schematic_data.h"
#include "text_encoding.h"

namespace mivo {
namespace {

class HostileInput : public testing::TestWithParam<HostileCase> {};

INSTANTIATE_TEST_SUITE_P(, HostileInput, testing::ValuesIn(HostileCases()), kCaseName);

// --- Memory --------------------------------------------------------------------------------------

constexpr std::size_t kMegabyte = std::size_t{1} << 20;

/// What a load or a paste may take beside the bit patterns that are declared.
std::size_t Budget(std::size_t inputBytes) {
  return 64 * kMegabyte + 12 * inputBytes;
}

// Long enough to make the constant part small.
constexpr std::size_t kLong = 24 * kMegabyte;

std::size_t PeakOfLoading(const std::string& file) {
  SMivoDoc library;
  const AllocationMeter meter;
  static_cast<void>(library.Load(file, u"test.ZLB"));
  return meter.Peak();
}

TEST_P(HostileInput, LoadsInTheMemoryBudget) {
  if (kHasSanitizer) GTEST_SKIP() << "too slow, and would count the same";
  const std::string file = HostileLibrary(GetParam(), kLong);
  EXPECT_LE(PeakOfLoading(file), Budget(file.size()));
}

TEST_P(HostileInput, LoadsInTheMemoryBudgetFromTheOldCodePage) {
  if (kHasSanitizer) GTEST_SKIP() << "too slow, and would count the same";
  const std::string file = HostileLibrary(GetParam(), kLong, 70);
  EXPECT_LE(PeakOfLoading(file), Budget(file.size()));
}

TEST_P(HostileInput, PastesInTheMemoryBudget) {
  if (kHasSanitizer) GTEST_SKIP() << "too slow, and would count the same";
  const std::u16string text =
      u"+TARSL_DATA_V.1.0\n" + Utf8ToUtf16(HostileLibrary(GetParam(), kLong));
  SMivoDoc library;
  const AllocationMeter meter;
  static_cast<void>(PasteComponentText(library, text));
  EXPECT_LE(meter.Peak(), Budget(text.size() * sizeof(char16_t)));
}

TEST(HostileBitPatterns, TakeWhatTheyDeclareAndAreRefusedPastAGibibyte) {
  if (kHasSanitizer) GTEST_SKIP() << "too slow, and would count the same";
  const auto file = [](int count) {
    std::u16string records;
    for (int n = 0; n < count; ++n) {
      records += u"+PTN,X:501,Y:501,N:" + std::u16string(IntText(n)) + u",+BMP,-BMP,-PTN,";
    }
    return LibraryFile(records);
  };
  constexpr std::size_t kDeclared = 64 * 501;
  constexpr int kMost = static_cast<int>((std::size_t{1} << 30) / kDeclared);
  SMivoDoc library;
  EXPECT_TRUE(library.Load(file(kMost), u"test.ZLB"));
  const std::string tooMany = file(kMost + 1);
  SMivoDoc refusing;
  const AllocationMeter meter;
  EXPECT_FALSE(refusing.Load(tooMany, u"test.ZLB"));
  EXPECT_LE(meter.Peak(), Budget(tooMany.size()) + kDeclared * kMost);
}

TEST(HostileInputOfRecords, AMillionPinsLoad) {
  if (kHasSanitizer) GTEST_SKIP() << "too slow";
  std::u16string records = u"+COMP,N:A,X:1,Y:1,B:255\n";
  for (int n = 0; n < 1000000; ++n) records += u"+PIN,N:A,DF:FFFFFFFF,L:L1,T:,M:1,-PIN\n";
  const LoadedLibrary library(LibraryFile(records + u"-COMP\n"));
  ASSERT_TRUE(library.loaded);
  EXPECT_EQ(library.library.Components().front()->Pins().size(), 1000000u);
}

TEST(HostileInputOfRecords, AMillionComponentsOfOneNameLoad) {
  if (kHasSanitizer) GTEST_SKIP() << "too slow";
  std::u16string records;
  for (int n = 0; n < 1000000; ++n) records += ComponentRecord(n % 2 == 0 ? u"R" : u"R(1)");
  SMivoDoc library;
  ASSERT_TRUE(library.Load(LibraryFile(records), u"test.ZLB"));
  EXPECT_EQ(library.Components().size(), 1000000u);
}

// --- Work ----------------------------------------------------------------------------------------

TEST_P(HostileInput, AsksForMemoryInProportionToItsLength) {
  const auto callsFor = [](std::size_t bytes) {
    const std::string file = HostileLibrary(GetParam(), bytes);
    SMivoDoc library;
    const AllocationMeter meter;
    static_cast<void>(library.Load(file, u"test.ZLB"));
    return meter.Calls();
  };
  constexpr std::size_t kShort = 100000;
  EXPECT_LT(callsFor(4 * kShort), 5 * callsFor(kShort) + 100);
}

}  // namespace
}  // namespace mivo

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

#include "allocation_meter.h"
#include "case_name.h"
#include "library_testing.h"

// Work and memory that grow with a file, and no faster, whatever the file holds.

namespace mivo {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

struct Cost {
  std::size_t calls;
  std::size_t bytes;
};

/// What the load of `file`, which must succeed or fail as said, asks of the memory.
Cost CostOfLoading(const std::string& file, bool loads = true) {
  SMivoDoc library;
  const AllocationMeter meter;
  EXPECT_EQ(library.Load(file, u"test.ZLB"), loads);
  return {meter.Calls(), meter.Bytes()};
}

/// Every entry of a list has its own name, and every name is found.
void ExpectUniqueNames(const SMivoDoc& library) {
  for (const auto& entry : library.Names().Entries()) {
    ASSERT_EQ(library.Names().Find(entry->Name()), entry.get());
  }
}

struct GrowthCase {
  const char* name;
  std::function<std::u16string(int)> record;  ///< the n-th record
};

void PrintTo(const GrowthCase& growth, std::ostream* out) {
  *out << growth.name;
}

class LibraryGrowth : public testing::TestWithParam<GrowthCase> {};

TEST_P(LibraryGrowth, IsLinear) {
  const auto file = [](int count) {
    std::u16string records = u"+PTN,N:p,X:1,Y:1,-PTN\n" + ComponentRecord(u"FIRST", u"P:p");
    for (int n = 0; n < count; ++n) records += GetParam().record(n);
    return LibraryFile(records);
  };
  const std::string once = file(2000);
  const std::string fourTimes = file(8000);
  const Cost small = CostOfLoading(once);
  const Cost large = CostOfLoading(fourTimes);
  EXPECT_LT(large.calls, 5 * small.calls);
  EXPECT_LT(large.bytes, 6 * small.bytes);
}

// Names too long to be stored without an allocation, so that every name tried counts.
const GrowthCase kGrowth[] = {
    {"ComponentsOfOneName", [](int) { return ComponentRecord(u"OPERATIONAL-AMPLIFIER"); }},
    {"NamesAndTheirNumbersMixed",
     [](int n) {
       return ComponentRecord(n % 2 == 0 ? u"OPERATIONAL-AMPLIFIER" : u"OPERATIONAL-AMPLIFIER(1)");
     }},
    {"AliasesOfOneName", [](int) { return AliasRecord(u"OPERATIONAL-AMPLIFIER", u"FIRST"); }},
    {"ComponentsWithOnePattern", [](int) { return ComponentRecord(u"OPERATIONAL", u"P:p"); }},
    {"PatternsOfOneName", [](int) { return std::u16string(u"+PTN,N:q,X:1,Y:1,+L,-L,-PTN\n"); }},
    {"UnknownRecords", [](int) { return std::u16string(u"+UNKNOWN-RECORD,-UNKNOWN-RECORD\n"); }},
    {"UnknownKeys", [](int) { return std::u16string(u"AN-UNKNOWN-KEY:%20value\n"); }}};

INSTANTIATE_TEST_SUITE_P(, LibraryGrowth, testing::ValuesIn(kGrowth), kCaseName);

TEST(LibraryWork, FindsNamesForThousandsOfEqualOnes) {
  std::u16string records;
  for (int n = 0; n < 4000; ++n) records += ComponentRecord(n % 2 == 0 ? u"R" : u"R(1)");
  const LoadedLibrary library(LibraryFile(records));
  ASSERT_TRUE(library.loaded);
  ExpectUniqueNames(library.library);
}

TEST(LibraryWork, EndsForTensOfThousandsOfEqualNames) {
  std::u16string records;
  for (int n = 0; n < 50000; ++n) records += ComponentRecord(n % 2 == 0 ? u"R" : u"R(1)");
  const LoadedLibrary library(LibraryFile(records));
  EXPECT_TRUE(library.loaded);
  EXPECT_THAT(library.library.Components(), SizeIs(50000));
}

TEST(LibraryWork, AsksNothingForNumbersThatPinsDoNotHave) {
  const auto file = [](std::u16string_view blocks) {
    std::u16string records = u"+COMP,N:A,X:1,Y:1,B:";
    records += blocks;
    records += u'\n';
    for (int n = 0; n < 10000; ++n) records += u"+PIN,M:1,-PIN\n";
    return LibraryFile(records + u"-COMP\n");
  };
  EXPECT_EQ(CostOfLoading(file(u"255")).bytes, CostOfLoading(file(u"001")).bytes);
}

TEST(LibraryWork, SharesAPatternAmongItsComponents) {
  std::u16string pattern = u"+PTN,N:p,X:501,Y:501,+BMP,-BMP\n";
  for (int n = 0; n < 1000; ++n) pattern += u"+L,X:1,Y:1,X:9,Y:9,-L\n";
  pattern += u"-PTN\n";
  const auto file = [&](std::u16string_view field) {
    std::u16string records = pattern;
    for (int n = 0; n < 1000; ++n) records += ComponentRecord(u"A", field);
    return LibraryFile(records);
  };
  const Cost with = CostOfLoading(file(u"P:p"));
  const Cost without = CostOfLoading(file(u"R:p"));
  EXPECT_LT(with.bytes, without.bytes + 1000);
}

struct RefusedCase {
  const char* name;
  std::u16string records;
  bool loads;
};

void PrintTo(const RefusedCase& refused, std::ostream* out) {
  *out << refused.name;
}

class LibraryClaim : public testing::TestWithParam<RefusedCase> {};

// The reader's own buffers take less than half of this.
constexpr std::size_t kMegabyte = 1 << 20;

TEST_P(LibraryClaim, TakesNoMemory) {
  EXPECT_LT(CostOfLoading(LibraryFile(GetParam().records), GetParam().loads).bytes, kMegabyte);
}

INSTANTIATE_TEST_SUITE_P(
    , LibraryClaim,
    testing::Values(
        RefusedCase{"BitPatternOfAllThatIsAllowed", u"+PTN,N:p,X:1,Y:536870912,+BMP,-BMP,-PTN\n",
                    true},
        RefusedCase{"BitPatternTooLarge", u"+PTN,N:p,X:1,Y:536870913,+BMP,-BMP,-PTN\n", false},
        RefusedCase{"BitPatternBeyondAllBounds",
                    u"+PTN,N:p,X:2147483647,Y:2147483647,+BMP,-BMP,-PTN\n", false},
        RefusedCase{"SizeGrownBehindTheBitPattern",
                    u"+PTN,N:p,X:1,Y:1,+BMP,-BMP,X:2147483647,Y:2147483647,-PTN\n", false},
        RefusedCase{"BlocksWithoutPins", u"+COMP,N:A,X:2147483647,Y:2147483647,B:255,-COMP\n",
                    true},
        RefusedCase{"Vertices", u"+PTN,N:p,+PG,N:2147483647,-PG,-PTN\n", true}),
    kCaseName);

TEST(LibraryClaimOfSize, IsSavedAsShortAsItIs) {
  const LoadedLibrary library(LibraryFile(u"+PTN,N:p,X:8,Y:1,+BMP,OO,-BMP,Y:268435456,-PTN\n" +
                                          ComponentRecord(u"A", u"P:p")));
  ASSERT_TRUE(library.loaded);
  EXPECT_LT(Saved(library.library).size(), 200u);
}

/// Openings of records that are never closed, 100,000 deep.
std::u16string NestedRecords(std::u16string_view tag) {
  std::u16string records;
  for (int n = 0; n < 100000; ++n) records += tag;
  return records;
}

class UnclosedRecords : public testing::TestWithParam<RefusedCase> {};

TEST_P(UnclosedRecords, EndAtOnce) {
  const std::string file = "+TARSL_LIB_V.1.0\nVER:82\n" + Utf16ToUtf8(GetParam().records);
  EXPECT_LT(CostOfLoading(file, GetParam().loads).bytes, kMegabyte);
  const LoadedLibrary library(file);
  EXPECT_THAT(library.findings.all, SizeIs(testing::Le(6u)));
  EXPECT_THAT(library.Names(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    , UnclosedRecords,
    testing::Values(
        RefusedCase{"InALibrary", NestedRecords(u"+A,"), false},
        RefusedCase{"InAComponent", u"+COMP,N:A," + NestedRecords(u"+A,"), false},
        RefusedCase{"InAPin", u"+COMP,N:A,X:1,Y:1,B:1,+PIN," + NestedRecords(u"+A,"), false},
        RefusedCase{"InAnAlias", u"+ALIAS," + NestedRecords(u"+A,"), false},
        RefusedCase{"InAPattern", u"+PTN," + NestedRecords(u"+A,"), false},
        RefusedCase{"InABitPattern", u"+PTN,N:A,X:1,Y:1,+BMP," + NestedRecords(u"+A,"), false},
        RefusedCase{"InALine", u"+PTN,+L," + NestedRecords(u"+A,"), true},
        RefusedCase{"LinesInLines", u"+PTN," + NestedRecords(u"+L,"), true},
        RefusedCase{"PatternsInPatterns", NestedRecords(u"+PTN,"), false},
        RefusedCase{"ComponentsInComponents", NestedRecords(u"+COMP,"), false}),
    kCaseName);

}  // namespace
}  // namespace mivo

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "case_name.h"
#include "library_testing.h"
#include "recorded_progress.h"

// How far loading and saving have come.

namespace mivo {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::Pair;

/// A library of more than three million bytes whose records lie across every border of the pieces
/// in which it is read.
std::string LargeLibrary(const std::string& version) {
  std::string bytes = "+TARSL_LIB_V.1.0\nVER:" + version + "\nPROP:\n";
  for (int i = 0; bytes.size() < 3200000; ++i) {
    bytes += "+COMP,N:part" + std::to_string(i) + ",X:1,Y:1,B:1,NOTE:" + std::string(99, 'n') +
             ",-COMP\n";
  }
  return bytes + "-TARSL_LIB_V.1.0\n";
}

struct ProgressCase {
  const char* name;
  const char* front;  ///< in front of a library
  const char* version;
  std::size_t halves;  ///< what is not in UTF-8, or no library alone, is fetched before it is read
};

void PrintTo(const ProgressCase& progressCase, std::ostream* out) {
  *out << progressCase.name;
}

class LoadProgressTest : public testing::TestWithParam<ProgressCase> {};

TEST_P(LoadProgressTest, CountsTheBytesToTheLastOne) {
  const std::string bytes = GetParam().front + LargeLibrary(GetParam().version);
  const std::size_t total = GetParam().halves * bytes.size();
  RecordedProgress progress;
  SMivoDoc library;
  ASSERT_TRUE(library.Load(bytes, u"a.ZLB", nullptr, &progress));
  EXPECT_GE(progress.calls.size(), 3u);
  EXPECT_TRUE(progress.Ascends());
  EXPECT_THAT(progress.calls, Each(Pair(testing::_, total)));
  EXPECT_LT(progress.calls.front().first, total / 10);
  EXPECT_EQ(progress.calls.back().first, total);
  // Nothing was lost between the pieces.
  const std::u16string last =
      u"part" + Utf8ToUtf16(std::to_string(library.Names().Entries().size() - 1));
  EXPECT_NE(library.Names().Find(last), nullptr);
  for (const auto& component : library.Components()) ASSERT_EQ(component->note.size(), 99u);
}

INSTANTIATE_TEST_SUITE_P(, LoadProgressTest,
                         testing::Values(ProgressCase{"Library", "", "82", 1},
                                         ProgressCase{"LibraryInTheCodePage", "", "70", 2},
                                         ProgressCase{"Schematic", "+TARSL_DATA_V.1.0\nVER:82\n",
                                                      "82", 2}),
                         kCaseName);

TEST(SaveProgress, CountsTheEntries) {
  LoadedLibrary file(
      LibraryFile(ComponentRecord(u"a") + ComponentRecord(u"b") + ComponentRecord(u"c")));
  std::vector<const NameEntry*> entries;
  for (const auto& entry : file.library.Names().Entries()) entries.push_back(entry.get());
  std::string bytes;
  StringByteSink sink(bytes);
  RecordedProgress progress;
  ASSERT_TRUE(file.library.Write(sink, entries, &progress));
  EXPECT_THAT(progress.calls, ElementsAre(Pair(0, 3), Pair(1, 3), Pair(2, 3)));
}

}  // namespace
}  // namespace mivo

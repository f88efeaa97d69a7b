#include <gmock/gmock.h>
#include <gtest/gtest.h>

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

class LoadProgressTest : public testing::TestWithParam<const char*> {};

TEST_P(LoadProgressTest, CountsTheBytesToTheLastOne) {
  const std::string bytes = LargeLibrary(GetParam());
  RecordedProgress progress;
  SMivoDoc library;
  ASSERT_TRUE(library.Load(bytes, u"a.ZLB", nullptr, &progress));
  EXPECT_GE(progress.calls.size(), 3u);
  EXPECT_TRUE(progress.Ascends());
  EXPECT_THAT(progress.calls, Each(Pair(testing::_, bytes.size())));
  EXPECT_EQ(progress.calls.back().first, bytes.size());
  // Nothing was lost between the pieces.
  const std::u16string last =
      u"part" + Utf8ToUtf16(std::to_string(library.Names().Entries().size() - 1));
  EXPECT_NE(library.Names().Find(last), nullptr);
  for (const auto& component : library.Components()) ASSERT_EQ(component->note.size(), 99u);
}

INSTANTIATE_TEST_SUITE_P(InUtf8AndInTheCodePage, LoadProgressTest, testing::Values("82", "70"));

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

#include "safety_copies.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "temp_folder.h"

#ifndef _WIN32
#include "unprivileged_user.h"
#endif

namespace mivo {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

using Kind = SafetyCopies::Kind;
using Durability = SafetyCopies::Durability;

class SafetyCopiesTest : public testing::Test {
 protected:
  [[nodiscard]] bool Keep(std::string_view content, Kind kind = Kind::Previous) const {
    return copies_.Keep(File(), content, kind, Durability::LeftToTheSystem);
  }
  [[nodiscard]] fs::path File() const { return folder_ / "parts.ZLB"; }

  /// "name: content" of each copy, in alphabetical order.
  [[nodiscard]] std::vector<std::string> Kept() const {
    std::vector<std::string> kept;
    std::error_code none;
    for (const auto& entry : fs::directory_iterator(copies_.FolderOf(File()), none)) {
      kept.push_back(entry.path().filename().string() + ": " + BytesOf(entry.path()));
    }
    std::sort(kept.begin(), kept.end());
    return kept;
  }

  const TempFolder folder_;
  const SafetyCopies copies_{folder_ / "state/copies"};
};

TEST_F(SafetyCopiesTest, NothingIsCreatedBeforeSomethingIsKept) {
  EXPECT_THAT(folder_.Names(), IsEmpty());
}

TEST_F(SafetyCopiesTest, CopiesAreNumberedInTheirOrder) {
  EXPECT_TRUE(Keep("one"));
  EXPECT_TRUE(Keep("two"));
  EXPECT_THAT(Kept(), ElementsAre("0001-parts.ZLB: one", "0002-parts.ZLB: two"));
}

TEST_F(SafetyCopiesTest, TheLastFiveStay) {
  for (const char* content : {"1", "2", "3", "4", "5", "6", "7"}) EXPECT_TRUE(Keep(content));
  EXPECT_THAT(Kept(), ElementsAre("0003-parts.ZLB: 3", "0004-parts.ZLB: 4", "0005-parts.ZLB: 5",
                                  "0006-parts.ZLB: 6", "0007-parts.ZLB: 7"));
}

TEST_F(SafetyCopiesTest, WhatWasKeptLastIsNotKeptAgain) {
  for (const char* content : {"same", "same", "other", "same"}) EXPECT_TRUE(Keep(content));
  EXPECT_THAT(Kept(),
              ElementsAre("0001-parts.ZLB: same", "0002-parts.ZLB: other", "0003-parts.ZLB: same"));
}

TEST_F(SafetyCopiesTest, OriginalsOutliveLaterCopies) {
  EXPECT_TRUE(Keep("with unknown records", Kind::Original));
  for (const char* content : {"1", "2", "3", "4", "5", "6"}) EXPECT_TRUE(Keep(content));
  EXPECT_THAT(Kept(), ElementsAre("0003-parts.ZLB: 2", "0004-parts.ZLB: 3", "0005-parts.ZLB: 4",
                                  "0006-parts.ZLB: 5", "0007-parts.ZLB: 6",
                                  "original-0001-parts.ZLB: with unknown records"));
}

TEST_F(SafetyCopiesTest, TheLastFiveOriginalsStayToo) {
  for (const char* content : {"1", "2", "3", "4", "5", "6"}) {
    EXPECT_TRUE(Keep(content, Kind::Original));
  }
  EXPECT_EQ(Kept().size(), 5u);
  EXPECT_EQ(Kept().front(), "original-0002-parts.ZLB: 2");
}

TEST_F(SafetyCopiesTest, AFileCalledLikeAnOriginalIsNone) {
  const fs::path file = folder_ / "original-0001-parts.ZLB";
  EXPECT_TRUE(copies_.Keep(file, "a", Kind::Previous, Durability::OnDisk));
  for (const char* content : {"1", "2", "3", "4", "5"}) {
    EXPECT_TRUE(copies_.Keep(file, content, Kind::Previous, Durability::OnDisk));
  }
  EXPECT_FALSE(fs::exists(copies_.FolderOf(file) / "0001-original-0001-parts.ZLB"));
}

TEST_F(SafetyCopiesTest, OtherFilesInTheFolderStay) {
  EXPECT_TRUE(Keep("0"));
  const fs::path folder = copies_.FolderOf(File());
  for (const char* name :
       {"notes", "0001", "01-x", "0000-x", "original-x", "99999999999999999999-x"}) {
    fs::copy_file(folder / "0001-parts.ZLB", folder / name);
  }
  for (const char* content : {"1", "2", "3", "4", "5"}) EXPECT_TRUE(Keep(content));
  EXPECT_EQ(Kept().size(), 11u);
}

TEST_F(SafetyCopiesTest, FilesOfTheSameNameDoNotMix) {
  EXPECT_TRUE(Keep("one"));
  fs::create_directory(folder_ / "sub");
  EXPECT_TRUE(copies_.Keep(folder_ / "sub/parts.ZLB", "two", Kind::Previous, Durability::OnDisk));
  EXPECT_THAT(Kept(), ElementsAre("0001-parts.ZLB: one"));
}

TEST_F(SafetyCopiesTest, WhatAKilledProcessBeganIsReplaced) {
  EXPECT_TRUE(Keep("one"));
  folder_.Put((copies_.FolderOf(File()) / "incoming").string(), "a much longer half of a copy");
  EXPECT_TRUE(Keep("two"));
  EXPECT_THAT(Kept(), ElementsAre("0001-parts.ZLB: one", "0002-parts.ZLB: two"));
}

TEST_F(SafetyCopiesTest, AFileWithANameOfTheGreatestLengthIsKept) {
  const fs::path file = folder_ / std::string(255, 'n');
  EXPECT_TRUE(copies_.Keep(file, "content", Kind::Original, Durability::OnDisk));
}

#ifndef _WIN32  // no permissions keep files out of a folder there
TEST_F(SafetyCopiesTest, AStateFolderThatTakesNothingIsAFailure) {
  EXPECT_TRUE(Keep("one"));
  const UnprivilegedUser user;
  fs::permissions(copies_.FolderOf(File()), fs::perms::owner_read | fs::perms::owner_exec);
  EXPECT_FALSE(Keep("two"));
  fs::permissions(copies_.FolderOf(File()), fs::perms::owner_all);
  EXPECT_THAT(Kept(), ElementsAre("0001-parts.ZLB: one"));
}
#endif

TEST(SafetyCopies, WithoutAFolderNothingIsKept) {
  EXPECT_FALSE(SafetyCopies({}).Keep("/file", "content", Kind::Previous, Durability::OnDisk));
}

}  // namespace
}  // namespace mivo

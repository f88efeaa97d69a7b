#include "library_guard.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <string>

#include "child_process.h"
#include "open_doc.h"

namespace mivo {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

const std::string kParts = LibraryText(ComponentText("first") + ComponentText("second"));
const std::string kOther = LibraryText(ComponentText("other"));

class LibraryGuardTest : public testing::Test {
 protected:
  void Open(LibraryGuard::Losses losses = LibraryGuard::Losses::None) {
    guard_.Opened(open_.View(), IdentityOf(kParts), losses);
  }
  [[nodiscard]] bool HasChanged() const { return guard_.HasChangedOnDisk(Path()); }
  [[nodiscard]] LibraryGuard::SaveResult Save() { return guard_.Save(open_.View(), Path()); }
  [[nodiscard]] std::u16string Path() const { return TextFromPath(file_); }

  /// The copies of the library's file, oldest first.
  [[nodiscard]] std::vector<std::string> Copies() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(guard_.CopiesFolder())) {
      names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
  }

  const TempFolder folder_;
  const fs::path file_ = folder_.Put("parts.ZLB", kParts);
  OpenDoc open_{kParts, file_};
  LibraryGuard guard_{folder_ / "state"};
};

// --- A file that changed -------------------------------------------------------------------------

TEST_F(LibraryGuardTest, AnUntouchedFileHasNotChanged) {
  Open();
  EXPECT_FALSE(HasChanged());
}

TEST_F(LibraryGuardTest, AnotherContentIsAChange) {
  Open();
  folder_.Put("parts.ZLB", kOther);
  EXPECT_TRUE(HasChanged());
}

// The same size at the same time in the same file: only the content can tell.
TEST_F(LibraryGuardTest, AChangeThatSizeAndTimeDoNotShowIsNoticed) {
  Open();
  const auto time = fs::last_write_time(file_);
  std::string changed = kParts;
  changed[changed.find("first")] = 'F';
  folder_.Put("parts.ZLB", changed);
  fs::last_write_time(file_, time);
  EXPECT_TRUE(HasChanged());
}

// What a version control system does that goes to another branch and back.
TEST_F(LibraryGuardTest, TheSameContentInAnotherFileAtAnotherTimeIsNoChange) {
  Open();
  fs::remove(file_);
  folder_.Put("other", "takes the place of the file");
  folder_.Put("parts.ZLB", kParts);
  fs::last_write_time(file_, fs::file_time_type::clock::now() + std::chrono::hours(1));
  EXPECT_FALSE(HasChanged());
}

TEST_F(LibraryGuardTest, AFileThatIsGoneOrCannotBeReadIsNoChange) {
  Open();
  fs::remove(file_);
  EXPECT_FALSE(HasChanged());
  fs::create_directory(file_);
  EXPECT_FALSE(HasChanged());
}

TEST_F(LibraryGuardTest, AnotherPathThanTheLibrarysIsNoChange) {
  Open();
  EXPECT_FALSE(guard_.HasChangedOnDisk(TextFromPath(folder_.Put("another.ZLB", kOther))));
}

TEST_F(LibraryGuardTest, AfterASaveItsOwnContentCounts) {
  Open();
  open_.Add(u"new");
  EXPECT_TRUE(Save().saved);
  EXPECT_FALSE(HasChanged());
  folder_.Put("parts.ZLB", kParts);
  EXPECT_TRUE(HasChanged());
}

TEST_F(LibraryGuardTest, AFailedSaveKeepsWhatIsKnown) {
  Open();
  EXPECT_FALSE(guard_.Save(open_.View(), TextFromPath(folder_ / "missing/a.ZLB")).saved);
  EXPECT_FALSE(HasChanged());
  folder_.Put("parts.ZLB", kOther);
  EXPECT_TRUE(HasChanged());
}

// --- Safety copies -------------------------------------------------------------------------------

TEST_F(LibraryGuardTest, ASaveKeepsWhatItReplaces) {
  Open();
  open_.Add(u"new");
  EXPECT_TRUE(Save().copyKept);
  EXPECT_EQ(BytesOf(file_), TextOf(open_.View()));
  EXPECT_THAT(Copies(), ElementsAre("0001-parts.ZLB"));
  EXPECT_EQ(BytesOf(guard_.CopiesFolder() / "0001-parts.ZLB"), kParts);
}

TEST_F(LibraryGuardTest, WhatAnotherProgramWroteIsKeptToo) {
  Open();
  folder_.Put("parts.ZLB", kOther);
  EXPECT_TRUE(Save().saved);
  EXPECT_EQ(BytesOf(guard_.CopiesFolder() / "0001-parts.ZLB"), kOther);
}

TEST_F(LibraryGuardTest, TheFirstSaveOfWhatWasReadWithLossesKeepsTheOriginal) {
  Open(LibraryGuard::Losses::Some);
  for (const char16_t* name : {u"1", u"2", u"3", u"4", u"5", u"6", u"7"}) {
    open_.Add(name);
    EXPECT_TRUE(Save().saved);
  }
  EXPECT_EQ(Copies().size(), 6u);
  EXPECT_EQ(BytesOf(guard_.CopiesFolder() / "original-0001-parts.ZLB"), kParts);
}

TEST_F(LibraryGuardTest, ANewFileReplacesNothing) {
  Open();
  EXPECT_TRUE(guard_.Save(open_.View(), TextFromPath(folder_ / "new.ZLB")).copyKept);
  EXPECT_FALSE(fs::exists(folder_ / "state/copies"));
}

TEST_F(LibraryGuardTest, AStateFolderThatTakesNothingLetsASaveThrough) {
  folder_.Put("state", "a file in the way");
  Open();
  const auto result = Save();
  EXPECT_TRUE(result.saved);
  EXPECT_FALSE(result.copyKept);
}

TEST_F(LibraryGuardTest, AFileWithTwoNamesIsRewrittenOnceItIsCopied) {
  Open();
  fs::create_hard_link(file_, folder_ / "other name");
  open_.Add(u"new");
  EXPECT_TRUE(Save().saved);
  EXPECT_EQ(BytesOf(folder_ / "other name"), TextOf(open_.View()));
  EXPECT_THAT(Copies(), ElementsAre("0001-parts.ZLB"));
}

TEST_F(LibraryGuardTest, AFileWithTwoNamesThatCannotBeCopiedIsLeftAlone) {
  folder_.Put("state", "a file in the way");
  Open();
  fs::create_hard_link(file_, folder_ / "other name");
  open_.Add(u"new");
  const auto result = Save();
  EXPECT_FALSE(result.saved);
  EXPECT_FALSE(result.copyKept);
  EXPECT_EQ(BytesOf(file_), kParts);
}

TEST_F(LibraryGuardTest, NothingIsWrittenIntoTheFolderOfTheLibrary) {
  fs::create_directory(folder_ / "libs");
  const fs::path file = folder_.Put("libs/parts.ZLB", kParts);
  OpenDoc open(kParts, file);
  guard_.Opened(open.View(), IdentityOf(kParts), LibraryGuard::Losses::Some);
  open.Add(u"new");
  guard_.RecordNames(open.View());
  EXPECT_TRUE(guard_.Save(open.View(), TextFromPath(file)).saved);
  EXPECT_EQ(std::distance(fs::directory_iterator(folder_ / "libs"), fs::directory_iterator()), 1);
}

// --- Two programs with one file ------------------------------------------------------------------

TEST_F(LibraryGuardTest, TheSecondProgramIsTold) {
  Open();
  EXPECT_FALSE(guard_.IsOpenElsewhere());
  LibraryGuard second(folder_ / "state");
  second.Opened(open_.View(), IdentityOf(kParts), LibraryGuard::Losses::None);
  EXPECT_TRUE(second.IsOpenElsewhere());
  second.OpenedWithoutFile(open_.View());
  EXPECT_FALSE(second.IsOpenElsewhere());
}

TEST_F(LibraryGuardTest, TheFileIsFreeOnceTheFirstProgramLeavesIt) {
  Open();
  guard_.Left();
  LibraryGuard second(folder_ / "state");
  second.Opened(open_.View(), IdentityOf(kParts), LibraryGuard::Losses::None);
  EXPECT_FALSE(second.IsOpenElsewhere());
}

#ifndef _WIN32  // there is no fork
TEST_F(LibraryGuardTest, AKilledProgramIsNoObstacle) {
  ASSERT_EQ(RunInChild([&]() -> std::string {
              Open();
              std::raise(SIGKILL);
              return "alive";
            }),
            "signal 9");
  Open();
  EXPECT_FALSE(guard_.IsOpenElsewhere());
}
#endif

TEST_F(LibraryGuardTest, TheFileThatASaveMovesToCountsAsOpen) {
  Open();
  const fs::path other = folder_ / "other.ZLB";
  EXPECT_TRUE(guard_.Save(open_.View(), TextFromPath(other)).saved);
  LibraryGuard second(folder_ / "state");
  second.Opened(open_.View(), IdentityOf(kParts), LibraryGuard::Losses::None);
  EXPECT_FALSE(second.IsOpenElsewhere()) << "the file it was";
  OpenDoc moved(BytesOf(other), other);
  second.Opened(moved.View(), IdentityOf(BytesOf(other)), LibraryGuard::Losses::None);
  EXPECT_TRUE(second.IsOpenElsewhere()) << "the file it is";
}

// --- One file under two paths
// ---------------------------------------------------------------------

/// The library's file, spelt in another way.
class LibraryGuardOtherSpellingTest : public LibraryGuardTest {
 protected:
  LibraryGuardOtherSpellingTest() {
    fs::create_directory(folder_ / "sub");
    spelling_ = TextFromPath(folder_ / "sub/../parts.ZLB");
    Open(LibraryGuard::Losses::Some);
  }

  std::u16string spelling_;
};

TEST_F(LibraryGuardOtherSpellingTest, TheSecondProgramIsTold) {
  LibraryGuard second(folder_ / "state");
  const OpenDoc spelt(kParts, PathFromText(spelling_));
  second.Opened(spelt.View(), IdentityOf(kParts), LibraryGuard::Losses::None);
  EXPECT_TRUE(second.IsOpenElsewhere());
}

TEST_F(LibraryGuardOtherSpellingTest, AChangeIsNoticed) {
  EXPECT_FALSE(guard_.HasChangedOnDisk(spelling_));
  folder_.Put("parts.ZLB", kOther);
  EXPECT_TRUE(guard_.HasChangedOnDisk(spelling_));
}

TEST_F(LibraryGuardOtherSpellingTest, TheOriginalIsKept) {
  open_.Add(u"new");
  EXPECT_TRUE(guard_.Save(open_.View(), spelling_).saved);
  EXPECT_THAT(Copies(), ElementsAre("original-0001-parts.ZLB"));
}

// --- Recovery ------------------------------------------------------------------------------------

#ifndef _WIN32  // there is no fork
TEST_F(LibraryGuardTest, ARestoredLibraryIsInARecoveryFileOfItsOwn) {
  Open();
  open_.Add(u"new");
  guard_.RecordNames(open_.View());
  {
    LibraryGuard next(folder_ / "state");
    EXPECT_THAT(next.FindRecoveries(), IsEmpty()) << "the first program is running";
  }
  ASSERT_EQ(RunInChild([&]() -> std::string {
              LibraryGuard crashing(folder_ / "state");
              if (crashing.Restored(open_.View(), open_.start)) std::raise(SIGKILL);
              return "alive";
            }),
            "signal 9");
  const auto found = LibraryGuard(folder_ / "state").FindRecoveries();
  ASSERT_EQ(found.size(), 1u);
  EXPECT_EQ(TextOf(found[0].library.doc), TextOf(open_.View()));
}
#endif

TEST_F(LibraryGuardTest, ARestoredLibraryKnowsWhatItsFileHeld) {
  EXPECT_TRUE(guard_.Restored(open_.View(), {Path(), IdentityOf(kParts)}));
  EXPECT_FALSE(HasChanged());
  folder_.Put("parts.ZLB", kOther);
  EXPECT_TRUE(HasChanged());
}

TEST_F(LibraryGuardTest, ASaveLeavesNothingToRecover) {
  Open();
  open_.Add(u"new");
  guard_.RecordNames(open_.View());
  EXPECT_FALSE(fs::is_empty(folder_ / "state/recovery"));
  EXPECT_TRUE(Save().saved);
  EXPECT_TRUE(fs::is_empty(folder_ / "state/recovery"));
}

TEST_F(LibraryGuardTest, AFailedSaveLeavesTheRecoveryFile) {
  Open();
  open_.Add(u"new");
  guard_.RecordNames(open_.View());
  EXPECT_FALSE(guard_.Save(open_.View(), TextFromPath(folder_ / "missing/a.ZLB")).saved);
  EXPECT_FALSE(fs::is_empty(folder_ / "state/recovery"));
}

TEST_F(LibraryGuardTest, LeavingTheLibraryLeavesNothingBehind) {
  Open();
  open_.Add(u"new");
  guard_.RecordNames(open_.View());
  guard_.Left();
  EXPECT_TRUE(fs::is_empty(folder_ / "state/recovery"));
  EXPECT_TRUE(fs::is_empty(folder_ / "state/open"));
}

TEST(LibraryGuard, WithoutAStateFolderEverythingElseWorks) {
  const TempFolder folder;
  const fs::path file = folder.Put("parts.ZLB", kParts);
  OpenDoc open(kParts, file);
  LibraryGuard guard({});
  guard.Opened(open.View(), IdentityOf(kParts), LibraryGuard::Losses::None);
  open.Add(u"new");
  guard.RecordNames(open.View());
  EXPECT_FALSE(guard.IsOpenElsewhere());
  EXPECT_TRUE(guard.Save(open.View(), TextFromPath(file)).saved);
  EXPECT_THAT(guard.FindRecoveries(), IsEmpty());
  EXPECT_THAT(folder.Names(), ElementsAre("parts.ZLB"));
}

}  // namespace
}  // namespace mivo

#include "recovery_journal.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>

#include "child_process.h"
#include "file_writer.h"
#include "open_doc.h"
#include "recovered_library.h"

#ifndef _WIN32
#include <sys/resource.h>

#include "unprivileged_user.h"
#endif

namespace mivo {
namespace {

namespace fs = std::filesystem;
using Origin = RecoveryJournal::Origin;

const std::string kParts =
    LibraryText(ComponentText("first") + ComponentText("second") + ComponentText("third"), "old");

class RecoveryJournalTest : public testing::Test {
 protected:
  RecoveryJournalTest() { journal_.Begin(open_.View(), open_.start, Origin::Loaded); }

  /// What would be recovered now, as the library file that Save would write.
  [[nodiscard]] std::string Recovered() const {
    const auto recovered = ReadRecovery(BytesOf(journal_.File()));
    return recovered ? TextOf(recovered->doc) : "nothing";
  }
  [[nodiscard]] std::size_t FileSize() const { return fs::file_size(journal_.File()); }

  const TempFolder folder_;
  const fs::path file_ = folder_.Put("parts.ZLB", kParts);
  OpenDoc open_{kParts, file_};
  RecoveryJournal journal_{folder_ / "recovery"};
};

TEST_F(RecoveryJournalTest, WithoutAChangeThereIsNoFile) {
  journal_.RecordNames(open_.View());
  EXPECT_EQ(journal_.File(), "");
  EXPECT_THAT(folder_.Names(), testing::ElementsAre("parts.ZLB"));
}

TEST_F(RecoveryJournalTest, AChangedComponentIsRecoveredWithoutBeingCommitted) {
  journal_.RecordComponent(open_.View(), open_.Component(u"second"),
                           open_.WithNote(u"second", u"new"));
  EXPECT_EQ(Recovered(), LibraryText(ComponentText("first") + ComponentText("second", "new") +
                                         ComponentText("third"),
                                     "old"));
  EXPECT_EQ(TextOf(open_.View()), kParts) << "nothing was written back";
}

TEST_F(RecoveryJournalTest, TheLastChangeCounts) {
  for (const char16_t* note : {u"one", u"two", u"three"}) {
    journal_.RecordComponent(open_.View(), open_.Component(u"first"),
                             open_.WithNote(u"first", note));
  }
  EXPECT_EQ(Recovered(), LibraryText(ComponentText("first", "three") + ComponentText("second") +
                                         ComponentText("third"),
                                     "old"));
}

TEST_F(RecoveryJournalTest, WhatDidNotChangeIsNotWrittenAgain) {
  const SComponent changed = open_.WithNote(u"first", u"new");
  journal_.RecordComponent(open_.View(), open_.Component(u"first"), changed);
  const std::size_t size = FileSize();
  journal_.RecordComponent(open_.View(), open_.Component(u"first"), changed);
  journal_.RecordNames(open_.View());
  EXPECT_EQ(FileSize(), size);
}

TEST_F(RecoveryJournalTest, AnOperationCostsItsComponentAndNotTheLibrary) {
  journal_.RecordComponent(open_.View(), open_.Component(u"first"), open_.WithNote(u"first", u"1"));
  const std::size_t size = FileSize();
  journal_.RecordComponent(open_.View(), open_.Component(u"first"), open_.WithNote(u"first", u"2"));
  EXPECT_LT(FileSize() - size, 300u);
}

TEST_F(RecoveryJournalTest, NamesOrderAndTextAreRecovered) {
  open_.doc.property = u"new";
  open_.doc.Rename(open_.Entry(u"first"), u"renamed");
  std::swap(open_.entries[0], open_.entries[2]);
  open_.AddAlias(u"second", u"alias");
  journal_.RecordNames(open_.View());
  EXPECT_EQ(Recovered(), TextOf(open_.View()));
  EXPECT_NE(Recovered(), kParts);
}

TEST_F(RecoveryJournalTest, NewComponentsAreRecovered) {
  open_.Add(u"added", u"note");
  journal_.RecordNames(open_.View());
  EXPECT_EQ(Recovered(), TextOf(open_.View()));
  journal_.RecordComponent(open_.View(), open_.Component(u"added"),
                           open_.WithNote(u"added", u"more"));
  open_.Component(u"added").note = u"more";
  EXPECT_EQ(Recovered(), TextOf(open_.View()));
}

TEST_F(RecoveryJournalTest, ANewComponentThatIsEditedAtOnceIsRecovered) {
  open_.Add(u"added");
  journal_.RecordComponent(open_.View(), open_.Component(u"added"),
                           open_.WithNote(u"added", u"more"));
  open_.Component(u"added").note = u"more";
  EXPECT_EQ(Recovered(), TextOf(open_.View()));
}

TEST_F(RecoveryJournalTest, RemovedComponentsStayRemoved) {
  open_.Remove(u"second");
  journal_.RecordNames(open_.View());
  EXPECT_EQ(Recovered(), LibraryText(ComponentText("first") + ComponentText("third"), "old"));
}

// The address of a component that is gone is soon that of another.
TEST_F(RecoveryJournalTest, ComponentsThatComeAndGoAreNotTakenForEachOther) {
  for (int i = 0; i < 50; ++i) {
    const std::u16string name(static_cast<std::size_t>(i % 7) + 1, u'n');
    open_.Add(name, name);
    journal_.RecordNames(open_.View());
    EXPECT_EQ(Recovered(), TextOf(open_.View()));
    open_.Remove(open_.entries.front()->Name());
    journal_.RecordNames(open_.View());
    EXPECT_EQ(Recovered(), TextOf(open_.View()));
  }
}

TEST_F(RecoveryJournalTest, AnOddLibraryIsRecoveredToo) {
  for (const char16_t* name : {u"", u"a,b", u"%41", u" ", u"+COMP", u"-NAMES", u"C:7", u"\xD800"}) {
    open_.Add(name, name);
  }
  open_.doc.property = u"a,\n%b";
  journal_.RecordNames(open_.View());
  const auto recovered = ReadRecovery(BytesOf(journal_.File()));
  ASSERT_TRUE(recovered);
  EXPECT_EQ(TextOf(recovered->doc), TextOf(open_.View()));
  EXPECT_EQ(recovered->doc.Names().Entries().size(), open_.entries.size());
}

TEST_F(RecoveryJournalTest, AFileThatChangedMeanwhileDoesNoHarm) {
  folder_.Put("parts.ZLB", LibraryText(ComponentText("of another program")));
  journal_.RecordComponent(open_.View(), open_.Component(u"first"),
                           open_.WithNote(u"first", u"new"));
  EXPECT_EQ(Recovered(), LibraryText(ComponentText("first", "new") + ComponentText("second") +
                                         ComponentText("third"),
                                     "old"));
}

TEST_F(RecoveryJournalTest, AFileThatIsGoneDoesNoHarm) {
  fs::remove(file_);
  open_.Remove(u"first");
  journal_.RecordComponent(open_.View(), open_.Component(u"second"),
                           open_.WithNote(u"second", u"new"));
  EXPECT_EQ(Recovered(),
            LibraryText(ComponentText("second", "new") + ComponentText("third"), "old"));
}

TEST_F(RecoveryJournalTest, ALibraryWithoutAFileIsRecovered) {
  OpenDoc fresh("");
  journal_.Begin(fresh.View(), {}, Origin::Loaded);
  fresh.Add(u"new", u"note");
  journal_.RecordNames(fresh.View());
  const auto recovered = ReadRecovery(BytesOf(journal_.File()));
  ASSERT_TRUE(recovered);
  EXPECT_EQ(TextOf(recovered->doc), TextOf(fresh.View()));
  EXPECT_FALSE(recovered->doc.Path());
}

TEST_F(RecoveryJournalTest, TellsTheFileAndWhatItHeld) {
  open_.Add(u"new");
  journal_.RecordNames(open_.View());
  const auto recovered = ReadRecovery(BytesOf(journal_.File()));
  ASSERT_TRUE(recovered);
  EXPECT_EQ(recovered->file.path, TextFromPath(file_));
  EXPECT_EQ(recovered->file.identity, IdentityOf(kParts));
  EXPECT_EQ(recovered->doc.Path(), TextFromPath(file_));
}

TEST_F(RecoveryJournalTest, ASaveEndsIt) {
  open_.Remove(u"first");
  journal_.RecordNames(open_.View());
  const fs::path old = journal_.File();
  const std::string saved = TextOf(open_.View());
  folder_.Put("parts.ZLB", saved);
  journal_.Begin(open_.View(), {open_.start.path, IdentityOf(saved)}, Origin::Saved);
  EXPECT_FALSE(fs::exists(old));
  EXPECT_EQ(journal_.File(), "");

  journal_.RecordComponent(open_.View(), open_.Component(u"third"),
                           open_.WithNote(u"third", u"new"));
  EXPECT_EQ(Recovered(),
            LibraryText(ComponentText("second") + ComponentText("third", "new"), "old"));
}

// A component under an empty name is in the library, but in none of its files.
TEST_F(RecoveryJournalTest, ASaveThatLeavesAComponentOutDoesNotMixUpTheOthers) {
  open_.Add(u"");
  std::rotate(open_.entries.begin(), open_.entries.end() - 1, open_.entries.end());
  const std::string saved = TextOf(open_.View());
  folder_.Put("parts.ZLB", saved);
  journal_.Begin(open_.View(), {open_.start.path, IdentityOf(saved)}, Origin::Saved);
  journal_.RecordComponent(open_.View(), open_.Component(u"first"),
                           open_.WithNote(u"first", u"new"));
  EXPECT_EQ(Recovered(), LibraryText(ComponentText("first", "new") + ComponentText("second") +
                                         ComponentText("third"),
                                     "old"));
}

TEST_F(RecoveryJournalTest, DiscardTakesTheFileAway) {
  open_.Add(u"new");
  journal_.RecordNames(open_.View());
  const fs::path file = journal_.File();
  ASSERT_TRUE(fs::exists(file));
  journal_.Discard();
  EXPECT_FALSE(fs::exists(file));
}

#ifndef _WIN32  // where the folder is
TEST_F(RecoveryJournalTest, TheFileIsForTheUserAlone) {
  open_.Add(u"new");
  journal_.RecordNames(open_.View());
  EXPECT_EQ(fs::status(journal_.File()).permissions(),
            fs::perms::owner_read | fs::perms::owner_write);
}
#endif

TEST_F(RecoveryJournalTest, AnUnsavedLibraryIsInItsFileAtOnce) {
  RecoveryJournal other(folder_ / "recovery");
  other.BeginUnsaved(open_.View(), open_.start);
  const auto recovered = ReadRecovery(BytesOf(other.File()));
  ASSERT_TRUE(recovered);
  EXPECT_EQ(TextOf(recovered->doc), kParts);
}

TEST_F(RecoveryJournalTest, AFileThatGrewTooLargeStartsOver) {
  RecoveryJournal small(folder_ / "recovery", 3000);
  small.Begin(open_.View(), open_.start, Origin::Loaded);
  std::uintmax_t largest = 0;
  for (int i = 0; i < 50; ++i) {
    SComponent& component = open_.Component(i % 2 == 0 ? u"first" : u"second");
    component.note = std::u16string(static_cast<std::size_t>(i), u'n');
    small.RecordComponent(open_.View(), component, component);
    largest = std::max(largest, fs::file_size(small.File()));
    const auto recovered = ReadRecovery(BytesOf(small.File()));
    ASSERT_TRUE(recovered);
    EXPECT_EQ(TextOf(recovered->doc), TextOf(open_.View()));
  }
  EXPECT_LT(largest, 4000u);
}

#ifndef _WIN32  // a process can be given no limits
TEST_F(RecoveryJournalTest, AFullDiskTakesTheFileAwayAndTheNextChangeStartsOver) {
  const std::string outcome = RunInChild([&]() -> std::string {
    ReportFileSizeLimitAsFailure();
    journal_.RecordComponent(open_.View(), open_.Component(u"first"),
                             open_.WithNote(u"first", u"kept"));
    const fs::path before = journal_.File();
    rlimit limit{FileSize() + 50, RLIM_INFINITY};
    if (setrlimit(RLIMIT_FSIZE, &limit) != 0) return "no limit";
    journal_.RecordComponent(open_.View(), open_.Component(u"second"),
                             open_.WithNote(u"second", u"lost"));
    std::string trace = fs::exists(before) ? "file stays, " : "file goes, ";
    limit.rlim_cur = RLIM_INFINITY;
    if (setrlimit(RLIMIT_FSIZE, &limit) != 0) return "no limit";
    // The frame has committed the first component meanwhile, and tells about the one under edit.
    open_.Component(u"first").note = u"kept";
    journal_.RecordComponent(open_.View(), open_.Component(u"second"),
                             open_.WithNote(u"second", u"there"));
    return trace + Recovered();
  });
  EXPECT_EQ(outcome, "file goes, " +
                         LibraryText(ComponentText("first", "kept") +
                                         ComponentText("second", "there") + ComponentText("third"),
                                     "old"));
}

TEST_F(RecoveryJournalTest, AStateFolderThatTakesNothingDoesNoHarm) {
  fs::create_directory(folder_ / "recovery");
  const UnprivilegedUser user;
  fs::permissions(folder_ / "recovery", fs::perms::owner_read | fs::perms::owner_exec);
  open_.Add(u"new");
  journal_.RecordNames(open_.View());
  EXPECT_EQ(journal_.File(), "");
  fs::permissions(folder_ / "recovery", fs::perms::owner_all);
  journal_.RecordNames(open_.View());
  EXPECT_EQ(Recovered(), TextOf(open_.View())) << "it is tried again";
}
#endif

TEST(RecoveryJournal, WithoutAFolderNothingIsWritten) {
  OpenDoc open(kParts);
  RecoveryJournal journal({});
  journal.Begin(open.View(), {}, Origin::Loaded);
  open.Add(u"new");
  journal.RecordNames(open.View());
  EXPECT_EQ(journal.File(), "");
}

}  // namespace
}  // namespace mivo

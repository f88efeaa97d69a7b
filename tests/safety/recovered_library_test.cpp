#include "recovered_library.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <functional>
#include <string>

#include "child_process.h"
#include "open_doc.h"
#include "recovery_frames.h"
#include "recovery_journal.h"
#include "text_encoding.h"

namespace mivo {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

const std::string kParts = LibraryText(ComponentText("first") + ComponentText("second"));

/// The differences in one line.
std::string Differences(std::string_view recovered, std::optional<std::string_view> onDisk) {
  const OpenDoc now(recovered);
  const OpenDoc then(onDisk.value_or(""));
  const RecoveryDifferences found = CompareWithDisk(now.doc, onDisk ? &then.doc : nullptr);
  std::string text;
  const auto list = [&text](char mark, const std::vector<std::u16string>& names) {
    for (const std::u16string& name : names) text += mark + Utf16ToUtf8(name) + " ";
  };
  list('~', found.changed);
  list('+', found.added);
  list('-', found.removed);
  if (found.arrangement) text += "arrangement";
  EXPECT_EQ(found.Any(), !text.empty());
  return text;
}

TEST(RecoveryDifferences, TellWhatBecameOfEachName) {
  EXPECT_EQ(Differences(kParts, kParts), "");
  EXPECT_EQ(
      Differences(LibraryText(ComponentText("first", "new") + ComponentText("second")), kParts),
      "~first ");
  EXPECT_EQ(Differences(LibraryText(ComponentText("first") + ComponentText("third")), kParts),
            "+third -second arrangement");
  EXPECT_EQ(Differences(LibraryText(ComponentText("second") + ComponentText("first")), kParts),
            "arrangement");
  EXPECT_EQ(
      Differences(LibraryText(ComponentText("first") + ComponentText("second"), "text"), kParts),
      "arrangement");
  EXPECT_EQ(Differences(kParts, std::nullopt), "+first +second arrangement");
  EXPECT_EQ(Differences(LibraryText(""), std::nullopt), "");
}

TEST(RecoveryDifferences, SeeAnAliasThatBecameAComponent) {
  const std::string alias = "+ALIAS,A:second,N:first,-ALIAS\n";
  EXPECT_EQ(Differences(kParts, LibraryText(ComponentText("first") + alias)), "arrangement");
}

// --- Files that are not whole --------------------------------------------------------------------

/// A recovery file with three changes in a row; `states` gets what would be recovered after each.
std::string ThreeChanges(std::vector<std::string>& states) {
  const TempFolder folder;
  OpenDoc open(kParts, folder.Put("parts.ZLB", kParts));
  RecoveryJournal journal(folder / "recovery");
  journal.Begin(open.View(), open.start, RecoveryJournal::Origin::Loaded);
  states.push_back(kParts);
  const auto change = [&](const std::function<void()>& what) {
    what();
    journal.RecordComponent(open.View(), open.Component(u"second"), open.Component(u"second"));
    states.push_back(TextOf(open.View()));
  };
  change([&] { open.Component(u"second").note = u"one"; });
  change([&] { open.AddAlias(u"first", u"alias"); });
  change([&] { open.Component(u"second").note = u"two"; });
  return BytesOf(journal.File());
}

TEST(ReadRecovery, ACutFileGivesAnEarlierState) {
  std::vector<std::string> states;
  const std::string bytes = ThreeChanges(states);
  std::size_t reached = 0;
  for (std::size_t size = 0; size <= bytes.size(); ++size) {
    const auto recovered = ReadRecovery(std::string_view(bytes).substr(0, size));
    if (!recovered) {
      EXPECT_EQ(reached, 0u) << size;
      continue;
    }
    const std::string state = TextOf(recovered->doc);
    while (reached < states.size() && states[reached] != state) ++reached;
    ASSERT_LT(reached, states.size()) << "no state that there was, or an earlier one than before";
  }
  EXPECT_EQ(reached, states.size() - 1) << "the whole file gives the last state";
}

TEST(ReadRecovery, ADamagedFileGivesAnEarlierStateOrNothing) {
  std::vector<std::string> states;
  const std::string bytes = ThreeChanges(states);
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    std::string damaged = bytes;
    damaged[i] = static_cast<char>(damaged[i] ^ 0x15);
    const auto recovered = ReadRecovery(damaged);
    if (recovered) {
      EXPECT_THAT(states, testing::Contains(TextOf(recovered->doc))) << i;
    }
  }
}

TEST(ReadRecovery, FramesInAnyOrderAndOfAnyContentDoNoHarm) {
  std::string start;
  AppendFrame(start, {FrameKind::Start, 0, WriteStart({})});
  AppendFrame(start, {FrameKind::Library, 0, kParts});
  const auto with = [&start](const RecoveryFrame& frame) {
    std::string bytes = start;
    AppendFrame(bytes, frame);
    const auto recovered = ReadRecovery(bytes);
    return recovered ? TextOf(recovered->doc) : "nothing";
  };
  for (const char* content :
       {"", "nonsense", "+NAMES", "+NAMES,C:x,-NAMES\n", "+TARSL_LIB_V.1.0,+COMP",
        "+NAMES,C:99999999999,-NAMES\n", "+NAMES,field,-NAMES\n"}) {
    EXPECT_EQ(with({FrameKind::Names, 0, content}), kParts) << content;
    EXPECT_EQ(with({FrameKind::Component, 7, content}), kParts) << content;
    EXPECT_EQ(with({FrameKind::Start, 0, content}), kParts) << content;
  }
  EXPECT_EQ(with({FrameKind::Names, 0, "+NAMES,PROP:,C:9,N:none,C:1,N:b,C:1,N:c,-NAMES\n"}),
            LibraryText(ComponentText("b") + "+ALIAS,A:c,N:b,-ALIAS\n"));
  EXPECT_EQ(with({FrameKind::Names, 0, "+NAMES,-NAMES\n"}), LibraryText(""));

  std::string late;
  AppendFrame(late, {FrameKind::Library, 0, kParts});
  EXPECT_FALSE(ReadRecovery(late));
  EXPECT_FALSE(ReadRecovery(late + start));
}

// --- Finding them --------------------------------------------------------------------------------

class FindRecoveriesTest : public testing::Test {
 protected:
  [[nodiscard]] fs::path Recovery() const { return folder_ / "recovery"; }

  /// Leaves what a process leaves that edits a library and is killed.
  void CrashAfterEdit(const char* name, const char16_t* note) const {
    const fs::path file = folder_.Put(name, kParts);
    const auto edit = [&](RecoveryJournal& journal) {
      OpenDoc open(kParts, file);
      journal.Begin(open.View(), open.start, RecoveryJournal::Origin::Loaded);
      journal.RecordComponent(open.View(), open.Component(u"first"), open.WithNote(u"first", note));
    };
#ifdef _WIN32  // there is no fork; the file is left, and its lock goes
    RecoveryJournal journal(Recovery());
    edit(journal);
#else
    ASSERT_EQ(RunInChild([&]() -> std::string {
                RecoveryJournal journal(Recovery());
                edit(journal);
                std::raise(SIGKILL);
                return "alive";
              }),
              "signal 9");
#endif
  }

  const TempFolder folder_;
};

TEST_F(FindRecoveriesTest, NoFolderHoldsNothing) {
  EXPECT_THAT(FindRecoveries(Recovery()), IsEmpty());
}

TEST_F(FindRecoveriesTest, WhatAKilledProcessLeftIsFound) {
  CrashAfterEdit("parts.ZLB", u"unsaved");
  const auto found = FindRecoveries(Recovery());
  ASSERT_THAT(found, SizeIs(1));
  EXPECT_EQ(TextOf(found[0].library.doc),
            LibraryText(ComponentText("first", "unsaved") + ComponentText("second")));
  EXPECT_THAT(found[0].differences.changed, ElementsAre(u"first"));
  EXPECT_EQ(found[0].library.doc.Path(), TextFromPath(folder_ / "parts.ZLB"));
}

TEST_F(FindRecoveriesTest, TheOneWrittenLastComesFirst) {
  CrashAfterEdit("a.ZLB", u"older");
  for (const auto& entry : fs::directory_iterator(Recovery())) {
    fs::last_write_time(entry.path(), entry.last_write_time() - std::chrono::hours(1));
  }
  CrashAfterEdit("b.ZLB", u"newer");
  const auto found = FindRecoveries(Recovery());
  ASSERT_THAT(found, SizeIs(2));
  EXPECT_EQ(found[0].library.doc.Path(), TextFromPath(folder_ / "b.ZLB"));
}

TEST_F(FindRecoveriesTest, TheFileOfARunningProgramIsLeftAlone) {
  OpenDoc open(kParts, folder_.Put("parts.ZLB", kParts));
  RecoveryJournal journal(Recovery());
  journal.Begin(open.View(), open.start, RecoveryJournal::Origin::Loaded);
  open.Add(u"new");
  journal.RecordNames(open.View());
  EXPECT_THAT(FindRecoveries(Recovery()), IsEmpty());
  EXPECT_TRUE(fs::exists(journal.File()));
}

TEST_F(FindRecoveriesTest, WhatWasFoundIsNotFoundBySomebodyElse) {
  CrashAfterEdit("parts.ZLB", u"unsaved");
  const auto found = FindRecoveries(Recovery());
  EXPECT_THAT(found, SizeIs(1));
  EXPECT_THAT(FindRecoveries(Recovery()), IsEmpty());
}

TEST_F(FindRecoveriesTest, WhatIsKeptIsFoundAgain) {
  CrashAfterEdit("parts.ZLB", u"unsaved");
  EXPECT_THAT(FindRecoveries(Recovery()), SizeIs(1));
  EXPECT_THAT(FindRecoveries(Recovery()), SizeIs(1));
}

TEST_F(FindRecoveriesTest, WhatIsOnTheDiskAlreadyIsRemoved) {
  CrashAfterEdit("parts.ZLB", u"saved");
  folder_.Put("parts.ZLB", LibraryText(ComponentText("first", "saved") + ComponentText("second")));
  EXPECT_THAT(FindRecoveries(Recovery()), IsEmpty());
  EXPECT_TRUE(fs::is_empty(Recovery()));
}

TEST_F(FindRecoveriesTest, ALibraryWhoseFileIsGoneIsAllNew) {
  CrashAfterEdit("parts.ZLB", u"unsaved");
  fs::remove(folder_ / "parts.ZLB");
  const auto found = FindRecoveries(Recovery());
  ASSERT_THAT(found, SizeIs(1));
  EXPECT_THAT(found[0].differences.added, ElementsAre(u"first", u"second"));
}

TEST_F(FindRecoveriesTest, AFileThatCannotBeReadIsPutAsideOnce) {
  fs::create_directory(Recovery());
  folder_.Put("recovery/1.mivo-recovery", "damaged from the start");
  folder_.Put("recovery/2.mivo-recovery", "");
  folder_.Put("recovery/notes", "somebody's");
  EXPECT_THAT(FindRecoveries(Recovery()), IsEmpty());
  EXPECT_EQ(BytesOf(Recovery() / "1.mivo-recovery.damaged"), "damaged from the start");
  EXPECT_FALSE(fs::exists(Recovery() / "2.mivo-recovery"));
  EXPECT_EQ(BytesOf(Recovery() / "notes"), "somebody's");
}

}  // namespace
}  // namespace mivo

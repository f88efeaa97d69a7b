// What becomes of the user's work when something goes wrong.

#include <QScopeGuard>

#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "child_process.h"
#include "frame_rig.h"
#include "state_folder.h"
#include "unprivileged_user.h"

namespace mivo {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const std::string kTwoParts = LibraryFile(ComponentRecord("first") + ComponentRecord("second"));
const std::string kOtherPart = LibraryFile(ComponentRecord("other"));

class MainFrameSafetyTest : public FrameTest {
 protected:
  MainFrameSafetyTest() {
    Put("parts.ZLB", kTwoParts);
    Frame().Open(PathOf("parts.ZLB"));
  }

  /// Names in a folder within the state folder.
  static std::vector<std::string> StateNames(const fs::path& name) {
    std::vector<std::string> names;
    std::error_code none;
    for (const auto& entry : fs::directory_iterator(FindStateFolder() / name, none)) {
      names.push_back(entry.path().filename().string());
    }
    return names;
  }

  /// Does something in a copy of this process that is killed then.
  template <typename Action>
  void CrashAfter(Action action) {
    ASSERT_EQ(RunInChild([&]() -> std::string {
                // This process keeps the files locked that the child should leave behind.
                Restart();
                Frame().Open(PathOf("parts.ZLB"));
                action();
                std::raise(SIGKILL);
                return "alive";
              }),
              "signal 9");
    Restart();
  }

  /// The title and the modification as the user sees them.
  [[nodiscard]] std::string Truth() {
    return Frame().windowTitle().section(QLatin1Char('/'), -1).toStdString() +
           (Frame().IsModified() ? ", modified" : ", saved");
  }
};

// --- Saves that fail -----------------------------------------------------------------------------

TEST_F(MainFrameSafetyTest, AReadOnlyFileIsReportedAndKept) {
  EditSelectedComponent();
  const UnprivilegedUser user;
  ASSERT_EQ(chmod((Folder() / "parts.ZLB").c_str(), 0444), 0);
  Trigger(Command::Save);
  EXPECT_EQ(Prompts().warnings, std::vector{StringId::SaveFailed});
  EXPECT_EQ(StatusText(), "Permission denied");
  EXPECT_EQ(Truth(), "parts.ZLB, modified");
  EXPECT_EQ(Content("parts.ZLB"), kTwoParts);
}

TEST_F(MainFrameSafetyTest, AFolderThatIsGoneIsReported) {
  fs::create_directory(Folder() / "sub");
  Put("sub/a.ZLB", kTwoParts);
  Frame().Open(PathOf("sub/a.ZLB"));
  EditSelectedComponent();
  fs::remove_all(Folder() / "sub");
  Trigger(Command::Save);
  EXPECT_EQ(Prompts().warnings, std::vector{StringId::SaveFailed});
  EXPECT_EQ(StatusText(), "No such file or directory");
  EXPECT_EQ(Truth(), "a.ZLB, modified");
}

TEST_F(MainFrameSafetyTest, AFileWithTwoNamesKeepsBothAndASafetyCopy) {
  fs::create_hard_link(Folder() / "parts.ZLB", Folder() / "same.ZLB");
  EditSelectedComponent();
  Trigger(Command::Save);
  EXPECT_EQ(Truth(), "parts.ZLB, saved");
  EXPECT_NE(Content("parts.ZLB"), kTwoParts);
  EXPECT_EQ(Content("same.ZLB"), Content("parts.ZLB"));
  EXPECT_EQ(StateNames("copies").size(), 1u);
}

TEST_F(MainFrameSafetyTest, WithoutASafetyCopyNothingIsWrittenInPlace) {
  fs::remove_all(FindStateFolder());
  std::ofstream(FindStateFolder()) << "a file in the way";
  fs::create_hard_link(Folder() / "parts.ZLB", Folder() / "same.ZLB");
  EditSelectedComponent();
  Trigger(Command::Save);
  EXPECT_EQ(Prompts().warnings, std::vector{StringId::SaveFailed});
  EXPECT_EQ(StatusText(), "No safety copy of the previous version could be kept.");
  EXPECT_EQ(Truth(), "parts.ZLB, modified");
  EXPECT_EQ(Content("same.ZLB"), kTwoParts);
}

TEST_F(MainFrameSafetyTest, AMissingSafetyCopyIsToldAndTheFileSaved) {
  fs::remove_all(FindStateFolder());
  std::ofstream(FindStateFolder()) << "a file in the way";
  EditSelectedComponent();
  Trigger(Command::Save);
  EXPECT_THAT(Prompts().warnings, IsEmpty());
  EXPECT_EQ(StatusText(), "No safety copy of the previous version could be kept.");
  EXPECT_EQ(Truth(), "parts.ZLB, saved");
}

TEST_F(MainFrameSafetyTest, AFullDiskIsReportedAndKeepsTheFile) {
  const fs::path disk = Folder() / "disk";
  fs::create_directory(disk);
  if (mount("tmpfs", disk.c_str(), "tmpfs", 0, "size=8k") != 0) {
    GTEST_SKIP() << "no file system can be mounted";
  }
  const auto unmount = qScopeGuard([&] { umount2(disk.c_str(), MNT_DETACH); });
  Put("disk/a.ZLB", kTwoParts);
  Put("disk/filler", std::string(4000, 'x'));
  Frame().Open(PathOf("disk/a.ZLB"));
  EditSelectedComponent();
  Trigger(Command::Save);
  EXPECT_EQ(Prompts().warnings, std::vector{StringId::SaveFailed});
  EXPECT_EQ(StatusText(), "No space left on device");
  EXPECT_EQ(Truth(), "a.ZLB, modified");
  EXPECT_EQ(Content("disk/a.ZLB"), kTwoParts);
  fs::remove(disk / "filler");
  Trigger(Command::Save);
  EXPECT_EQ(Truth(), "a.ZLB, saved");
}

// --- Files that others use -----------------------------------------------------------------------

TEST_F(MainFrameSafetyTest, AChangedFileIsAskedAboutAndCancelKeepsEverything) {
  EditSelectedComponent();
  Put("parts.ZLB", kOtherPart);
  Prompts().confirmations = {false};
  Trigger(Command::Save);
  EXPECT_EQ(Prompts().confirmed, std::vector{StringId::ChangedOnDisk});
  EXPECT_EQ(Content("parts.ZLB"), kOtherPart);
  EXPECT_EQ(Truth(), "parts.ZLB, modified");
}

TEST_F(MainFrameSafetyTest, AChangedFileIsOverwrittenWhenTheUserWantsIt) {
  EditSelectedComponent();
  Put("parts.ZLB", kOtherPart);
  Prompts().confirmations = {true};
  Trigger(Command::Save);
  EXPECT_THAT(Content("parts.ZLB"), HasSubstr("N:first"));
  EXPECT_EQ(Truth(), "parts.ZLB, saved");
  Trigger(Command::Save);
  EXPECT_EQ(Prompts().confirmed.size(), 1u) << "asked once";
}

TEST_F(MainFrameSafetyTest, ClosingOverAChangedFileAsksBothQuestions) {
  EditSelectedComponent();
  Put("parts.ZLB", kOtherPart);
  Prompts().saveAnswers = {SaveAnswer::Save};
  Prompts().confirmations = {false};
  EXPECT_FALSE(Frame().close());
  EXPECT_EQ(Content("parts.ZLB"), kOtherPart);
}

TEST_F(MainFrameSafetyTest, TheSecondMivoIsTold) {
  const TextTable texts;
  CMainFrame second(Settings(), texts);
  auto prompts = std::make_unique<ScriptedPrompts>();
  ScriptedPrompts& asked = *prompts;
  second.SetPrompts(std::move(prompts));
  second.Open(PathOf("parts.ZLB"));
  EXPECT_EQ(asked.warnings, std::vector{StringId::OpenElsewhere});
  EXPECT_EQ(second.Names().Names().rowCount(), 2) << "it is open all the same";
  EXPECT_THAT(Prompts().warnings, IsEmpty());
}

TEST_F(MainFrameSafetyTest, OpeningAgainIsNoSecondMivo) {
  Frame().Open(PathOf("parts.ZLB"));
  Trigger(Command::Save);
  Frame().Open(PathOf("parts.ZLB"));
  EXPECT_THAT(Prompts().warnings, IsEmpty());
}

// --- Safety copies -------------------------------------------------------------------------------

TEST_F(MainFrameSafetyTest, HelpTellsWhereTheCopiesOfTheLibraryAre) {
  Trigger(Command::SafetyCopies);
  Trigger(Command::Save);
  Trigger(Command::SafetyCopies);
  ASSERT_EQ(Prompts().shownFolders.size(), 2u);
  EXPECT_EQ(Prompts().shownFolders[0].toStdString(), (FindStateFolder() / "copies").string());
  const fs::path folder = Prompts().shownFolders[1].toStdString();
  EXPECT_EQ(folder.parent_path(), FindStateFolder() / "copies");
  EXPECT_EQ(BytesOf(folder / "0001-parts.ZLB"), kTwoParts);
}

TEST_F(MainFrameSafetyTest, WhatALossySaveWouldDropIsKept) {
  const std::string lossy = LibraryFile(ComponentRecord("part") + "+NEW,X:1,-NEW\n");
  Put("lossy.ZLB", lossy);
  Frame().Open(PathOf("lossy.ZLB"));
  Trigger(Command::Save);
  EXPECT_NE(Content("lossy.ZLB"), lossy);
  Trigger(Command::SafetyCopies);
  const fs::path folder = Prompts().shownFolders.back().toStdString();
  EXPECT_EQ(BytesOf(folder / "original-0001-lossy.ZLB"), lossy);
}

// --- Recovery ------------------------------------------------------------------------------------

TEST_F(MainFrameSafetyTest, NothingIsOfferedAfterACleanEnd) {
  EditSelectedComponent();
  EXPECT_EQ(StateNames("recovery").size(), 1u);
  Prompts().saveAnswers = {SaveAnswer::Discard};
  EXPECT_TRUE(Frame().close());
  EXPECT_THAT(StateNames("recovery"), IsEmpty());
  Restart();
  EXPECT_FALSE(Frame().OfferRecovery());
}

TEST_F(MainFrameSafetyTest, LookingAtALibraryIsNothingToRecover) {
  CrashAfter([&] {
    Frame().Names().SelectRow(1);
    Trigger(Command::ZoomIn);
    Trigger(Command::PinTool);
    Trigger(Command::CopyComponent);
  });
  EXPECT_THAT(StateNames("recovery"), IsEmpty());
}

TEST_F(MainFrameSafetyTest, AnEditOfTheOpenComponentSurvivesACrash) {
  CrashAfter([&] { EditSelectedComponent(); });
  Prompts().recoveryAnswers = {RecoveryAnswer::Restore};
  EXPECT_TRUE(Frame().OfferRecovery());
  EXPECT_EQ(Prompts().recoveryQuestions.front().toStdString(),
            "Mivo ended before these changes were saved.\n\n" + PathOf("parts.ZLB").toStdString() +
                "\nChanged: first\n\nRestore them?");
  EXPECT_EQ(ListedNames(), "[first] second");
  EXPECT_EQ(Frame().View().Editor().Component()->Pins().size(), 1u);
  EXPECT_EQ(Truth(), "parts.ZLB, modified");
  EXPECT_EQ(Content("parts.ZLB"), kTwoParts) << "not before it is saved";
  Trigger(Command::Save);
  EXPECT_NE(Content("parts.ZLB"), kTwoParts);
  EXPECT_THAT(StateNames("recovery"), IsEmpty());
}

// A commit would be seen: it ends the selection, and far objects go.
TEST_F(MainFrameSafetyTest, RecordingLeavesTheSelectionAndTheComponentAlone) {
  CompEditor& editor = Frame().View().Editor();
  ASSERT_TRUE(editor.SelectPin(editor.Component()->Pins().front().location));
  Trigger(Command::NextPinNumber);
  EXPECT_EQ(StateNames("recovery").size(), 1u);
  EXPECT_EQ(editor.Document().Selection().size(), 1u);
  EXPECT_EQ(editor.Component()->Pins().front().GetNumber(0), u"1");
}

TEST_F(MainFrameSafetyTest, WhatIsSelectedAndChangedSurvivesToo) {
  CrashAfter([&] {
    CompEditor& editor = Frame().View().Editor();
    if (editor.SelectPin(editor.Component()->Pins().front().location)) {
      Trigger(Command::NextPinName);
    }
  });
  Prompts().recoveryAnswers = {RecoveryAnswer::Restore};
  EXPECT_TRUE(Frame().OfferRecovery());
  EXPECT_EQ(Frame().View().Editor().Component()->Pins().size(), 2u);
}

TEST_F(MainFrameSafetyTest, EveryLibraryCommandSurvivesACrash) {
  CrashAfter([&] {
    Prompts().texts = {u"alias", u"a new text"};
    Trigger(Command::AddAlias);
    Trigger(Command::LibraryProperty);
    Trigger(Command::MoveNameDown);
    CompPropertyValues values;
    values.name = u"new";
    Prompts().components = {values};
    Trigger(Command::NewComponent);
    Frame().Names().SelectRow(0);
    Trigger(Command::CopyComponent);
    Trigger(Command::CutComponent);
    if (ListedNames() != "[second] new alias") std::_Exit(1);
  });
  Prompts().recoveryAnswers = {RecoveryAnswer::Restore};
  EXPECT_TRUE(Frame().OfferRecovery());
  EXPECT_THAT(Prompts().recoveryQuestions.front().toStdString(),
              HasSubstr("New: new, alias\nRemoved: first\n"));
  EXPECT_EQ(ListedNames(), "[second] new alias");
  EXPECT_EQ(Frame().Library().property, u"a new text");
}

TEST_F(MainFrameSafetyTest, AComponentsPropertiesSurviveACrash) {
  CrashAfter([&] {
    CompPropertyValues values;
    values.name = u"renamed";
    values.note = u"a note";
    values.width = 7;
    Prompts().components = {values};
    Trigger(Command::ComponentProperty);
  });
  Prompts().recoveryAnswers = {RecoveryAnswer::Restore};
  EXPECT_TRUE(Frame().OfferRecovery());
  EXPECT_EQ(ListedNames(), "[renamed] second");
  EXPECT_EQ(NoteText(), "a note");
}

TEST_F(MainFrameSafetyTest, ALibraryThatWasNeverSavedSurvivesACrash) {
  CrashAfter([&] {
    Trigger(Command::New);
    CompPropertyValues values;
    values.name = u"new";
    Prompts().components = {values};
    Trigger(Command::NewComponent);
  });
  Prompts().recoveryAnswers = {RecoveryAnswer::Restore};
  EXPECT_TRUE(Frame().OfferRecovery());
  EXPECT_THAT(Prompts().recoveryQuestions.front().toStdString(),
              HasSubstr("Untitled.ZLB\nNew: new"));
  EXPECT_EQ(ListedNames(), "[new]");
  EXPECT_EQ(Truth(), "Mivo, modified");
}

TEST_F(MainFrameSafetyTest, LaterKeepsTheOfferForTheNextStart) {
  CrashAfter([&] { EditSelectedComponent(); });
  Prompts().recoveryAnswers = {RecoveryAnswer::Later};
  EXPECT_FALSE(Frame().OfferRecovery());
  EXPECT_EQ(ListedNames(), "");
  Restart();
  Prompts().recoveryAnswers = {RecoveryAnswer::Restore};
  EXPECT_TRUE(Frame().OfferRecovery());
}

TEST_F(MainFrameSafetyTest, RemoveEndsTheOffer) {
  CrashAfter([&] { EditSelectedComponent(); });
  Prompts().recoveryAnswers = {RecoveryAnswer::Remove};
  EXPECT_FALSE(Frame().OfferRecovery());
  EXPECT_THAT(StateNames("recovery"), IsEmpty());
}

TEST_F(MainFrameSafetyTest, WhatWasRestoredSurvivesTheNextCrashToo) {
  CrashAfter([&] { EditSelectedComponent(); });
  ASSERT_EQ(RunInChild([&]() -> std::string {
              Prompts().recoveryAnswers = {RecoveryAnswer::Restore};
              if (Frame().OfferRecovery()) std::raise(SIGKILL);
              return "alive";
            }),
            "signal 9");
  EXPECT_EQ(StateNames("recovery").size(), 1u);
  Prompts().recoveryAnswers = {RecoveryAnswer::Restore};
  EXPECT_TRUE(Frame().OfferRecovery());
  EXPECT_EQ(Frame().View().Editor().Component()->Pins().size(), 1u);
}

TEST_F(MainFrameSafetyTest, AFileThatChangedBeforeTheRestoreIsAskedAbout) {
  CrashAfter([&] { EditSelectedComponent(); });
  Put("parts.ZLB", kOtherPart);
  Prompts().recoveryAnswers = {RecoveryAnswer::Restore};
  EXPECT_TRUE(Frame().OfferRecovery());
  Prompts().confirmations = {false};
  Trigger(Command::Save);
  EXPECT_EQ(Content("parts.ZLB"), kOtherPart);
}

TEST_F(MainFrameSafetyTest, ATemporaryFileIsOfferedItsOwnChangesOnly) {
  CrashAfter([&] { EditSelectedComponent(); });
  EXPECT_FALSE(Frame().OfferRecovery(PathOf("other.tmp")));
  EXPECT_THAT(Prompts().recoveryQuestions, IsEmpty());
  Prompts().recoveryAnswers = {RecoveryAnswer::Restore};
  EXPECT_TRUE(Frame().OfferRecovery(PathOf("./parts.ZLB"))) << "however it is spelt";
}

TEST_F(MainFrameSafetyTest, TheUsersFolderHoldsNothingElse) {
  EditSelectedComponent();
  Trigger(Command::Save);
  EditSelectedComponent();
  EXPECT_THAT(Folder().Names(), ElementsAre("MIVO.INI", "parts.ZLB"));
}

}  // namespace
}  // namespace mivo

#include <QCoreApplication>
#include <QDir>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

#include <filesystem>

#include "frame_rig.h"

namespace mivo {
namespace {

const std::string kTwoParts = LibraryFile(ComponentRecord("first") + ComponentRecord("second"));

class MainFrameFileTest : public FrameTest {
 protected:
  MainFrameFileTest() { Put("parts.ZLB", kTwoParts); }

  void OpenParts() { Frame().Open(PathOf("parts.ZLB")); }
  [[nodiscard]] std::string Title() { return Frame().windowTitle().toStdString(); }
  [[nodiscard]] std::string TitleWith(const char* name) {
    return "Mivo - " + PathOf(name).toStdString();
  }
};

TEST_F(MainFrameFileTest, StartsWithoutALibrary) {
  EXPECT_EQ(Title(), "Mivo");
  EXPECT_EQ(ListedNames(), "");
  EXPECT_EQ(Frame().View().Editor().Component(), nullptr);
}

TEST_F(MainFrameFileTest, OpenListsTheNamesAndShowsTheFirstComponent) {
  Put("parts.ZLB", LibraryFile(ComponentRecord("first", "a%20note") + ComponentRecord("second")));
  OpenParts();
  EXPECT_EQ(Title(), TitleWith("parts.ZLB"));
  EXPECT_EQ(ListedNames(), "[first] second");
  EXPECT_EQ(Frame().View().Editor().Component(), Frame().Names().SelectedEntry()->Component());
  EXPECT_EQ(NoteText(), "a note");
}

TEST_F(MainFrameFileTest, SaveWritesTheSameBytesBack) {
  OpenParts();
  std::filesystem::remove(Folder() / "parts.ZLB");
  Trigger(Command::Save);
  EXPECT_EQ(Content("parts.ZLB"), kTwoParts);
}

TEST_F(MainFrameFileTest, SaveWritesEditsAndEndsTheModification) {
  OpenParts();
  EditSelectedComponent();
  Trigger(Command::Save);
  EXPECT_NE(Content("parts.ZLB"), kTwoParts);
  EXPECT_FALSE(Frame().IsModified());
  EXPECT_TRUE(Frame().close()) << "nothing is left to ask about";
}

TEST_F(MainFrameFileTest, UndoAfterASaveIsSavedToo) {
  OpenParts();
  EditSelectedComponent();
  Trigger(Command::Save);
  Trigger(Command::Undo);
  Trigger(Command::Save);
  EXPECT_EQ(Content("parts.ZLB"), kTwoParts);
}

TEST_F(MainFrameFileTest, FailedSaveWarnsAndKeepsFileAndModification) {
  OpenParts();
  EditSelectedComponent();
  std::filesystem::remove(Folder() / "parts.ZLB");
  std::filesystem::create_directory(Folder() / "parts.ZLB");
  Trigger(Command::Save);
  EXPECT_EQ(Prompts().warnings, std::vector{StringId::SaveFailed});
  EXPECT_TRUE(Frame().IsModified());
  EXPECT_EQ(Title(), TitleWith("parts.ZLB"));
  EXPECT_NE(StatusText(), "") << "the reason";
}

TEST_F(MainFrameFileTest, SaveOfANewLibraryAsksForAName) {
  Prompts().savePaths = {PathOf("new.ZLB")};
  Trigger(Command::Save);
  EXPECT_EQ(Prompts().proposedNames, std::vector{QStringLiteral("Untitled.ZLB")});
  EXPECT_EQ(Title(), TitleWith("new.ZLB"));
  EXPECT_EQ(Content("new.ZLB"), LibraryFile(""));
}

TEST_F(MainFrameFileTest, SchematicIsNeverOverwritten) {
  const std::string schematic =
      "+TARSL_DATA_V.1.0\n" + LibraryFile(ComponentRecord("part")) + "-TARSL_DATA_V.1.0\n";
  Put("a.ZSC", schematic);
  Frame().Open(PathOf("a.ZSC"));
  EXPECT_EQ(ListedNames(), "[part]");
  Prompts().savePaths = {PathOf("a.ZLB")};
  Trigger(Command::Save);
  EXPECT_EQ(Prompts().proposedNames, std::vector{QDir::fromNativeSeparators(PathOf("a.ZLB"))});
  EXPECT_EQ(Content("a.ZSC"), schematic);
  EXPECT_EQ(Content("a.ZLB"), LibraryFile(ComponentRecord("part")));
}

TEST_F(MainFrameFileTest, SaveAsRefusesTheExtensionOfSchematics) {
  OpenParts();
  Prompts().savePaths = {PathOf("b.zsc")};
  Trigger(Command::SaveAs);
  EXPECT_EQ(Prompts().warnings, std::vector{StringId::SaveFailed});
  EXPECT_FALSE(std::filesystem::exists(Folder() / "b.zsc"));
  EXPECT_EQ(Title(), TitleWith("parts.ZLB"));
}

TEST_F(MainFrameFileTest, CancelledSaveAsChangesNothing) {
  OpenParts();
  EditSelectedComponent();
  Prompts().savePaths = {QString()};
  Trigger(Command::SaveAs);
  EXPECT_EQ(Title(), TitleWith("parts.ZLB"));
  Prompts().saveAnswers = {SaveAnswer::Cancel};
  EXPECT_FALSE(Frame().close()) << "the changes are still there to ask about";
}

TEST_F(MainFrameFileTest, FailedSaveAsKeepsThePath) {
  OpenParts();
  Prompts().savePaths = {PathOf("missing/b.ZLB")};
  Trigger(Command::SaveAs);
  EXPECT_EQ(Prompts().warnings, std::vector{StringId::SaveFailed});
  EXPECT_EQ(Title(), TitleWith("parts.ZLB"));
}

TEST_F(MainFrameFileTest, FailedLoadHasNoPathAndSaysWhy) {
  Put("bad.ZLB", "+TARSL_LIB_V.1.0\nVER:82\n" + ComponentRecord("kept") + "+COMP,N:x\nX:-1\n");
  Frame().Open(PathOf("bad.ZLB"));
  EXPECT_EQ(Title(), "Mivo");
  EXPECT_EQ(ListedNames(), "[kept]");
  EXPECT_TRUE(Prompts().warnings.empty());
  EXPECT_THAT(StatusText(), testing::StartsWith("Line 11: invalid value"));
  Prompts().savePaths = {QString()};
  Trigger(Command::Save);
  EXPECT_EQ(Prompts().proposedNames, std::vector{QStringLiteral("Untitled.ZLB")});
}

TEST_F(MainFrameFileTest, FileThatCannotBeReadLeavesAnEmptyLibrary) {
  OpenParts();
  Frame().Open(PathOf("missing.ZLB"));
  EXPECT_EQ(Title(), "Mivo");
  EXPECT_EQ(ListedNames(), "");
  EXPECT_THAT(StatusText(), testing::StartsWith("missing.ZLB: "));
}

TEST_F(MainFrameFileTest, FileCutOffAtItsEndKeepsItsPath) {
  Put("cut.ZLB", "+TARSL_LIB_V.1.0\nVER:82\n" + ComponentRecord("part"));
  Frame().Open(PathOf("cut.ZLB"));
  EXPECT_EQ(Title(), TitleWith("cut.ZLB"));
  EXPECT_THAT(StatusText(), testing::HasSubstr("the data end here"));
}

TEST_F(MainFrameFileTest, LaterVersionWarnsAndStaysOpen) {
  Put("later.ZLB", "+TARSL_LIB_V.1.0\nVER:83\n" + ComponentRecord("part") + "-TARSL_LIB_V.1.0\n");
  Frame().Open(PathOf("later.ZLB"));
  EXPECT_EQ(Prompts().warnings, std::vector{StringId::LaterVersion});
  EXPECT_EQ(ListedNames(), "[part]");
}

TEST_F(MainFrameFileTest, EmptyLibraryLeavesViewAndNoteEmpty) {
  OpenParts();
  Put("empty.ZLB", LibraryFile(""));
  Frame().Open(PathOf("empty.ZLB"));
  EXPECT_EQ(Frame().View().Editor().Component(), nullptr);
  EXPECT_EQ(NoteText(), "");
}

TEST_F(MainFrameFileTest, NewEmptiesEverything) {
  OpenParts();
  Trigger(Command::New);
  EXPECT_EQ(Title(), "Mivo");
  EXPECT_EQ(ListedNames(), "");
  EXPECT_EQ(Frame().View().Editor().Component(), nullptr);
}

TEST_F(MainFrameFileTest, TemporaryFileModeForbidsSaveAs) {
  OpenParts();
  Frame().SetTemporaryFileMode();
  EXPECT_FALSE(IsEnabled(Command::SaveAs));
  EXPECT_TRUE(IsEnabled(Command::Save));
}

// --- The save question, on every way out -------------------------------------------------------

enum class WayOut { New, Open, Drop, Close, SessionEnd };

void PrintTo(WayOut way, std::ostream* stream) {
  *stream << static_cast<int>(way);
}

class SaveQuestionTest : public MainFrameFileTest, public testing::WithParamInterface<WayOut> {
 protected:
  SaveQuestionTest() {
    Put("other.ZLB", LibraryFile(ComponentRecord("other")));
    OpenParts();
    EditSelectedComponent();
  }

  /// Leaves the library; returns whether it was left.
  bool Leave() {
    switch (GetParam()) {
      case WayOut::New:
        Trigger(Command::New);
        return ListedNames().empty();
      case WayOut::Open:
        Prompts().openPaths = {PathOf("other.ZLB")};
        Trigger(Command::Open);
        return ListedNames() == "[other]";
      case WayOut::Drop: {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(PathOf("other.ZLB"))});
        QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton,
                              Qt::NoModifier);
        QCoreApplication::sendEvent(&Frame(), &enter);
        QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&Frame(), &drop);
        QCoreApplication::sendPostedEvents(&Frame());
        return ListedNames() == "[other]";
      }
      case WayOut::Close:
        return Frame().close();
      case WayOut::SessionEnd:
        return Frame().MayEndSession();
    }
    return false;
  }
};

TEST_P(SaveQuestionTest, CancelKeepsEverything) {
  Prompts().saveAnswers = {SaveAnswer::Cancel};
  EXPECT_FALSE(Leave());
  EXPECT_TRUE(Frame().IsModified());
  EXPECT_EQ(Frame().View().Editor().Component()->Pins().size(), 1u);
  EXPECT_EQ(Content("parts.ZLB"), kTwoParts);
}

TEST_P(SaveQuestionTest, NoLeavesTheFileAsItWas) {
  Prompts().saveAnswers = {SaveAnswer::Discard};
  EXPECT_TRUE(Leave());
  EXPECT_EQ(Content("parts.ZLB"), kTwoParts);
}

TEST_P(SaveQuestionTest, YesSavesFirst) {
  Prompts().saveAnswers = {SaveAnswer::Save};
  EXPECT_TRUE(Leave());
  EXPECT_NE(Content("parts.ZLB"), kTwoParts);
}

TEST_P(SaveQuestionTest, YesWithASaveThatFailsKeepsEverything) {
  std::filesystem::remove(Folder() / "parts.ZLB");
  std::filesystem::create_directory(Folder() / "parts.ZLB");
  Prompts().saveAnswers = {SaveAnswer::Save};
  EXPECT_FALSE(Leave());
  EXPECT_EQ(Prompts().warnings, std::vector{StringId::SaveFailed});
  EXPECT_TRUE(Frame().IsModified());
  EXPECT_EQ(ListedNames(), "[first] second");
}

TEST_P(SaveQuestionTest, YesWithoutAPathAsksForOne) {
  // A failed load leaves a library without a path.
  Put("bad.ZLB", "+TARSL_LIB_V.1.0\nVER:82\n" + ComponentRecord("kept") + "+COMP,N:x\nX:-1\n");
  Frame().Open(PathOf("bad.ZLB"));
  EditSelectedComponent();
  Prompts().saveAnswers = {SaveAnswer::Save};
  Prompts().savePaths = {PathOf("rescued.ZLB")};
  EXPECT_TRUE(Leave());
  EXPECT_EQ(Prompts().proposedNames, std::vector{QStringLiteral("Untitled.ZLB")});
  EXPECT_NE(Content("rescued.ZLB"), "");
}

TEST_P(SaveQuestionTest, YesAndThenNoPathKeepsEverything) {
  Put("bad.ZLB", "+TARSL_LIB_V.1.0\nVER:82\n" + ComponentRecord("kept") + "+COMP,N:x\nX:-1\n");
  Frame().Open(PathOf("bad.ZLB"));
  EditSelectedComponent();
  Prompts().saveAnswers = {SaveAnswer::Save};
  Prompts().savePaths = {QString()};
  EXPECT_FALSE(Leave());
  EXPECT_TRUE(Frame().IsModified());
  EXPECT_EQ(ListedNames(), "[kept]");
}

TEST_P(SaveQuestionTest, NothingIsAskedAfterASave) {
  Trigger(Command::Save);
  EXPECT_TRUE(Leave());
}

INSTANTIATE_TEST_SUITE_P(WaysOut, SaveQuestionTest,
                         testing::Values(WayOut::New, WayOut::Open, WayOut::Drop, WayOut::Close,
                                         WayOut::SessionEnd),
                         [](const auto& test) {
                           switch (test.param) {
                             case WayOut::New:
                               return "New";
                             case WayOut::Open:
                               return "Open";
                             case WayOut::Drop:
                               return "Drop";
                             case WayOut::Close:
                               return "Close";
                             case WayOut::SessionEnd:
                               return "SessionEnd";
                           }
                           return "";
                         });

TEST_F(MainFrameFileTest, WindowClosesUnaskedOnceTheSessionMayEnd) {
  OpenParts();
  EditSelectedComponent();
  Prompts().saveAnswers = {SaveAnswer::Discard};
  EXPECT_TRUE(Frame().MayEndSession());
  EXPECT_TRUE(Frame().close());
}

TEST_F(MainFrameFileTest, WindowAsksAgainWhenTheSessionWentOn) {
  OpenParts();
  EditSelectedComponent();
  Prompts().saveAnswers = {SaveAnswer::Discard, SaveAnswer::Cancel};
  EXPECT_TRUE(Frame().MayEndSession());
  Trigger(Command::Undo);
  EXPECT_FALSE(Frame().close());
  EXPECT_TRUE(Prompts().saveAnswers.empty());
}

TEST_F(MainFrameFileTest, GarbageAfterALaterVersionIsOfNoVersion) {
  Put("later.ZLB", "+TARSL_LIB_V.1.0\nVER:83\n-TARSL_LIB_V.1.0\n");
  Frame().Open(PathOf("later.ZLB"));
  Prompts().warnings.clear();
  Put("garbage.ZLB", "garbage");
  Frame().Open(PathOf("garbage.ZLB"));
  EXPECT_TRUE(Prompts().warnings.empty());
}

TEST_F(MainFrameFileTest, TitleHasEveryCharacterOfThePath) {
  const QString path = PathOf("") + QString::fromUtf8("\xC3\xA4 & \xF0\x9F\x98\x80.ZLB");
  Frame().Open(PathOf("parts.ZLB"));
  Prompts().savePaths = {path};
  Trigger(Command::SaveAs);
  EXPECT_EQ(Title(), "Mivo - " + path.toStdString());
  EXPECT_TRUE(std::filesystem::exists(path.toStdU16String()));
}

TEST_F(MainFrameFileTest, FileMayBeDroppedOnEveryPart) {
  Frame().show();
  for (const QWidget* const part : Frame().findChildren<QWidget*>()) {
    EXPECT_FALSE(part->isVisible() && part->acceptDrops()) << part->objectName().toStdString();
  }
  EXPECT_TRUE(Frame().acceptDrops());
}

}  // namespace
}  // namespace mivo

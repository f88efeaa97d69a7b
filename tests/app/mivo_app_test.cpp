#include "mivo_app.h"

#include <QDir>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <filesystem>
#include <memory>

#include "case_name.h"
#include "frame_rig.h"
#include "language_library.h"
#include "wait_until.h"

#ifndef _WIN32
#include "unprivileged_user.h"
#endif

namespace mivo {
namespace {

namespace fs = std::filesystem;

/// A program in a folder of its own, started from another one.
class MivoAppTest : public testing::Test {
 protected:
  MivoAppTest() {
    for (const fs::path& folder : {Program(), Current(), User()}) fs::create_directories(folder);
  }

  [[nodiscard]] fs::path Program() const { return root_ / "program"; }
  [[nodiscard]] fs::path Current() const { return root_ / "work"; }
  [[nodiscard]] fs::path User() const { return root_ / "share" / "HallvarnONLINE"; }

  void PutSettings(const fs::path& folder, const std::string& text) const {
    root_.Put((fs::relative(folder, root_.Path()) / "MIVO.INI").string(), text);
  }
  [[nodiscard]] static std::string SettingsIn(const fs::path& folder) {
    return BytesOf(folder / "MIVO.INI");
  }
  /// A library file in the current directory; returns its path.
  [[nodiscard]] QString PutLibrary(const std::string& name) const {
    return QString::fromStdString(
        root_.Put("work/" + name, LibraryFile(ComponentRecord("A"))).string());
  }

  CMainFrame& Start(const QStringList& arguments = {}) { return StartIn(Current(), arguments); }
  CMainFrame& StartIn(const fs::path& current, const QStringList& arguments = {}) {
    app_ = std::make_unique<CMivoApp>(SettingsFolders{Program(), current, root_ / "share"});
    app_->InitInstance(QStringList(QStringLiteral("mivo")) + arguments);
    return app_->Frame();
  }

 private:
  const TempFolder root_;
  std::unique_ptr<CMivoApp> app_;
};

std::string Width(int width) {
  return "[WindowPosition]\nWidth=" + std::to_string(width) + "\n";
}

// --- The settings file ---------------------------------------------------------------------------

TEST_F(MivoAppTest, FirstStartCreatesTheSettingsBesideTheProgram) {
  Start();
  EXPECT_TRUE(fs::exists(Program() / "MIVO.INI"));
  EXPECT_FALSE(fs::exists(Current() / "MIVO.INI"));
  EXPECT_FALSE(fs::exists(User() / "MIVO.INI"));
  SettingsFile settings(Program() / "MIVO.INI");
  EXPECT_EQ(settings.GetInt(u"Setting", u"NoCheckPtnRectOnSave", -1), 1);
  EXPECT_EQ(settings.GetInt(u"Setting", u"EditWindowMargin", -1), 0);
}

TEST_F(MivoAppTest, SettingsOfTheCurrentDirectoryComeFirst) {
  PutSettings(Current(), Width(501));
  PutSettings(User(), Width(502));
  PutSettings(Program(), Width(503));
  EXPECT_EQ(Start().width(), 501);
  EXPECT_NE(SettingsIn(Current()).find("EditWindowMargin"), std::string::npos) << "and are written";
  EXPECT_EQ(SettingsIn(User()), Width(502));
}

TEST_F(MivoAppTest, SettingsOfTheUserComeSecond) {
  PutSettings(User(), Width(502));
  PutSettings(Program(), Width(503));
  EXPECT_EQ(Start().width(), 502);
}

TEST_F(MivoAppTest, SettingsOfTheUserCountWhenStartedFromTheProgramsFolder) {
  PutSettings(User(), Width(502));
  PutSettings(Program(), Width(503));
  EXPECT_EQ(StartIn(Program()).width(), 502);
}

TEST_F(MivoAppTest, SettingsBesideTheProgramComeLast) {
  PutSettings(Program(), Width(503));
  EXPECT_EQ(Start().width(), 503);
}

#ifndef _WIN32  // another system has other permissions
TEST_F(MivoAppTest, SettingsThatCannotBeWrittenDisturbNobody) {
  PutSettings(Program(), Width(503));
  fs::permissions(Program() / "MIVO.INI", fs::perms::owner_read);
  fs::permissions(Program(), fs::perms::owner_read | fs::perms::owner_exec);
  {
    const UnprivilegedUser user;
    CMainFrame& frame = Start({PutLibrary("a.ZLB")});
    frame.resize(600, 500);
    EXPECT_TRUE(WaitUntil([&] { return frame.width() == 600; }));
    EXPECT_EQ(frame.Names().Names().rowCount(), 1);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_EQ(SettingsIn(Program()), Width(503));
    EXPECT_EQ(std::distance(fs::directory_iterator(Program()), {}), 1) << "nothing is left over";
  }
  fs::permissions(Program(), fs::perms::owner_all);
}

TEST_F(MivoAppTest, SettingsThatCannotBeCreatedDisturbNobody) {
  fs::permissions(Program(), fs::perms::owner_read | fs::perms::owner_exec);
  {
    const UnprivilegedUser user;
    EXPECT_TRUE(Start().isVisible());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_TRUE(fs::is_empty(Program()));
  }
  fs::permissions(Program(), fs::perms::owner_all);
}
#endif

// --- The window ----------------------------------------------------------------------------------

struct SizeCase {
  const char* name;
  const char* settings;
  QSize size;
};

class FirstSizeTest : public MivoAppTest, public testing::WithParamInterface<SizeCase> {};

TEST_P(FirstSizeTest, FollowsTheSettings) {
  PutSettings(Program(), "[WindowPosition]\n" + std::string(GetParam().settings));
  const QSize size = Start().size();
  EXPECT_EQ(size.width(), GetParam().size.width());
  EXPECT_EQ(size.height(), GetParam().size.height());
}

constexpr QSize kUsual(1100, 720);

INSTANTIATE_TEST_SUITE_P(
    All, FirstSizeTest,
    testing::Values(SizeCase{"stored", "Width=900\nHeight=600\n", {900, 600}},
                    SizeCase{"missing", "", kUsual},
                    SizeCase{"useDefault", "Width=-2147483648\nHeight=-2147483648\n", kUsual},
                    SizeCase{"onlyWidth", "Width=900\n", {900, kUsual.height()}},
                    SizeCase{"tooNarrow", "Width=100\nHeight=600\n", {400, 600}},
                    SizeCase{"tooLow", "Width=900\nHeight=100\n", {900, 300}},
                    SizeCase{"smallest", "Width=400\nHeight=300\n", {400, 300}},
                    SizeCase{"negative", "Width=-2147483647\nHeight=-1\n", {400, 300}},
                    SizeCase{"largerThanTheScreen", "Width=3000\nHeight=2500\n", {3000, 2500}}),
    kCaseName);

struct ShowCase {
  const char* name;
  const char* cmdShow;
  bool isMaximized;
};

class FirstShowTest : public MivoAppTest, public testing::WithParamInterface<ShowCase> {};

TEST_P(FirstShowTest, FollowsTheSettings) {
  PutSettings(Program(), "[WindowPosition]\n" + std::string(GetParam().cmdShow));
  CMainFrame& frame = Start();
  EXPECT_TRUE(WaitUntil([&] { return frame.isVisible(); }));
  EXPECT_EQ(frame.isMaximized(), GetParam().isMaximized);
  EXPECT_FALSE(frame.isMinimized());
}

INSTANTIATE_TEST_SUITE_P(All, FirstShowTest,
                         testing::Values(ShowCase{"missing", "", false},
                                         ShowCase{"normal", "cmdShow=1\n", false},
                                         ShowCase{"minimised", "cmdShow=2\n", false},
                                         ShowCase{"maximised", "cmdShow=3\n", true},
                                         ShowCase{"hidden", "cmdShow=0\n", false},
                                         ShowCase{"unknown", "cmdShow=99\n", false}),
                         kCaseName);

TEST_F(MivoAppTest, MaximisedWindowReturnsToItsStoredSize) {
  PutSettings(Program(), "[WindowPosition]\ncmdShow=3\nWidth=700\nHeight=500\n");
  CMainFrame& frame = Start();
  EXPECT_TRUE(frame.isMaximized());
  frame.showNormal();
  EXPECT_TRUE(WaitUntil([&] { return frame.size() == QSize(700, 500); }));
}

// --- The command line ----------------------------------------------------------------------------

TEST_F(MivoAppTest, WithoutAFileNoLibraryIsOpen) {
  CMainFrame& frame = Start();
  EXPECT_EQ(frame.windowTitle().toStdString(), "Mivo");
  EXPECT_TRUE(frame.Action(Command::SaveAs)->isEnabled());
}

TEST_F(MivoAppTest, FileOfTheCommandLineIsOpened) {
  const QString path = PutLibrary("a.ZLB");
  CMainFrame& frame = Start({path});
  EXPECT_EQ(frame.windowTitle(), QStringLiteral("Mivo - ") + QDir::toNativeSeparators(path));
  EXPECT_EQ(frame.Names().Names().rowCount(), 1);
  EXPECT_TRUE(frame.Action(Command::SaveAs)->isEnabled());
}

TEST_F(MivoAppTest, FileThatIsNotThereLeavesAnEmptyWindow) {
  CMainFrame& frame = Start({QStringLiteral("/nowhere/a.ZLB")});
  EXPECT_EQ(frame.windowTitle().toStdString(), "Mivo");
  EXPECT_EQ(frame.Names().Names().rowCount(), 0);
}

struct ExtensionCase {
  const char* name;
  const char* fileName;
  bool isTemporary;
};

class TemporaryFileTest : public MivoAppTest, public testing::WithParamInterface<ExtensionCase> {};

TEST_P(TemporaryFileTest, IsKnownByItsExtension) {
  CMainFrame& frame = Start({PutLibrary(GetParam().fileName)});
  EXPECT_EQ(frame.Names().Names().rowCount(), 1);
  EXPECT_EQ(frame.Action(Command::SaveAs)->isEnabled(), !GetParam().isTemporary);
}

INSTANTIATE_TEST_SUITE_P(
    All, TemporaryFileTest,
    testing::Values(ExtensionCase{"upper", "x.TMP", true}, ExtensionCase{"lower", "x.tmp", true},
                    ExtensionCase{"mixed", "x.Tmp", true}, ExtensionCase{"last", "x.ZLB.TMP", true},
                    ExtensionCase{"inside", "x.TMP.ZLB", false},
                    ExtensionCase{"longer", "x.TMPX", false}, ExtensionCase{"name", "TMP", false}),
    kCaseName);

TEST_F(MivoAppTest, TemporaryFileModeHoldsForTheWholeRun) {
  CMainFrame& frame = Start({PutLibrary("x.TMP")});
  frame.Open(PutLibrary("a.ZLB"));
  EXPECT_FALSE(frame.Action(Command::SaveAs)->isEnabled());
  frame.Action(Command::New)->trigger();
  EXPECT_FALSE(frame.Action(Command::SaveAs)->isEnabled());
}

TEST_F(MivoAppTest, TemporaryFileIsSavedInPlace) {
  const QString path = PutLibrary("x.TMP");
  CMainFrame& frame = Start({path});
  const std::string before = BytesOf(path.toStdString());
  CompEditor& editor = frame.View().Editor();
  ASSERT_TRUE(editor.SelectPin(editor.Component()->Pins().front().location));
  frame.Action(Command::Delete)->trigger();
  frame.Action(Command::Save)->trigger();
  EXPECT_NE(BytesOf(path.toStdString()), before);
  EXPECT_FALSE(frame.IsModified());
}

// --- The language library ------------------------------------------------------------------------

std::string FirstMenu(const CMainFrame& frame) {
  return frame.menuBar()->actions().front()->text().toStdString();
}

TEST_F(MivoAppTest, LanguageLibraryBesideTheProgramIsUsed) {
  fs::copy_file(MIVO_GERMAN, Program() / kLanguageLibraryName);
  EXPECT_EQ(FirstMenu(Start()), "&Datei");
}

TEST_F(MivoAppTest, ToolkitSpeaksTheLanguageOfTheLibrary) {
  const auto cancel = [] {
    return QCoreApplication::translate("QPlatformTheme", "Cancel").toStdString();
  };
  Start();
  EXPECT_EQ(cancel(), "Cancel");
  fs::copy_file(MIVO_GERMAN, Program() / kLanguageLibraryName);
#ifdef _WIN32  // the toolkit is a part of the program
  fs::copy_file(MIVO_TOOLKIT_GERMAN, Program() / "qtbase_de.qm");
#endif
  Start();
  EXPECT_EQ(cancel(), "Abbrechen");
}

TEST_F(MivoAppTest, LanguageLibraryOfTheCurrentDirectoryIsNotUsed) {
  fs::copy_file(MIVO_GERMAN, Current() / kLanguageLibraryName);
  EXPECT_EQ(FirstMenu(Start()), "&File");
}

TEST_F(MivoAppTest, LanguageLibraryOfAnotherVersionIsNotUsed) {
  fs::copy_file(MIVO_OTHER_VERSION, Program() / kLanguageLibraryName);
  EXPECT_EQ(FirstMenu(Start()), "&File");
}

TEST_F(MivoAppTest, LanguageLibraryThatIsNoneIsNotUsed) {
  fs::copy_file(PutLibrary("a.ZLB").toStdString(), Program() / kLanguageLibraryName);
  CMainFrame& frame = Start();
  EXPECT_EQ(FirstMenu(frame), "&File");
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

}  // namespace
}  // namespace mivo

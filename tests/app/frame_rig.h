#ifndef MIVO_TESTS_APP_FRAME_RIG_H
#define MIVO_TESTS_APP_FRAME_RIG_H

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAction>
#include <QLabel>
#include <QPlainTextEdit>
#include <deque>
#include <filesystem>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "comp_edit_view.h"
#include "lb_comp_name.h"
#include "main_frame.h"
#include "state_folder.h"
#include "temp_folder.h"

namespace mivo {

/// Answers the frame's questions from a list and remembers what was asked. A question that no
/// answer is waiting for counts as cancelled and fails the test.
class ScriptedPrompts final : public FramePrompts {
 public:
  std::deque<QString> openPaths;
  std::deque<QString> savePaths;
  std::deque<SaveAnswer> saveAnswers;
  std::deque<bool> confirmations;
  std::vector<StringId> confirmed;  ///< what the confirmations were asked for
  std::vector<QString> proposedNames;
  std::vector<StringId> warnings;

  [[nodiscard]] QString AskOpenPath() override { return Next(openPaths, "open path", QString()); }
  [[nodiscard]] QString AskSavePath(const QString& proposed) override {
    proposedNames.push_back(proposed);
    return Next(savePaths, "save path", QString());
  }
  [[nodiscard]] SaveAnswer AskSaveChanges() override {
    return Next(saveAnswers, "save changes", SaveAnswer::Cancel);
  }
  [[nodiscard]] bool Confirm(StringId question) override {
    confirmed.push_back(question);
    return Next(confirmations, "confirm", false);
  }
  void Warn(StringId message) override { warnings.push_back(message); }

  std::deque<std::optional<CompPropertyValues>> components;  ///< answers
  std::vector<CompPropertyValues> shownComponents;
  std::deque<std::optional<std::u16string>> texts;  ///< answers to alias and library text
  std::vector<std::u16string> shownTexts;
  int aboutShown = 0;

  [[nodiscard]] std::optional<CompPropertyValues> AskComponent(
      const CompPropertyValues& values) override {
    shownComponents.push_back(values);
    return Next(components, "component", std::optional<CompPropertyValues>());
  }
  [[nodiscard]] std::optional<std::u16string> AskAlias(std::u16string_view name) override {
    shownTexts.emplace_back(name);
    return Next(texts, "alias", std::optional<std::u16string>());
  }
  [[nodiscard]] std::optional<std::u16string> AskLibraryText(std::u16string_view text) override {
    shownTexts.emplace_back(text);
    return Next(texts, "library text", std::optional<std::u16string>());
  }
  void ShowAbout() override { ++aboutShown; }

  std::deque<RecoveryAnswer> recoveryAnswers;
  std::vector<QString> recoveryQuestions;
  std::vector<QString> shownFolders;

  [[nodiscard]] RecoveryAnswer AskRecovery(const QString& question) override {
    recoveryQuestions.push_back(question);
    return Next(recoveryAnswers, "recovery", RecoveryAnswer::Later);
  }
  void ShowSafetyCopies(const QString& folder) override { shownFolders.push_back(folder); }

 private:
  template <typename Answer>
  static Answer Next(std::deque<Answer>& answers, const char* question, Answer cancelled) {
    if (answers.empty()) {
      ADD_FAILURE() << "unexpected question: " << question;
      return cancelled;
    }
    const Answer answer = answers.front();
    answers.pop_front();
    return answer;
  }
};

/// A main frame with settings and files of its own.
class FrameTest : public testing::Test {
 protected:
  explicit FrameTest(TextTable texts = TextTable())
      : settings_(folder_.Put("MIVO.INI", "\xFF\xFE")), texts_(std::move(texts)) {
    Restart();
  }

  /// What a test leaves to be recovered is no other test's.
  ~FrameTest() override {
    frame_.reset();
    std::filesystem::remove_all(FindStateFolder());
  }

  /// A new frame over the same settings.
  void Restart() {
    frame_ = std::make_unique<CMainFrame>(settings_, texts_);
    auto prompts = std::make_unique<ScriptedPrompts>();
    prompts_ = prompts.get();
    frame_->SetPrompts(std::move(prompts));
  }

  [[nodiscard]] CMainFrame& Frame() { return *frame_; }
  [[nodiscard]] ScriptedPrompts& Prompts() { return *prompts_; }
  [[nodiscard]] SettingsFile& Settings() { return settings_; }

  [[nodiscard]] QString PathOf(const char* name) const {
    return QString::fromStdString((folder_ / name).string());
  }
  void Put(const char* name, const std::string& content) const { folder_.Put(name, content); }
  [[nodiscard]] std::string Content(const char* name) const { return BytesOf(folder_ / name); }
  [[nodiscard]] const TempFolder& Folder() const { return folder_; }

  void Trigger(Command command) { frame_->Action(command)->trigger(); }
  [[nodiscard]] bool IsEnabled(Command command) { return frame_->Action(command)->isEnabled(); }
  /// The words of the status bar, or one of the numbers beside them.
  [[nodiscard]] std::string StatusText(const char* field = "statusText") {
    return frame_->findChild<QLabel*>(QLatin1String(field))->text().toStdString();
  }
  [[nodiscard]] std::string NoteText() {
    return frame_->findChild<QPlainTextEdit*>(QStringLiteral("noteBox"))
        ->toPlainText()
        .toStdString();
  }
  /// The names in list order, separated by blanks, the selected one in brackets.
  [[nodiscard]] std::string ListedNames() {
    std::string text;
    const NameListModel& names = frame_->Names().Names();
    for (int row = 0; row < names.rowCount(); ++row) {
      const std::string name = QString::fromStdU16String(names.Entry(row)->Name()).toStdString();
      if (row > 0) text += ' ';
      text += row == frame_->Names().SelectedRow() ? "[" + name + "]" : name;
    }
    return text;
  }

  /// Deletes the first pin of the selected component as a user would: the library is changed then.
  void EditSelectedComponent() {
    CompEditor& editor = frame_->View().Editor();
    ASSERT_NE(editor.Component(), nullptr);
    ASSERT_FALSE(editor.Component()->Pins().empty());
    ASSERT_TRUE(editor.SelectPin(editor.Component()->Pins().front().location));
    Trigger(Command::Delete);
  }

 private:
  TempFolder folder_;
  SettingsFile settings_;
  TextTable texts_;
  std::unique_ptr<CMainFrame> frame_;
  ScriptedPrompts* prompts_ = nullptr;
};

/// A component with two pins.
inline std::string ComponentRecord(const std::string& name, const std::string& note = {}) {
  return "+COMP,N:" + name +
         "\nX:4,Y:3,B:1\nTYPE:GEN,FB:0\nR:U\n"
         "+PIN,N:A,DF:FFFFFFFF,L:L1,T:,M:1,-PIN\n+PIN,N:B,DF:FFFFFFFF,L:R1,T:,M:2,-PIN\n"
         "NOTE:" +
         note + ",MFR:,MFRPN:,PKG:,-COMP\n";
}

/// A library file around records.
inline std::string LibraryFile(const std::string& records) {
  return "+TARSL_LIB_V.1.0\nVER:82\nPROP:\n" + records + "-TARSL_LIB_V.1.0\n";
}

}  // namespace mivo

#endif

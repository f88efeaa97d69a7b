#ifndef MIVO_APP_FRAME_PROMPTS_H
#define MIVO_APP_FRAME_PROMPTS_H

#include <QMessageBox>
#include <QString>
#include <optional>
#include <string>

#include "comp_property_values.h"
#include "text_table.h"

class QWidget;

namespace mivo {

enum class SaveAnswer { Save, Discard, Cancel };
enum class RecoveryAnswer { Restore, Remove, Later };

/// What the main frame asks the user, so that tests can answer. An empty path is a cancelled
/// dialog.
class FramePrompts {
 public:
  virtual ~FramePrompts() = default;

  [[nodiscard]] virtual QString AskOpenPath() = 0;
  /// `proposed` is a file name, with or without a folder.
  [[nodiscard]] virtual QString AskSavePath(const QString& proposed) = 0;
  [[nodiscard]] virtual SaveAnswer AskSaveChanges() = 0;
  /// OK or Cancel.
  [[nodiscard]] virtual bool Confirm(StringId question) = 0;
  virtual void Warn(StringId message) = 0;

  // Dialogs: what is in them after OK, nothing after Cancel.
  [[nodiscard]] virtual std::optional<CompPropertyValues> AskComponent(
      const CompPropertyValues& values) = 0;
  /// A further name for the component listed as `name`.
  [[nodiscard]] virtual std::optional<std::u16string> AskAlias(std::u16string_view name) = 0;
  [[nodiscard]] virtual std::optional<std::u16string> AskLibraryText(std::u16string_view text) = 0;
  virtual void ShowAbout() = 0;

  /// What becomes of changes that were not saved; `question` tells them.
  [[nodiscard]] virtual RecoveryAnswer AskRecovery(const QString& question) = 0;
  /// Tells where safety copies are, and opens the folder if that is wished.
  virtual void ShowSafetyCopies(const QString& folder) = 0;
};

/// Asks with real dialogs over `frame`.
class DialogPrompts final : public FramePrompts {
 public:
  /// Both must outlive the prompts.
  DialogPrompts(QWidget& frame, const TextTable& texts) : frame_(frame), texts_(texts) {}

  [[nodiscard]] QString AskOpenPath() override;
  [[nodiscard]] QString AskSavePath(const QString& proposed) override;
  [[nodiscard]] SaveAnswer AskSaveChanges() override;
  [[nodiscard]] bool Confirm(StringId question) override;
  void Warn(StringId message) override;
  [[nodiscard]] std::optional<CompPropertyValues> AskComponent(
      const CompPropertyValues& values) override;
  [[nodiscard]] std::optional<std::u16string> AskAlias(std::u16string_view name) override;
  [[nodiscard]] std::optional<std::u16string> AskLibraryText(std::u16string_view text) override;
  void ShowAbout() override;
  [[nodiscard]] RecoveryAnswer AskRecovery(const QString& question) override;
  void ShowSafetyCopies(const QString& folder) override;

 private:
  [[nodiscard]] QString LibraryFilter() const;
  /// Shows a message box; returns the button that was chosen.
  int Ask(QMessageBox::Icon icon, StringId message, QMessageBox::StandardButtons buttons);

  QWidget& frame_;
  const TextTable& texts_;
};

}  // namespace mivo

#endif

#ifndef MIVO_DIALOGS_COMP_PROPERTY_H
#define MIVO_DIALOGS_COMP_PROPERTY_H

#include <optional>

#include "comp_property_values.h"
#include "form_dialog.h"

class QCheckBox;
class QGroupBox;

namespace mivo {

class NoteEdit;

/// Edits the properties of a component, new or old.
class CCompProperty final : public FormDialog {
 public:
  CCompProperty(const TextTable& texts, CompPropertyValues values, QWidget* parent);

  /// What was accepted.
  [[nodiscard]] const CompPropertyValues& Values() const noexcept { return values_; }

  /// Lets the user edit `values`; nothing after Cancel.
  [[nodiscard]] static std::optional<CompPropertyValues> Ask(const TextTable& texts,
                                                             const CompPropertyValues& values,
                                                             QWidget* parent);

  void accept() override;

 private:
  QGroupBox* MakeSizeGroup();
  QGroupBox* MakePatternGroup();
  QGroupBox* MakeBlockGroup();
  void Connect();
  void ShowBlockControls();
  void ReadControls();
  [[nodiscard]] QWidget& ControlOf(CompPropertyRefusal::Field field) const;

  CompPropertyValues values_;
  QLineEdit* name_ = nullptr;
  QLineEdit* prefix_ = nullptr;
  QLineEdit* width_ = nullptr;
  QLineEdit* height_ = nullptr;
  QCheckBox* usePattern_ = nullptr;
  QCheckBox* noBitPattern_ = nullptr;
  QLineEdit* blocks_ = nullptr;
  QCheckBox* fixedBlock_ = nullptr;
  QLineEdit* fixedNumber_ = nullptr;
  QCheckBox* sharedBlock_ = nullptr;
  QLineEdit* manufacturer_ = nullptr;
  QLineEdit* partNumber_ = nullptr;
  QLineEdit* package_ = nullptr;
  NoteEdit* note_ = nullptr;
};

}  // namespace mivo

#endif

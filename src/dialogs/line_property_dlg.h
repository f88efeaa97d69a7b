#ifndef MIVO_DIALOGS_LINE_PROPERTY_DLG_H
#define MIVO_DIALOGS_LINE_PROPERTY_DLG_H

#include <optional>

#include "form_dialog.h"
#include "property_values.h"

class QCheckBox;

namespace mivo {

class PenWidthBox;

/// Edits a line.
class CLinePropertyDlg final : public FormDialog {
 public:
  CLinePropertyDlg(const TextTable& texts, const LineValues& values, QWidget* parent);

  [[nodiscard]] LineValues Values() const;

  /// Lets the user edit `values`; nothing after Cancel.
  [[nodiscard]] static std::optional<LineValues> Ask(const TextTable& texts,
                                                     const LineValues& values, QWidget* parent);

 private:
  PenWidthBox* width_;
  QCheckBox* curve_;
  QCheckBox* dot_;
};

}  // namespace mivo

#endif

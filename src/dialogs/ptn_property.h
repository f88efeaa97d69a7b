#ifndef MIVO_DIALOGS_PTN_PROPERTY_H
#define MIVO_DIALOGS_PTN_PROPERTY_H

#include <optional>

#include "form_dialog.h"
#include "property_values.h"

class QCheckBox;

namespace mivo {

class PenWidthBox;

/// Edits an ellipse, polygon or arc.
class CPtnProperty final : public FormDialog {
 public:
  CPtnProperty(const TextTable& texts, const ShapeValues& values, QWidget* parent);

  [[nodiscard]] ShapeValues Values() const;

  /// Lets the user edit `values`; nothing after Cancel.
  [[nodiscard]] static std::optional<ShapeValues> Ask(const TextTable& texts,
                                                      const ShapeValues& values, QWidget* parent);

 private:
  bool fillAllowed_;
  PenWidthBox* width_;
  QCheckBox* fill_;
  QCheckBox* dot_;
};

}  // namespace mivo

#endif

#ifndef MIVO_DIALOGS_PEN_WIDTH_BOX_H
#define MIVO_DIALOGS_PEN_WIDTH_BOX_H

#include <QComboBox>
#include <cstdint>

namespace mivo {

/// The list of pen widths.
class PenWidthBox final : public QComboBox {
 public:
  /// Selects the width that is nearest to `width`, component units.
  PenWidthBox(std::int32_t width, QWidget* parent);

  [[nodiscard]] std::int32_t Width() const;
};

}  // namespace mivo

#endif

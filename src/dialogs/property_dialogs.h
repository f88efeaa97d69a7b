#ifndef MIVO_DIALOGS_PROPERTY_DIALOGS_H
#define MIVO_DIALOGS_PROPERTY_DIALOGS_H

#include "common_font.h"
#include "property_values.h"
#include "text_table.h"

class QWidget;

namespace mivo {

/// Asks for properties with the dialogs, in front of a window.
class PropertyDialogs final : public PropertyPrompts {
 public:
  /// All must outlive the prompts. The font may change in between; pin pictures are lettered with
  /// it.
  PropertyDialogs(const TextTable& texts, const SCommonFont& font, QWidget& window)
      : texts_(texts), font_(font), window_(window) {}

  [[nodiscard]] std::optional<PinValues> AskPin(const PinValues& values) override;
  [[nodiscard]] std::optional<LineValues> AskLine(const LineValues& values) override;
  [[nodiscard]] std::optional<ShapeValues> AskShape(const ShapeValues& values) override;
  [[nodiscard]] std::optional<TextValues> AskText(const TextValues& values) override;

 private:
  const TextTable& texts_;
  const SCommonFont& font_;
  QWidget& window_;
};

}  // namespace mivo

#endif

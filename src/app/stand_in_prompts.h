#ifndef MIVO_APP_STAND_IN_PROMPTS_H
#define MIVO_APP_STAND_IN_PROMPTS_H

#include "property_values.h"

class QWidget;

namespace mivo {

/// Plain prompts for the one value that matters most of each kind of element.
class StandInPrompts final : public PropertyPrompts {
 public:
  /// `parent` must outlive the prompts.
  explicit StandInPrompts(QWidget& parent) : parent_(parent) {}

  [[nodiscard]] std::optional<PinValues> AskPin(const PinValues& values) override;
  [[nodiscard]] std::optional<LineValues> AskLine(const LineValues& values) override;
  [[nodiscard]] std::optional<ShapeValues> AskShape(const ShapeValues& values) override;
  [[nodiscard]] std::optional<TextValues> AskText(const TextValues& values) override;

 private:
  QWidget& parent_;
};

}  // namespace mivo

#endif

#ifndef MIVO_TESTS_SUPPORT_NO_PROMPTS_H
#define MIVO_TESTS_SUPPORT_NO_PROMPTS_H

#include <optional>

#include "property_values.h"

namespace mivo {

/// Cancels whatever the user is asked.
class NoPrompts final : public PropertyPrompts {
 public:
  [[nodiscard]] std::optional<PinValues> AskPin(const PinValues&) override { return {}; }
  [[nodiscard]] std::optional<LineValues> AskLine(const LineValues&) override { return {}; }
  [[nodiscard]] std::optional<ShapeValues> AskShape(const ShapeValues&) override { return {}; }
  [[nodiscard]] std::optional<TextValues> AskText(const TextValues&) override { return {}; }
};

}  // namespace mivo

#endif

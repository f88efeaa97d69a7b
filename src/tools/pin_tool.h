#ifndef MIVO_TOOLS_PIN_TOOL_H
#define MIVO_TOOLS_PIN_TOOL_H

#include "tool.h"

namespace mivo {

/// Places new pins on the outline. A nameless pin shows where.
class PinTool final : public Tool {
 public:
  explicit PinTool(const EditSession& session);

  [[nodiscard]] ToolKind Kind() const noexcept override { return ToolKind::Pin; }
  [[nodiscard]] StringId Hint(const EditSession& /*session*/) const override {
    return StringId::HintPlacePin;
  }
  void Press(EditSession& session, const Pointer& pointer) override;
  void Move(EditSession& session, const Pointer& pointer) override;
  [[nodiscard]] bool HasFeedback() const noexcept override { return true; }
  void DrawFeedback(FeedbackPainter& painter) const override;

 private:
  void Label(std::u16string_view name, std::u16string_view number);

  SCompPin pin_;
};

}  // namespace mivo

#endif

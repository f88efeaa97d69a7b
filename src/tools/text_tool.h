#ifndef MIVO_TOOLS_TEXT_TOOL_H
#define MIVO_TOOLS_TEXT_TOOL_H

#include "tool.h"

namespace mivo {

/// Asks for a text at each click and puts it there.
class TextTool final : public Tool {
 public:
  [[nodiscard]] ToolKind Kind() const noexcept override { return ToolKind::Text; }
  [[nodiscard]] StringId Hint(const EditSession& session) const override {
    return session.HasPattern() ? StringId::HintPlaceText : StringId::HintNoPattern;
  }
  void Press(EditSession& session, const Pointer& pointer) override;
};

}  // namespace mivo

#endif

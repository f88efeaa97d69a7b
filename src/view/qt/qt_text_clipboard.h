#ifndef MIVO_VIEW_QT_TEXT_CLIPBOARD_H
#define MIVO_VIEW_QT_TEXT_CLIPBOARD_H

#include "text_clipboard.h"

namespace mivo {

/// The clipboard of the window system.
class QtTextClipboard final : public TextClipboard {
 public:
  [[nodiscard]] bool SetText(std::u16string_view text) override;
  [[nodiscard]] std::optional<std::u16string> GetText() override;
};

}  // namespace mivo

#endif

#ifndef MIVO_BENCH_SILENT_PORTS_H
#define MIVO_BENCH_SILENT_PORTS_H

#include <optional>
#include <string_view>

#include "property_values.h"
#include "text_clipboard.h"
#include "view_host.h"

// Surroundings of an editor that cost nothing.

namespace mivo::bench {

/// A window that nobody looks at.
class SilentHost : public ViewHost {
 public:
  void Repaint() override {}
  void Render() override {}
  void ScrollBarsChanged() override {}
  void SetCursor(CursorShape) override {}
  void SetCapture(bool) override {}
  void ShowContextMenu(PixelPoint) override {}
  void StateChanged() override {}
  void Edited() override {}
  void PinsChanged() override {}
  void TogglePinGrid() override {}
  [[nodiscard]] bool IsPinGridShown() const override { return false; }
};

class NoPrompts final : public PropertyPrompts {
 public:
  [[nodiscard]] std::optional<PinValues> AskPin(const PinValues&) override { return {}; }
  [[nodiscard]] std::optional<LineValues> AskLine(const LineValues&) override { return {}; }
  [[nodiscard]] std::optional<ShapeValues> AskShape(const ShapeValues&) override { return {}; }
  [[nodiscard]] std::optional<TextValues> AskText(const TextValues&) override { return {}; }
};

class NoClipboard final : public TextClipboard {
 public:
  [[nodiscard]] bool SetText(std::u16string_view) override { return false; }
  [[nodiscard]] std::optional<std::u16string> GetText() override { return {}; }
};

}  // namespace mivo::bench

#endif

#ifndef MIVO_TESTS_DIALOGS_PIN_GRID_GRID_RIG_H
#define MIVO_TESTS_DIALOGS_PIN_GRID_GRID_RIG_H

#include <gtest/gtest.h>

#include <functional>
#include <initializer_list>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "no_prompts.h"
#include "pin_grid.h"

namespace mivo {

/// Hands the one thing on that a pin grid wants to know.
class GridHost final : public ViewHost {
 public:
  std::function<void()> pinsChanged;
  int pinChanges = 0;

  void Repaint() override {}
  void Render() override {}
  void ScrollBarsChanged() override {}
  void SetCursor(CursorShape) override {}
  void SetCapture(bool) override {}
  void ShowContextMenu(PixelPoint) override {}
  void StateChanged() override {}
  void Edited() override {}
  void PinsChanged() override {
    ++pinChanges;
    if (pinsChanged) pinsChanged();
  }
  void TogglePinGrid() override {}
  [[nodiscard]] bool IsPinGridShown() const override { return true; }
};

class TestClipboard final : public TextClipboard {
 public:
  std::optional<std::u16string> text;

  [[nodiscard]] bool SetText(std::u16string_view newText) override {
    text = newText;
    return true;
  }
  [[nodiscard]] std::optional<std::u16string> GetText() override { return text; }
};

/// Nothing is drawn here.
class NoSurfaces final : public SurfaceFactory {
 public:
  [[nodiscard]] std::unique_ptr<DrawingSurface> CreateSurface(RasterImage&) override {
    ADD_FAILURE() << "a surface was asked for";
    return nullptr;
  }
};

/// An editor without a window, for a pin grid to work on.
struct EditorRig {
  GridHost host;
  NoPrompts prompts;
  TestClipboard clipboard;
  NoSurfaces surfaces;
  SCommonFont font;
  CompEditor editor{{host, prompts, clipboard, surfaces, font}};
};

struct PinSpec {
  PinSide side;
  std::int32_t offset;
  std::u16string name = u"N";
  std::vector<std::u16string> numbers = {u"1"};
  std::int32_t type = 0;
};

inline SCompPin MakePin(const PinSpec& spec) {
  SCompPin pin(static_cast<std::int32_t>(spec.numbers.size()));
  pin.location = {spec.side, spec.offset};
  pin.type = spec.type;
  pin.SetNameFromDisplayText(spec.name);
  for (std::size_t block = 0; block < spec.numbers.size(); ++block) {
    pin.SetNumber(static_cast<std::int32_t>(block), spec.numbers[block]);
  }
  return pin;
}

/// A component of 20 × 20 cells.
inline SComponent MakeComponent(const std::vector<PinSpec>& specs, std::int32_t blocks = 1) {
  SComponent component;
  component.SetSize({20, 20}, false, false);
  component.SetBlockCount(blocks);
  std::vector<SCompPin> pins;
  for (const PinSpec& spec : specs) pins.push_back(MakePin(spec));
  component.SetPins(std::move(pins));
  return component;
}

/// A pin grid over an editor.
class GridTest : public testing::Test {
 protected:
  GridTest() {
    rig_.editor.Resize({600, 600}, 1);
    rig_.host.pinsChanged = [this] { grid_.Refresh(); };
    grid_.SetVisible(100, 1);
  }

  void Open(SComponent component) {
    rig_.editor.SetComponent(nullptr);
    component_ = std::move(component);
    rig_.editor.SetComponent(&component_);
  }

  [[nodiscard]] CompEditor& Editor() { return rig_.editor; }
  [[nodiscard]] PinGrid& Grid() { return grid_; }
  [[nodiscard]] TestClipboard& Clipboard() { return rig_.clipboard; }
  /// How often pins came, went or changed.
  [[nodiscard]] int PinChanges() const { return rig_.host.pinChanges; }

  [[nodiscard]] const SCompPin& Pin(int row) const {
    return *grid_.Rows()[static_cast<std::size_t>(row)].pin;
  }
  /// The locations of all rows, the selected one in brackets.
  [[nodiscard]] std::string Listed() const {
    std::string text;
    for (int row = 0; row < grid_.RowCount(); ++row) {
      const std::u16string location = LocationText(Pin(row).location);
      const std::string narrow(location.begin(), location.end());
      if (row > 0) text += ' ';
      text += row == grid_.SelectedRow() ? "[" + narrow + "]" : narrow;
    }
    return text;
  }

 private:
  EditorRig rig_;
  SComponent component_;
  PinGrid grid_{rig_.editor};
};

}  // namespace mivo

#endif

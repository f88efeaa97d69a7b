#ifndef MIVO_TESTS_TOOLS_EDIT_RIG_H
#define MIVO_TESTS_TOOLS_EDIT_RIG_H

#include <deque>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "block_text_surface.h"
#include "comp_editor.h"
#include "component.h"

namespace mivo {

/// Writes down what the editor tells its window.
class FakeHost final : public ViewHost {
 public:
  void Repaint() override { Note("repaint", wantsFront); }
  void Render() override { Note("render", wantsBack); }
  void ScrollBarsChanged() override { calls.emplace_back("scroll"); }
  void SetCursor(CursorShape shape) override {
    cursor = shape;
    calls.emplace_back(shape == CursorShape::Move ? "cursor=move" : "cursor=arrow");
  }
  void SetCapture(bool on) override {
    captured = on;
    calls.emplace_back(on ? "capture" : "uncapture");
  }
  void ShowContextMenu(PixelPoint at) override {
    calls.push_back("menu@" + std::to_string(at.x) + "," + std::to_string(at.y));
  }
  void Edited() override { ++operations; }
  void StateChanged() override { calls.emplace_back("state"); }
  void PinsChanged() override { calls.emplace_back("pins"); }
  void TogglePinGrid() override {
    gridShown = !gridShown;
    calls.emplace_back("grid");
  }
  [[nodiscard]] bool IsPinGridShown() const override { return gridShown; }

  std::vector<std::string> calls;
  CursorShape cursor = CursorShape::Arrow;
  int operations = 0;  ///< how often an operation was told to be complete
  bool captured = false;
  bool gridShown = false;
  bool wantsFront = false;
  bool wantsBack = false;

 private:
  void Note(const char* call, bool& wanted) {
    calls.emplace_back(call);
    wanted = true;
  }
};

/// Answers with what the test has put in line; Cancel when there is nothing, or nothing that fits.
class FakePrompts final : public PropertyPrompts {
 public:
  using Answer = std::variant<std::monostate, PinValues, LineValues, ShapeValues, TextValues>;

  std::optional<PinValues> AskPin(const PinValues& values) override { return Ask(values); }
  std::optional<LineValues> AskLine(const LineValues& values) override { return Ask(values); }
  std::optional<ShapeValues> AskShape(const ShapeValues& values) override { return Ask(values); }
  std::optional<TextValues> AskText(const TextValues& values) override { return Ask(values); }

  std::deque<Answer> answers;
  std::vector<Answer> asked;

 private:
  template <typename Values>
  std::optional<Values> Ask(const Values& values) {
    asked.emplace_back(values);
    if (answers.empty()) return {};
    const Answer answer = std::move(answers.front());
    answers.pop_front();
    const auto* fitting = std::get_if<Values>(&answer);
    return fitting != nullptr ? std::optional(*fitting) : std::nullopt;
  }
};

class FakeClipboard final : public TextClipboard {
 public:
  bool SetText(std::u16string_view newText) override {
    if (refuses) return false;
    text = newText;
    return true;
  }
  std::optional<std::u16string> GetText() override { return text; }

  bool refuses = false;
  std::optional<std::u16string> text;
};

/// An editor with everything around it.
class EditRig {
 public:
  /// The window starts with 400 × 400 pixels.
  EditRig();

  /// Paints into memory what the editor asked the window to paint since the last time.
  void PaintAsAsked();

  FakeHost host;
  FakePrompts prompts;
  FakeClipboard clipboard;
  BlockTextSurfaceFactory surfaces;
  SCommonFont commonFont;
  SComponent component;
  CompEditor editor;
};

/// What must hold after every event, as a sentence about the first thing that does not.
[[nodiscard]] std::optional<std::string> BrokenInvariant(const EditRig& rig);

/// A component of `size` cells, drawn in a pattern or not.
[[nodiscard]] SComponent NewComponent(SPoint size, std::int32_t blocks, bool pattern,
                                      bool bitPattern);

}  // namespace mivo

#endif

#ifndef MIVO_TOOLS_PROPERTY_VALUES_H
#define MIVO_TOOLS_PROPERTY_VALUES_H

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// What the property dialogs show and give back.

namespace mivo {

struct PinValues {
  // Characters that can be typed; a file may hold more.
  static constexpr int kMaxNameLength = 250;
  static constexpr int kMaxNumberLength = 64;

  std::u16string name = {};  ///< as people type it, see SCompPin
  std::uint32_t nameMask = 0xFFFFFFFF;
  std::vector<std::u16string> numbers = {};  ///< one per block; empty also for an absent number
  bool hideNumber = false;
  std::int32_t shape = 0;  ///< see SCompPin
  bool operator==(const PinValues&) const = default;
};

struct LineValues {
  std::int32_t width = 1;  ///< component units
  bool curve = false;
  bool dot = false;
  bool operator==(const LineValues&) const = default;
};

/// For ellipses, polygons and arcs.
struct ShapeValues {
  std::int32_t width = 1;  ///< component units
  bool dot = false;
  bool fill = false;
  bool fillAllowed = false;  ///< an arc has nothing to fill; `fill` then has no effect
  bool operator==(const ShapeValues&) const = default;
};

struct TextValues {
  std::u16string text = {};
  std::int32_t align = 0;     ///< see SPtnObjText
  std::u16string face = {};   ///< empty for the common label font
  std::int32_t height = 10;   ///< component units; the sign has no meaning
  std::int32_t weight = 400;  ///< 400 normal, 700 and more bold
  bool italic = false;
  bool operator==(const TextValues&) const = default;
};

/// The property dialogs: each shows `values` and returns what it says after OK; nothing after
/// Cancel.
class PropertyPrompts {
 public:
  virtual ~PropertyPrompts() = default;

  [[nodiscard]] virtual std::optional<PinValues> AskPin(const PinValues& values) = 0;
  [[nodiscard]] virtual std::optional<LineValues> AskLine(const LineValues& values) = 0;
  [[nodiscard]] virtual std::optional<ShapeValues> AskShape(const ShapeValues& values) = 0;
  [[nodiscard]] virtual std::optional<TextValues> AskText(const TextValues& values) = 0;
};

}  // namespace mivo

#endif

#ifndef MIVO_DIALOGS_COMP_PROPERTY_VALUES_H
#define MIVO_DIALOGS_COMP_PROPERTY_VALUES_H

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "component.h"
#include "text_table.h"

// What the component property dialog shows, decides and gives back.

namespace mivo {

/// Starts as the values of a new component.
struct CompPropertyValues {
  static constexpr std::size_t kMaxNameLength = 32;
  static constexpr std::int32_t kMaxSize = 255;
  static constexpr std::size_t kMaxNoteLength = 1023;

  std::u16string name = u"NAME";
  std::u16string prefix = u"U";
  std::int32_t width = 2;   ///< grid cells
  std::int32_t height = 2;  ///< grid cells
  bool usePattern = false;
  bool noBitPattern = false;
  std::int32_t blocks = 1;
  bool fixedBlock = false;
  std::int32_t fixedBlockNumber = 1;  ///< counted from 1
  bool sharedBlock = false;
  std::u16string note = {};
  std::u16string manufacturer = {};
  std::u16string partNumber = {};
  std::u16string package = {};
  bool operator==(const CompPropertyValues&) const = default;
};

/// Of a component that is listed as `name`.
[[nodiscard]] CompPropertyValues ValuesOf(std::u16string_view name, const SComponent& component);

/// Gives a component everything but the name, which is the library's business.
void Apply(const CompPropertyValues& values, SComponent& component);

/// Why the dialog does not accept its values, and where the user has to mend them.
struct CompPropertyRefusal {
  enum class Field { Name, Width, Height, Blocks, FixedBlockNumber };

  StringId message;
  Field field;
  bool operator==(const CompPropertyRefusal&) const = default;
};

/// The first objection to names and numbers; nothing when they can be taken.
[[nodiscard]] std::optional<CompPropertyRefusal> Check(const CompPropertyValues& values) noexcept;

/// Whether a component may be called `name`: 1 to 32 visible ASCII characters other than braces.
[[nodiscard]] bool IsComponentName(std::u16string_view name) noexcept;

/// How the controls of the group "Block" stand. Only one of the two boxes can be checked, and the
/// numbers that do not count show 1.
struct BlockControls {
  bool isFixedChecked = false;
  bool isSharedChecked = false;
  bool isBlocksEnabled = true;
  bool isFixedNumberEnabled = false;
  std::int32_t blocks = 1;
  std::int32_t fixedNumber = 1;
  bool operator==(const BlockControls&) const = default;
};

[[nodiscard]] BlockControls BlockControlsFor(const CompPropertyValues& values) noexcept;

}  // namespace mivo

#endif

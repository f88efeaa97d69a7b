#ifndef MIVO_RESOURCES_TEXT_TABLE_H
#define MIVO_RESOURCES_TEXT_TABLE_H

#include <compare>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "command.h"
#include "finding.h"

namespace mivo {

enum class TextKind : std::int32_t {
  String = 0,   ///< messages and other texts; `number` is a StringId
  Command = 1,  ///< menu text with mnemonic and, behind a tab, the keys; `number` is a Command
  Hint = 2,     ///< tool tip and status text of a command; `number` is a Command
  Menu = 3,     ///< title of a menu; `number` is a MenuId
  Dialog = 4,   ///< text of a dialog's control; `number` is the dialog's
  Finding = 5,  ///< what reading a file found fault with; `number` is a FindingKind
};

/// Names one text of the program.
struct TextId {
  TextKind kind;
  std::int32_t number;
  std::int32_t control = 0;  ///< number of the control in its dialog; 0 elsewhere and for titles
  auto operator<=>(const TextId&) const = default;
};

enum class StringId : std::int32_t {
  StartFailed = 100,
  SizeRange = 129,
  BlocksRange = 130,
  InvalidComponentName = 131,
  OverwriteBitPattern = 132,
  SaveChanges = 133,
  CannotUndo = 135,
  SaveFailed = 136,
  Version = 143,
  LaterVersion = 144,
  FixedBlockRange = 145,
  TextTooLong = 150,  ///< "%d" stands for the number of characters that are allowed

  // What a tool expects next, for the status bar.
  HintSelect = 200,
  HintDragNode,
  HintPlacePin,
  HintPlaceLine,
  HintLineEnd,
  HintPlaceEllipse,
  HintEllipseCorner,
  HintPlacePolygon,
  HintPolygonSecondCorner,
  HintPolygonNextCorner,
  HintPolygonFull,
  HintPlaceArc,
  HintArcRadius,
  HintArcStart,
  HintArcEnd,
  HintPlaceText,
  HintNoPattern,

  // What the window and its parts are called. The key indicators are as short as can be.
  ToolBarName = 300,
  NameListName,
  NoteName,
  ViewName,
  CapsLock,
  NumLock,
  ScrollLock,

  // Files.
  LibraryFilter = 320,
  SchematicFilter,
  Untitled,     ///< file name proposed for a library that has none
  LoadFinding,  ///< "%d" stands for the line, "%s" for what was found there

  // The command line's help.
  Purpose = 340,
  FileArgument,  ///< what stands for the file's name
  FileHelp,

  LanguageCode = 350,  ///< of ISO 639: what language the toolkit's own dialogs shall speak

  // Over the empty view.
  StartTitle = 360,
  StartSteps,  ///< one way to go on per line

  // What the numbers of the status bar are, and what takes long; "%s" stands for the file.
  PlaceName = 370,
  ZoomName,
  NamesName,
  ProgressName,
  Opening,
  Saving,

  // So that nothing gets lost.
  ChangedOnDisk = 380,
  OpenElsewhere,
  NoSafetyCopy,
  SafetyCopiesPlace,  ///< "%s" stands for the folder
  OpenFolder,         ///< a button
  RecoveryQuestion,   ///< "%s" stands for the library and, on lines of their own, what differs
  // Lines of that; "%s" stands for the names.
  RecoveryChanged,
  RecoveryAdded,
  RecoveryRemoved,
  RecoveryArrangement,
  // Buttons that answer it.
  RecoveryRestore,
  RecoveryRemove,
  RecoveryLater,

  // What assistive programs say of a pin.
  PinItem = 400,     ///< "%s" stands for its place
  PinItemNumber,     ///< "%s" stands for its number, or its numbers
  PinItemOverlined,  ///< its name has a bar

  // What further parts of the window are called for assistive programs.
  MenuBarName = 410,
  MoreToolsName,  ///< the button at the end of a toolbar that is too long

  // The manual.
  ManualTitle = 420,
  ManualMissing,
};

enum class MenuId : std::int32_t { File = 1, Edit, Component, View, Tool, Help };

[[nodiscard]] constexpr TextId IdOf(StringId id) noexcept {
  return {TextKind::String, static_cast<std::int32_t>(id)};
}
[[nodiscard]] constexpr TextId IdOf(Command command) noexcept {
  return {TextKind::Command, static_cast<std::int32_t>(command)};
}
[[nodiscard]] constexpr TextId HintIdOf(Command command) noexcept {
  return {TextKind::Hint, static_cast<std::int32_t>(command)};
}
[[nodiscard]] constexpr TextId IdOf(MenuId menu) noexcept {
  return {TextKind::Menu, static_cast<std::int32_t>(menu)};
}
[[nodiscard]] constexpr TextId IdOf(FindingKind kind) noexcept {
  return {TextKind::Finding, static_cast<std::int32_t>(kind)};
}

/// The program's own text; empty for an id that does not exist. Any thread, never changes.
[[nodiscard]] std::u16string_view BuiltInText(TextId id) noexcept;

/// Every id that has a text, in ascending order: what a translation must cover.
[[nodiscard]] std::span<const TextId> AllTextIds() noexcept;

/// The texts that the program shows: a translation's where it has one, else the built-in ones.
class TextTable {
 public:
  /// Looks up a translated text; empty where the translation has none.
  using Translation = std::function<std::u16string(TextId)>;

  /// Takes the translation when its version text (StringId::Version) is the program's; texts of
  /// another version may belong to other commands. False when it is not taken.
  bool Translate(Translation translation);

  [[nodiscard]] std::u16string Text(TextId id) const;
  [[nodiscard]] std::u16string Text(StringId id) const;
  [[nodiscard]] std::u16string Text(Command command) const;
  [[nodiscard]] std::u16string Hint(Command command) const;
  [[nodiscard]] std::u16string Text(MenuId menu) const;

 private:
  Translation translation_;
};

}  // namespace mivo

#endif

#include "text_table.h"

#include <algorithm>
#include <array>
#include <utility>

#include "dialog_texts.h"
#include "program_version.h"

namespace mivo {
namespace {

struct Entry {
  TextId id;
  std::u16string_view text;
};

constexpr Entry Message(StringId id, std::u16string_view text) {
  return {IdOf(id), text};
}

constexpr Entry MenuText(Command command, std::u16string_view text) {
  return {IdOf(command), text};
}

constexpr Entry HintText(Command command, std::u16string_view text) {
  return {HintIdOf(command), text};
}

constexpr Entry MenuTitle(MenuId menu, std::u16string_view text) {
  return {IdOf(menu), text};
}

constexpr auto kMessages = std::to_array<Entry>({
    Message(StringId::StartFailed, u"Mivo cannot start."),
    Message(StringId::SizeRange, u"Size must be 1~255."),
    Message(StringId::BlocksRange, u"Blocks must be 1~255."),
    Message(StringId::InvalidComponentName, u"Invalid component name."),
    Message(StringId::OverwriteBitPattern, u"It CREATES BIT-PATTERN and OVERWRITES EXISTING"),
    Message(StringId::SaveChanges, u"Save changes?"),
    Message(StringId::CannotUndo, u"You can't undo this command.\nContinue?"),
    Message(StringId::SaveFailed, u"Cannnot save the document. Try saving as."),
    Message(StringId::Version, kProgramVersion),
    Message(StringId::LaterVersion,
            u"This file was created by the later version. \nSome data may have been lost."),
    Message(StringId::FixedBlockRange, u"Fixed Block Number must be 1~255."),
    Message(StringId::TextTooLong, u"Enter at most %d characters."),
    Message(StringId::HintSelect, u"Select pins and objects"),
    Message(StringId::HintDragNode, u"Drag a node"),
    Message(StringId::HintPlacePin, u"Place pin"),
    Message(StringId::HintPlaceLine, u"Place line"),
    Message(StringId::HintLineEnd, u"Place line: end point"),
    Message(StringId::HintPlaceEllipse, u"Place ellipse"),
    Message(StringId::HintEllipseCorner, u"Place ellipse: opposite corner"),
    Message(StringId::HintPlacePolygon, u"Place polygon"),
    Message(StringId::HintPolygonSecondCorner, u"Place polygon: next corner"),
    Message(StringId::HintPolygonNextCorner, u"Place polygon: next corner, double click to finish"),
    Message(StringId::HintPolygonFull, u"Place polygon: double click to finish"),
    Message(StringId::HintPlaceArc, u"Place arc"),
    Message(StringId::HintArcRadius, u"Place arc: radius"),
    Message(StringId::HintArcStart, u"Place arc: start direction"),
    Message(StringId::HintArcEnd, u"Place arc: end direction"),
    Message(StringId::HintPlaceText, u"Place text"),
    Message(StringId::HintNoPattern, u"The component has no pattern to draw in"),
    Message(StringId::ToolBarName, u"Toolbar"),
    Message(StringId::NameListName, u"Component names"),
    Message(StringId::NoteName, u"Note of the component"),
    Message(StringId::ViewName, u"Drawing of the component"),
    Message(StringId::CapsLock, u"CAP"),
    Message(StringId::NumLock, u"NUM"),
    Message(StringId::ScrollLock, u"SCRL"),
    Message(StringId::LibraryFilter, u"Tarsel library file(*.zlb)"),
    Message(StringId::SchematicFilter, u"Tarsel schematic(*.zsc)"),
    Message(StringId::Untitled, u"Untitled.ZLB"),
    Message(StringId::LoadFinding, u"Line %d: %s"),
    Message(StringId::Purpose, u"Editor of schematic component libraries"),
    Message(StringId::FileArgument, u"file"),
    Message(StringId::FileHelp, u"library or schematic to open"),
    Message(StringId::LanguageCode, u"en"),
    Message(StringId::StartTitle, u"No component is open"),
    Message(StringId::StartSteps,
            u"Open a library or a schematic: Ctrl+O\n"
            u"Start a new one: Component > New component...\n"
            u"Or drop a file here."),
    Message(StringId::PlaceName, u"Position of the pointer in grid cells"),
    Message(StringId::ZoomName, u"Zoom"),
    Message(StringId::NamesName, u"Selected name and number of names"),
    Message(StringId::ProgressName, u"Progress"),
    Message(StringId::Opening, u"Opening %s"),
    Message(StringId::Saving, u"Saving %s"),
    Message(StringId::ChangedOnDisk,
            u"Another program has changed the file since it was opened here.\nOverwrite it?"),
    Message(StringId::OpenElsewhere,
            u"This library is open in another Mivo, too.\nWhoever saves second is asked first."),
    Message(StringId::NoSafetyCopy, u"No safety copy of the previous version could be kept."),
    Message(StringId::SafetyCopiesPlace,
            u"The previous versions of the libraries that you save are kept in\n%s"),
    Message(StringId::OpenFolder, u"&Open folder"),
    Message(StringId::RecoveryQuestion,
            u"Mivo ended before these changes were saved.\n\n%s\n\nRestore them?"),
    Message(StringId::RecoveryChanged, u"Changed: %s"),
    Message(StringId::RecoveryAdded, u"New: %s"),
    Message(StringId::RecoveryRemoved, u"Removed: %s"),
    Message(StringId::RecoveryArrangement, u"Order, aliases or text of the library changed"),
    Message(StringId::RecoveryRestore, u"&Restore"),
    Message(StringId::RecoveryRemove, u"&Delete them"),
    Message(StringId::RecoveryLater, u"&Later"),
    Message(StringId::PinItem, u"pin %s"),
    Message(StringId::PinItemNumber, u"number %s"),
    Message(StringId::PinItemOverlined, u"overlined"),
    Message(StringId::MenuBarName, u"Menus"),
    Message(StringId::MoreToolsName, u"More tools"),
    Message(StringId::ManualTitle, u"Mivo - manual"),
    Message(StringId::ManualMissing, u"The manual was not found beside the program."),
});

constexpr auto kCommands = std::to_array<Entry>({
    MenuText(Command::MoveNameUp, u"Move up"),
    MenuText(Command::MoveNameDown, u"Move down"),
    MenuText(Command::CutComponent, u"Cut component"),
    MenuText(Command::CopyComponent, u"Copy component"),
    MenuText(Command::PasteComponent, u"Paste component"),
    MenuText(Command::ZoomOut, u"Zoom &Out\tPage down"),
    MenuText(Command::ZoomIn, u"Zoom &In\tPage up"),
    MenuText(Command::Selector, u"&Selector\tS"),
    MenuText(Command::PinTool, u"&Pin\tP"),
    MenuText(Command::LineTool, u"&Line\tL"),
    MenuText(Command::CircleTool, u"&Circle\tC"),
    MenuText(Command::PolygonTool, u"Poly&gon\tG"),
    MenuText(Command::ArcTool, u"&Arc\tA"),
    MenuText(Command::Property, u"P&roperty..."),
    MenuText(Command::NewComponent, u"New component..."),
    MenuText(Command::ComponentProperty, u"Component property..."),
    MenuText(Command::Mirror, u"&Mirror\tCtrl+M"),
    MenuText(Command::Rotate, u"&Rotate\tCtrl+R"),
    MenuText(Command::EditNodeMode, u"Edit &node mode\tCtrl+D"),
    MenuText(Command::CreateBitPattern, u"Create &BIT-PATTERN"),
    MenuText(Command::LibraryProperty, u"Library property..."),
    MenuText(Command::AddAlias, u"Add alias..."),
    MenuText(Command::SortByName, u"Sort by name"),
    MenuText(Command::TextTool, u"&Text\tT"),
    MenuText(Command::NextPinNumber, u"Next pin number\tF12"),
    MenuText(Command::NextPinName, u"Next pin name\tF11"),
    MenuText(Command::PinProperty, u"&Pin property"),
    MenuText(Command::AddNode, u"Add Node"),
    MenuText(Command::SwapPinNameAndNumber, u"Swap pin name and pin num"),
    MenuText(Command::SafetyCopies, u"&Safety copies..."),
    MenuText(Command::New, u"&New\tCtrl+N"),
    MenuText(Command::Open, u"&Open...\tCtrl+O"),
    MenuText(Command::Save, u"&Save\tCtrl+S"),
    MenuText(Command::SaveAs, u"Save &as..."),
    MenuText(Command::Delete, u"&Delete\tDel"),
    MenuText(Command::Copy, u"&Copy\tCtrl+C"),
    MenuText(Command::Cut, u"Cu&t\tCtrl+X"),
    MenuText(Command::Paste, u"&Paste\tCtrl+V"),
    MenuText(Command::Undo, u"&Undo\tCtrl+Z"),
    MenuText(Command::About, u"&About Mivo..."),
    MenuText(Command::Exit, u"E&xit"),
    MenuText(Command::Manual, u"&Manual\tF1"),
});

constexpr auto kHints = std::to_array<Entry>({
    HintText(Command::MoveNameUp, u"Move the selected name up"),
    HintText(Command::MoveNameDown, u"Move the selected name down"),
    HintText(Command::CutComponent, u"Put the selected component on the clipboard and remove it"),
    HintText(Command::CopyComponent, u"Put the selected component on the clipboard"),
    HintText(Command::PasteComponent, u"Insert the component from the clipboard"),
    HintText(Command::ZoomOut, u"Show more of the component"),
    HintText(Command::ZoomIn, u"Show the component larger"),
    HintText(Command::Selector, u"Select and move pins and drawing objects"),
    HintText(Command::PinTool, u"Place pins on the outline"),
    HintText(Command::LineTool, u"Draw lines"),
    HintText(Command::CircleTool, u"Draw ellipses"),
    HintText(Command::PolygonTool, u"Draw polygons"),
    HintText(Command::ArcTool, u"Draw arcs"),
    HintText(Command::Property, u"Edit the properties of the selected element"),
    HintText(Command::NewComponent, u"Add a new component to the library"),
    HintText(Command::ComponentProperty, u"Edit the properties of the selected component"),
    HintText(Command::Mirror, u"Mirror the selected drawing objects left to right"),
    HintText(Command::Rotate, u"Turn the selected drawing objects by 90 degrees"),
    HintText(Command::EditNodeMode, u"Drag the nodes of the selected drawing object"),
    HintText(Command::CreateBitPattern, u"Turn the drawing into the bit pattern"),
    HintText(Command::LibraryProperty, u"Edit the text of the library"),
    HintText(Command::AddAlias, u"Give the selected component a further name"),
    HintText(Command::SortByName, u"Sort the names of the library"),
    HintText(Command::TextTool, u"Place texts"),
    HintText(Command::NextPinNumber, u"Give the selected pin the next number"),
    HintText(Command::NextPinName, u"Give the selected pin the next name"),
    HintText(Command::PinProperty, u"Show or hide the table of all pins"),
    HintText(Command::AddNode, u"Insert a node into the edge under the pointer"),
    HintText(Command::SwapPinNameAndNumber, u"Show pin numbers in the place of pin names"),
    HintText(Command::SafetyCopies, u"Show where previous versions of saved libraries are kept"),
    HintText(Command::New, u"Start a new library"),
    HintText(Command::Open, u"Open a library or a schematic"),
    HintText(Command::Save, u"Save the library"),
    HintText(Command::SaveAs, u"Save the library under another name"),
    HintText(Command::Delete, u"Delete what is selected"),
    HintText(Command::Copy, u"Put what is selected on the clipboard"),
    HintText(Command::Cut, u"Put what is selected on the clipboard and delete it"),
    HintText(Command::Paste, u"Insert pins or drawing objects from the clipboard"),
    HintText(Command::Undo, u"Undo the last operation"),
    HintText(Command::About, u"Show the version of Mivo"),
    HintText(Command::Exit, u"Quit Mivo"),
    HintText(Command::Manual, u"Read how to work with Mivo"),
});

constexpr auto kMenus = std::to_array<Entry>({
    MenuTitle(MenuId::File, u"&File"),
    MenuTitle(MenuId::Edit, u"&Edit"),
    MenuTitle(MenuId::Component, u"&Component"),
    MenuTitle(MenuId::View, u"&View"),
    MenuTitle(MenuId::Tool, u"&Tool"),
    MenuTitle(MenuId::Help, u"&Help"),
});

constexpr auto kDialogs = [] {
  using namespace dialog_text;
  return std::to_array<Entry>({
      {kOk, u"OK"},
      {kCancel, u"Cancel"},
      {kYes, u"&Yes"},
      {kNo, u"&No"},

      {about::kTitle, u"About Mivo"},
      {about::kVersion, u"Mivo Version "},

      {pin_property::kTitle, u"Pin - property"},
      {pin_property::kNumberGroup, u"Nu&mber"},
      {pin_property::kStyleGroup, u"Style"},
      {pin_property::kName, u"&Name"},
      {pin_property::kBlock, u"&Block"},
      {pin_property::kHideNumber, u"&Hide number"},
      {pin_property::kPlain, u"Plain"},
      {pin_property::kClock, u"Clock"},
      {pin_property::kNegation, u"Inverted"},
      {pin_property::kNegationClock, u"Inverted clock"},
      {pin_property::kShapeS, u"Number nearer the body"},
      {pin_property::kShapeZ, u"No line, number nearer the body"},
      {pin_property::kShowHide, u"Show/Hide"},

      {comp_property::kTitle, u"Property - component"},
      {comp_property::kSizeGroup, u"Size"},
      {comp_property::kPatternGroup, u"Pattern"},
      {comp_property::kBlockGroup, u"Block"},
      {comp_property::kName, u"&Name"},
      {comp_property::kPrefix, u"Numbe&r"},
      {comp_property::kWidth, u"&X"},
      {comp_property::kBlocks, u"&Blocks"},
      {comp_property::kHeight, u"&Y"},
      {comp_property::kUsePattern, u"Use &Pattern"},
      {comp_property::kNoBitPattern, u"No &Bit-pattern"},
      {comp_property::kManufacturer, u"Manufacturer"},
      {comp_property::kPartNumber, u"MfrPartNumber"},
      {comp_property::kPackage, u"Package"},
      {comp_property::kNote, u"No&te"},
      {comp_property::kFixedBlock, u"&Fixed block Num"},
      {comp_property::kSharedBlock, u"&Shared block"},

      {ptn_property::kTitle, u"Property - pattern"},
      {ptn_property::kDot, u"&Dot"},
      {ptn_property::kFill, u"&Fill"},
      {ptn_property::kWidth, u"&Width"},

      {prop_lib::kTitle, u"Property - library"},
      {prop_lib::kText, u"Library text"},

      {add_alias::kTitle, u"Add alias"},
      {add_alias::kName, u"Alias for"},
      {add_alias::kAlias, u"&Alias"},

      {ptn_text::kTitle, u"Property -text"},
      {ptn_text::kHorizontalGroup, u"Horizontal anchor"},
      {ptn_text::kVerticalGroup, u"Vertical anchor"},
      {ptn_text::kText, u"&Text"},
      {ptn_text::kLeft, u"Left"},
      {ptn_text::kHorizontalCenter, u"Center"},
      {ptn_text::kRight, u"Right"},
      {ptn_text::kUpper, u"Upper"},
      {ptn_text::kVerticalCenter, u"Center"},
      {ptn_text::kLower, u"Lower"},
      {ptn_text::kUseCommonFont, u"Use common font"},
      {ptn_text::kFont, u"&Font..."},

      {pin_props::kTitle, u"Pin property"},
      {pin_props::kClose, u"Close"},
      {pin_props::kGrid, u"Pins"},
      {pin_props::kLocation, u"Loc"},
      {pin_props::kName, u"Name"},
      {pin_props::kStyle, u"Type"},
      {pin_props::kNumber, u"Num"},
      {pin_props::kHide, u"Hide"},
      {pin_props::kBlock, u"Block %d"},
      {pin_props::kRowBar, u"Rows"},
      {pin_props::kBlockBar, u"Blocks"},

      {pin_name_show_hide::kTitle, u"Show/Hide name individually"},
      {pin_name_show_hide::kParts, u"Parts of the name"},
      {pin_name_show_hide::kShowAll, u"Show All"},
      {pin_name_show_hide::kHideAll, u"Hide All"},

      {line_property::kTitle, u"Property - Line"},
      {line_property::kDot, u"&Dot"},
      {line_property::kCurve, u"&Curve line"},
      {line_property::kWidth, u"&Width"},
  });
}();

template <std::size_t... kSizes>
constexpr auto Joined(const std::array<Entry, kSizes>&... tables) {
  std::array<Entry, (kSizes + ...)> all{};
  auto out = all.begin();
  ((out = std::copy(tables.begin(), tables.end(), out)), ...);
  return all;
}

constexpr auto kTexts = Joined(kMessages, kCommands, kHints, kMenus, kDialogs);

constexpr bool kAscending = std::is_sorted(
    kTexts.begin(), kTexts.end(), [](const Entry& a, const Entry& b) { return !(a.id > b.id); });
static_assert(kAscending, "the search relies on ascending ids without repetition");

constexpr auto kIds = [] {
  std::array<TextId, kTexts.size() + kFindingKinds> ids{};
  auto out = ids.begin();
  for (const Entry& entry : kTexts) *out++ = entry.id;
  for (std::int32_t kind = 0; kind < kFindingKinds; ++kind) *out++ = {TextKind::Finding, kind};
  return ids;
}();
static_assert(std::is_sorted(kIds.begin(), kIds.end()));

}  // namespace

std::u16string_view BuiltInText(TextId id) noexcept {
  // The readers' own words stand beside the readers.
  if (id.kind == TextKind::Finding) {
    return id.control == 0 ? MessageOf(static_cast<FindingKind>(id.number)) : std::u16string_view();
  }
  const auto found =
      std::lower_bound(kTexts.begin(), kTexts.end(), id,
                       [](const Entry& entry, const TextId& wanted) { return entry.id < wanted; });
  return found != kTexts.end() && found->id == id ? found->text : std::u16string_view();
}

std::span<const TextId> AllTextIds() noexcept {
  return kIds;
}

bool TextTable::Translate(Translation translation) {
  constexpr TextId version = IdOf(StringId::Version);
  if (!translation || translation(version) != BuiltInText(version)) return false;
  translation_ = std::move(translation);
  return true;
}

std::u16string TextTable::Text(TextId id) const {
  std::u16string text;
  if (translation_) text = translation_(id);
  return text.empty() ? std::u16string(BuiltInText(id)) : text;
}

std::u16string TextTable::Text(StringId id) const {
  return Text(IdOf(id));
}

std::u16string TextTable::Text(Command command) const {
  return Text(IdOf(command));
}

std::u16string TextTable::Hint(Command command) const {
  return Text(HintIdOf(command));
}

std::u16string TextTable::Text(MenuId menu) const {
  return Text(IdOf(menu));
}

}  // namespace mivo

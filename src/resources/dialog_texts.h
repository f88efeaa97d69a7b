#ifndef MIVO_RESOURCES_DIALOG_TEXTS_H
#define MIVO_RESOURCES_DIALOG_TEXTS_H

#include <cstdint>

#include "text_table.h"

// The texts of the dialogs, by the number of the dialog and that of the control which shows them.
// Numbers below 1000 are of controls that only group or label others.

namespace mivo::dialog_text {

[[nodiscard]] constexpr TextId Control(std::int32_t dialog, std::int32_t control) noexcept {
  return {TextKind::Dialog, dialog, control};
}
[[nodiscard]] constexpr TextId Title(std::int32_t dialog) noexcept {
  return Control(dialog, 0);
}

// What every dialog has.
inline constexpr TextId kOk = Control(0, 1);
inline constexpr TextId kCancel = Control(0, 2);
// What message boxes have besides.
inline constexpr TextId kYes = Control(0, 6);
inline constexpr TextId kNo = Control(0, 7);

namespace about {
inline constexpr TextId kTitle = Title(100);
inline constexpr TextId kVersion = Control(100, 1043);  ///< in front of the version
}  // namespace about

namespace pin_property {
inline constexpr TextId kTitle = Title(137);
inline constexpr TextId kNumberGroup = Control(137, 3);
inline constexpr TextId kStyleGroup = Control(137, 4);
inline constexpr TextId kName = Control(137, 1003);
inline constexpr TextId kBlock = Control(137, 1005);
inline constexpr TextId kHideNumber = Control(137, 1007);
// Said of the pictures.
inline constexpr TextId kPlain = Control(137, 1014);
inline constexpr TextId kClock = Control(137, 1015);
inline constexpr TextId kNegation = Control(137, 1016);
inline constexpr TextId kNegationClock = Control(137, 1017);
inline constexpr TextId kShapeS = Control(137, 1018);
inline constexpr TextId kShapeZ = Control(137, 1019);
inline constexpr TextId kShowHide = Control(137, 1049);
}  // namespace pin_property

namespace comp_property {
inline constexpr TextId kTitle = Title(144);
inline constexpr TextId kSizeGroup = Control(144, 3);
inline constexpr TextId kPatternGroup = Control(144, 4);
inline constexpr TextId kBlockGroup = Control(144, 5);
inline constexpr TextId kName = Control(144, 1015);
inline constexpr TextId kPrefix = Control(144, 1016);
inline constexpr TextId kWidth = Control(144, 1017);
inline constexpr TextId kBlocks = Control(144, 1018);
inline constexpr TextId kHeight = Control(144, 1019);
inline constexpr TextId kUsePattern = Control(144, 1020);
inline constexpr TextId kNoBitPattern = Control(144, 1021);
inline constexpr TextId kManufacturer = Control(144, 1022);
inline constexpr TextId kPartNumber = Control(144, 1023);
inline constexpr TextId kPackage = Control(144, 1024);
inline constexpr TextId kNote = Control(144, 1025);
inline constexpr TextId kFixedBlock = Control(144, 1050);
inline constexpr TextId kSharedBlock = Control(144, 1051);
}  // namespace comp_property

namespace ptn_property {
inline constexpr TextId kTitle = Title(145);
inline constexpr TextId kDot = Control(145, 1022);
inline constexpr TextId kFill = Control(145, 1023);
inline constexpr TextId kWidth = Control(145, 1024);
}  // namespace ptn_property

namespace prop_lib {
inline constexpr TextId kTitle = Title(146);
inline constexpr TextId kText = Control(146, 1027);  ///< said of the only control
}  // namespace prop_lib

namespace add_alias {
inline constexpr TextId kTitle = Title(147);
inline constexpr TextId kName = Control(147, 1028);
inline constexpr TextId kAlias = Control(147, 1029);
}  // namespace add_alias

namespace ptn_text {
inline constexpr TextId kTitle = Title(148);
inline constexpr TextId kHorizontalGroup = Control(148, 3);
inline constexpr TextId kVerticalGroup = Control(148, 4);
inline constexpr TextId kText = Control(148, 1030);
inline constexpr TextId kLeft = Control(148, 1031);
inline constexpr TextId kHorizontalCenter = Control(148, 1032);
inline constexpr TextId kRight = Control(148, 1033);
inline constexpr TextId kUpper = Control(148, 1034);
inline constexpr TextId kVerticalCenter = Control(148, 1035);
inline constexpr TextId kLower = Control(148, 1036);
inline constexpr TextId kUseCommonFont = Control(148, 1037);
inline constexpr TextId kFont = Control(148, 1038);
}  // namespace ptn_text

namespace pin_props {
inline constexpr TextId kTitle = Title(152);
inline constexpr TextId kClose = Control(152, 2);
inline constexpr TextId kGrid = Control(152, 3);  ///< said of the table
// The headings.
inline constexpr TextId kLocation = Control(152, 4);
inline constexpr TextId kName = Control(152, 5);
inline constexpr TextId kStyle = Control(152, 6);
inline constexpr TextId kNumber = Control(152, 7);
inline constexpr TextId kHide = Control(152, 8);
inline constexpr TextId kBlock = Control(152, 9);  ///< "%d" stands for the number of the block
// Said of the scroll bars.
inline constexpr TextId kRowBar = Control(152, 1039);
inline constexpr TextId kBlockBar = Control(152, 1040);
}  // namespace pin_props

namespace pin_name_show_hide {
inline constexpr TextId kTitle = Title(157);
inline constexpr TextId kParts = Control(157, 1047);  ///< said of the list
inline constexpr TextId kShowAll = Control(157, 1048);
inline constexpr TextId kHideAll = Control(157, 1049);
}  // namespace pin_name_show_hide

namespace line_property {
inline constexpr TextId kTitle = Title(158);
inline constexpr TextId kDot = Control(158, 1022);
inline constexpr TextId kCurve = Control(158, 1023);
inline constexpr TextId kWidth = Control(158, 1024);
}  // namespace line_property

}  // namespace mivo::dialog_text

#endif

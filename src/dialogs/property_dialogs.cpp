#include "property_dialogs.h"

#include "line_property_dlg.h"
#include "pin_property.h"
#include "ptn_property.h"
#include "ptn_text_dlg.h"

namespace mivo {

std::optional<PinValues> PropertyDialogs::AskPin(const PinValues& values) {
  return CPinProperty::Ask(texts_, values, font_, &window_);
}

std::optional<LineValues> PropertyDialogs::AskLine(const LineValues& values) {
  return CLinePropertyDlg::Ask(texts_, values, &window_);
}

std::optional<ShapeValues> PropertyDialogs::AskShape(const ShapeValues& values) {
  return CPtnProperty::Ask(texts_, values, &window_);
}

std::optional<TextValues> PropertyDialogs::AskText(const TextValues& values) {
  return CPtnTextDlg::Ask(texts_, values, &window_);
}

}  // namespace mivo

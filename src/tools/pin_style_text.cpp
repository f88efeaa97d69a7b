#include "pin_style_text.h"

#include "comp_pin.h"
#include "dialog_texts.h"

namespace mivo {

TextId PinStyleText(std::int32_t type) noexcept {
  using namespace dialog_text;
  switch (type & SCompPin::kShapeMask) {
    case SCompPin::kShapeS:
      return pin_property::kShapeS;
    case SCompPin::kShapeZ:
      return pin_property::kShapeZ;
    case SCompPin::kClock:
      return pin_property::kClock;
    case SCompPin::kNegation:
      return pin_property::kNegation;
    case SCompPin::kNegation | SCompPin::kClock:
      return pin_property::kNegationClock;
    default:
      return pin_property::kPlain;
  }
}

}  // namespace mivo

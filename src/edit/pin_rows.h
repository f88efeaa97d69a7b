#ifndef MIVO_EDIT_PIN_ROWS_H
#define MIVO_EDIT_PIN_ROWS_H

#include <string>
#include <vector>

#include "comp_edit_doc.h"
#include "comp_pin.h"

namespace mivo {

/// A pin as lists of all pins show it.
struct PinRow {
  const SCompPin* pin;  ///< the document's; good until its pins come, go or change
  bool isSelected;      ///< whether it is in the document's selection
};

/// All pins of the component under edit in the order in which they stand around the body, counter-
/// clockwise from the top of the left side. Pins at one place have no order among themselves.
[[nodiscard]] std::vector<PinRow> PinRows(const SCompEditDoc& document);

/// "L3": the letter of the side, and the offset.
[[nodiscard]] std::u16string LocationText(SPinLocation location);

}  // namespace mivo

#endif

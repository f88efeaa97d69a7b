#ifndef MIVO_TOOLS_PROPERTY_EDIT_H
#define MIVO_TOOLS_PROPERTY_EDIT_H

#include "comp_pin.h"
#include "property_values.h"
#include "ptn_obj.h"
#include "ptn_obj_line.h"
#include "ptn_obj_text.h"

// Between pins and drawing objects and what their property dialogs show. What a dialog cannot
// express is kept while the user leaves it alone.

namespace mivo {

[[nodiscard]] PinValues ValuesOf(const SCompPin& pin);
[[nodiscard]] LineValues ValuesOf(const SPtnObjLine& line);
[[nodiscard]] TextValues ValuesOf(const SPtnObjText& text);
/// Of an ellipse, polygon or arc.
[[nodiscard]] ShapeValues ShapeValuesOf(const SPtnObj& shape);

void Apply(const PinValues& values, SCompPin& pin);
void Apply(const LineValues& values, SPtnObjLine& line);
void Apply(const TextValues& values, SPtnObjText& text);
void ApplyShape(const ShapeValues& values, SPtnObj& shape);

/// Lets the user edit a pin or drawing object. False, with nothing changed, after Cancel.
[[nodiscard]] bool EditProperties(SCompPin& pin, PropertyPrompts& prompts);
[[nodiscard]] bool EditProperties(SPtnObj& object, PropertyPrompts& prompts);

}  // namespace mivo

#endif

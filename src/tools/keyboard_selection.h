#ifndef MIVO_TOOLS_KEYBOARD_SELECTION_H
#define MIVO_TOOLS_KEYBOARD_SELECTION_H

#include "edit_session.h"
#include "view_key.h"

// The selector by keyboard: going from element to element, and moving what is selected.

namespace mivo {

/// Selects the first alive element behind the selected one, in list order, or the last one before
/// it; from either end without a selection. False, with nothing changed, at the end of the list.
bool SelectNext(EditSession& session);
bool SelectPrevious(EditSession& session);

/// Moves the selection one unit, or one cell, in the direction of an arrow key; a single pin one
/// free place along the outline. False without a selection.
bool NudgeSelection(EditSession& session, ViewKey arrow, bool byCell);

/// The next free place for a pin from `from` toward an arrow key, along the outline and round its
/// corners. `from` itself when the key points off the outline or all places are taken.
[[nodiscard]] SPinLocation NextPinPlace(const SCompEditDoc& document, SPinLocation from,
                                        ViewKey arrow);

}  // namespace mivo

#endif

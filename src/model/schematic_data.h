#ifndef MIVO_MODEL_SCHEMATIC_DATA_H
#define MIVO_MODEL_SCHEMATIC_DATA_H

#include <string>
#include <string_view>

#include "mivo_doc.h"

// Components travel between this program and the schematic editor as a piece of schematic data: a
// placed component with the library block that defines it.

namespace mivo {

/// The clipboard text for the entry's component under the entry's name; empty for an entry without
/// a name, which no record can hold.
[[nodiscard]] std::u16string WriteComponentText(const NameEntry& entry);

/// Whether a clipboard text may hold a component: longer than its opening tag by far, and beginning
/// with it.
[[nodiscard]] bool CanPasteComponent(std::u16string_view text) noexcept;

/// Reads the first component of a clipboard text into the library. Returns the entry that was added
/// last, or null when nothing was added or the text is malformed; what a malformed text added stays
/// in the library.
NameEntry* PasteComponentText(SMivoDoc& doc, std::u16string_view text);

}  // namespace mivo

#endif

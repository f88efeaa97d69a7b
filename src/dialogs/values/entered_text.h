#ifndef MIVO_DIALOGS_ENTERED_TEXT_H
#define MIVO_DIALOGS_ENTERED_TEXT_H

#include <cstddef>
#include <string>
#include <string_view>

// Texts of more than one line on their way between files and controls.

namespace mivo {

/// `text` with every line break (LF, CR LF, CR, a line or paragraph separator) as CR LF: as files
/// hold what was typed.
[[nodiscard]] std::u16string WithStoredLineBreaks(std::u16string_view text);

/// `text` for one line of a list: characters that would show as nothing or break the line have a
/// visible sign instead.
[[nodiscard]] std::u16string WithVisibleControls(std::u16string_view text);

/// The message about a text that is too long: `pattern` with `limit` for its "%d".
[[nodiscard]] std::u16string TooLongMessage(std::u16string_view pattern, std::size_t limit);

}  // namespace mivo

#endif

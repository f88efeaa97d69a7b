#ifndef MIVO_CLI_PRINTABLE_TEXT_H
#define MIVO_CLI_PRINTABLE_TEXT_H

#include <string>
#include <string_view>

// Texts of a file can hold anything, also what moves the cursor of a terminal or looks like the
// next line of the output. Control characters (U+0000 to U+001F and U+007F to U+009F) are therefore
// never printed: they become \t, \n, \r or \uXXXX with four hexadecimal digits. Everything is
// UTF-8.

namespace mivo {

/// For output that programs take apart: a backslash is doubled, so that every text comes out as
/// another one.
void AppendColumn(std::string& out, std::u16string_view text);

/// For messages that people read: a backslash stays as it is.
void AppendMessage(std::string& out, std::u16string_view text);
/// The same for bytes that are UTF-8 or nearly so.
void AppendMessage(std::string& out, std::string_view bytes);

}  // namespace mivo

#endif

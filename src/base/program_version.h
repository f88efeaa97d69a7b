#ifndef MIVO_BASE_PROGRAM_VERSION_H
#define MIVO_BASE_PROGRAM_VERSION_H

#include <string_view>

namespace mivo {

/// What windows and messages are called.
inline constexpr std::u16string_view kProgramName = u"Mivo";

/// What the programs show as their version, and what a translation of their texts must carry to be
/// taken. The version of the file format is another number.
inline constexpr std::u16string_view kProgramVersion = u"0.84.00";

}  // namespace mivo

#endif

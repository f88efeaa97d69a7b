#ifndef MIVO_BASE_PROGRAM_VERSION_H
#define MIVO_BASE_PROGRAM_VERSION_H

#include <string_view>

namespace mivo {

/// What the programs show as their version and what a language resource must carry to be used. The
/// version of the file format is another number.
inline constexpr std::string_view kProgramVersion = "0.84.00";

}  // namespace mivo

#endif

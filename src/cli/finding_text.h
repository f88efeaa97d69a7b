#ifndef MIVO_CLI_FINDING_TEXT_H
#define MIVO_CLI_FINDING_TEXT_H

#include <cstdint>
#include <string>
#include <string_view>

#include "finding.h"

namespace mivo {

/// "FILE:LINE: ", the beginning of every line about a place in a file.
[[nodiscard]] std::string PlaceText(std::string_view file, std::int64_t line);

/// What was found, in one line without an end: the message, the field concerned and the record
/// around it, as in: unknown key is ignored: "COLOR:3" in +PIN
[[nodiscard]] std::string FindingText(const Finding& finding);

}  // namespace mivo

#endif

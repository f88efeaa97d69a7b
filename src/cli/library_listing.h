#ifndef MIVO_CLI_LIBRARY_LISTING_H
#define MIVO_CLI_LIBRARY_LISTING_H

#include "byte_stream.h"
#include "mivo_doc.h"

namespace mivo {

/// Writes one line per name in list order, tab-separated: name; index of its component, from 0;
/// WIDTHxHEIGHT in grid cells; block count; block type; pins; drawing objects of the pattern, or
/// "-" without a pattern; bytes of the bit pattern, 0 without one. False when the sink failed.
[[nodiscard]] bool WriteListing(ByteSink& sink, const SMivoDoc& doc);

/// Writes the same and all texts as a JSON object, one line per name.
[[nodiscard]] bool WriteJsonListing(ByteSink& sink, const SMivoDoc& doc);

}  // namespace mivo

#endif

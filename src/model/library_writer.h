#ifndef MIVO_MODEL_LIBRARY_WRITER_H
#define MIVO_MODEL_LIBRARY_WRITER_H

#include <span>
#include <string_view>

#include "name_index.h"
#include "progress.h"
#include "record_writer.h"

namespace mivo {

/// Writes the header, the entries in the given order and the end of a library file. A component
/// stands under the first of its entries; its further entries follow as aliases of that one.
/// Entries without a name are left out. `progress`, which may be null, counts the entries.
void WriteLibrary(SRecordWriter& writer, std::u16string_view property,
                  std::span<const NameEntry* const> entries, ProgressSink* progress);

}  // namespace mivo

#endif

#ifndef MIVO_SAFETY_LIBRARY_VIEW_H
#define MIVO_SAFETY_LIBRARY_VIEW_H

#include <span>

#include "mivo_doc.h"

namespace mivo {

/// The open library in the order in which it would be saved. Borrows both.
struct LibraryView {
  const SMivoDoc& doc;
  std::span<const NameEntry* const> entries;
};

}  // namespace mivo

#endif

#ifndef MIVO_TESTS_MODEL_LIBRARY_GENERATORS_H
#define MIVO_TESTS_MODEL_LIBRARY_GENERATORS_H

#include <rapidcheck.h>

#include <iosfwd>
#include <memory>

#include "mivo_doc.h"

namespace mivo {

/// A library that saving and loading does not change: what the editor produces, and everything that
/// a file can hold beside it without being repaired by the readers. Uses every record.
[[nodiscard]] rc::Gen<std::shared_ptr<SMivoDoc>> GenCanonicalLibrary();

/// What RapidCheck prints.
void showValue(const SMivoDoc& library, std::ostream& out);

}  // namespace mivo

#endif

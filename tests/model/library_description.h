#ifndef MIVO_TESTS_MODEL_LIBRARY_DESCRIPTION_H
#define MIVO_TESTS_MODEL_LIBRARY_DESCRIPTION_H

#include <string>

#include "mivo_doc.h"

namespace mivo {

/// Everything that a library holds and a file keeps, as text to compare and to print. Made without
/// the record writer, so that it also shows what a writer would forget. Absent pin numbers and
/// empty ones look alike, as they do in a file.
[[nodiscard]] std::string Describe(const SMivoDoc& library);

}  // namespace mivo

#endif

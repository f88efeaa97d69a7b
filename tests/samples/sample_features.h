#ifndef MIVO_TESTS_SAMPLES_SAMPLE_FEATURES_H
#define MIVO_TESTS_SAMPLES_SAMPLE_FEATURES_H

#include <set>
#include <string>

#include "mivo_doc.h"

namespace mivo {

/// Adds a word for everything about a library's components that a file can express in more than one
/// way: "block SHB", "pin NC", "polygon fill 0".
void CollectFeatures(const SMivoDoc& library, std::set<std::string>& features);

/// All words that CollectFeatures knows.
[[nodiscard]] const std::set<std::string>& AllFeatures();

}  // namespace mivo

#endif

#ifndef MIVO_BENCH_GENERATED_LIBRARY_H
#define MIVO_BENCH_GENERATED_LIBRARY_H

#include <cstdint>

#include "byte_stream.h"

namespace mivo::bench {

enum class Names { Distinct, AllTheSame };

/// Writes a library of `components` components of about 16 pins each, every third with a drawn
/// pattern; the same bytes for the same arguments. False when the sink failed.
[[nodiscard]] bool WriteGeneratedLibrary(ByteSink& sink, std::int32_t components, Names names);

}  // namespace mivo::bench

#endif

#ifndef MIVO_BENCH_DRAWN_COMPONENT_H
#define MIVO_BENCH_DRAWN_COMPONENT_H

#include <cstdint>

#include "component.h"

namespace mivo::bench {

/// A component of `cells` with pins at its left and right side and drawing objects of all kinds.
[[nodiscard]] SComponent MakeDrawnComponent(SPoint cells, std::int32_t pins, std::int32_t objects);

}  // namespace mivo::bench

#endif

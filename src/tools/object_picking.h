#ifndef MIVO_TOOLS_OBJECT_PICKING_H
#define MIVO_TOOLS_OBJECT_PICKING_H

#include <cstddef>
#include <optional>

#include "edit_session.h"

namespace mivo {

/// Position in the element list of the first alive drawing object that shows at `pixel` of the
/// window or beside it, whatever lies on top of it there.
[[nodiscard]] std::optional<std::size_t> ObjectAt(PixelPoint pixel, const EditSession& session);

}  // namespace mivo

#endif

#ifndef MIVO_TOOLS_NODE_EDITING_H
#define MIVO_TOOLS_NODE_EDITING_H

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

#include "comp_edit_elm.h"
#include "geometry.h"
#include "pixel_geometry.h"
#include "ptn_obj.h"
#include "view_coordinates.h"

namespace mivo {

/// The node of `object` whose mark covers `pixel` of the window; the last one of several.
[[nodiscard]] std::optional<std::int32_t> NodeAt(const SPtnObj& object, PixelPoint pixel,
                                                 const ViewCoordinates& coordinates);

/// Where a polygon can be given a node more.
struct NewNodePlace {
  std::size_t element = 0;  ///< position in the selection
  std::int32_t behind = 0;  ///< the vertex that the new one follows
  SPoint point;             ///< on the edge
  bool operator==(const NewNodePlace&) const = default;
};

/// The first edge, among those of the selected polygons that can take a vertex more, under `point`.
[[nodiscard]] std::optional<NewNodePlace> FindNewNodePlace(std::span<const SCompEditElm> selection,
                                                           SPoint point);

/// The point of the segment that is nearest to `point`, rounded.
[[nodiscard]] SPoint NearestOnSegment(SPoint start, SPoint end, SPoint point) noexcept;

}  // namespace mivo

#endif

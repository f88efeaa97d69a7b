#ifndef MIVO_VIEW_COMPONENT_RENDERER_H
#define MIVO_VIEW_COMPONENT_RENDERER_H

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "bit_pattern.h"
#include "common_font.h"
#include "comp_edit_elm.h"
#include "comp_pin.h"
#include "component.h"
#include "draw_flags.h"
#include "drawing_surface.h"
#include "geometry.h"
#include "ptn_obj.h"
#include "view_scale.h"

namespace mivo {

/// What of a component is drawn; everything is borrowed. Drawing stores in text objects the extent
/// with which they were drawn, and changes nothing else.
struct ComponentPicture {
  SPoint bodySize;          ///< grid cells
  bool hasPattern = false;  ///< a pattern takes the place of the plain body
  const SBitPattern* bitPattern = nullptr;
  SPoint patternSize;  ///< pixels of the bit pattern
  std::vector<const SCompPin*> pins;
  std::vector<SPtnObj*> objects;
  std::int32_t block = 0;  ///< whose pin numbers are shown
  bool swapped = false;    ///< pin names and numbers change places

  /// A component as it stands in the library.
  [[nodiscard]] static ComponentPicture Of(const SComponent& component);
  /// A component under edit: its alive elements instead of its pins and objects.
  [[nodiscard]] static ComponentPicture Of(const SComponent& component, SPoint bodySize,
                                           std::span<const SCompEditElm> elements);
};

/// Draws components on a surface whose origin is set so that component point (0, 0) falls where the
/// body's top left corner is to appear.
class ComponentRenderer {
 public:
  /// Both must outlive the renderer.
  ComponentRenderer(DrawingSurface& surface, const SCommonFont& commonFont)
      : surface_(surface), commonFont_(commonFont) {}

  /// Fills the surface with the background and draws `picture` on it, bit pattern, frame and grid
  /// first; null leaves the background alone.
  void Render(const ComponentPicture* picture, const ViewScale& scale);

  /// Draws the floating selection.
  void RenderSelection(std::span<const SCompEditElm> selection, SPoint bodySize, std::int32_t block,
                       bool swapped, const ViewScale& scale);

  /// Draws a single pin as part of the selection: what is about to be placed.
  void RenderHeldPin(const SCompPin& pin, SPoint bodySize, bool swapped, const ViewScale& scale);

  /// Draws a square mark around each node of `object`.
  void RenderNodeMarks(const SPtnObj& object, const ViewScale& scale);

  /// Draws a focus rectangle through the corner points of `rect` (component units).
  void RenderFocus(const SRect& rect, const ViewScale& scale);

 private:
  void DrawFrame(const ComponentPicture& picture, const ViewScale& scale);
  void DrawObject(SPtnObj& object, Color color, const ViewScale& scale);

  DrawingSurface& surface_;
  const SCommonFont& commonFont_;
};

/// Half the side of a node mark, and how far from a node a press still hits it, in mark pixels.
inline constexpr std::int32_t kNodeMarkReach = 3;

}  // namespace mivo

#endif

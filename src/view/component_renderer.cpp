#include "component_renderer.h"

#include <array>

#include "bit_pattern_drawing.h"
#include "colors.h"
#include "grid_drawing.h"
#include "pin_drawing.h"
#include "pin_geometry.h"
#include "ptn_obj_drawing.h"

namespace mivo {
namespace {

DrawFlags WithSwap(DrawFlags flags, bool swapped) noexcept {
  return swapped ? flags | kDrawSwapped : flags;
}

ComponentPicture BodyOf(const SComponent& component, SPoint bodySize) {
  ComponentPicture picture;
  picture.bodySize = bodySize;
  if (const SPtn* pattern = component.Pattern()) {
    picture.hasPattern = true;
    picture.patternSize = pattern->size;
    if (pattern->bitPattern) picture.bitPattern = &*pattern->bitPattern;
  }
  return picture;
}

}  // namespace

ComponentPicture ComponentPicture::Of(const SComponent& component) {
  ComponentPicture picture = BodyOf(component, component.Size());
  for (const SCompPin& pin : component.Pins()) picture.pins.push_back(&pin);
  if (const SPtn* pattern = component.Pattern()) {
    for (const auto& object : pattern->objects) picture.objects.push_back(object.get());
  }
  return picture;
}

ComponentPicture ComponentPicture::Of(const SComponent& component, SPoint bodySize,
                                      std::span<const SCompEditElm> elements) {
  ComponentPicture picture = BodyOf(component, bodySize);
  for (const SCompEditElm& element : elements) {
    if (!element.IsAlive()) continue;
    if (const SCompPin* pin = element.Pin()) picture.pins.push_back(pin);
    if (SPtnObj* object = element.Object()) picture.objects.push_back(object);
  }
  return picture;
}

void ComponentRenderer::Render(const ComponentPicture* picture, const ViewScale& scale) {
  surface_.FillRect(surface_.Bounds(), colors::kBackground);
  if (picture == nullptr) return;
  if (picture->bitPattern != nullptr) {
    DrawBitPattern(surface_, {}, ViewOf(*picture->bitPattern, picture->patternSize), kDrawNormal,
                   colors::kBitPattern, {}, scale);
  }
  DrawFrame(*picture, scale);
  DrawGrid(surface_, scale);
  const SRect clip = VisibleUnits(surface_.Bounds(), scale);
  const DrawFlags flags = WithSwap(kDrawNormal, picture->swapped);
  for (const SCompPin* pin : picture->pins) {
    DrawPin(surface_, PinPicture::Of(*pin, picture->bodySize, picture->block), flags, scale,
            commonFont_, &clip);
  }
  for (SPtnObj* object : picture->objects) DrawObject(*object, colors::kPatternObject, scale);
}

void ComponentRenderer::RenderSelection(std::span<const SCompEditElm> selection, SPoint bodySize,
                                        std::int32_t block, bool swapped, const ViewScale& scale) {
  const SRect clip = VisibleUnits(surface_.Bounds(), scale);
  const DrawFlags flags = WithSwap(kDrawSelected, swapped);
  for (const SCompEditElm& element : selection) {
    if (const SCompPin* pin = element.Pin()) {
      DrawPin(surface_, PinPicture::Of(*pin, bodySize, block), flags, scale, commonFont_, &clip);
    }
    if (SPtnObj* object = element.Object()) DrawObject(*object, colors::kSelected, scale);
  }
}

void ComponentRenderer::RenderHeldPin(const SCompPin& pin, SPoint bodySize, bool swapped,
                                      const ViewScale& scale) {
  DrawPin(surface_, PinPicture::Of(pin, bodySize, 0), WithSwap(kDrawSelected, swapped), scale,
          commonFont_, nullptr);
}

void ComponentRenderer::RenderNodeMarks(const SPtnObj& object, const ViewScale& scale) {
  const std::int32_t reach = kNodeMarkReach * scale.markPixels;
  for (std::int32_t i = 0; i < object.GetNodeCount(); ++i) {
    const PixelPoint node = scale.Map(object.GetNode(i));
    const PixelRect mark = PixelRect::Around({WrapSub(node.x, reach), WrapSub(node.y, reach)},
                                             {WrapAdd(node.x, reach), WrapAdd(node.y, reach)});
    surface_.Rectangle(mark, {colors::kSelected}, {});
  }
}

void ComponentRenderer::RenderFocus(const SRect& rect, const ViewScale& scale) {
  surface_.FocusRect(PixelRect::Around(scale.Map(rect.TopLeft()), scale.Map(rect.BottomRight())));
}

void ComponentRenderer::DrawFrame(const ComponentPicture& picture, const ViewScale& scale) {
  const PixelPoint end = scale.Map(BodyUnits(picture.bodySize));
  const Pen pen =
      picture.hasPattern ? Pen{colors::kPatternFrame, 0} : Pen{colors::kBody, scale.UnitWidth()};
  const std::array<PixelPoint, 5> corners = {
      {{0, 0}, {end.x, 0}, {end.x, end.y}, {0, end.y}, {0, 0}}};
  surface_.Polyline(corners, pen);
}

void ComponentRenderer::DrawObject(SPtnObj& object, Color color, const ViewScale& scale) {
  PtnPlacement placement;
  placement.numerator = scale.multiplier;
  placement.denominator = scale.divisor;
  DrawPtnObj(surface_, object, color, placement, commonFont_);
}

}  // namespace mivo

#include "edit_rig.h"

#include <set>

#include "raster_image.h"

namespace mivo {
namespace {

constexpr PixelSize kFirstWindow{400, 400};

std::string At(std::string_view what, std::size_t position) {
  return std::string(what) + " at " + std::to_string(position);
}

}  // namespace

EditRig::EditRig()
    : editor({.host = host,
              .prompts = prompts,
              .clipboard = clipboard,
              .surfaces = surfaces,
              .commonFont = commonFont}) {
  editor.Resize(kFirstWindow, 1);
}

void EditRig::PaintAsAsked() {
  const PixelSize size = editor.Coordinates().ClientSize();
  if (!host.wantsBack && !host.wantsFront) return;
  std::optional<RasterImage> image = RasterImage::Create(size, ImageDepth::Color);
  if (!image) return;
  const std::unique_ptr<DrawingSurface> surface = surfaces.CreateSurface(*image);
  if (host.wantsBack) editor.PaintBack(*surface);
  editor.PaintFront(*surface);
  host.wantsBack = host.wantsFront = false;
}

std::optional<std::string> BrokenInvariant(const EditRig& rig) {
  const SCompEditDoc& document = rig.editor.Document();
  const std::span<const SCompEditElm> elements = document.Elements();
  if (document.Operation() < 0) return "the operation counter is negative";
  for (std::size_t i = 0; i < elements.size(); ++i) {
    const SCompEditElm& element = elements[i];
    if (element.CreatedBy() < 0 || element.CreatedBy() > document.Operation()) {
      return At("an operation that never was created the element", i);
    }
    if (element.DeletedBy() > document.Operation()) {
      return At("an operation that never was deleted the element", i);
    }
    if (element.Source()) return At("a source outside the selection", i);
  }
  std::set<std::size_t> sources;
  for (std::size_t i = 0; i < document.Selection().size(); ++i) {
    const SCompEditElm& selected = document.Selection()[i];
    if (!selected.IsAlive()) return At("a deleted element in the selection", i);
    if (!selected.Source()) {
      if (!document.SelectionChanged()) return At("a new element in an unchanged selection", i);
      continue;
    }
    const std::size_t source = *selected.Source();
    if (source >= elements.size()) return At("a source beyond the list", i);
    if (elements[source].DeletedBy() != selected.CreatedBy()) {
      return At("a source that its pick did not delete", i);
    }
    if (!sources.insert(source).second) return At("a source picked twice", i);
  }
  if (rig.editor.Component() == nullptr && !elements.empty()) return "elements of no component";
  if (document.Selection().empty() && document.SelectionChanged()) {
    return "a changed selection of nothing";
  }
  return {};
}

SComponent NewComponent(SPoint size, std::int32_t blocks, bool pattern, bool bitPattern) {
  SComponent component;
  component.SetBlockCount(blocks);
  component.SetSize(size, pattern, !bitPattern);
  return component;
}

}  // namespace mivo

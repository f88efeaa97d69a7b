// Drawing objects at the limits of 32 bits in the editor, at every zoom.

#include <gtest/gtest.h>

#include "case_name.h"
#include "edit_rig.h"
#include "hostile_library.h"
#include "mivo_doc.h"

namespace mivo {
namespace {

class HostileDrawing : public testing::TestWithParam<HostileObject> {};

INSTANTIATE_TEST_SUITE_P(, HostileDrawing, testing::ValuesIn(HostileObjects()), kCaseName);

/// Everything that a user can do to look at the drawing and to change it as a whole.
void DrawAndChange(EditRig& rig) {
  for (const Command command : {Command::Mirror, Command::Rotate, Command::EditNodeMode,
                                Command::Copy, Command::Paste, Command::CreateBitPattern}) {
    rig.editor.Key(ViewKey::Tab, false);
    rig.PaintAsAsked();
    rig.editor.Execute(command);
    rig.PaintAsAsked();
    EXPECT_EQ(BrokenInvariant(rig), std::nullopt);
  }
  while (rig.editor.Execute(Command::Undo)) rig.PaintAsAsked();
}

TEST_P(HostileDrawing, IsDrawnAndChangedAtEveryZoom) {
  SMivoDoc library;
  ASSERT_TRUE(library.Load(LibraryWith(GetParam()), u"test.ZLB"));
  ASSERT_EQ(library.Components().front()->Pattern()->objects.size(), 1u);
  EditRig rig;
  rig.component = *library.Components().front();
  rig.editor.SetComponent(&rig.component);
  for (const double ratio : {1.0, 2.0}) {
    rig.editor.Resize({400, 300}, ratio);
    while (rig.editor.Coordinates().ZoomIndex() > 0) rig.editor.Execute(Command::ZoomOut);
    for (std::size_t zoom = 0; zoom < ViewCoordinates::kZoomTable.size(); ++zoom) {
      DrawAndChange(rig);
      rig.editor.Execute(Command::ZoomIn);
    }
  }
}

TEST(HostileDrawingOfOne, APenWiderThanAllCoversEveryPixel) {
  for (const HostileObject& object : HostileObjects()) {
    if (object.record.find("W:2147483647") == std::string::npos) continue;
    SMivoDoc library;
    ASSERT_TRUE(library.Load(LibraryWith(object), u"test.ZLB"));
    EditRig rig;
    rig.component = *library.Components().front();
    rig.editor.SetComponent(&rig.component);
    std::optional<RasterImage> image = RasterImage::Create({400, 400}, ImageDepth::Color);
    ASSERT_TRUE(image);
    rig.editor.PaintBack(*rig.surfaces.CreateSurface(*image));
    const Color color = image->PixelAt(0, 0);
    int others = 0;
    for (std::int32_t y = 0; y < 400; ++y) {
      for (std::int32_t x = 0; x < 400; ++x) others += image->PixelAt(x, y) == color ? 0 : 1;
    }
    EXPECT_EQ(others, 0) << object.name;
  }
}

}  // namespace
}  // namespace mivo

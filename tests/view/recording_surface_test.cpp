#include "recording_surface.h"

#include <gtest/gtest.h>

#include "pixel_art.h"

namespace mivo {
namespace {

TEST(RecordingSurface, WritesALinePerCall) {
  RecordingSurface surface({100, 50});
  surface.SetOrigin({-5, 7});
  EXPECT_EQ(surface.Bounds(), (PixelRect{-5, 7, 95, 57}));
  surface.FillRect({0, 1, 3, 5}, {1, 2, 255});
  surface.Line({0, 0}, {-4, 9}, {{0, 128, 0}, 3, PenStyle::Dashed});
  surface.Bezier({{{1, 2}, {3, 4}, {5, 6}, {7, 8}}}, {{}, 0, PenStyle::Dotted});
  surface.Rectangle({0, 0, 4, 4}, {}, {});
  surface.Ellipse({0, 0, 4, 4}, {}, {Color{255, 255, 255}});
  surface.Arc({0, 0, 4, 4}, {9, 2}, {2, -5}, {});
  surface.Polygon(std::array<PixelPoint, 2>{{{1, 1}, {2, 2}}}, {}, {});
  surface.Pixels(4, std::array<std::int32_t, 3>{0, 10, 20}, {});
  surface.Pixels(5, std::array<std::int32_t, 3>{0, 10, 21}, {});
  surface.FocusRect({1, 1, 2, 3});
  surface.Bits({0, 0, 4, 4}, {std::array<std::uint8_t, 4>{0x80, 0, 0xC0, 0}, 2, 2, 2}, {});
  surface.Image(WhiteImage({3, 2}), {8, 9});
  surface.Text({1, 2}, u"\u00B5A", {u"Face", 9, 700, true, true}, {});
  EXPECT_EQ(surface.TakeRecord(),
            "origin -5,7\n"
            "fill 0,1 3x4 #0102ff\n"
            "line 0,0 -4,9 pen=dashed:3#008000\n"
            "bezier 1,2 3,4 5,6 7,8 pen=dotted:0#000000\n"
            "rectangle 0,0 4x4 pen=solid:1#000000 brush=hollow\n"
            "ellipse 0,0 4x4 pen=solid:1#000000 brush=#ffffff\n"
            "arc 0,0 4x4 from=9,2 to=2,-5 pen=solid:1#000000\n"
            "polygon 1,1 2,2 pen=solid:1#000000 brush=hollow\n"
            "pixels y=4 x=0..20/10 #000000\n"
            "pixels y=5 x=0,10,21 #000000\n"
            "focus 1,1 1x2\n"
            "bits 0,0 4x4 #./## #000000\n"
            "image 8,9 3x2\n"
            "text 1,2 \"\xC2\xB5"
            "A\" font=Face:9:700:italic:vertical #000000\n");
  EXPECT_EQ(surface.TakeRecord(), "");
}

}  // namespace
}  // namespace mivo

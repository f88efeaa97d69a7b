// Cost of drawing and picking at 3840 × 2160, as ratios to filling and copying an image of that
// size in the same run. Everything is drawn into images: what the window system adds is not
// measured.

#include <QGuiApplication>
#include <array>
#include <cstdlib>
#include <string>

#include "comp_editor.h"
#include "drawn_component.h"
#include "median.h"
#include "qt_surface.h"
#include "silent_ports.h"
#include "table_row.h"

namespace mivo::bench {
namespace {

constexpr PixelSize kScreen{3840, 2160};
constexpr int kZooms = 4;

RasterImage MakeImage() {
  auto image = RasterImage::Create(kScreen, ImageDepth::Color);
  if (!image) std::exit(1);
  return *std::move(image);
}

struct Bench {
  SilentHost host;
  NoPrompts prompts;
  NoClipboard clipboard;
  QtSurfaceFactory surfaces;
  SCommonFont font;
  CompEditor editor{{host, prompts, clipboard, surfaces, font}};
  RasterImage back = MakeImage();
  RasterImage front = MakeImage();

  /// The baseline of most rows.
  double FillMilliseconds() {
    return MedianMilliseconds([this](int) {
      for (std::int32_t y = 0; y < kScreen.height; ++y) {
        back.FillSpan(y, 0, kScreen.width, Color{});
      }
    });
  }

  void CopyBack() { front.CopyFrom(back, {0, 0, kScreen.width, kScreen.height}, {0, 0}); }
};

/// Clicks a line that lies in the middle of the window.
void SelectVisibleLine(CompEditor& editor) {
  const SRect visible = editor.Coordinates().VisibleArea();
  const SPoint quarter = {(visible.right - visible.left) / 4, (visible.bottom - visible.top) / 4};
  const SRect middle = {visible.left + quarter.x, visible.top + quarter.y,
                        visible.right - quarter.x, visible.bottom - quarter.y};
  for (const SCompEditElm& element : editor.Document().Elements()) {
    const SPtnObj* const object = element.Object();
    if (object == nullptr || object->GetType() != PtnObjType::Line) continue;
    if (!middle.Contains(object->GetNode(0))) continue;
    const PixelPoint at = editor.Coordinates().ToDevice(object->GetNode(0));
    editor.PressLeft(at);
    editor.ReleaseLeft(at);
    break;
  }
  if (editor.Document().Selection().size() != 1) std::exit(1);
}

void MeasureDrawing() {
  SComponent component = MakeDrawnComponent({110, 104}, 200, 500);
  Bench bench;
  bench.editor.Resize(kScreen, 1.0);
  bench.editor.SetComponent(&component);
  const double fill = bench.FillMilliseconds();
  const double copy = MedianMilliseconds([&](int) { bench.CopyBack(); });
  PrintRow({.what = "fill an image of 3840 x 2160", .measured = fill, .unit = "ms"});
  PrintRow({.what = "copy it", .measured = copy, .unit = "ms"});
  for (int zoom = 0; zoom < kZooms; ++zoom) {
    const std::int32_t factor = bench.editor.Coordinates().Scale().factor;
    const double redraw = MedianMilliseconds(
        [&](int) { bench.editor.PaintBack(*bench.surfaces.CreateSurface(bench.back)); });
    SelectVisibleLine(bench.editor);
    const double drag = MedianMilliseconds([&](int) {
      bench.CopyBack();
      bench.editor.PaintFront(*bench.surfaces.CreateSurface(bench.front));
    });
    const std::string zoomText = " at zoom " + std::to_string(factor);
    PrintRow(
        {"full redraw, 200 pins, 500 objects," + zoomText, redraw, "ms", redraw / fill, "fill"});
    PrintRow({"drag step," + zoomText, drag, "ms", drag / copy, "copy"});
    bench.editor.Execute(Command::ZoomIn);
  }
}

/// What choosing another name in the list costs.
void MeasureComponentChange() {
  std::array<SComponent, 2> components = {MakeDrawnComponent({110, 104}, 200, 0),
                                          MakeDrawnComponent({110, 104}, 200, 0)};
  Bench bench;
  bench.editor.Resize(kScreen, 1.0);
  const double change = MedianMilliseconds([&](int round) {
    bench.editor.SetComponent(&components[static_cast<std::size_t>(round) % components.size()]);
    bench.editor.PaintBack(*bench.surfaces.CreateSurface(bench.back));
  });
  PrintRow({.what = "change to a component of 200 pins, and redraw",
            .measured = change,
            .unit = "ms",
            .limit = 10});
}

void MeasurePicking() {
  SComponent component = MakeDrawnComponent({255, 255}, 0, 10000);
  Bench bench;
  bench.editor.Resize(kScreen, 1.0);
  bench.editor.SetComponent(&component);
  const PixelPoint empty{5, 5};
  const double pick = MedianMilliseconds([&](int round) {
    const PixelPoint at{600 + 17 * round, 700 + 13 * round};
    bench.editor.PressLeft(at);
    bench.editor.ReleaseLeft(at);
  });
  const double miss = MedianMilliseconds([&](int) {
    bench.editor.PressLeft(empty);
    bench.editor.ReleaseLeft(empty);
  });
  const double fill = bench.FillMilliseconds();
  PrintRow({"click among 10,000 objects", pick, "ms", pick / fill, "fill"});
  PrintRow({"click on nothing among them", miss, "ms", miss / fill, "fill"});
}

}  // namespace
}  // namespace mivo::bench

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  mivo::bench::MeasureDrawing();
  mivo::bench::MeasureComponentChange();
  mivo::bench::MeasurePicking();
  return 0;
}

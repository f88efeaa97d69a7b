// Cost of drawing and picking at 3840 × 2160, as ratios to filling and copying an image of that
// size in the same run. Everything is drawn into images: what the window system adds is not
// measured.

#include <QGuiApplication>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <vector>

#include "comp_editor.h"
#include "median.h"
#include "ptn_obj_arc.h"
#include "ptn_obj_circle.h"
#include "ptn_obj_line.h"
#include "ptn_obj_polygon.h"
#include "ptn_obj_text.h"
#include "qt_surface.h"
#include "silent_ports.h"

namespace mivo::bench {
namespace {

constexpr PixelSize kScreen{3840, 2160};

std::unique_ptr<SPtnObj> MakeObject(std::int32_t index, SPoint at) {
  switch (index % 5) {
    case 0: {
      auto line = std::make_unique<SPtnObjLine>();
      line->SetStart(at);
      line->SetEnd({at.x + 30, at.y + 17});
      line->width = 1 + index % 2;
      return line;
    }
    case 1:
      return std::make_unique<SPtnObjCircle>(at, SPoint{at.x + 24, at.y + 16});
    case 2: {
      auto polygon = std::make_unique<SPtnObjPolygon>(std::vector<SPoint>{
          at, {at.x + 20, at.y + 4}, {at.x + 14, at.y + 22}, {at.x - 6, at.y + 12}});
      polygon->fill = index % 2 == 0 ? SPtnObj::kFilled : SPtnObj::kNotFilled;
      return polygon;
    }
    case 3: {
      auto arc = std::make_unique<SPtnObjArc>();
      arc->SetCenter(at);
      arc->SetRadius(12);
      return arc;
    }
    default: {
      auto text = std::make_unique<SPtnObjText>();
      text->SetPosition(at);
      text->SetText(u"Label");
      return text;
    }
  }
}

SComponent MakeComponent(SPoint cells, std::int32_t pins, std::int32_t objects) {
  SComponent component;
  component.SetSize(cells, true, true);
  std::vector<SCompPin> list;
  for (std::int32_t i = 0; i < pins; ++i) {
    SCompPin pin(1);
    pin.SetNameFromDisplayText(u"PA1/\\RX");
    pin.SetNumber(0, u"101");
    pin.location = {i % 2 == 0 ? PinSide::Left : PinSide::Right, i / 2 + 1};
    list.push_back(std::move(pin));
  }
  component.SetPins(std::move(list));
  const std::int32_t columns = std::max(1, cells.x / 4);
  for (std::int32_t i = 0; i < objects; ++i) {
    const SPoint at = {20 + i % columns * 38, 20 + i / columns * 30 % (cells.y * 10 - 40)};
    component.MutablePattern()->objects.push_back(MakeObject(i, at));
  }
  return component;
}

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
  SComponent component = MakeComponent({110, 104}, 200, 500);
  Bench bench;
  bench.editor.Resize(kScreen, 1.0);
  bench.editor.SetComponent(&component);
  const double fill = MedianMilliseconds([&](int) {
    for (std::int32_t y = 0; y < kScreen.height; ++y) {
      bench.back.FillSpan(y, 0, kScreen.width, Color{});
    }
  });
  const double copy = MedianMilliseconds([&](int) { bench.CopyBack(); });
  std::printf("3840 x 2160 image: fill %.2f ms, copy %.2f ms\n", fill, copy);
  std::printf("%-5s %14s %8s %14s %8s\n", "zoom", "redraw ms", "/ fill", "drag step ms", "/ copy");
  for (int zoom = 0; zoom < 4; ++zoom) {
    const double redraw = MedianMilliseconds(
        [&](int) { bench.editor.PaintBack(*bench.surfaces.CreateSurface(bench.back)); });
    SelectVisibleLine(bench.editor);
    const double drag = MedianMilliseconds([&](int) {
      bench.CopyBack();
      bench.editor.PaintFront(*bench.surfaces.CreateSurface(bench.front));
    });
    std::printf("%-5d %14.2f %8.2f %14.2f %8.2f\n", bench.editor.Coordinates().Scale().factor,
                redraw, redraw / fill, drag, drag / copy);
    bench.editor.Execute(Command::ZoomIn);
  }
}

void MeasurePicking() {
  SComponent component = MakeComponent({255, 255}, 0, 10000);
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
  std::printf("click among 10,000 objects: %.2f ms, on nothing %.2f ms\n", pick, miss);
}

}  // namespace
}  // namespace mivo::bench

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  mivo::bench::MeasureDrawing();
  mivo::bench::MeasurePicking();
  return 0;
}

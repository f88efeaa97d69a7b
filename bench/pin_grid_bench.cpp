// Cost of the table of pins with 1,000 pins of 32 blocks each, as ratios to filling an image of the
// table's size in the same run. The window is drawn into an image: what the window system adds is
// not measured.

#include <QApplication>
#include <QImage>
#include <QKeyEvent>
#include <QLineEdit>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "median.h"
#include "pin_prop_grid.h"
#include "pin_props.h"
#include "qt_surface.h"
#include "silent_ports.h"
#include "table_row.h"

namespace mivo::bench {
namespace {

constexpr int kPins = 1000;
constexpr int kBlocks = 32;
constexpr QSize kWindow(1600, 1000);

class GridHost final : public SilentHost {
 public:
  CPinProps* props = nullptr;

  void PinsChanged() override {
    if (props != nullptr) props->Refresh();
  }
};

SComponent MakeComponent() {
  SComponent component;
  component.SetSize({255, 255}, false, false);
  component.SetBlockCount(kBlocks);
  std::vector<SCompPin> pins;
  for (int i = 0; i < kPins; ++i) {
    SCompPin pin(kBlocks);
    pin.SetNameFromDisplayText(u"PA1/\\RX");
    pin.type = i % 3 == 0 ? SCompPin::kClock | SCompPin::kHideNumber : 0;
    for (int block = 0; block < kBlocks; ++block) pin.SetNumber(block, u"101");
    pin.location = {static_cast<PinSide>(i % 4), i / 4};
    pins.push_back(std::move(pin));
  }
  component.SetPins(std::move(pins));
  return component;
}

struct Bench {
  GridHost host;
  NoPrompts prompts;
  NoClipboard clipboard;
  QtSurfaceFactory surfaces;
  SCommonFont font;
  TextTable texts;
  SComponent component = MakeComponent();
  CompEditor editor{{host, prompts, clipboard, surfaces, font}};
  std::unique_ptr<CPinProps> props;
  CPinPropGrid* grid = nullptr;
  QImage image{kWindow, QImage::Format_RGB32};

  Bench() { editor.Resize({800, 600}, 1); }
  ~Bench() { Close(); }

  void Open() {
    props = std::make_unique<CPinProps>(editor, font, texts, nullptr);
    host.props = props.get();
    props->resize(kWindow);
    props->show();
    grid = props->findChild<CPinPropGrid*>();
    Draw();
  }
  void Close() {
    host.props = nullptr;
    props.reset();
  }
  void Draw() { props->render(&image); }
  void Press(Qt::Key key, const QString& text = {}) {
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(grid->findChild<QLineEdit*>(), &press);
  }
  void Click(QPoint at) {
    QMouseEvent release(QEvent::MouseButtonRelease, at, grid->mapToGlobal(at), Qt::LeftButton, {},
                        {});
    QApplication::sendEvent(grid, &release);
  }
};

void Report(const char* what, double milliseconds, double fill) {
  PrintRow(
      {std::string("table of pins: ") + what, milliseconds, "ms", milliseconds / fill, "fill"});
}

void Measure() {
  Bench bench;
  const double load = MedianMilliseconds([&](int) { bench.editor.SetComponent(&bench.component); });
  const double open = MedianMilliseconds([&](int) {
    bench.Close();
    bench.Open();
  });
  QImage grid(bench.grid->size(), QImage::Format_RGB32);
  const double fill = MedianMilliseconds([&](int round) { grid.fill(round); });
  Report("fill an image of its size", fill, fill);
  Report("load the component", load, fill);
  Report("open the window and draw it", open, fill);
  Report("draw it again", MedianMilliseconds([&](int) { bench.Draw(); }), fill);
  Report("scroll by a row and draw", MedianMilliseconds([&](int) {
           bench.grid->ScrollRows(ScrollRequest::LineForward, 0);
           bench.Draw();
         }),
         fill);
  Report("scroll by a block and draw", MedianMilliseconds([&](int) {
           bench.grid->ScrollBlocks(ScrollRequest::LineForward, 0);
           bench.Draw();
         }),
         fill);
  const QPoint name(bench.grid->Cells().Left(pin_grid_column::kName) + 5, 5);
  Report("click a name and draw", MedianMilliseconds([&](int) {
           bench.Click(name);
           bench.Draw();
         }),
         fill);
  Report("type a letter and draw", MedianMilliseconds([&](int) {
           bench.Press(Qt::Key_X, QStringLiteral("x"));
           bench.Draw();
         }),
         fill);
  Report("keep it, go one row down and draw", MedianMilliseconds([&](int) {
           bench.Press(Qt::Key_Y, QStringLiteral("y"));
           bench.Press(Qt::Key_Return);
           bench.Draw();
         }),
         fill);
  if (bench.grid->Grid().Edit() != PinGrid::EditKind::Name) std::exit(1);
}

}  // namespace
}  // namespace mivo::bench

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  mivo::bench::Measure();
  return 0;
}

#ifndef MIVO_TESTS_DIALOGS_PIN_PROPS_WINDOW_RIG_H
#define MIVO_TESTS_DIALOGS_PIN_PROPS_WINDOW_RIG_H

#include <QAbstractItemView>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <utility>

#include "grid_rig.h"
#include "pin_prop_grid.h"
#include "pin_prop_grid_title.h"
#include "pin_props.h"
#include "style_chooser.h"
#include "wait_until.h"

namespace mivo {

/// Counts how often the widgets that it filters are painted.
class PaintCounter final : public QObject {
 public:
  int count = 0;

  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++count;
    return false;
  }
};

/// The window of the pin grid over an editor without a window.
class WindowTest : public testing::Test {
 protected:
  WindowTest() { rig_.editor.Resize({600, 600}, 1); }

  /// Shows the window with the component's pins.
  void Show(SComponent component) {
    rig_.editor.SetComponent(nullptr);
    component_ = std::move(component);
    rig_.editor.SetComponent(&component_);
    if (props_ == nullptr) {
      props_ = std::make_unique<CPinProps>(rig_.editor, rig_.font, texts_, nullptr);
      rig_.host.pinsChanged = [this] { props_->Refresh(); };
    }
    props_->show();
    ASSERT_TRUE(WaitUntil([&] { return props_->isActiveWindow(); }));
  }

  [[nodiscard]] CompEditor& Editor() { return rig_.editor; }
  [[nodiscard]] CPinProps& Props() { return *props_; }
  template <typename Control>
  [[nodiscard]] Control& Find(const char* objectName) {
    return *props_->findChild<Control*>(QLatin1String(objectName));
  }
  [[nodiscard]] CPinPropGrid& Grid() { return Find<CPinPropGrid>("pinGrid"); }
  [[nodiscard]] QLineEdit& Edit() { return Find<QLineEdit>("cellEdit"); }
  [[nodiscard]] StyleChooser& Chooser() { return Find<StyleChooser>("styleChooser"); }
  [[nodiscard]] QScrollBar& RowBar() { return Find<QScrollBar>("rowBar"); }
  [[nodiscard]] QScrollBar& BlockBar() { return Find<QScrollBar>("blockBar"); }
  [[nodiscard]] QPushButton& CloseButton() { return Find<QPushButton>("closeButton"); }

  /// A cell of a row in sight, counted from the first one in sight.
  [[nodiscard]] QRect Cell(int row, int column) {
    const PinGridLayout& cells = Grid().Cells();
    return {cells.Left(column), row * cells.RowHeight(), cells.Width(column), cells.RowHeight()};
  }
  void Click(int row, int column) {
    QTest::mouseClick(&Grid(), Qt::LeftButton, {}, Cell(row, column).center());
  }
  [[nodiscard]] const SCompPin& Pin(int row) {
    return *Grid().Grid().Rows()[static_cast<std::size_t>(row)].pin;
  }
  [[nodiscard]] int SelectedRow() { return Grid().Grid().SelectedRow(); }

 private:
  EditorRig rig_;
  SComponent component_;
  TextTable texts_;
  std::unique_ptr<CPinProps> props_;
};

/// A pin for each number from 0 on the left side, with the given number of blocks.
inline SComponent ManyPins(int count, int blocks) {
  std::vector<PinSpec> pins;
  const std::vector<std::u16string> numbers(static_cast<std::size_t>(blocks), u"17");
  for (int i = 0; i < count; ++i) pins.push_back({PinSide::Left, i, u"N", numbers});
  return MakeComponent(pins, blocks);
}

}  // namespace mivo

#endif

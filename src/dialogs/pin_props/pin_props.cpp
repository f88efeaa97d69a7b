#include "pin_props.h"

#include <QCoreApplication>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <algorithm>
#include <cstdlib>
#include <optional>

#include "dialog_texts.h"
#include "pin_prop_grid.h"
#include "pin_prop_grid_title.h"
#include "qt_text.h"

namespace mivo {
namespace {

namespace text = dialog_text::pin_props;

std::optional<ScrollRequest> RequestOf(int action) {
  switch (action) {
    case QAbstractSlider::SliderSingleStepAdd:
      return ScrollRequest::LineForward;
    case QAbstractSlider::SliderSingleStepSub:
      return ScrollRequest::LineBack;
    case QAbstractSlider::SliderPageStepAdd:
      return ScrollRequest::PageForward;
    case QAbstractSlider::SliderPageStepSub:
      return ScrollRequest::PageBack;
    case QAbstractSlider::SliderToMinimum:
      return ScrollRequest::Start;
    case QAbstractSlider::SliderToMaximum:
      return ScrollRequest::End;
    case QAbstractSlider::SliderMove:
      return ScrollRequest::Thumb;
    default:
      return std::nullopt;
  }
}

void ShowBar(QScrollBar& bar, const GridScroll& scroll) {
  bar.setRange(0, scroll.Last());
  bar.setPageStep(scroll.Visible());
  bar.setValue(scroll.First());
}

}  // namespace

CPinProps::CPinProps(CompEditor& editor, const SCommonFont& labelFont, const TextTable& texts,
                     QWidget* parent)
    // Of a tool window the parent's accelerators work as well.
    : QDialog(parent, Qt::Tool | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                          Qt::WindowCloseButtonHint) {
  setObjectName(QStringLiteral("pinProps"));
  setWindowTitle(ToQString(texts.Text(text::kTitle)));

  auto* const table = new QFrame(this);
  table->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
  grid_ = new CPinPropGrid(editor, labelFont, texts, table);
  title_ = new CPinPropGridTitle(*grid_, texts, table);
  rowBar_ = CreateBar(Qt::Vertical, "rowBar", ToQString(texts.Text(text::kRowBar)));
  blockBar_ = CreateBar(Qt::Horizontal, "blockBar", ToQString(texts.Text(text::kBlockBar)));
  connect(rowBar_, &QAbstractSlider::actionTriggered, this, [this](int action) {
    if (const auto request = RequestOf(action)) {
      grid_->ScrollRows(*request, rowBar_->sliderPosition());
    }
  });
  connect(blockBar_, &QAbstractSlider::actionTriggered, this, [this](int action) {
    if (const auto request = RequestOf(action)) {
      grid_->ScrollBlocks(*request, blockBar_->sliderPosition());
    }
  });
  connect(grid_, &CPinPropGrid::Scrolled, this, &CPinProps::ShowScrolling);

  auto* const cells = new QGridLayout(table);
  cells->setContentsMargins({});
  cells->setSpacing(0);
  cells->addWidget(title_, 0, 0);
  cells->addWidget(grid_, 1, 0);
  cells->addWidget(rowBar_, 0, 1, 2, 1);
  cells->addWidget(blockBar_, 2, 0);
  cells->setRowStretch(1, 1);
  cells->setColumnStretch(0, 1);

  auto* const close = new QPushButton(ToQString(texts.Text(text::kClose)), this);
  close->setObjectName(QStringLiteral("closeButton"));
  close->setAutoDefault(false);  // Enter belongs to the cells
  connect(close, &QPushButton::clicked, this, &QDialog::reject);
  auto* const buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(close);

  auto* const outer = new QVBoxLayout(this);
  outer->addWidget(table, 1);
  outer->addLayout(buttons);
  setFocusProxy(grid_);
  resize(sizeHint().boundedTo(screen()->availableSize()));
  ShowScrolling();
}

CPinProps::~CPinProps() {
  hide();  // an edit that ends by this still finds everything in its place
}

QScrollBar* CPinProps::CreateBar(Qt::Orientation orientation, const char* objectName,
                                 const QString& spoken) {
  auto* const bar = new QScrollBar(orientation, this);
  bar->setObjectName(QLatin1String(objectName));
  bar->setAccessibleName(spoken);
  return bar;
}

void CPinProps::Refresh() {
  grid_->Refresh();
}

void CPinProps::EndEdit() {
  grid_->EndEdit();
}

void CPinProps::PlaceBeside(const QWidget& window) {
  const QRect other = window.frameGeometry();
  const int border = fontMetrics().height();  // that the desktop may draw around it
  const int rightmost = window.screen()->availableGeometry().right() + 1 - width() - border;
  move(std::min(other.right() + 1, rightmost), other.top());
}

void CPinProps::done(int result) {
  EndEdit();
  QDialog::done(result);
}

void CPinProps::wheelEvent(QWheelEvent* event) {
  const QPoint turn = event->angleDelta();
  QCoreApplication::sendEvent(std::abs(turn.x()) > std::abs(turn.y()) ? blockBar_ : rowBar_, event);
}

void CPinProps::ShowScrolling() {
  ShowBar(*rowBar_, grid_->Grid().RowScroll());
  ShowBar(*blockBar_, grid_->Grid().BlockScroll());
  title_->update();
}

}  // namespace mivo

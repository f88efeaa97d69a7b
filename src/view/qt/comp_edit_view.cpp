#include "comp_edit_view.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <cmath>
#include <memory>

#include "comp_edit_view_accessible.h"

namespace mivo {
namespace {

std::optional<ViewKey> ViewKeyOf(const QKeyEvent& event) {
  switch (event.key()) {
    case Qt::Key_Escape:
      return ViewKey::Escape;
    case Qt::Key_Delete:
      return ViewKey::Delete;
    case Qt::Key_PageUp:
      return ViewKey::PageUp;
    case Qt::Key_PageDown:
      return ViewKey::PageDown;
    case Qt::Key_Left:
      return ViewKey::Left;
    case Qt::Key_Up:
      return ViewKey::Up;
    case Qt::Key_Right:
      return ViewKey::Right;
    case Qt::Key_Down:
      return ViewKey::Down;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return ViewKey::Enter;
    case Qt::Key_Menu:
      return ViewKey::Menu;
    case Qt::Key_S:
      return ViewKey::S;
    case Qt::Key_P:
      return ViewKey::P;
    case Qt::Key_L:
      return ViewKey::L;
    case Qt::Key_C:
      return ViewKey::C;
    case Qt::Key_G:
      return ViewKey::G;
    case Qt::Key_A:
      return ViewKey::A;
    case Qt::Key_T:
      return ViewKey::T;
    case Qt::Key_N:
      return ViewKey::N;
    default:
      return std::nullopt;
  }
}

void ShowBar(QScrollBar& bar, const ScrollBar& state, int line) {
  bar.setRange(0, std::max(0, state.range - state.page));
  bar.setPageStep(state.page);
  bar.setSingleStep(line);
  bar.setValue(state.position);
}

}  // namespace

CCompEditView::CCompEditView(PropertyPrompts& prompts, QWidget* parent)
    : QAbstractScrollArea(parent), editor_({*this, prompts, clipboard_, surfaces_, commonFont_}) {
  CompEditViewAccessible::Install();
  setObjectName(QStringLiteral("componentView"));
  setFocusPolicy(Qt::StrongFocus);
  // The menu opens when the button is released, unless the mouse panned; the editor decides.
  setContextMenuPolicy(Qt::NoContextMenu);
  viewport()->setContextMenuPolicy(Qt::NoContextMenu);
  viewport()->setMouseTracking(true);
  viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
  for (QScrollBar* const bar : {horizontalScrollBar(), verticalScrollBar()}) {
    connect(bar, &QScrollBar::valueChanged, this, [this] {
      if (!settingBars_) {
        editor_.ScrollTo({horizontalScrollBar()->value(), verticalScrollBar()->value()});
      }
    });
  }
}

void CCompEditView::SetCommonFont(const SCommonFont& font) {
  commonFont_ = font;
  Render();
}

std::optional<SPoint> CCompEditView::MousePoint() const {
  if (!mouse_) return std::nullopt;
  return editor_.Coordinates().ToComponent(*mouse_);
}

PixelPoint CCompEditView::DevicePoint(QPointF position) const {
  const double ratio = viewport()->devicePixelRatioF();
  return {static_cast<std::int32_t>(std::floor(position.x() * ratio)),
          static_cast<std::int32_t>(std::floor(position.y() * ratio))};
}

void CCompEditView::TakeSize() {
  ratio_ = viewport()->devicePixelRatioF();
  const QSizeF size = QSizeF(viewport()->size()) * ratio_;
  const PixelSize pixels{static_cast<std::int32_t>(std::ceil(size.width())),
                         static_cast<std::int32_t>(std::ceil(size.height()))};
  // A window changes its size several times before it is shown.
  back_.reset();
  front_.reset();
  backIsCurrent_ = false;
  size_ = pixels;
  editor_.Resize(pixels, ratio_);
}

void CCompEditView::resizeEvent(QResizeEvent*) {
  TakeSize();
}

void CCompEditView::paintEvent(QPaintEvent*) {
  // The window may have moved to a display of another resolution since it got its size.
  if (viewport()->devicePixelRatioF() != ratio_) TakeSize();
  if (!back_) back_ = RasterImage::Create(size_, ImageDepth::Color);
  if (!back_) return;
  if (!backIsCurrent_) {
    editor_.PaintBack(*surfaces_.CreateSurface(*back_));
    backIsCurrent_ = true;
  }
  RasterImage* shown = &*back_;
  if (editor_.HasFront()) {
    if (!front_) front_ = RasterImage::Create(size_, ImageDepth::Color);
    if (!front_) return;
    front_->CopyFrom(*back_, {0, 0, size_.width, size_.height}, {0, 0});
    editor_.PaintFront(*surfaces_.CreateSurface(*front_));
    shown = &*front_;
  }
  QImage image = WrapImage(*shown);
  image.setDevicePixelRatio(ratio_);
  QPainter(viewport()).drawImage(0, 0, image);
}

bool CCompEditView::viewportEvent(QEvent* event) {
  if (event->type() == QEvent::Leave) {
    mouse_.reset();
    editor_.LeaveMouse();
    emit PlaceChanged();
  }
  return QAbstractScrollArea::viewportEvent(event);
}

void CCompEditView::mousePressEvent(QMouseEvent* event) {
  const PixelPoint at = DevicePoint(event->position());
  if (event->button() == Qt::LeftButton) editor_.PressLeft(at);
  if (event->button() == Qt::RightButton) editor_.PressRight(at);
}

void CCompEditView::mouseMoveEvent(QMouseEvent* event) {
  mouse_ = DevicePoint(event->position());
  editor_.MoveMouse(*mouse_);
  emit PlaceChanged();
}

void CCompEditView::mouseReleaseEvent(QMouseEvent* event) {
  const PixelPoint at = DevicePoint(event->position());
  if (event->button() == Qt::LeftButton) editor_.ReleaseLeft(at);
  if (event->button() == Qt::RightButton) editor_.ReleaseRight(at);
}

void CCompEditView::mouseDoubleClickEvent(QMouseEvent* event) {
  const PixelPoint at = DevicePoint(event->position());
  if (event->button() == Qt::LeftButton) editor_.DoubleClick(at);
  if (event->button() == Qt::RightButton) editor_.PressRight(at);
}

void CCompEditView::wheelEvent(QWheelEvent* event) {
  editor_.Wheel(event->angleDelta().y(), event->modifiers().testFlag(Qt::ControlModifier));
  event->accept();
}

void CCompEditView::keyPressEvent(QKeyEvent* event) {
  const bool isShortcut = (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != 0;
  const std::optional<ViewKey> key = ViewKeyOf(*event);
  const bool shift = event->modifiers().testFlag(Qt::ShiftModifier);
  if (isShortcut || !key || !editor_.Key(*key, shift)) event->ignore();
}

bool CCompEditView::focusNextPrevChild(bool next) {
  return editor_.Key(next ? ViewKey::Tab : ViewKey::BackTab, !next) ||
         QAbstractScrollArea::focusNextPrevChild(next);
}

void CCompEditView::hideEvent(QHideEvent* event) {
  editor_.CaptureLost();
  QAbstractScrollArea::hideEvent(event);
}

void CCompEditView::changeEvent(QEvent* event) {
  // A window that is no longer active does not get the release of the button.
  if (event->type() == QEvent::ActivationChange && !isActiveWindow()) editor_.CaptureLost();
  QAbstractScrollArea::changeEvent(event);
}

void CCompEditView::Repaint() {
  viewport()->update();
}

void CCompEditView::Render() {
  backIsCurrent_ = false;
  viewport()->update();
}

void CCompEditView::ScrollBarsChanged() {
  const ViewCoordinates& coordinates = editor_.Coordinates();
  const int line = ViewCoordinates::kScrollLine * coordinates.Scale().markPixels;
  settingBars_ = true;
  ShowBar(*horizontalScrollBar(), coordinates.Horizontal(), line);
  ShowBar(*verticalScrollBar(), coordinates.Vertical(), line);
  settingBars_ = false;
  emit PlaceChanged();
}

void CCompEditView::SetCursor(CursorShape shape) {
  viewport()->setCursor(shape == CursorShape::Move ? Qt::SizeAllCursor : Qt::ArrowCursor);
}

void CCompEditView::SetCapture(bool /*on*/) {
  // The toolkit captures the mouse from the press of the first button to the release of the last.
}

void CCompEditView::ShowContextMenu(PixelPoint at) {
  const QPointF position = QPointF(at.x, at.y) / ratio_;
  emit ContextMenuRequested(viewport()->mapToGlobal(position.toPoint()));
}

void CCompEditView::Edited() {
  emit OperationCompleted();
}

void CCompEditView::StateChanged() {
  emit CommandsChanged();
}

void CCompEditView::PinsChanged() {
  emit PinsEdited();
}

void CCompEditView::TogglePinGrid() {
  emit PinGridToggled();
}

}  // namespace mivo

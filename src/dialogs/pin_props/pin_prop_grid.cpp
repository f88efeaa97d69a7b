#include "pin_prop_grid.h"

#include <QFontMetrics>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyle>
#include <algorithm>
#include <cmath>

#include "dialog_texts.h"
#include "edit_for_grid.h"
#include "pin_grid_look.h"
#include "pin_grid_style.h"
#include "pin_prop_grid_accessible.h"
#include "pin_style_text.h"
#include "qt_text.h"
#include "style_chooser.h"

namespace mivo {
namespace {

namespace text = dialog_text::pin_props;
using namespace pin_grid_column;

constexpr int kLeastRowHeight = 24;  // what a picture of a style needs
constexpr int kPicture = 72;         // width that the style list is made for
constexpr int kRowsAtFirst = 16;
constexpr int kMostBlocksAtFirst = 4;
constexpr int kLeastRows = 4;

PinGridLayout LayoutFor(const QWidget& widget) {
  const double scale = PinGridScale(widget);
  const int least = static_cast<int>(std::lround(kLeastRowHeight * scale));
  const int lines = QFontMetrics(PinGridFont(widget)).height() * 3 / 2;
  return PinGridLayout(std::max(least, lines), scale);
}

}  // namespace

CPinPropGrid::CPinPropGrid(CompEditor& editor, const SCommonFont& labelFont, const TextTable& texts,
                           QWidget* parent)
    : QWidget(parent),
      texts_(texts),
      grid_(editor),
      cells_(LayoutFor(*this)),
      pictures_(labelFont, cells_.RowHeight() - 1) {
  PinPropGridAccessible::Install();
  setObjectName(QStringLiteral("pinGrid"));
  setAccessibleName(ToQString(texts.Text(text::kGrid)));
  setFont(PinGridFont(*this));
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
  CreateEditors();
}

void CPinPropGrid::CreateEditors() {
  edit_ = new CEditForGrid(this);
  edit_->setObjectName(QStringLiteral("cellEdit"));
  connect(edit_, &QLineEdit::textEdited, this,
          [this](const QString& typed) { grid_.SetEditText(ToText(typed)); });
  connect(edit_, &CEditForGrid::UpPressed, this, [this] {
    grid_.MoveUp();
    ShowChange();
  });
  connect(edit_, &CEditForGrid::DownPressed, this, [this] {
    grid_.MoveDown();
    ShowChange();
  });
  connect(edit_, &CEditForGrid::EscapePressed, this, [this] {
    grid_.CancelEdit();
    ShowChange();
  });
  connect(edit_, &CEditForGrid::FocusLost, this, &CPinPropGrid::EndEdit);

  chooser_ = new StyleChooser(this);
  chooser_->setObjectName(QStringLiteral("styleChooser"));
  chooser_->setAccessibleName(ToQString(texts_.Text(text::kStyle)));
  for (const std::int32_t style : kPinGridStyles) {
    chooser_->AddStyle(ToQString(texts_.Text(PinStyleText(style))));
  }
  connect(chooser_, &QComboBox::activated, this, [this](int entry) {
    grid_.ChooseStyle(static_cast<std::size_t>(entry));
    ShowChange();
  });
  connect(chooser_, &StyleChooser::Dismissed, this, [this] {
    if (grid_.Edit() == PinGrid::EditKind::Style) EndEdit();
  });
}

// --- In step with the editor ---------------------------------------------------------------------

void CPinPropGrid::Refresh() {
  grid_.Refresh();
  ShowChange();
  PinPropGridAccessible::TellRefreshed(*this);
}

void CPinPropGrid::EndEdit() {
  grid_.EndEdit();
  ShowChange();
}

void CPinPropGrid::ShowChange() {
  if (grid_.Edit() == PinGrid::EditKind::None) {
    HideEditors();
  } else {
    const QRect cell = CellRect(grid_.SelectedRow(), grid_.EditColumn());
    grid_.IsTextEdit() ? OpenTextEdit(cell) : OpenStyleChooser(cell);
  }
  update();
  emit Scrolled();
}

// --- The controls that edit a cell ---------------------------------------------------------------

void CPinPropGrid::OpenTextEdit(const QRect& cell) {
  const bool isName = grid_.Edit() == PinGrid::EditKind::Name;
  edit_->setAccessibleName(ToQString(texts_.Text(isName ? text::kName : text::kNumber)));
  edit_->Open(grid_.EditText(), grid_.EditTextLimit(), cell.adjusted(1, 1, -1, 0));
}

void CPinPropGrid::OpenStyleChooser(const QRect& cell) {
  for (std::size_t entry = 0; entry < kPinGridStyles.size(); ++entry) {
    const QPixmap& picture = pictures_.Get(kPinGridStyles[entry], devicePixelRatioF());
    chooser_->SetPicture(static_cast<int>(entry), picture);
  }
  const int width = static_cast<int>(std::lround(kPicture * PinGridScale(*this))) +
                    2 * style()->pixelMetric(QStyle::PM_DefaultFrameWidth) +
                    style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  chooser_->Open(static_cast<int>(grid_.EditStyle()),
                 {cell.left(), cell.top(), width, cell.height()});
}

void CPinPropGrid::HideEditors() {
  for (QWidget* const editor : {static_cast<QWidget*>(edit_), static_cast<QWidget*>(chooser_)}) {
    // Else the focus would go on to the next control.
    if (window()->focusWidget() == editor) setFocus(Qt::OtherFocusReason);
    editor->hide();
  }
}

// --- Places --------------------------------------------------------------------------------------

QRect CPinPropGrid::CellRect(int row, int column) const {
  return {cells_.Left(column), (row - grid_.RowScroll().First()) * cells_.RowHeight(),
          cells_.Width(column), cells_.RowHeight()};
}

int CPinPropGrid::LastColumnInSight() const {
  const int blocksLeft = grid_.Blocks() - grid_.BlockScroll().First();
  return std::min(cells_.ColumnAt(std::max(0, width() - 1)), kFirstBlock + blocksLeft - 1);
}

QSize CPinPropGrid::sizeHint() const {
  const int blocks = std::clamp(grid_.Blocks(), 1, kMostBlocksAtFirst);
  return {cells_.Left(kFirstBlock + blocks) + 1, kRowsAtFirst * cells_.RowHeight() + 1};
}

QSize CPinPropGrid::minimumSizeHint() const {
  return {cells_.Left(kFirstBlock + 1) + 1, kLeastRows * cells_.RowHeight() + 1};
}

void CPinPropGrid::resizeEvent(QResizeEvent*) {
  EndEdit();
  grid_.SetVisible(cells_.WholeRows(height()), std::max(1, cells_.WholeBlocks(width())));
  ShowChange();
}

void CPinPropGrid::ScrollRows(ScrollRequest request, int thumb) {
  grid_.ScrollRows(request, thumb);
  ShowChange();
}

void CPinPropGrid::ScrollBlocks(ScrollRequest request, int thumb) {
  grid_.ScrollBlocks(request, thumb);
  ShowChange();
}

// --- Mouse and keys ------------------------------------------------------------------------------

void CPinPropGrid::mousePressEvent(QMouseEvent* event) {
  event->setAccepted(event->button() == Qt::LeftButton);
}

void CPinPropGrid::mouseReleaseEvent(QMouseEvent* event) {
  const QPoint at = event->position().toPoint();
  if (event->button() != Qt::LeftButton || !rect().contains(at)) return;
  Click(cells_.RowAt(at.y()) + grid_.RowScroll().First(), cells_.ColumnAt(at.x()));
}

void CPinPropGrid::Click(int row, int column) {
  grid_.Click(row, column);
  ShowChange();
}

void CPinPropGrid::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_F2) {
    grid_.StartEdit(kName);
    ShowChange();
  } else {
    QWidget::keyPressEvent(event);
  }
}

void CPinPropGrid::focusInEvent(QFocusEvent*) {
  update();
}

void CPinPropGrid::focusOutEvent(QFocusEvent*) {
  update();
}

}  // namespace mivo

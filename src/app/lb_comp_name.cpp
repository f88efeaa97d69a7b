#include "lb_comp_name.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <utility>

#include "name_list_accessible.h"
#include "qt_text.h"

namespace mivo {
namespace {

constexpr int kRowHeight = 15;
constexpr int kFontHeight = 13;
constexpr int kAliasIndent = 10;
constexpr int kMargin = 2;
const QColor kAliasColor(255, 0, 0);

/// Draws a row by the list's own rules, whatever the desktop's style: names exactly as stored, and
/// the other names of the selected component marked.
class NameDelegate final : public QStyledItemDelegate {
 public:
  explicit NameDelegate(SLBCompName& list)
      : QStyledItemDelegate(&list),
        list_(list),
        font_(QFont::substitute(QStringLiteral("MS UI Gothic"))) {
    font_.setPixelSize(kFontHeight);
  }

  [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                               const QModelIndex&) const override {
    return {option.rect.width(), kRowHeight};
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    const NameEntry* const selected = list_.SelectedEntry();
    const bool isSelected = list_.currentIndex() == index;
    const bool isActive = isSelected && list_.hasFocus();
    const QPalette& palette = option.palette;
    painter->fillRect(option.rect, palette.color(isActive ? QPalette::Highlight : QPalette::Base));

    QRect textRect = option.rect;
    QColor color = palette.color(isActive ? QPalette::HighlightedText : QPalette::Text);
    NameEntry* const entry = list_.Names().Entry(index.row());
    if (!isSelected && selected != nullptr && selected->Component() == entry->Component()) {
      color = kAliasColor;
      textRect.setLeft(textRect.left() + kAliasIndent);
    }
    if (isSelected) DrawFocusFrame(*painter, option.rect, color);
    painter->setFont(font_);
    painter->setPen(color);
    // On its base line: to lay it out in a rectangle takes several times as long.
    const QFontMetrics metrics(font_);
    const int top = textRect.top() + (textRect.height() - metrics.height()) / 2;
    painter->drawText(textRect.left() + kMargin, top + metrics.ascent(), ToQString(entry->Name()));
  }

 private:
  static void DrawFocusFrame(QPainter& painter, const QRect& rect, const QColor& color) {
    painter.setPen(QPen(color, 1, Qt::DotLine));
    painter.drawRect(rect.adjusted(0, 0, -1, -1));
  }

  const SLBCompName& list_;
  QFont font_;
};

}  // namespace

void NameListModel::SetEntries(std::vector<NameEntry*> entries) {
  beginResetModel();
  entries_ = std::move(entries);
  endResetModel();
}

void NameListModel::Insert(int row, NameEntry* entry) {
  beginInsertRows({}, row, row);
  entries_.insert(entries_.begin() + row, entry);
  endInsertRows();
}

void NameListModel::Remove(int row) {
  beginRemoveRows({}, row, row);
  entries_.erase(entries_.begin() + row);
  endRemoveRows();
}

void NameListModel::SwapWithNext(int row) {
  beginMoveRows({}, row, row, {}, row + 2);
  std::swap(entries_[static_cast<std::size_t>(row)], entries_[static_cast<std::size_t>(row) + 1]);
  endMoveRows();
}

void NameListModel::NameChanged(int row) {
  emit dataChanged(index(row), index(row));
}

NameEntry* NameListModel::Entry(int row) const {
  return row >= 0 && row < rowCount() ? entries_[static_cast<std::size_t>(row)] : nullptr;
}

int NameListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(entries_.size());
}

QVariant NameListModel::data(const QModelIndex& index, int role) const {
  NameEntry* const entry = Entry(index.row());
  if (entry == nullptr || role != Qt::DisplayRole) return {};
  return ToQString(entry->Name());
}

SLBCompName::SLBCompName(QWidget* parent) : QListView(parent) {
  NameListAccessible::Install();
  setObjectName(QStringLiteral("nameList"));
  setModel(&model_);
  setItemDelegate(new NameDelegate(*this));
  setUniformItemSizes(true);
  setSelectionMode(QAbstractItemView::SingleSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

NameEntry* SLBCompName::SelectedEntry() const {
  return model_.Entry(currentIndex().row());
}

void SLBCompName::SelectRow(int row) {
  setCurrentIndex(model_.index(row));
}

void SLBCompName::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QListView::currentChanged(current, previous);
  // Which names are other names of the selected component has changed everywhere.
  viewport()->update();
  emit SelectionChanged();
}

void SLBCompName::mousePressEvent(QMouseEvent* event) {
  QListView::mousePressEvent(event);
  // The menu that a right press opens is about the row under it.
  if (event->button() == Qt::RightButton) {
    const QModelIndex pressed = indexAt(event->position().toPoint());
    if (pressed.isValid()) setCurrentIndex(pressed);
  }
}

void SLBCompName::mouseDoubleClickEvent(QMouseEvent* event) {
  QListView::mouseDoubleClickEvent(event);
  if (event->button() == Qt::LeftButton) emit PropertyRequested();
}

}  // namespace mivo

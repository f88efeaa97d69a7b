#ifndef MIVO_VIEW_QT_ACCESSIBLE_ITEM_H
#define MIVO_VIEW_QT_ACCESSIBLE_ITEM_H

#include <QAccessibleInterface>
#include <QPointer>
#include <QWidget>

namespace mivo {

/// Something that a widget draws itself, as assistive programs see it: a child of the widget
/// without a window or object of its own.
///
/// An item holds no pointer to what it stands for. It knows how to find it, and looks it up for
/// each question, since a program may keep the item for as long as it likes; what is not found any
/// more is invalid and empty.
class AccessibleItem : public QAccessibleInterface {
 public:
  explicit AccessibleItem(QWidget& owner) : owner_(&owner) {}

  /// Where the item is in the owner, cut off by nothing; nothing for an invalid item.
  [[nodiscard]] virtual QRect Place() const = 0;

  [[nodiscard]] QObject* object() const final { return nullptr; }
  [[nodiscard]] QWindow* window() const final;
  [[nodiscard]] QAccessibleInterface* parent() const final;
  [[nodiscard]] QAccessibleInterface* child(int) const final { return nullptr; }
  [[nodiscard]] QAccessibleInterface* childAt(int, int) const final { return nullptr; }
  [[nodiscard]] int childCount() const final { return 0; }
  [[nodiscard]] int indexOfChild(const QAccessibleInterface*) const final { return -1; }
  [[nodiscard]] QRect rect() const final;
  void setText(QAccessible::Text, const QString&) final {}

 protected:
  /// Null once the widget is gone.
  [[nodiscard]] QWidget* Owner() const noexcept { return owner_; }
  /// What every item of the owner has, by its place and whether it is there at all.
  [[nodiscard]] QAccessible::State CommonState() const;

 private:
  QPointer<QWidget> owner_;
};

}  // namespace mivo

#endif

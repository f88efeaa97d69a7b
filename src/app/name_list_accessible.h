#ifndef MIVO_APP_NAME_LIST_ACCESSIBLE_H
#define MIVO_APP_NAME_LIST_ACCESSIBLE_H

#include <QObject>
#include <map>

#include "accessible_items_widget.h"

namespace mivo {

class SLBCompName;

/// The name list as assistive programs see it: an item per row, made when somebody asks for it. The
/// toolkit's own items stay with the name they were made for when names change places.
class NameListAccessible final : public AccessibleItemsWidget {
 public:
  /// Makes the toolkit use this for every SLBCompName. Any number of calls.
  static void Install();

  explicit NameListAccessible(SLBCompName& list);
  ~NameListAccessible() override;

  [[nodiscard]] QAccessibleInterface* focusChild() const override;

 protected:
  [[nodiscard]] int ItemCount() const override;
  [[nodiscard]] QAccessibleInterface* Item(int row) const override;
  [[nodiscard]] int IndexOfItem(const QAccessibleInterface& item) const override;
  [[nodiscard]] QAccessibleInterface* ItemAt(QPoint global) const override;

 private:
  SLBCompName& list_;
  QObject listener_;                              ///< its connections end with this
  mutable std::map<int, QAccessible::Id> known_;  ///< the rows that anybody asked for
};

}  // namespace mivo

#endif

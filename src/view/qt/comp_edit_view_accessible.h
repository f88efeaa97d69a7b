#ifndef MIVO_VIEW_QT_COMP_EDIT_VIEW_ACCESSIBLE_H
#define MIVO_VIEW_QT_COMP_EDIT_VIEW_ACCESSIBLE_H

#include <QObject>
#include <map>
#include <tuple>
#include <vector>

#include "accessible_items_widget.h"
#include "comp_pin.h"

namespace mivo {

class CCompEditView;
class PinAccessible;

/// Names a pin for as long as it stays where it is: its place on the outline, and which of several
/// pins at that place it is.
using PinPlaceKey = std::tuple<PinSide, std::int32_t, int>;

/// The drawing as assistive programs see it: a canvas whose first children are the component's pins
/// in the order in which they stand around the body; then come the scroll bars.
class CompEditViewAccessible final : public AccessibleItemsWidget {
 public:
  /// Makes the toolkit use this for every CCompEditView. Any number of calls.
  static void Install();

  explicit CompEditViewAccessible(CCompEditView& view);
  ~CompEditViewAccessible() override;

  [[nodiscard]] QAccessibleInterface* focusChild() const override;

 protected:
  [[nodiscard]] int ItemCount() const override;
  [[nodiscard]] QAccessibleInterface* Item(int index) const override;
  [[nodiscard]] int IndexOfItem(const QAccessibleInterface& item) const override;
  [[nodiscard]] QAccessibleInterface* ItemAt(QPoint global) const override;

 private:
  /// What was told about a pin.
  struct Known {
    QAccessible::Id id;
    QString name;
    bool selected;
  };

  [[nodiscard]] std::vector<PinPlaceKey> Keys() const;
  [[nodiscard]] PinAccessible* Pin(const PinPlaceKey& key) const;
  /// Forgets the pins that are gone, and tells assistive programs what became of the others.
  void Update();

  CCompEditView& view_;
  QMetaObject::Connection updates_;
  /// The pins that anybody asked for; only these cost anything.
  mutable std::map<PinPlaceKey, Known> known_;
  std::size_t shownPins_ = 0;  ///< when assistive programs were last told
};

}  // namespace mivo

#endif

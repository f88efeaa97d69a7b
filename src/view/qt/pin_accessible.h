#ifndef MIVO_VIEW_QT_PIN_ACCESSIBLE_H
#define MIVO_VIEW_QT_PIN_ACCESSIBLE_H

#include <QAccessibleActionInterface>
#include <optional>
#include <vector>

#include "accessible_item.h"
#include "comp_edit_view_accessible.h"
#include "pin_rows.h"

namespace mivo {

/// The keys of `rows`, in the same order.
[[nodiscard]] std::vector<PinPlaceKey> KeysOf(const std::vector<PinRow>& rows);

/// A pin in the drawing as assistive programs see it. Its action selects it.
class PinAccessible final : public AccessibleItem, public QAccessibleActionInterface {
 public:
  PinAccessible(CCompEditView& view, const PinPlaceKey& key);

  [[nodiscard]] const PinPlaceKey& Key() const noexcept { return key_; }
  [[nodiscard]] bool IsSelected() const;

  [[nodiscard]] QRect Place() const override;
  [[nodiscard]] bool isValid() const override { return Row().has_value(); }
  [[nodiscard]] QAccessible::Role role() const override { return QAccessible::ListItem; }
  /// Name: what the pin is called, as in "pin L3 CLK number 4". Description: what its shape says.
  [[nodiscard]] QString text(QAccessible::Text kind) const override;
  [[nodiscard]] QAccessible::State state() const override;
  void* interface_cast(QAccessible::InterfaceType type) override;

  [[nodiscard]] QStringList actionNames() const override;
  void doAction(const QString& name) override;
  [[nodiscard]] QStringList keyBindingsForAction(const QString&) const override { return {}; }

 private:
  [[nodiscard]] CCompEditView* View() const noexcept;
  /// Nothing once the pin is gone.
  [[nodiscard]] std::optional<PinRow> Row() const;
  [[nodiscard]] QString Name(const SCompPin& pin) const;
  [[nodiscard]] QString Description(const SCompPin& pin) const;

  PinPlaceKey key_;
};

}  // namespace mivo

#endif

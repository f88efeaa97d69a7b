#include "pin_accessible.h"

#include <algorithm>

#include "comp_edit_view.h"
#include "dialog_texts.h"
#include "pin_style_text.h"
#include "qt_text.h"

namespace mivo {
namespace {

/// What a screen reader shall say of a name: its letters. Which of them are overlined is said in
/// words.
std::u16string Letters(std::u16string_view name) {
  std::u16string letters(name);
  for (char16_t& c : letters) c = static_cast<char16_t>(c & ~SCompPin::kOverline);
  return letters;
}

bool HasOverline(std::u16string_view name) {
  return std::any_of(name.begin(), name.end(),
                     [](char16_t c) { return (c & SCompPin::kOverline) != 0; });
}

}  // namespace

std::vector<PinPlaceKey> KeysOf(const std::vector<PinRow>& rows) {
  std::vector<PinPlaceKey> keys;
  keys.reserve(rows.size());
  for (const PinRow& row : rows) {
    const SPinLocation place = row.pin->location;
    int number = 0;
    if (!keys.empty() && std::get<0>(keys.back()) == place.side &&
        std::get<1>(keys.back()) == place.offset) {
      number = std::get<2>(keys.back()) + 1;
    }
    keys.emplace_back(place.side, place.offset, number);
  }
  return keys;
}

PinAccessible::PinAccessible(CCompEditView& view, const PinPlaceKey& key)
    : AccessibleItem(view), key_(key) {}

CCompEditView* PinAccessible::View() const noexcept {
  return static_cast<CCompEditView*>(Owner());
}

std::optional<PinRow> PinAccessible::Row() const {
  if (View() == nullptr) return std::nullopt;
  const std::vector<PinRow> rows = PinRows(View()->Editor().Document());
  const std::vector<PinPlaceKey> keys = KeysOf(rows);
  const auto found = std::find(keys.begin(), keys.end(), key_);
  if (found == keys.end()) return std::nullopt;
  return rows[static_cast<std::size_t>(found - keys.begin())];
}

bool PinAccessible::IsSelected() const {
  const std::optional<PinRow> row = Row();
  return row && row->isSelected;
}

QRect PinAccessible::Place() const {
  const std::optional<PinRow> row = Row();
  if (!row) return {};
  const CompEditor& editor = View()->Editor();
  const SRect units = editor.Document().PinRect(row->pin->location);
  const PixelPoint from = editor.Coordinates().ToDevice({units.left, units.top});
  const PixelPoint to = editor.Coordinates().ToDevice({units.right, units.bottom});
  const QWidget& viewport = *View()->viewport();
  const double ratio = viewport.devicePixelRatioF();
  const QRectF place(QPointF(from.x, from.y) / ratio, QPointF(to.x, to.y) / ratio);
  return place.toAlignedRect().translated(viewport.pos());
}

QString PinAccessible::text(QAccessible::Text kind) const {
  const std::optional<PinRow> row = Row();
  if (!row) return {};
  if (kind == QAccessible::Name) return Name(*row->pin);
  if (kind == QAccessible::Description) return Description(*row->pin);
  return {};
}

QString PinAccessible::Name(const SCompPin& pin) const {
  QStringList numbers;
  for (std::int32_t block = 0; block < pin.NumberCount(); ++block) {
    const auto number = pin.GetNumber(block);
    if (number && !number->empty()) numbers += ToQString(*number);
  }
  const TextTable& texts = View()->Texts();
  QString name = ToQString(texts.Text(StringId::PinItem))
                     .replace(QStringLiteral("%s"), ToQString(LocationText(pin.location)));
  if (!pin.Name().empty()) name += QLatin1Char(' ') + ToQString(Letters(pin.Name()));
  if (!numbers.isEmpty()) {
    name +=
        QLatin1Char(' ') + ToQString(texts.Text(StringId::PinItemNumber))
                               .replace(QStringLiteral("%s"), numbers.join(QStringLiteral(", ")));
  }
  return name;
}

QString PinAccessible::Description(const SCompPin& pin) const {
  const TextTable& texts = View()->Texts();
  QStringList parts;
  const auto add = [&](TextId id) { parts += ToQString(texts.Text(id)); };
  const TextId shape = PinStyleText(pin.type);
  if (shape != dialog_text::pin_property::kPlain) add(shape);
  if (HasOverline(pin.Name())) add(IdOf(StringId::PinItemOverlined));
  return parts.join(QStringLiteral(", "));
}

QAccessible::State PinAccessible::state() const {
  QAccessible::State state = CommonState();
  if (state.invalid) return state;
  state.selectable = true;
  state.focusable = true;
  state.selected = IsSelected();
  state.focused =
      state.selected && View()->hasFocus() && View()->Editor().Document().Selection().size() == 1;
  return state;
}

void* PinAccessible::interface_cast(QAccessible::InterfaceType type) {
  return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                              : nullptr;
}

QStringList PinAccessible::actionNames() const {
  return {pressAction()};
}

void PinAccessible::doAction(const QString& name) {
  if (name == pressAction() && isValid()) {
    View()->Editor().SelectPin({std::get<0>(key_), std::get<1>(key_)});
  }
}

}  // namespace mivo

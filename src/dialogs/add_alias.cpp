#include "add_alias.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>

#include "dialog_texts.h"
#include "qt_text.h"

namespace mivo {
namespace {

namespace text = dialog_text::add_alias;

constexpr int kVisibleCharacters = 32;

}  // namespace

CAddAlias::CAddAlias(const TextTable& texts, std::u16string_view name, QWidget* parent)
    : FormDialog(texts, text::kTitle, parent) {
  QLineEdit* const nameEdit = MakeLineEdit("nameEdit", text::kName, name, kVisibleCharacters);
  nameEdit->setReadOnly(true);
  alias_ = MakeLineEdit("aliasEdit", text::kAlias, {}, kVisibleCharacters);

  auto* const form = new QFormLayout;
  form->addRow(MakeLabel(text::kName, *nameEdit), nameEdit);
  form->addRow(MakeLabel(text::kAlias, *alias_), alias_);
  Finish(form);
  FocusOn(*alias_);
}

std::u16string CAddAlias::Alias() const {
  return ToText(alias_->text());
}

std::optional<std::u16string> CAddAlias::Ask(const TextTable& texts, std::u16string_view name,
                                             QWidget* parent) {
  CAddAlias dialog(texts, name, parent);
  if (dialog.exec() != Accepted) return std::nullopt;
  return dialog.Alias();
}

}  // namespace mivo

#include "ptn_property.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QLabel>

#include "dialog_texts.h"
#include "pen_width_box.h"

namespace mivo {
namespace {

namespace text = dialog_text::ptn_property;

}  // namespace

CPtnProperty::CPtnProperty(const TextTable& texts, const ShapeValues& values, QWidget* parent)
    : FormDialog(texts, text::kTitle, parent),
      fillAllowed_(values.fillAllowed),
      width_(Named(new PenWidthBox(values.width, this), "widthList", text::kWidth)),
      fill_(MakeButton<QCheckBox>("fillCheck", text::kFill)),
      dot_(MakeButton<QCheckBox>("dotCheck", text::kDot)) {
  fill_->setChecked(values.fill);
  fill_->setEnabled(values.fillAllowed);
  dot_->setChecked(values.dot);

  auto* const form = new QFormLayout;
  form->addRow(MakeLabel(text::kWidth, *width_), width_);
  form->addRow(fill_);
  form->addRow(dot_);
  Finish(form);
  FocusOn(*width_);
}

ShapeValues CPtnProperty::Values() const {
  return {.width = width_->Width(),
          .dot = dot_->isChecked(),
          .fill = fill_->isChecked(),
          .fillAllowed = fillAllowed_};
}

std::optional<ShapeValues> CPtnProperty::Ask(const TextTable& texts, const ShapeValues& values,
                                             QWidget* parent) {
  CPtnProperty dialog(texts, values, parent);
  if (dialog.exec() != Accepted) return std::nullopt;
  return dialog.Values();
}

}  // namespace mivo

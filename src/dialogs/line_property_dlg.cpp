#include "line_property_dlg.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QLabel>

#include "dialog_texts.h"
#include "pen_width_box.h"

namespace mivo {
namespace {

namespace text = dialog_text::line_property;

}  // namespace

CLinePropertyDlg::CLinePropertyDlg(const TextTable& texts, const LineValues& values,
                                   QWidget* parent)
    : FormDialog(texts, text::kTitle, parent),
      width_(Named(new PenWidthBox(values.width, this), "widthList", text::kWidth)),
      curve_(MakeButton<QCheckBox>("curveCheck", text::kCurve)),
      dot_(MakeButton<QCheckBox>("dotCheck", text::kDot)) {
  curve_->setChecked(values.curve);
  dot_->setChecked(values.dot);

  auto* const form = new QFormLayout;
  form->addRow(MakeLabel(text::kWidth, *width_), width_);
  form->addRow(curve_);
  form->addRow(dot_);
  Finish(form);
  FocusOn(*width_);
}

LineValues CLinePropertyDlg::Values() const {
  return {.width = width_->Width(), .curve = curve_->isChecked(), .dot = dot_->isChecked()};
}

std::optional<LineValues> CLinePropertyDlg::Ask(const TextTable& texts, const LineValues& values,
                                                QWidget* parent) {
  CLinePropertyDlg dialog(texts, values, parent);
  if (dialog.exec() != Accepted) return std::nullopt;
  return dialog.Values();
}

}  // namespace mivo

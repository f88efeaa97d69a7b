#include "pin_name_show_hide.h"

#include <QFontMetrics>
#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>
#include <vector>

#include "dialog_texts.h"
#include "entered_text.h"
#include "name_parts.h"
#include "qt_text.h"

namespace mivo {
namespace {

namespace text = dialog_text::pin_name_show_hide;

constexpr int kVisibleCharacters = 36;
constexpr int kVisibleLines = 10;

Qt::CheckState ToCheckState(bool isChecked) {
  return isChecked ? Qt::Checked : Qt::Unchecked;
}

}  // namespace

CDlgPinNameShowHide::CDlgPinNameShowHide(const TextTable& texts, std::u16string_view name,
                                         std::uint32_t mask, QWidget* parent)
    : FormDialog(texts, text::kTitle, parent),
      parts_(Named(new QListWidget(this), "partsList", text::kParts)) {
  parts_->setMinimumSize(kVisibleCharacters * fontMetrics().averageCharWidth(),
                         kVisibleLines * fontMetrics().lineSpacing());
  parts_->setTextElideMode(Qt::ElideNone);
  parts_->setSpacing(fontMetrics().height() / 8);
  std::size_t index = 0;
  for (const std::u16string_view part : SplitPinName(name)) {
    auto* const line = new QListWidgetItem(ToQString(WithVisibleControls(part)), parts_);
    line->setFlags(index < kMaskableNameParts
                       ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable
                       : Qt::ItemFlags());
    line->setCheckState(ToCheckState(IsNamePartShown(mask, index)));
    ++index;
  }
  parts_->setCurrentRow(0);

  auto* const showAll = MakeButton<QPushButton>("showAllButton", text::kShowAll);
  auto* const hideAll = MakeButton<QPushButton>("hideAllButton", text::kHideAll);
  connect(showAll, &QPushButton::clicked, this, [this] { CheckAll(true); });
  connect(hideAll, &QPushButton::clicked, this, [this] { CheckAll(false); });

  auto* const buttons = new QVBoxLayout;
  buttons->addWidget(showAll);
  buttons->addWidget(hideAll);
  buttons->addStretch();
  auto* const row = new QHBoxLayout;
  row->addWidget(parts_, 1);
  row->addLayout(buttons);
  Finish(row);
  FocusOn(*parts_);
}

std::uint32_t CDlgPinNameShowHide::Mask() const {
  std::vector<bool> shown;
  for (int row = 0; row < parts_->count(); ++row) {
    shown.push_back(parts_->item(row)->checkState() == Qt::Checked);
  }
  return NameMaskOf(shown);
}

std::optional<std::uint32_t> CDlgPinNameShowHide::Ask(const TextTable& texts,
                                                      std::u16string_view name, std::uint32_t mask,
                                                      QWidget* parent) {
  CDlgPinNameShowHide dialog(texts, name, mask, parent);
  if (dialog.exec() != Accepted) return std::nullopt;
  return dialog.Mask();
}

void CDlgPinNameShowHide::CheckAll(bool isShown) {
  for (int row = 0; row < parts_->count(); ++row) {
    QListWidgetItem* const line = parts_->item(row);
    if ((line->flags() & Qt::ItemIsUserCheckable) != 0) {
      line->setCheckState(ToCheckState(isShown));
    }
  }
}

}  // namespace mivo

#include "pin_property.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QFontInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <array>
#include <utility>

#include "block_spin_box.h"
#include "dialog_texts.h"
#include "pin_name_show_hide.h"
#include "pin_style_picture.h"
#include "pin_style_text.h"
#include "qt_text.h"

namespace mivo {
namespace {

namespace text = dialog_text::pin_property;

constexpr int kNameCharacters = 32;
constexpr int kNumberCharacters = 16;
constexpr SRect kStyleArea{-26, -13, 40, 9};  // see PinStylePicture

// In the order of PinForm::kStyles.
constexpr std::array<const char*, PinForm::kStyles.size()> kStyleButtons = {
    "plainRadio", "clockRadio", "negationRadio", "negationClockRadio", "shapeSRadio", "shapeZRadio",
};

}  // namespace

CPinProperty::CPinProperty(const TextTable& texts, PinValues values, const SCommonFont& font,
                           QWidget* parent)
    : FormDialog(texts, text::kTitle, parent), texts_(texts), form_(std::move(values)) {
  const std::u16string& name = form_.Values().name;
  name_ = MakeLineEdit("nameEdit", text::kName, name, kNameCharacters, PinValues::kMaxNameLength);
  showHide_ = MakeButton<QPushButton>("showHideButton", text::kShowHide);
  showHide_->setEnabled(!name.empty());
  connect(name_, &QLineEdit::textChanged, this,
          [this](const QString& edited) { showHide_->setEnabled(!edited.isEmpty()); });
  connect(showHide_, &QPushButton::clicked, this, [this] { ChooseNameParts(); });
  auto* const nameRow = new QHBoxLayout;
  nameRow->addWidget(MakeLabel(text::kName, *name_));
  nameRow->addWidget(name_, 1);
  nameRow->addWidget(showHide_);

  auto* const column = new QVBoxLayout;
  column->addLayout(nameRow);
  column->addWidget(MakeNumberGroup());
  column->addWidget(MakeStyleGroup(font));
  column->addStretch();
  Finish(column);
  FocusOn(*name_);
}

std::optional<PinValues> CPinProperty::Ask(const TextTable& texts, const PinValues& values,
                                           const SCommonFont& font, QWidget* parent) {
  CPinProperty dialog(texts, values, font, parent);
  if (dialog.exec() != Accepted) return std::nullopt;
  return dialog.Values();
}

QGroupBox* CPinProperty::MakeNumberGroup() {
  auto* const group = new QGroupBox(Text(text::kNumberGroup), this);
  number_ = MakeLineEdit("numberEdit", text::kNumberGroup, {}, kNumberCharacters);
  block_ = Named(new BlockSpinBox(form_.BlockCount(), this), "blockSpin", text::kBlock);
  Named(&block_->Edit(), "blockEdit", text::kBlock);
  hideNumber_ = MakeButton<QCheckBox>("hideNumberCheck", text::kHideNumber);
  ShowNumber();
  hideNumber_->setChecked(form_.Values().hideNumber);
  connect(&block_->Edit(), &QLineEdit::textChanged, this, [this] { FollowBlockEdit(); });

  auto* const grid = new QGridLayout(group);
  grid->addWidget(number_, 0, 0);
  grid->addWidget(MakeLabel(text::kBlock, *block_), 0, 1);
  grid->addWidget(block_, 0, 2);
  grid->addWidget(hideNumber_, 1, 0, 1, -1);
  grid->setColumnStretch(0, 1);
  return group;
}

QGroupBox* CPinProperty::MakeStyleGroup(const SCommonFont& font) {
  auto* const group = new QGroupBox(Text(text::kStyleGroup), this);
  auto* const grid = new QGridLayout(group);
  styles_ = new QButtonGroup(this);
  // The lettering comes out as large as the texts of the dialog.
  const double pixelsPerUnit =
      static_cast<double>(QFontInfo(this->font()).pixelSize()) / FontPixels(font.height, 1, 1);
  constexpr int kColumns = 3;
  for (int i = 0; i < static_cast<int>(kStyleButtons.size()); ++i) {
    const auto index = static_cast<std::size_t>(i);
    const std::int32_t style = PinForm::kStyles[index];
    const TextId spoken = PinStyleText(style);
    auto* const button = Named(new QRadioButton(group), kStyleButtons[index], spoken);
    const QPixmap picture =
        PinStylePicture(style, u"NAME", kStyleArea, font, pixelsPerUnit, devicePixelRatio());
    button->setIcon(picture);
    button->setIconSize(picture.deviceIndependentSize().toSize());
    button->setToolTip(SpokenText(spoken));
    styles_->addButton(button, i);
    grid->addWidget(button, i / kColumns, i % kColumns);
  }
  if (const auto index = PinForm::StyleIndex(form_.Values().shape)) {
    styles_->button(static_cast<int>(*index))->setChecked(true);
  }
  LetTabReachChecked(styles_->buttons());
  return group;
}

void CPinProperty::ShowNumber() {
  ShowText(*number_, form_.Number(), PinValues::kMaxNumberLength);
}

void CPinProperty::FollowBlockEdit() {
  const std::int32_t block = form_.BlockFromText(ToText(block_->text()));
  if (block == form_.CurrentBlock()) return;
  form_.SetNumber(ToText(number_->text()));
  form_.SetCurrentBlock(block);
  ShowNumber();
}

void CPinProperty::ChooseNameParts() {
  form_.SetName(ToText(name_->text()));
  const PinValues& values = form_.Values();
  if (const auto mask = CDlgPinNameShowHide::Ask(texts_, values.name, values.nameMask, this)) {
    form_.SetNameMask(*mask);
  }
}

void CPinProperty::accept() {
  form_.SetName(ToText(name_->text()));
  form_.SetNumber(ToText(number_->text()));
  form_.SetHideNumber(hideNumber_->isChecked());
  const int style = styles_->checkedId();
  form_.SetStyle(
      PinForm::StyleAt(style >= 0 ? std::optional(static_cast<std::size_t>(style)) : std::nullopt));
  QDialog::accept();
}

}  // namespace mivo

#include "ptn_text_dlg.h"

#include <QCheckBox>
#include <QFont>
#include <QFontDialog>
#include <QFontInfo>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "dialog_texts.h"
#include "integer.h"
#include "qt_text.h"

namespace mivo {
namespace {

namespace text = dialog_text::ptn_text;

constexpr int kVisibleCharacters = 40;

// The font dialog's size stands for component units, so that people find there what they chose.

QFont ToQFont(const TextValues& values) {
  constexpr std::int32_t kMaxSize = 512;  // the largest that the font dialog takes
  QFont font;
  if (!values.face.empty()) font.setFamilies({ToQString(values.face)});
  font.setPointSize(std::clamp(WrapAbs(values.height), 1, kMaxSize));
  font.setWeight(static_cast<QFont::Weight>(std::clamp(values.weight, 1, 1000)));
  font.setItalic(values.italic);
  // By weight and slant alone the font dialog finds no style whose name is not the usual one.
  font.setStyleName(QFontInfo(font).styleName());
  return font;
}

void SetFont(TextValues& values, const QFont& font) {
  values.face = ToText(font.family());
  values.height = font.pointSize();
  values.weight = font.weight();
  values.italic = font.italic();
}

}  // namespace

CPtnTextDlg::CPtnTextDlg(const TextTable& texts, TextValues values, QWidget* parent)
    : FormDialog(texts, text::kTitle, parent), values_(std::move(values)) {
  text_ =
      MakeLineEdit("textEdit", text::kText, values_.text, kVisibleCharacters, kMaxPtnTextLength);
  auto* const textRow = new QHBoxLayout;
  textRow->addWidget(MakeLabel(text::kText, *text_));
  textRow->addWidget(text_, 1);

  auto* const anchors = new QHBoxLayout;
  anchors->addWidget(MakeHorizontalGroup(), 1);
  anchors->addWidget(MakeVerticalGroup(), 1);

  useCommonFont_ = MakeButton<QCheckBox>("commonFontCheck", text::kUseCommonFont);
  font_ = MakeButton<QPushButton>("fontButton", text::kFont);
  useCommonFont_->setChecked(UsesCommonFont(values_));
  FollowCommonFontCheck();
  connect(useCommonFont_, &QCheckBox::clicked, this, [this] { FollowCommonFontCheck(); });
  connect(font_, &QPushButton::clicked, this, [this] { ChooseFont(); });
  auto* const fontRow = new QHBoxLayout;
  fontRow->addWidget(useCommonFont_);
  fontRow->addWidget(font_);
  fontRow->addStretch();

  auto* const column = new QVBoxLayout;
  column->addLayout(textRow);
  column->addLayout(anchors);
  column->addLayout(fontRow);
  column->addStretch();
  Finish(column);
  FocusOn(*text_);
}

std::optional<TextValues> CPtnTextDlg::Ask(const TextTable& texts, const TextValues& values,
                                           QWidget* parent) {
  CPtnTextDlg dialog(texts, values, parent);
  if (dialog.exec() != Accepted) return std::nullopt;
  return dialog.Values();
}

QGroupBox* CPtnTextDlg::MakeHorizontalGroup() {
  auto* const group = new QGroupBox(Text(text::kHorizontalGroup), this);
  auto* const column = new QVBoxLayout(group);
  left_ = MakeButton<QRadioButton>("leftRadio", text::kLeft);
  horizontalCenter_ = MakeButton<QRadioButton>("horizontalCenterRadio", text::kHorizontalCenter);
  right_ = MakeButton<QRadioButton>("rightRadio", text::kRight);
  for (QRadioButton* const button : {left_, horizontalCenter_, right_}) column->addWidget(button);
  switch (HorizontalAnchorOf(values_.align)) {
    case HorizontalAnchor::Left:
      left_->setChecked(true);
      break;
    case HorizontalAnchor::Right:
      right_->setChecked(true);
      break;
    case HorizontalAnchor::Center:
      horizontalCenter_->setChecked(true);
      break;
  }
  LetTabReachChecked({left_, horizontalCenter_, right_});
  return group;
}

QGroupBox* CPtnTextDlg::MakeVerticalGroup() {
  auto* const group = new QGroupBox(Text(text::kVerticalGroup), this);
  auto* const column = new QVBoxLayout(group);
  upper_ = MakeButton<QRadioButton>("upperRadio", text::kUpper);
  verticalCenter_ = MakeButton<QRadioButton>("verticalCenterRadio", text::kVerticalCenter);
  lower_ = MakeButton<QRadioButton>("lowerRadio", text::kLower);
  for (QRadioButton* const button : {upper_, verticalCenter_, lower_}) column->addWidget(button);
  switch (VerticalAnchorOf(values_.align)) {
    case VerticalAnchor::Lower:
      lower_->setChecked(true);
      break;
    case VerticalAnchor::Upper:
      upper_->setChecked(true);
      break;
    case VerticalAnchor::Center:
      verticalCenter_->setChecked(true);
      break;
  }
  LetTabReachChecked({upper_, verticalCenter_, lower_});
  return group;
}

void CPtnTextDlg::FollowCommonFontCheck() {
  const bool isCommon = useCommonFont_->isChecked();
  font_->setEnabled(!isCommon);
  if (isCommon) UseCommonFont(values_);
}

void CPtnTextDlg::ChooseFont() {
  QFontDialog dialog(ToQFont(values_), this);
  dialog.setOption(QFontDialog::ScalableFonts);
  if (dialog.exec() == Accepted) SetFont(values_, dialog.selectedFont());
}

HorizontalAnchor CPtnTextDlg::Horizontal() const {
  if (left_->isChecked()) return HorizontalAnchor::Left;
  return right_->isChecked() ? HorizontalAnchor::Right : HorizontalAnchor::Center;
}

VerticalAnchor CPtnTextDlg::Vertical() const {
  if (lower_->isChecked()) return VerticalAnchor::Lower;
  return upper_->isChecked() ? VerticalAnchor::Upper : VerticalAnchor::Center;
}

void CPtnTextDlg::accept() {
  values_.text = ToText(text_->text());
  values_.align = AlignOf(Horizontal(), Vertical());
  QDialog::accept();
}

}  // namespace mivo

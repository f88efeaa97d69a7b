#include "ptn_text_dlg.h"

#include <QButtonGroup>
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
#include "ptn_form.h"
#include "qt_text.h"

namespace mivo {
namespace {

namespace text = dialog_text::ptn_text;

constexpr int kVisibleCharacters = 40;

/// The id of a button.
template <typename Anchor>
constexpr int Number(Anchor anchor) {
  return static_cast<int>(anchor);
}

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
    : FormDialog(texts, text::kTitle, parent),
      values_(std::move(values)),
      horizontal_(new QButtonGroup(this)),
      vertical_(new QButtonGroup(this)) {
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

QGroupBox* CPtnTextDlg::MakeAnchorGroup(TextId title, const std::array<AnchorButton, 3>& buttons,
                                        QButtonGroup& group, int chosen) {
  auto* const box = new QGroupBox(Text(title), this);
  auto* const column = new QVBoxLayout(box);
  for (const AnchorButton& button : buttons) {
    auto* const radio = MakeButton<QRadioButton>(button.objectName, button.text);
    group.addButton(radio, button.anchor);
    column->addWidget(radio);
  }
  group.button(chosen)->setChecked(true);
  LetTabReachChecked(group.buttons());
  return box;
}

QGroupBox* CPtnTextDlg::MakeHorizontalGroup() {
  using enum HorizontalAnchor;
  return MakeAnchorGroup(text::kHorizontalGroup,
                         {{{"leftRadio", text::kLeft, Number(Left)},
                           {"horizontalCenterRadio", text::kHorizontalCenter, Number(Center)},
                           {"rightRadio", text::kRight, Number(Right)}}},
                         *horizontal_, Number(HorizontalAnchorOf(values_.align)));
}

QGroupBox* CPtnTextDlg::MakeVerticalGroup() {
  using enum VerticalAnchor;
  return MakeAnchorGroup(text::kVerticalGroup,
                         {{{"upperRadio", text::kUpper, Number(Upper)},
                           {"verticalCenterRadio", text::kVerticalCenter, Number(Center)},
                           {"lowerRadio", text::kLower, Number(Lower)}}},
                         *vertical_, Number(VerticalAnchorOf(values_.align)));
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

void CPtnTextDlg::accept() {
  values_.text = ToText(text_->text());
  values_.align = AlignOf(static_cast<HorizontalAnchor>(horizontal_->checkedId()),
                          static_cast<VerticalAnchor>(vertical_->checkedId()));
  QDialog::accept();
}

}  // namespace mivo

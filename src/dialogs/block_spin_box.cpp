#include "block_spin_box.h"

#include <QFontMetrics>
#include <QLineEdit>
#include <QStyle>
#include <QStyleOptionSpinBox>
#include <algorithm>

#include "integer.h"
#include "number_text.h"
#include "qt_text.h"

namespace mivo {

BlockSpinBox::BlockSpinBox(std::int32_t blockCount, QWidget* parent)
    : QAbstractSpinBox(parent), blockCount_(blockCount) {
  Edit().setText(QStringLiteral("1"));
}

void BlockSpinBox::stepBy(int steps) {
  const std::int32_t block = std::clamp(WrapAdd(Block(), steps), 1, std::max(blockCount_, 1));
  Edit().setText(QString::number(block));
  selectAll();
}

QValidator::State BlockSpinBox::validate(QString& /*input*/, int& /*cursor*/) const {
  return QValidator::Acceptable;
}

QSize BlockSpinBox::sizeHint() const {
  constexpr int kVisibleDigits = 5;
  QStyleOptionSpinBox option;
  initStyleOption(&option);
  const QSize content(kVisibleDigits * fontMetrics().horizontalAdvance(u'0'),
                      Edit().sizeHint().height());
  return style()->sizeFromContents(QStyle::CT_SpinBox, &option, content, this);
}

QAbstractSpinBox::StepEnabled BlockSpinBox::stepEnabled() const {
  const std::int32_t block = Block();
  StepEnabled enabled;
  enabled.setFlag(StepUpEnabled, block < blockCount_);
  enabled.setFlag(StepDownEnabled, block > 1);
  return enabled;
}

std::int32_t BlockSpinBox::Block() const {
  return std::clamp(ParseInt(ToText(text())), 1, std::max(blockCount_, 1));
}

}  // namespace mivo

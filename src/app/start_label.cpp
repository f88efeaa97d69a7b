#include "start_label.h"

#include <QLabel>
#include <QVBoxLayout>

#include "qt_text.h"
#include "text_table.h"

namespace mivo {
namespace {

/// Dark grey on the white drawing area, where the theme's own colour may be white as well.
const QColor kTextColor(64, 64, 64);
constexpr int kMargin = 24;
constexpr double kTitleSize = 1.5;  ///< times the size of the other text

}  // namespace

StartLabel::StartLabel(const TextTable& texts, QWidget& area) : QWidget(&area) {
  setObjectName(QStringLiteral("startLabel"));
  setAttribute(Qt::WA_TransparentForMouseEvents);
  QPalette colors = palette();
  // Labels on a text area are drawn in the colour of texts.
  colors.setColor(QPalette::WindowText, kTextColor);
  colors.setColor(QPalette::Text, kTextColor);
  setPalette(colors);

  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  const auto addLabel = [&](StringId text) {
    auto* const label = new QLabel(ToQString(texts.Text(text)), this);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    layout->addWidget(label);
    return label;
  };
  layout->addStretch();
  QLabel* const title = addLabel(StringId::StartTitle);
  layout->addSpacing(kMargin / 2);
  addLabel(StringId::StartSteps);
  layout->addStretch();

  QFont font = title->font();
  font.setPointSizeF(font.pointSizeF() * kTitleSize);
  title->setFont(font);

  auto* const filling = new QVBoxLayout(&area);
  filling->setContentsMargins(0, 0, 0, 0);
  filling->addWidget(this);
}

}  // namespace mivo

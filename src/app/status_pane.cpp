#include "status_pane.h"

#include <QEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <utility>

#include "elided_label.h"
#include "pin_geometry.h"
#include "qt_text.h"
#include "text_table.h"

namespace mivo {
namespace {

constexpr int kGap = 8;
constexpr int kProgressWidth = 160;
constexpr int kProgressSteps = 1000;

QString InCells(std::int32_t units) {
  return QString::number(units / double{kUnitsPerCell}, 'f', 1);
}

QString PlaceText(SPoint point) {
  return QStringLiteral("%1, %2").arg(InCells(point.x), InCells(point.y));
}

QString ZoomText(std::int32_t factor) {
  return QStringLiteral("\u00D7%1").arg(factor);
}

QString NamesText(int position, int count) {
  return QStringLiteral("%1 / %2").arg(position).arg(count);
}

/// Reserves room for the widest text that is usual in `label`.
void Reserve(QLabel& label, const QString& widest) {
  const QString shown = label.text();
  label.setText(widest);
  label.setMinimumWidth(label.sizeHint().width());
  label.setText(shown);
}

}  // namespace

StatusPane::StatusPane(const TextTable& texts, QWidget* parent) : QWidget(parent) {
  auto* const layout = new QHBoxLayout(this);
  layout->setContentsMargins(kGap / 2, 0, 0, 0);
  layout->setSpacing(kGap);

  words_ = new ElidedLabel(this);
  words_->setObjectName(QStringLiteral("statusText"));
  layout->addWidget(words_, 1);

  progress_ = new QProgressBar(this);
  progress_->setObjectName(QStringLiteral("statusProgress"));
  progress_->setAccessibleName(ToQString(texts.Text(StringId::ProgressName)));
  progress_->setRange(0, kProgressSteps);
  progress_->setFixedWidth(kProgressWidth);
  progress_->hide();
  layout->addWidget(progress_);

  place_ = AddField("statusPlace", ToQString(texts.Text(StringId::PlaceName)));
  zoom_ = AddField("statusZoom", ToQString(texts.Text(StringId::ZoomName)));
  names_ = AddField("statusNames", ToQString(texts.Text(StringId::NamesName)));
  KeepWidths();
}

QLabel* StatusPane::AddField(const char* objectName, const QString& name) {
  auto* const line = new QFrame(this);
  line->setFrameStyle(static_cast<int>(QFrame::VLine) | static_cast<int>(QFrame::Plain));
  line->setForegroundRole(QPalette::Mid);
  layout()->addWidget(line);
  auto* const field = new QLabel(this);
  field->setObjectName(QLatin1String(objectName));
  field->setTextFormat(Qt::PlainText);
  field->setAlignment(Qt::AlignCenter);
  field->setToolTip(name);
  field->setAccessibleDescription(name);
  layout()->addWidget(field);
  return field;
}

void StatusPane::KeepWidths() {
  Reserve(*place_, PlaceText({-8888, -8888}));
  Reserve(*zoom_, ZoomText(88));
  Reserve(*names_, NamesText(nameCount_, nameCount_));
}

void StatusPane::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) KeepWidths();
}

void StatusPane::SetHint(const QString& hint) {
  if (hint == hint_) return;
  hint_ = hint;
  note_.clear();
  ShowWords();
}

void StatusPane::ShowNote(const QString& note) {
  note_ = note;
  ShowWords();
}

void StatusPane::ShowTip(const QString& tip) {
  tip_ = tip;
  ShowWords();
}

void StatusPane::ShowWords() {
  const QString* words = &hint_;
  for (const QString* const text : {&note_, &tip_, &task_}) {
    if (!text->isEmpty()) words = text;
  }
  words_->setText(*words);
}

void StatusPane::SetPlace(std::optional<SPoint> point) {
  place_->setText(point ? PlaceText(*point) : QString());
}

void StatusPane::SetZoom(std::optional<std::int32_t> factor) {
  zoom_->setText(factor ? ZoomText(*factor) : QString());
}

void StatusPane::SetNames(int row, int count) {
  if (count == 0) {
    names_->clear();
  } else {
    names_->setText(row >= 0 ? NamesText(row + 1, count) : QString::number(count));
  }
  if (std::exchange(nameCount_, count) != count) Reserve(*names_, NamesText(count, count));
}

void StatusPane::ShowProgress(const QString& what, double done) {
  task_ = what;
  progress_->setValue(static_cast<int>(done * kProgressSteps));
  progress_->show();
  ShowWords();
}

void StatusPane::HideProgress() {
  task_.clear();
  progress_->hide();
  ShowWords();
}

}  // namespace mivo

#include "stand_in_prompts.h"

#include <QInputDialog>
#include <QString>

namespace mivo {
namespace {

std::optional<std::u16string> AskLineOfText(QWidget& parent, const QString& label,
                                            const std::u16string& text) {
  bool ok = false;
  const QString answer =
      QInputDialog::getText(&parent, QStringLiteral("Mivo"), label, QLineEdit::Normal,
                            QString::fromStdU16String(text), &ok);
  return ok ? std::optional(answer.toStdU16String()) : std::nullopt;
}

template <typename Values>
std::optional<Values> AskWidth(QWidget& parent, Values values) {
  bool ok = false;
  values.width = QInputDialog::getInt(&parent, QStringLiteral("Mivo"), QStringLiteral("Width"),
                                      values.width, 0, 5, 1, &ok);
  return ok ? std::optional(values) : std::nullopt;
}

}  // namespace

std::optional<PinValues> StandInPrompts::AskPin(const PinValues& values) {
  const auto name = AskLineOfText(parent_, QStringLiteral("Name"), values.name);
  if (!name) return std::nullopt;
  PinValues changed = values;
  changed.name = *name;
  return changed;
}

std::optional<LineValues> StandInPrompts::AskLine(const LineValues& values) {
  return AskWidth(parent_, values);
}

std::optional<ShapeValues> StandInPrompts::AskShape(const ShapeValues& values) {
  return AskWidth(parent_, values);
}

std::optional<TextValues> StandInPrompts::AskText(const TextValues& values) {
  const auto text = AskLineOfText(parent_, QStringLiteral("Text"), values.text);
  if (!text) return std::nullopt;
  TextValues changed = values;
  changed.text = *text;
  return changed;
}

}  // namespace mivo

#include "load_note.h"

namespace mivo {

void LoadNote::Report(const Finding& finding) {
  const bool isError = SeverityOf(finding.kind) == Severity::Error;
  if (!isError && finding.kind != FindingKind::DataCutOff) return;
  const bool keptIsError = finding_ && SeverityOf(finding_->kind) == Severity::Error;
  if (!finding_ || (isError && !keptIsError)) finding_ = finding;
}

QString LoadNote::Text() const {
  if (!finding_) return {};
  const std::string_view message = MessageOf(finding_->kind);
  return QStringLiteral("Line %1: %2")
      .arg(finding_->line)
      .arg(QString::fromUtf8(message.data(), static_cast<qsizetype>(message.size())));
}

}  // namespace mivo

#include "load_note.h"

#include "qt_text.h"

namespace mivo {

void LoadNote::Report(const Finding& finding) {
  hasLosses_ = true;
  if (finding.kind == FindingKind::LaterVersion) isLaterVersion_ = true;
  const bool isError = SeverityOf(finding.kind) == Severity::Error;
  if (!isError && finding.kind != FindingKind::DataCutOff) return;
  const bool keptIsError = finding_ && SeverityOf(finding_->kind) == Severity::Error;
  if (!finding_ || (isError && !keptIsError)) finding_ = finding;
}

QString LoadNote::Text(const TextTable& texts) const {
  if (!finding_) return {};
  return ToQString(texts.Text(StringId::LoadFinding))
      .replace(QStringLiteral("%d"), QString::number(finding_->line))
      .replace(QStringLiteral("%s"), ToQString(texts.Text(IdOf(finding_->kind))));
}

}  // namespace mivo

#ifndef MIVO_CLI_FIRST_ERROR_H
#define MIVO_CLI_FIRST_ERROR_H

#include <optional>

#include "finding.h"

namespace mivo {

/// Keeps the finding that failed a load: the first error, since what follows may only follow from
/// it.
class FirstError final : public FindingSink {
 public:
  void Report(const Finding& finding) override {
    if (!finding_ && SeverityOf(finding.kind) == Severity::Error) finding_ = finding;
  }

  [[nodiscard]] const std::optional<Finding>& Get() const noexcept { return finding_; }

 private:
  std::optional<Finding> finding_;
};

}  // namespace mivo

#endif

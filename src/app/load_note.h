#ifndef MIVO_APP_LOAD_NOTE_H
#define MIVO_APP_LOAD_NOTE_H

#include <optional>

#include <QString>

#include "finding.h"
#include "text_table.h"

namespace mivo {

/// Listens to a load and keeps the one finding that the user must hear of: what failed it, or else
/// that the file is cut off.
class LoadNote final : public FindingSink {
 public:
  void Report(const Finding& finding) override;

  /// The file says that a later version wrote it.
  [[nodiscard]] bool IsLaterVersion() const noexcept { return isLaterVersion_; }
  /// Whether there was anything that a save would not write as it was.
  [[nodiscard]] bool HasLosses() const noexcept { return hasLosses_; }

  /// "Line 12: what happened"; empty when nothing did.
  [[nodiscard]] QString Text(const TextTable& texts) const;

 private:
  std::optional<Finding> finding_;
  bool isLaterVersion_ = false;
  bool hasLosses_ = false;
};

}  // namespace mivo

#endif

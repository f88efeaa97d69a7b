#ifndef MIVO_TESTS_SUPPORT_COLLECTED_FINDINGS_H
#define MIVO_TESTS_SUPPORT_COLLECTED_FINDINGS_H

#include <ostream>
#include <vector>

#include "finding.h"
#include "text_encoding.h"

namespace mivo {

/// Keeps what it hears.
class CollectedFindings final : public FindingSink {
 public:
  void Report(const Finding& finding) override { all.push_back(finding); }

  [[nodiscard]] std::vector<FindingKind> Kinds() const {
    std::vector<FindingKind> kinds;
    for (const Finding& finding : all) kinds.push_back(finding.kind);
    return kinds;
  }

  std::vector<Finding> all;
};

// Found by GoogleTest for failed expectations.

inline void PrintTo(FindingKind kind, std::ostream* out) {
  *out << '"' << Utf16ToUtf8(MessageOf(kind)) << '"';
}

inline void PrintTo(const Finding& finding, std::ostream* out) {
  *out << finding.line << ':' << finding.column << " in \"" << Utf16ToUtf8(finding.record)
       << "\": ";
  PrintTo(finding.kind, out);
  *out << ": \"" << Utf16ToUtf8(finding.text) << '"';
}

}  // namespace mivo

#endif

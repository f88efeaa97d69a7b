#ifndef MIVO_TESTS_PATTERN_PTN_OBJ_READING_H
#define MIVO_TESTS_PATTERN_PTN_OBJ_READING_H

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "finding.h"
#include "ptn_obj.h"

namespace mivo {

class FindingLog final : public FindingSink {
 public:
  void Report(const Finding& finding) override { findings.push_back(finding); }

  std::vector<Finding> findings;
};

/// What came of reading the record that a text begins with.
struct ReadRecord {
  bool ok = false;
  std::vector<Finding> findings;
  std::u16string next;  ///< the field behind what was read, empty at the end of the data

  [[nodiscard]] std::vector<FindingKind> Kinds() const {
    std::vector<FindingKind> kinds;
    for (const Finding& finding : findings) kinds.push_back(finding.kind);
    return kinds;
  }
};

/// Lets `object` read `text`, which includes the opening tag.
inline ReadRecord ReadInto(SPtnObj& object, std::u16string_view text) {
  FindingLog log;
  SRecordReader reader;
  reader.SetSink(&log);
  reader.AttachString(text);
  std::u16string_view field;
  ReadRecord result;
  if (reader.ReadField(field) == FieldStatus::Ok) result.ok = object.Read(reader);
  result.findings = std::move(log.findings);
  if (reader.ReadField(field) == FieldStatus::Ok) result.next = field;
  return result;
}

/// What `object` writes, with the line feed.
inline std::u16string Written(const SPtnObj& object, SPoint origin = {}) {
  std::u16string text;
  SRecordWriter writer;
  writer.AttachString(text);
  static_cast<void>(object.Write(writer, origin));
  return text;
}

inline std::vector<SPoint> Nodes(const SPtnObj& object) {
  std::vector<SPoint> nodes;
  for (std::int32_t i = 0; i < object.GetNodeCount(); ++i) nodes.push_back(object.GetNode(i));
  return nodes;
}

}  // namespace mivo

#endif

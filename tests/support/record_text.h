#ifndef MIVO_TESTS_SUPPORT_RECORD_TEXT_H
#define MIVO_TESTS_SUPPORT_RECORD_TEXT_H

#include <string>
#include <string_view>

#include "collected_findings.h"
#include "record_reader.h"
#include "record_writer.h"

namespace mivo {

/// A text whose first field, the opening tag, has been read, as a record's reader expects it.
class RecordText {
 public:
  explicit RecordText(std::u16string_view text) : text_(text) {
    reader_.SetSink(&findings);
    reader_.AttachString(text_);
    Next();
  }

  SRecordReader& operator*() { return reader_; }

  /// The next field; empty at the end.
  std::u16string Next() {
    std::u16string_view field;
    static_cast<void>(reader_.ReadField(field));
    return std::u16string(field);
  }

  CollectedFindings findings;

 private:
  std::u16string text_;
  SRecordReader reader_;
};

/// What `write` puts into the writer that it is called with.
template <typename Write>
std::u16string WrittenText(const Write& write) {
  std::u16string text;
  SRecordWriter writer;
  writer.AttachString(text);
  write(writer);
  return text;
}

}  // namespace mivo

#endif

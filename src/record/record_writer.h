#ifndef MIVO_RECORD_RECORD_WRITER_H
#define MIVO_RECORD_RECORD_WRITER_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "byte_stream.h"
#include "record_reader.h"

namespace mivo {

/// Writes the comma-separated fields that SRecordReader reads, as UTF-8 to a file or as UTF-16 to a
/// string. A written field reads back exactly as it was.
class SRecordWriter {
 public:
  SRecordWriter() = default;
  SRecordWriter(const SRecordWriter&) = delete;
  SRecordWriter& operator=(const SRecordWriter&) = delete;

  /// Appends to `target`, which the caller keeps alive.
  void AttachString(std::u16string& target);

  /// Writes to `sink`, which the caller keeps alive, in pieces; what the last piece holds reaches
  /// the sink with Flush. Once the sink has failed, every write fails.
  void AttachFile(ByteSink& sink);

  /// Writes `text` up to its first NUL as one field, escaping what would end or change it.
  FieldStatus WriteField(std::u16string_view text);

  /// Writes KEY:value with the value in signed decimal.
  FieldStatus WriteInt(std::u16string_view key, std::int32_t value);

  /// Writes KEY:value with the value in upper-case hexadecimal, padded to eight characters with
  /// blanks, which are then escaped like any blank.
  FieldStatus WriteHex(std::u16string_view key, std::uint32_t value);

  /// Writes KEY:value.
  FieldStatus WriteText(std::u16string_view key, std::u16string_view value);

  /// Ends the line with a line feed, on every platform.
  FieldStatus EndLine();

  /// Hands the rest to the sink; End when that or an earlier piece failed. Ok for a string target.
  FieldStatus Flush();

 private:
  FieldStatus BeginField();
  FieldStatus PutEscaped(std::u16string_view text);
  /// For a file target: where to put `units` characters, however they are written.
  char* Room(std::size_t units);
  /// Takes what was put there, up to `end`.
  FieldStatus Filled(const char* end);
  FieldStatus Put(char16_t character);

  ByteSink* sink_ = nullptr;
  std::unique_ptr<char[]> bytes_;  // not yet handed to the sink
  std::size_t byteCount_ = 0;
  bool failed_ = false;
  std::u16string* target_ = nullptr;
  bool atLineStart_ = true;
};

}  // namespace mivo

#endif

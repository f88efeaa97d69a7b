#ifndef MIVO_TESTS_RECORD_ATTACHED_READER_H
#define MIVO_TESTS_RECORD_ATTACHED_READER_H

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "byte_streams.h"
#include "record_reader.h"
#include "text_encoding.h"

namespace mivo {

/// How a test hands its text to the reader.
struct Delivery {
  const char* name;
  std::size_t pieceBytes;  ///< of a file in UTF-8; 0 for a string in memory
};

inline void PrintTo(const Delivery& delivery, std::ostream* out) {
  *out << delivery.name;
}

/// The same text must read alike in all these ways.
inline constexpr Delivery kDeliveries[] = {{"String", 0},
                                           {"FileByteByByte", 1},
                                           {"FileThreeBytesAtATime", 3},
                                           {"FileWhole", PieceSource::kWhole}};

/// A reader together with the text that it reads.
class AttachedReader {
 public:
  AttachedReader(std::u16string_view text, const Delivery& delivery)
      : text_(text), bytes_(Utf16ToUtf8(text)), source_(bytes_, delivery.pieceBytes) {
    if (delivery.pieceBytes == 0) {
      reader_.AttachString(text_);
    } else {
      reader_.AttachFile(source_, ByteDecoding::Utf8);
    }
  }

  SRecordReader& operator*() { return reader_; }
  SRecordReader* operator->() { return &reader_; }

  /// The next field, or nothing when the reader answers with the end code.
  std::optional<std::u16string> Next() {
    std::u16string_view field;
    if (reader_.ReadField(field) != FieldStatus::Ok) return std::nullopt;
    return std::u16string(field);
  }

  /// What the next `count` reads give.
  std::vector<std::optional<std::u16string>> Next(std::size_t count) {
    std::vector<std::optional<std::u16string>> fields;
    while (fields.size() < count) fields.push_back(Next());
    return fields;
  }

 private:
  std::u16string text_;
  std::string bytes_;
  PieceSource source_;
  SRecordReader reader_;
};

}  // namespace mivo

#endif

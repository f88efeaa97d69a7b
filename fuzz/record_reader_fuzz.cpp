// Reads any bytes as a file that arrives in small pieces and as one text in memory, which has to
// make no difference, and writes back what was read, which has to read as the same.
//
// The first byte chooses how: '0' to '7' read UTF-8 in pieces of 1 to 8 bytes, '8' and '9' read
// sign-extended bytes one or two at a time.

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz_target.h"
#include "keyed_field.h"
#include "record_reader.h"
#include "record_writer.h"
#include "text_encoding.h"

namespace mivo {
namespace {

/// Hands out at most `pieceSize` bytes at a time.
class PiecemealSource final : public ByteSource {
 public:
  PiecemealSource(std::string_view bytes, std::size_t pieceSize)
      : source_(bytes), pieceSize_(pieceSize) {}

  [[nodiscard]] std::size_t Read(std::span<char> into) override {
    return source_.Read(into.first(std::min(into.size(), pieceSize_)));
  }

 private:
  MemoryByteSource source_;
  std::size_t pieceSize_;
};

std::u16string Decode(std::string_view bytes, ByteDecoding decoding) {
  if (decoding == ByteDecoding::Utf8) return Utf8ToUtf16(bytes);
  std::u16string text;
  for (const char byte : bytes) {
    text.push_back(static_cast<char16_t>(static_cast<signed char>(byte)));
  }
  return text;
}

/// No fewer than the reads that it takes to come to the end of `text`, and one beyond. Each but the
/// last consumes one of these characters, unless the length limit ends it.
std::size_t MostReads(std::u16string_view text) {
  const auto ends = std::count_if(text.begin(), text.end(), [](char16_t c) {
    return c == u',' || c == u'\n' || c == u'\r' || c == u'%' || c == 0xFFFF;
  });
  return static_cast<std::size_t>(ends) + text.size() / SRecordReader::kMaxFieldLength + 2;
}

void RequireSameReads(std::string_view bytes, std::size_t pieceSize, ByteDecoding decoding) {
  const std::u16string text = Decode(bytes, decoding);
  PiecemealSource source(bytes, pieceSize);
  SRecordReader fromFile;
  SRecordReader fromText;
  fromFile.AttachFile(source, decoding);
  fromText.AttachString(text);
  const std::size_t reads = MostReads(text);
  for (std::size_t i = 0; i < reads; ++i) {
    std::u16string_view fileField;
    std::u16string_view textField;
    const FieldStatus fileStatus = fromFile.ReadField(fileField);
    const FieldStatus textStatus = fromText.ReadField(textField);
    Require(fileStatus == textStatus, "a file and a text end alike");
    Require(fromFile.Line() == fromText.Line(), "a file and a text have the same lines");
    Require(fileField.size() <= SRecordReader::kMaxFieldLength, "a field keeps the length limit");
    if (fileStatus == FieldStatus::Ok) {
      Require(fileField == textField, "a file and a text have the same fields");
    }
  }
  const auto lines = std::count(
      text.begin(), text.begin() + static_cast<std::ptrdiff_t>(UpToNul(text).size()), u'\n');
  Require(fromText.Line() == lines + 1, "every line feed is counted once");
}

/// An empty field and one that begins with 0xFFFF read as the end of the data where they stand
/// last.
bool ReadsBack(std::u16string_view field) {
  return !field.empty() && field.front() != 0xFFFF;
}

void RequireRoundTrip(std::string_view bytes) {
  const std::u16string text = Utf8ToUtf16(bytes);
  SRecordReader reader;
  reader.AttachString(text);
  std::u16string written;
  SRecordWriter toText;
  toText.AttachString(written);
  std::string file;
  StringByteSink sink(file);
  SRecordWriter toFile;
  toFile.AttachFile(sink);

  std::vector<std::u16string> fields;
  std::u16string_view field;
  while (reader.ReadField(field) == FieldStatus::Ok) {
    if (!ReadsBack(UpToNul(field))) continue;
    fields.emplace_back(UpToNul(field));
    for (SRecordWriter* const writer : {&toText, &toFile}) {
      Require(writer->WriteField(field) == FieldStatus::Ok, "every field can be written");
      Require(writer->EndLine() == FieldStatus::Ok, "every line can be ended");
    }
  }
  Require(toFile.Flush() == FieldStatus::Ok, "a file takes all");
  Require(file == Utf16ToUtf8(written), "a file and a text are written alike");

  SRecordReader again;
  again.AttachString(written);
  for (const std::u16string& wanted : fields) {
    Require(again.ReadField(field) == FieldStatus::Ok, "a written field reads");
    Require(field == wanted, "a written field reads as it was");
  }
}

}  // namespace
}  // namespace mivo

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::string_view bytes = mivo::InputBytes(data + 1, size - 1);
  const std::size_t pieceSize = (data[0] & 7u) + 1u;
  const mivo::ByteDecoding decoding =
      (data[0] & 8u) != 0 ? mivo::ByteDecoding::SignExtended : mivo::ByteDecoding::Utf8;
  mivo::RequireSameReads(bytes, pieceSize, decoding);
  mivo::RequireRoundTrip(bytes);
  return 0;
}

#ifndef MIVO_RECORD_RECORD_READER_H
#define MIVO_RECORD_RECORD_READER_H

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "byte_stream.h"
#include "finding.h"
#include "progress.h"

namespace mivo {

/// Result of the field operations of SRecordReader and SRecordWriter.
enum class FieldStatus : std::uint16_t {
  Ok = 0,
  End = 0xFFFF,  ///< the data end, an escape is malformed, or a write failed
};

/// How the bytes of a file become 16-bit characters.
enum class ByteDecoding {
  Utf8,
  SignExtended,  ///< a byte from 0x80 on becomes 0xFF80 to 0xFFFF; for a first look at a file whose
                 ///< encoding is not known yet
};

/// Cuts a text into the comma-separated fields that every file and clipboard text consists of.
///
/// Blanks, tabs and line ends before a field are skipped; a comma, a line feed or a carriage return
/// ends it. "%" and two characters stand for the code unit with that hexadecimal number. A NUL ends
/// the data. The end of the data does not end a field: it is then filled up with 0xFFFF to the
/// length limit, which no complete file ever shows.
class SRecordReader {
 public:
  /// A field of more characters is split: this many, one lost character, and the rest.
  static constexpr std::size_t kMaxFieldLength = 32768;

  SRecordReader() = default;
  SRecordReader(const SRecordReader&) = delete;
  SRecordReader& operator=(const SRecordReader&) = delete;

  /// Reads from `text`, which the caller keeps alive and unchanged.
  void AttachString(std::u16string_view text);

  /// Reads from `source`, which the caller keeps alive, piece by piece.
  void AttachFile(ByteSource& source, ByteDecoding decoding);

  /// Reads the next field. `field` is valid until the next call of any reading operation.
  FieldStatus ReadField(std::u16string_view& field);

  /// Reads fields until one equals `wanted` exactly; that field is consumed. End if the data end
  /// first.
  FieldStatus SkipToField(std::u16string_view wanted);

  /// Skips the rest of a record up to the closing tag that belongs to `openingTag` (same text with
  /// "-" in front). Nested records of the same tag are not counted. `openingTag` may be the field
  /// read last.
  FieldStatus SkipRecord(std::u16string_view openingTag);

  /// The same for a record of unknown kind, which is reported. False when the data end first, which
  /// is reported as `unclosed`.
  [[nodiscard]] bool SkipUnknownRecord(std::u16string_view openingTag,
                                       FindingKind unclosed = FindingKind::UnclosedRecord);

  /// Line counter: 1 once a source is attached, plus every line feed consumed.
  [[nodiscard]] std::int32_t Line() const noexcept { return line_; }

  /// Whom to tell, once per piece, how much was taken from the source: bytes of a file, characters
  /// of a text. The sink stays owned by the caller.
  void SetProgress(ProgressSink* sink, std::uint64_t total) noexcept {
    progress_ = sink;
    progressTotal_ = total;
  }

  /// Adds `bytes` to what the data read so far take in memory. False, which is reported, when that
  /// is out of all proportion to their length: the data are then made to exhaust the memory, and
  /// not worth reading on.
  [[nodiscard]] bool Afford(std::size_t bytes);

  /// Where findings go; none by default. The sink stays owned by the caller.
  void SetSink(FindingSink* sink) noexcept { sink_ = sink; }

  /// Reports a finding at the field read last.
  void Report(FindingKind kind, std::u16string_view text);

  /// The value of a name or text in the field read last: up to its first NUL, which an escape can
  /// put there. Names and texts never hold one: everything behind it would be lost at a save.
  [[nodiscard]] std::u16string_view TextValue(std::u16string_view value) {
    return fieldInScratch_ ? CutAtNul(value) : value;  // a NUL outside of an escape ends the data
  }

  /// Marks a record as open for as long as it lives, so that findings name the record around them.
  class RecordScope {
   public:
    /// `tag` is a literal.
    RecordScope(SRecordReader& reader, std::u16string_view tag) noexcept
        : reader_(reader), outer_(reader.record_) {
      reader_.record_ = tag;
    }
    ~RecordScope() { reader_.record_ = outer_; }
    RecordScope(const RecordScope&) = delete;
    RecordScope& operator=(const RecordScope&) = delete;

   private:
    SRecordReader& reader_;
    std::u16string_view outer_;
  };

 private:
  static constexpr char16_t kEndCharacter = 0xFFFF;
  static constexpr char16_t kNul = 0;

  void Start();
  bool Refill();
  std::size_t CopyPiece();
  std::size_t DecodePiece();
  void Took(std::size_t count);
  char16_t GetCharacter();
  bool SkipBlanks();
  void CountLine() noexcept;
  FieldStatus ReadFieldBehindBlanks(std::u16string_view& field);
  FieldStatus ReadFieldHere(std::u16string_view& field);
  FieldStatus ReadNothing(std::u16string_view& field);
  FieldStatus CollectIntoScratch(std::u16string_view& field);
  bool AppendEscape();
  std::u16string_view CutAtNul(std::u16string_view value);

  // The characters at hand, with a NUL behind them, so that nobody has to look for the end. A
  // reader without a source has nothing but that NUL.
  std::unique_ptr<char16_t[]> window_;
  const char16_t* current_ = &kNul;
  const char16_t* end_ = &kNul;

  std::u16string_view text_;  // what has not come into the window yet, of a text
  ByteSource* source_ = nullptr;
  ByteDecoding decoding_ = ByteDecoding::Utf8;
  bool exhausted_ = false;  // the source has nothing more
  // Read but not decoded yet: a character cut off by the end of the last piece.
  std::unique_ptr<char[]> bytes_;
  std::size_t byteCount_ = 0;

  std::u16string scratch_;  // a field that is not a stretch of the window
  bool fieldInScratch_ = false;

  std::int32_t line_ = 0;
  std::int32_t fieldLine_ = 0;
  // Where the current line begins, from the front of the window; negative once that has moved on.
  std::int64_t lineAt_ = 0;
  std::int64_t fieldColumn_ = 0;  // of the field read last, counted from 0

  FindingSink* sink_ = nullptr;
  std::u16string_view record_;

  ProgressSink* progress_ = nullptr;
  std::uint64_t progressTotal_ = 0;
  std::uint64_t taken_ = 0;
  std::uint64_t afforded_ = 0;
};

}  // namespace mivo

#endif

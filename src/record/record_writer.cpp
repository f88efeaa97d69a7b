#include "record_writer.h"

#include <algorithm>
#include <array>

#include "keyed_field.h"
#include "number_text.h"
#include "text_encoding.h"

namespace mivo {
namespace {

constexpr std::size_t kBufferBytes = std::size_t{1} << 16;
constexpr std::size_t kMaxBytesPerUnit = 3;  // an escape, or a character of the basic plane
/// Texts are put into the buffer in pieces that fit whatever they hold.
constexpr std::size_t kPieceUnits = 4096;

constexpr std::u16string_view kHexDigits = u"0123456789ABCDEF";

/// The characters of ASCII that are written as they are.
constexpr auto kPlain = [] {
  std::array<bool, 0x80> plain{};
  for (std::size_t c = u' ' + 1; c < plain.size(); ++c) plain[c] = c != u'%' && c != u',';
  return plain;
}();

bool NeedsEscape(char16_t c) {
  return c < kPlain.size() && !kPlain[c];
}

bool IsHighSurrogate(char16_t c) {
  return (c & 0xFC00) == 0xD800;
}

/// Puts `text` up to its first NUL behind `out`, where there is room for kMaxBytesPerUnit each, and
/// returns the end.
char* Escape(std::u16string_view text, char* out) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char16_t c = text[i];
    if (c >= 0x80) {
      // Rare enough to leave the encoding to the one place that knows it, a run at a time.
      std::size_t end = i + 1;
      while (end < text.size() && text[end] >= 0x80) ++end;
      std::string run;
      AppendUtf8(run, text.substr(i, end - i));
      out = std::copy(run.begin(), run.end(), out);
      i = end - 1;
    } else if (kPlain[c]) {
      *out++ = static_cast<char>(c);
    } else if (c == u'\0') {
      break;
    } else {
      *out++ = '%';
      *out++ = static_cast<char>(kHexDigits[c >> 4]);
      *out++ = static_cast<char>(kHexDigits[c & 15]);
    }
  }
  return out;
}

}  // namespace

void SRecordWriter::AttachString(std::u16string& target) {
  sink_ = nullptr;
  target_ = &target;
  atLineStart_ = true;
}

void SRecordWriter::AttachFile(ByteSink& sink) {
  target_ = nullptr;
  sink_ = &sink;
  if (!bytes_) bytes_ = std::make_unique<char[]>(kBufferBytes);
  byteCount_ = 0;
  failed_ = false;
  atLineStart_ = true;
}

FieldStatus SRecordWriter::Flush() {
  if (sink_ == nullptr) return target_ != nullptr ? FieldStatus::Ok : FieldStatus::End;
  if (!failed_ && byteCount_ > 0) failed_ = !sink_->Write({bytes_.get(), byteCount_});
  byteCount_ = 0;
  return failed_ ? FieldStatus::End : FieldStatus::Ok;
}

FieldStatus SRecordWriter::Put(char16_t character) {
  if (sink_ != nullptr) {
    if (byteCount_ == kBufferBytes && Flush() != FieldStatus::Ok) return FieldStatus::End;
    bytes_[byteCount_++] = static_cast<char>(character);
    return failed_ ? FieldStatus::End : FieldStatus::Ok;
  }
  if (target_ == nullptr) return FieldStatus::End;
  target_->push_back(character);
  return FieldStatus::Ok;
}

FieldStatus SRecordWriter::BeginField() {
  if (!atLineStart_) return Put(u',');
  atLineStart_ = false;
  return FieldStatus::Ok;
}

char* SRecordWriter::Room(std::size_t units) {
  if (byteCount_ + units * kMaxBytesPerUnit > kBufferBytes) Flush();
  return bytes_.get() + byteCount_;
}

FieldStatus SRecordWriter::Filled(const char* end) {
  byteCount_ = static_cast<std::size_t>(end - bytes_.get());
  return failed_ ? FieldStatus::End : FieldStatus::Ok;
}

FieldStatus SRecordWriter::PutEscaped(std::u16string_view text) {
  text = UpToNul(text);
  if (sink_ != nullptr) {
    while (!text.empty()) {
      std::size_t count = std::min(text.size(), kPieceUnits);
      if (count < text.size() && IsHighSurrogate(text[count - 1])) --count;
      Filled(Escape(text.substr(0, count), Room(count)));
      text.remove_prefix(count);
    }
    return failed_ ? FieldStatus::End : FieldStatus::Ok;
  }
  if (target_ == nullptr) return FieldStatus::End;
  for (const char16_t c : text) {
    if (NeedsEscape(c)) {
      target_->append({u'%', kHexDigits[c >> 4], kHexDigits[c & 15]});
    } else {
      target_->push_back(c);
    }
  }
  return FieldStatus::Ok;
}

FieldStatus SRecordWriter::WriteField(std::u16string_view text) {
  return BeginField() == FieldStatus::Ok ? PutEscaped(text) : FieldStatus::End;
}

FieldStatus SRecordWriter::WriteText(std::u16string_view key, std::u16string_view value) {
  const std::size_t units = key.size() + value.size() + 2;
  if (sink_ != nullptr && units <= kPieceUnits) {
    // As nearly all are: short enough to be put into the buffer at once.
    char* out = Room(units);
    if (!atLineStart_) *out++ = ',';
    atLineStart_ = false;
    out = Escape(key, out);
    *out++ = ':';
    return Filled(Escape(value, out));
  }
  if (WriteField(key) != FieldStatus::Ok || Put(u':') != FieldStatus::Ok) return FieldStatus::End;
  return PutEscaped(value);
}

FieldStatus SRecordWriter::WriteInt(std::u16string_view key, std::int32_t value) {
  return WriteText(key, IntText(value));
}

FieldStatus SRecordWriter::WriteHex(std::u16string_view key, std::uint32_t value) {
  return WriteText(key, HexText(value));
}

FieldStatus SRecordWriter::EndLine() {
  atLineStart_ = true;
  return Put(u'\n');
}

}  // namespace mivo

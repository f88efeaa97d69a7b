#include "record_writer.h"

#include "keyed_field.h"
#include "number_text.h"
#include "text_encoding.h"

namespace mivo {
namespace {

constexpr std::size_t kPieceBytes = std::size_t{1} << 16;

bool NeedsEscape(char16_t c) {
  return c <= u' ' || c == u'%' || c == u',';
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
  bytes_.clear();
  failed_ = false;
  atLineStart_ = true;
}

FieldStatus SRecordWriter::Put(std::u16string_view characters) {
  if (sink_ != nullptr) {
    AppendUtf8(bytes_, characters);
    return bytes_.size() < kPieceBytes ? FieldStatus::Ok : Flush();
  }
  if (target_ == nullptr) return FieldStatus::End;
  target_->append(characters);
  return FieldStatus::Ok;
}

FieldStatus SRecordWriter::Flush() {
  if (sink_ == nullptr) return target_ != nullptr ? FieldStatus::Ok : FieldStatus::End;
  if (!failed_ && !bytes_.empty()) failed_ = !sink_->Write(bytes_);
  bytes_.clear();
  return failed_ ? FieldStatus::End : FieldStatus::Ok;
}

FieldStatus SRecordWriter::BeginField() {
  if (!atLineStart_) return Put(u",");
  atLineStart_ = false;
  return FieldStatus::Ok;
}

FieldStatus SRecordWriter::PutEscaped(std::u16string_view text) {
  text = UpToNul(text);
  std::size_t start = 0;
  for (std::size_t i = 0; i <= text.size(); ++i) {
    if (i < text.size() && !NeedsEscape(text[i])) continue;
    if (i > start && Put(text.substr(start, i - start)) != FieldStatus::Ok) return FieldStatus::End;
    if (i == text.size()) break;
    constexpr std::u16string_view kDigits = u"0123456789ABCDEF";
    const char16_t escape[3] = {u'%', kDigits[text[i] >> 4], kDigits[text[i] & 15]};
    if (Put({escape, 3}) != FieldStatus::Ok) return FieldStatus::End;
    start = i + 1;
  }
  return FieldStatus::Ok;
}

FieldStatus SRecordWriter::WriteField(std::u16string_view text) {
  return BeginField() == FieldStatus::Ok ? PutEscaped(text) : FieldStatus::End;
}

FieldStatus SRecordWriter::WriteText(std::u16string_view key, std::u16string_view value) {
  if (WriteField(key) != FieldStatus::Ok || Put(u":") != FieldStatus::Ok) return FieldStatus::End;
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
  return Put(u"\n");
}

}  // namespace mivo

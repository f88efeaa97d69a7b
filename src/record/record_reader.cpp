#include "record_reader.h"

#include <algorithm>
#include <limits>
#include <span>

#include "integer.h"
#include "keyed_field.h"
#include "number_text.h"
#include "text_encoding.h"

namespace mivo {
namespace {

constexpr std::size_t kPieceBytes = std::size_t{1} << 16;
constexpr std::size_t kStretchLength = std::size_t{1} << 20;
constexpr std::size_t kFindingTextLength = 80;

// What the records of the data may take, see Afford. Real ones need no more than half of it.
constexpr std::uint64_t kAffordedAnyway = std::uint64_t{40} << 20;
constexpr std::uint64_t kAffordedPerCharacter = 11;

bool EndsField(char16_t c) {
  return c == u',' || c == u'\n' || c == u'\r';
}

}  // namespace

void SRecordReader::AttachString(std::u16string_view text) {
  source_ = nullptr;
  rest_ = text;
  Start(text.data());
}

void SRecordReader::AttachFile(ByteSource& source, ByteDecoding decoding) {
  source_ = &source;
  decoding_ = decoding;
  byteCount_ = 0;
  if (!window_) {
    bytes_ = std::make_unique<char[]>(kPieceBytes);
    window_ = std::make_unique<char16_t[]>(kPieceBytes);
  }
  Start(window_.get());
}

void SRecordReader::Start(const char16_t* begin) {
  windowBegin_ = current_ = end_ = begin;
  attached_ = true;
  taken_ = afforded_ = 0;
  exhausted_ = false;
  line_ = fieldLine_ = 1;
  windowOffset_ = lineOffset_ = 0;
  fieldColumn_ = 1;
}

void SRecordReader::MoveWindow(const char16_t* begin, std::size_t length) {
  windowOffset_ += end_ - windowBegin_;
  windowBegin_ = current_ = begin;
  end_ = begin + length;
}

void SRecordReader::Took(std::size_t count) {
  taken_ += count;
  if (progress_ != nullptr) progress_->Advance(taken_, progressTotal_);
}

bool SRecordReader::NextStretch() {
  const std::size_t length = std::min(rest_.size(), kStretchLength);
  if (length == 0) return false;
  MoveWindow(rest_.data(), length);
  rest_.remove_prefix(length);
  Took(length);
  return true;
}

bool SRecordReader::Refill() {
  if (source_ == nullptr) return NextStretch();
  // The padding of an unterminated field asks for thousands of characters behind the end.
  if (exhausted_) return false;
  const std::size_t got = source_->Read(std::span(bytes_.get(), kPieceBytes).subspan(byteCount_));
  byteCount_ += got;
  Took(got);
  exhausted_ = got == 0;
  if (byteCount_ == 0) return false;

  const std::string_view bytes(bytes_.get(), byteCount_);
  DecodeProgress progress{byteCount_, byteCount_};
  if (decoding_ == ByteDecoding::Utf8) {
    progress = DecodeUtf8(bytes, std::span(window_.get(), kPieceBytes), exhausted_);
  } else {
    std::transform(bytes.begin(), bytes.end(), window_.get(),
                   [](char byte) { return static_cast<char16_t>(static_cast<signed char>(byte)); });
  }
  byteCount_ -= progress.bytesRead;
  std::copy_n(bytes_.get() + progress.bytesRead, byteCount_, bytes_.get());
  MoveWindow(window_.get(), progress.unitsWritten);
  // A few bytes of a cut-off character decode to nothing until the rest of it has been read.
  return progress.unitsWritten > 0 || Refill();
}

inline char16_t SRecordReader::GetCharacter() {
  if (current_ == end_ && !Refill()) return kEndCharacter;
  const char16_t c = *current_;
  if (c == u'\0') return kEndCharacter;  // and stays there: a NUL ends the data for good
  ++current_;
  return c;
}

void SRecordReader::CountLine() noexcept {
  line_ = WrapAdd(line_, 1);
  lineOffset_ = windowOffset_ + (current_ - windowBegin_);
}

FieldStatus SRecordReader::ReadField(std::u16string_view& field) {
  field = {};
  fieldInScratch_ = !attached_;
  if (!attached_) {
    scratch_.assign(kMaxFieldLength, u'\0');
    field = scratch_;
    return FieldStatus::Ok;
  }
  for (;;) {
    const char16_t c = GetCharacter();
    if (c == kEndCharacter) return FieldStatus::End;
    if (c == u'\n') {
      CountLine();
    } else if (c != u' ' && c != u'\t' && c != u'\r') {
      break;
    }
  }
  const char16_t* const start = --current_;
  fieldLine_ = line_;
  fieldColumn_ = windowOffset_ + (start - windowBegin_) - lineOffset_ + 1;

  // Most fields are a stretch of the characters at hand; only an escape, an over-long field and one
  // cut by the end of the window are collected character by character.
  const char16_t* const limit =
      start + std::min<std::ptrdiff_t>(end_ - start, static_cast<std::ptrdiff_t>(kMaxFieldLength));
  for (const char16_t* p = start; p < limit; ++p) {
    const char16_t c = *p;
    if (c > u',') continue;
    if (EndsField(c)) {
      field = {start, static_cast<std::size_t>(p - start)};
      current_ = p + 1;
      if (c == u'\n') CountLine();
      return FieldStatus::Ok;
    }
    if (c == u'%' || c == u'\0') break;
  }
  return CollectIntoScratch(field);
}

FieldStatus SRecordReader::CollectIntoScratch(std::u16string_view& field) {
  scratch_.clear();
  fieldInScratch_ = true;
  char16_t c = GetCharacter();
  while (!EndsField(c) && scratch_.size() < kMaxFieldLength) {
    if (c == u'%') {
      if (!AppendEscape()) {
        Report(FindingKind::MalformedEscape, scratch_);
        return FieldStatus::End;
      }
    } else {
      scratch_.push_back(c);
    }
    c = GetCharacter();
  }
  if (c == u'\n') CountLine();
  if (!EndsField(c) && c != kEndCharacter) Report(FindingKind::FieldSplit, scratch_);
  field = scratch_;
  return FieldStatus::Ok;
}

bool SRecordReader::AppendEscape() {
  bool complete = true;
  char16_t pair[2];
  for (char16_t& c : pair) {
    c = GetCharacter();
    if (c == u'\n') CountLine();
    if (EndsField(c)) complete = false;
  }
  if (complete) scratch_.push_back(static_cast<char16_t>(ParseHex({pair, 2})));
  return complete;
}

FieldStatus SRecordReader::SkipToField(std::u16string_view wanted) {
  std::u16string_view field;
  FieldStatus status;
  do {
    status = ReadField(field);
  } while (status == FieldStatus::Ok && field != wanted);
  return status;
}

FieldStatus SRecordReader::SkipRecord(std::u16string_view openingTag) {
  std::u16string closingTag(openingTag);
  closingTag.front() = u'-';
  return SkipToField(closingTag);
}

bool SRecordReader::SkipUnknownRecord(std::u16string_view openingTag, FindingKind unclosed) {
  Report(FindingKind::UnknownRecord, openingTag);
  if (SkipRecord(openingTag) == FieldStatus::Ok) return true;
  Report(unclosed, record_);
  return false;
}

void SRecordReader::Report(FindingKind kind, std::u16string_view text) {
  if (sink_ == nullptr) return;
  constexpr std::int64_t kLargest = std::numeric_limits<std::int32_t>::max();
  sink_->Report({kind, fieldLine_, static_cast<std::int32_t>(std::min(fieldColumn_, kLargest)),
                 std::u16string(record_), std::u16string(text.substr(0, kFindingTextLength))});
}

bool SRecordReader::Afford(std::size_t bytes) {
  afforded_ += bytes;
  if (afforded_ <= kAffordedAnyway + kAffordedPerCharacter * taken_) return true;
  Report(FindingKind::OutOfProportion, record_);
  return false;
}

std::u16string_view SRecordReader::TextValue(std::u16string_view value) {
  if (!fieldInScratch_) return value;  // a NUL outside of an escape ends the data
  const std::u16string_view text = UpToNul(value);
  if (text.size() < value.size()) Report(FindingKind::TextCutAtNul, text);
  return text;
}

}  // namespace mivo

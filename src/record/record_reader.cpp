#include "record_reader.h"

#include <algorithm>
#include <bit>
#include <limits>
#include <span>

#include "integer.h"
#include "keyed_field.h"
#include "number_text.h"
#include "text_encoding.h"

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace mivo {
namespace {

/// Bytes of a file, or characters of a text, that are taken at once.
constexpr std::size_t kPiece = std::size_t{1} << 16;
/// Characters that the search for the end of a field looks at together.
constexpr std::size_t kAtOnce = 8;
constexpr std::size_t kFindingTextLength = 80;

// What the records of the data may take, see Afford. Real ones need no more than half of it.
constexpr std::uint64_t kAffordedAnyway = std::uint64_t{40} << 20;
constexpr std::uint64_t kAffordedPerCharacter = 11;

bool EndsField(char16_t c) {
  return c == u',' || c == u'\n' || c == u'\r';
}

bool IsBlank(char16_t c) {
  return c <= u' ' && (c == u' ' || c == u'\n' || c == u'\r' || c == u'\t');
}

/// Whether `c`, which is at most ",", is more than itself: ends a field, opens an escape or, being
/// a NUL, ends the data at hand.
bool IsSpecial(char16_t c) {
  constexpr std::uint64_t kSpecial = 1 | std::uint64_t{1} << u'\n' | std::uint64_t{1} << u'\r' |
                                     std::uint64_t{1} << u'%' | std::uint64_t{1} << u',';
  return (kSpecial >> c & 1) != 0;
}

/// The first character from `from` on that is at most ","; there is one. May look at kAtOnce - 1
/// characters behind it.
const char16_t* NextLow(const char16_t* from) {
#ifdef __SSE2__
  // Half of the time of a load goes into this search, and one at a time takes twice as long.
  for (;; from += kAtOnce) {
    const __m128i eight = _mm_loadu_si128(reinterpret_cast<const __m128i*>(from));
    const __m128i excess = _mm_subs_epu16(eight, _mm_set1_epi16(u','));
    const int low = _mm_movemask_epi8(_mm_cmpeq_epi16(excess, _mm_setzero_si128()));
    if (low != 0) return from + (std::countr_zero(static_cast<unsigned>(low)) >> 1);
  }
#else
  while (*from > u',') ++from;
  return from;
#endif
}

/// The first special character from `from` on; there is one.
const char16_t* NextSpecial(const char16_t* from) {
  for (;; ++from) {
    from = NextLow(from);
    if (IsSpecial(*from)) return from;
  }
}

}  // namespace

void SRecordReader::AttachString(std::u16string_view text) {
  source_ = nullptr;
  text_ = text;
  Start();
}

void SRecordReader::AttachFile(ByteSource& source, ByteDecoding decoding) {
  source_ = &source;
  decoding_ = decoding;
  byteCount_ = 0;
  if (!bytes_) bytes_ = std::make_unique_for_overwrite<char[]>(kPiece);
  Start();
}

void SRecordReader::Start() {
  if (!window_) window_ = std::make_unique<char16_t[]>(kPiece + kAtOnce);
  current_ = end_ = window_.get();
  window_[0] = u'\0';
  taken_ = afforded_ = 0;
  exhausted_ = false;
  line_ = fieldLine_ = 1;
  lineAt_ = 0;
  fieldColumn_ = 0;
}

void SRecordReader::Took(std::size_t count) {
  taken_ += count;
  if (progress_ != nullptr) progress_->Advance(taken_, progressTotal_);
}

bool SRecordReader::Refill() {
  // The padding of an unterminated field asks for thousands of characters behind the end.
  if (!window_ || exhausted_) return false;
  lineAt_ -= end_ - window_.get();
  std::size_t length = 0;
  while (length == 0 && !exhausted_) length = source_ != nullptr ? DecodePiece() : CopyPiece();
  current_ = window_.get();
  end_ = current_ + length;
  window_[length] = u'\0';
  return length > 0;
}

std::size_t SRecordReader::CopyPiece() {
  const std::size_t length = text_.copy(window_.get(), kPiece);
  text_.remove_prefix(length);
  exhausted_ = length == 0;
  if (length > 0) Took(length);
  return length;
}

std::size_t SRecordReader::DecodePiece() {
  const std::size_t got = source_->Read(std::span(bytes_.get(), kPiece).subspan(byteCount_));
  byteCount_ += got;
  Took(got);
  exhausted_ = got == 0;

  const std::string_view bytes(bytes_.get(), byteCount_);
  DecodeProgress progress{byteCount_, byteCount_};
  if (decoding_ == ByteDecoding::Utf8) {
    progress = DecodeUtf8(bytes, std::span(window_.get(), kPiece), exhausted_);
  } else {
    std::transform(bytes.begin(), bytes.end(), window_.get(),
                   [](char byte) { return static_cast<char16_t>(static_cast<signed char>(byte)); });
  }
  byteCount_ -= progress.bytesRead;
  std::copy_n(bytes_.get() + progress.bytesRead, byteCount_, bytes_.get());
  return progress.unitsWritten;
}

inline char16_t SRecordReader::GetCharacter() {
  while (*current_ == u'\0') {
    // Behind the window, or in the data: a NUL ends them for good.
    if (current_ != end_ || !Refill()) return kEndCharacter;
  }
  return *current_++;
}

inline void SRecordReader::CountLine() noexcept {
  line_ = WrapAdd(line_, 1);
  lineAt_ = current_ - window_.get();
}

inline bool SRecordReader::SkipBlanks() {
  for (;;) {
    const char16_t c = GetCharacter();
    if (c == kEndCharacter) return false;
    if (!IsBlank(c)) {
      --current_;
      return true;
    }
    if (c == u'\n') CountLine();
  }
}

// Nearly every field begins where the one before it has ended and is a stretch of the window. What
// else there is happens in calls at the very end, so that this way has no registers to save.
FieldStatus SRecordReader::ReadField(std::u16string_view& field) {
  const char16_t c = *current_;
  return c > u' ' && c != kEndCharacter ? ReadFieldHere(field) : ReadFieldBehindBlanks(field);
}

FieldStatus SRecordReader::ReadFieldBehindBlanks(std::u16string_view& field) {
  if (SkipBlanks()) return ReadFieldHere(field);
  field = {};
  return window_ ? FieldStatus::End : ReadNothing(field);
}

inline FieldStatus SRecordReader::ReadFieldHere(std::u16string_view& field) {
  const char16_t* const start = current_;
  fieldLine_ = line_;
  fieldColumn_ = start - window_.get() - lineAt_;

  // An escape, an over-long field and one cut by the end of the window are put together elsewhere.
  const char16_t* const end = NextSpecial(start);
  const char16_t c = *end;
  const auto length = static_cast<std::size_t>(end - start);
  if (c == u'%' || c == u'\0' || length > kMaxFieldLength) return CollectIntoScratch(field);
  field = {start, length};
  fieldInScratch_ = false;
  current_ = end + 1;
  if (c == u'\n') CountLine();
  return FieldStatus::Ok;
}

FieldStatus SRecordReader::ReadNothing(std::u16string_view& field) {
  scratch_.assign(kMaxFieldLength, u'\0');
  fieldInScratch_ = true;
  field = scratch_;
  return FieldStatus::Ok;
}

FieldStatus SRecordReader::CollectIntoScratch(std::u16string_view& field) {
  scratch_.clear();
  fieldInScratch_ = true;
  field = {};
  char16_t c;
  for (;;) {
    const auto run = static_cast<std::size_t>(NextSpecial(current_) - current_);
    const std::size_t taken = std::min(run, kMaxFieldLength - scratch_.size());
    scratch_.append(current_, taken);
    current_ += taken;
    c = GetCharacter();
    if (EndsField(c) || scratch_.size() == kMaxFieldLength) break;
    if (c != u'%') {
      scratch_.push_back(c);
    } else if (!AppendEscape()) {
      Report(FindingKind::MalformedEscape, scratch_);
      return FieldStatus::End;
    }
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
  sink_->Report({kind, fieldLine_, static_cast<std::int32_t>(std::min(fieldColumn_ + 1, kLargest)),
                 std::u16string(record_), std::u16string(text.substr(0, kFindingTextLength))});
}

bool SRecordReader::Afford(std::size_t bytes) {
  afforded_ += bytes;
  // A text is in the memory as well.
  const std::uint64_t taken = afforded_ + (source_ == nullptr ? sizeof(char16_t) * taken_ : 0);
  if (taken <= kAffordedAnyway + kAffordedPerCharacter * taken_) return true;
  Report(FindingKind::OutOfProportion, record_);
  return false;
}

std::u16string_view SRecordReader::CutAtNul(std::u16string_view value) {
  const std::u16string_view text = UpToNul(value);
  if (text.size() < value.size()) Report(FindingKind::TextCutAtNul, text);
  return text;
}

}  // namespace mivo

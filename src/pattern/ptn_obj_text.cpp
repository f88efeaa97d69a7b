#include "ptn_obj_text.h"

#include <algorithm>

#include "number_text.h"
#include "ptn_obj_record.h"

namespace mivo {
namespace {

/// Estimated width of a character and height of the text, until it is drawn for the first time.
constexpr std::int32_t kEstimate = 8;

/// The other end along the text; a centred text stays centred.
constexpr std::int32_t FlippedAlong(std::int32_t align) {
  return (align & SPtnObjText::kCenter) != 0 ? align : align ^ SPtnObjText::kRight;
}

/// The other side across the text; a centred text stays centred.
constexpr std::int32_t FlippedAcross(std::int32_t align) {
  return (align & SPtnObjText::kMiddle) != 0 ? align : align ^ SPtnObjText::kUpper;
}

/// How far the bottom of a text of height `h` lies beyond its anchor. The renderer of the common
/// font places it lower than fonts of the text's own.
std::int32_t BottomOffset(std::int32_t align, std::int32_t h, bool commonFont) {
  switch (align & SPtnObjText::kAcrossMask) {
    case SPtnObjText::kUpper:
      return h;
    case SPtnObjText::kMiddle:
      return commonFont ? WrapScale(h, 5, 8) : h / 2;
    default:
      return commonFont ? h / 4 : 0;
  }
}

/// The text up to a NUL, which an escape has put there.
std::u16string_view TextValue(PtnObjRecord& record, std::u16string_view value) {
  const std::u16string_view text = UpToNul(value);
  if (text.size() < value.size()) record.Report(FindingKind::TextCutAtNul);
  return text;
}

}  // namespace

std::unique_ptr<SPtnObj> SPtnObjText::Clone() const {
  return std::make_unique<SPtnObjText>(*this);
}

void SPtnObjText::Move(std::int32_t dx, std::int32_t dy) {
  position_ += {dx, dy};
}

SPoint SPtnObjText::GetNode(std::int32_t /*index*/) const {
  return position_;
}

void SPtnObjText::SetNode(std::int32_t /*index*/, std::int32_t x, std::int32_t y) {
  position_ = {x, y};
}

void SPtnObjText::Mirror() {
  MirrorAt(GetBoundingRect().Center().x);
}

void SPtnObjText::MirrorAt(std::int32_t x) {
  position_ = MirroredAt(position_, x);
  align_ = horizontal_ ? FlippedAlong(align_) : FlippedAcross(align_);
}

void SPtnObjText::Rotate() {
  RotateAt(GetBoundingRect().Center());
}

void SPtnObjText::RotateAt(SPoint pivot) {
  position_ = RotatedAt(position_, pivot);
  // Vertical text reads upward, never downward: it is the same text turned the other way.
  if (horizontal_) align_ = FlippedAcross(FlippedAlong(align_));
  horizontal_ = !horizontal_;
}

bool SPtnObjText::HitTest(SPoint point) {
  return GetBoundingRect().Contains(point);
}

bool SPtnObjText::IsInRect(const SRect& rect) {
  return rect.Contains(GetBoundingRect());
}

SRect SPtnObjText::GetBoundingRect() {
  const auto length = static_cast<std::int32_t>(text_.size());
  const SPoint size = extentValid_ ? extent_ : SPoint{WrapMul(kEstimate, length), kEstimate};
  const std::int32_t w = size.x;
  const std::int32_t h = size.y;
  const std::int32_t offset = BottomOffset(align_, h, fontName_.empty());
  const std::int32_t along = align_ & kAlongMask;
  SRect bounds;
  if (horizontal_) {
    bounds.left = along == kRight    ? WrapSub(position_.x, w)
                  : along == kCenter ? WrapSub(position_.x, w / 2)
                                     : position_.x;
    bounds.right = WrapAdd(bounds.left, w);
    bounds.bottom = WrapAdd(position_.y, offset);
    bounds.top = WrapSub(bounds.bottom, h);
  } else {
    bounds.right = WrapAdd(position_.x, offset);
    bounds.left = WrapSub(bounds.right, h);
    bounds.bottom = along == kRight    ? WrapAdd(position_.y, w)
                    : along == kCenter ? WrapAdd(position_.y, w / 2)
                                       : position_.y;
    bounds.top = WrapSub(bounds.bottom, w);
  }
  // At the ends of the coordinate range an edge may have wrapped to the other side.
  return SRect::Spanning(bounds.TopLeft(), bounds.BottomRight());
}

bool SPtnObjText::Read(SRecordReader& reader) {
  PtnObjRecord record(reader, u"+TX");
  bool hasX = false;
  bool hasY = false;
  bool hasText = false;
  while (const auto field = record.Next(EmptyValue::Allowed)) {
    if (field->value.empty()) {
      // The writer writes these two even when there is nothing in them.
      const bool asWritten = field->key == u"FN" || field->key == u"FF";
      if (!asWritten) record.Report(FindingKind::FieldWithoutValue);
      continue;
    }
    const std::int32_t value = ParseInt(field->value);
    if (field->key == u"X") {
      position_.x = value;
      hasX = true;
    } else if (field->key == u"Y") {
      position_.y = value;
      hasY = true;
    } else if (field->key == u"D") {
      horizontal_ = value != 0;
    } else if (field->key == u"A") {
      align_ = value;
    } else if (field->key == u"S") {
      // A text that a NUL cuts to nothing is no text, like an empty value.
      const std::u16string_view text = TextValue(record, field->value);
      if (text.empty()) continue;
      SetText(text);
      hasText = true;
    } else if (field->key == u"FN") {
      SetFontName(TextValue(record, field->value));
    } else if (field->key == u"FS") {
      SetFontSize(value);
    } else if (field->key == u"FF") {
      for (const char16_t c : field->value) {
        if (c == u'B') SetBold(true);
        if (c == u'I') SetItalic(true);
        if (c == u'U') underline_ = true;
        if (c == u'S') strikeout_ = true;
      }
    } else {
      record.Report(FindingKind::UnknownKey);
    }
  }
  if (record.End() != RecordEnd::Closed) return false;
  if (hasX && hasY && hasText) return true;
  reader.Report(FindingKind::ObjectIncomplete, u"+TX");
  return false;
}

bool SPtnObjText::Write(SRecordWriter& writer, SPoint origin) const {
  std::u16string flags = u"FF:";
  if (bold_) flags += u'B';
  if (italic_) flags += u'I';
  if (underline_) flags += u'U';
  if (strikeout_) flags += u'S';

  writer.WriteField(u"+TX");
  WritePoint(writer, position_ - origin);
  writer.WriteInt(u"A", align_);
  writer.WriteInt(u"D", horizontal_ ? 1 : 0);
  writer.WriteText(u"S", text_);
  writer.WriteText(u"FN", fontName_);
  writer.WriteInt(u"FS", fontSize_);
  writer.WriteField(flags);
  CloseRecord(writer, u"-TX");
  return true;
}

void SPtnObjText::SetText(std::u16string_view text) {
  text_ = text;
  extentValid_ = false;
}

void SPtnObjText::SetFontName(std::u16string_view name) {
  fontName_ = name;
  extentValid_ = false;
}

void SPtnObjText::SetFontSize(std::int32_t size) {
  fontSize_ = std::clamp(size, kMinFontSize, kMaxFontSize);
  extentValid_ = false;
}

void SPtnObjText::SetBold(bool on) {
  bold_ = on;
  extentValid_ = false;
}

void SPtnObjText::SetItalic(bool on) {
  italic_ = on;
  extentValid_ = false;
}

void SPtnObjText::SetExtent(std::int32_t drawnWidth, std::int32_t drawnHeight) {
  extent_ = {drawnWidth, drawnHeight};
  extentValid_ = true;
}

}  // namespace mivo

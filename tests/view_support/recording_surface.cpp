#include "recording_surface.h"

#include <array>
#include <iomanip>
#include <ostream>
#include <span>

#include "integer.h"
#include "text_encoding.h"

namespace mivo {
namespace {

std::ostream& operator<<(std::ostream& out, PixelPoint p) {
  return out << p.x << ',' << p.y;
}

std::ostream& operator<<(std::ostream& out, PixelSize size) {
  return out << size.width << 'x' << size.height;
}

std::ostream& operator<<(std::ostream& out, std::span<const PixelPoint> points) {
  for (std::size_t i = 0; i < points.size(); ++i) out << (i > 0 ? " " : "") << points[i];
  return out;
}

std::ostream& operator<<(std::ostream& out, const PixelRect& box) {
  return out << box.left << ',' << box.top << ' ' << box.Width() << 'x' << box.Height();
}

std::ostream& operator<<(std::ostream& out, Color color) {
  const auto rgb = static_cast<std::uint32_t>(color.red) << 16 |
                   static_cast<std::uint32_t>(color.green) << 8 | color.blue;
  return out << '#' << std::hex << std::setfill('0') << std::setw(6) << rgb << std::dec;
}

std::ostream& operator<<(std::ostream& out, const Pen& pen) {
  constexpr std::array<const char*, 3> kStyles = {"solid", "dotted", "dashed"};
  return out << "pen=" << kStyles[static_cast<std::size_t>(pen.style)] << ':' << pen.width
             << pen.color;
}

std::ostream& operator<<(std::ostream& out, const Brush& brush) {
  if (!brush.color) return out << "brush=hollow";
  return out << "brush=" << *brush.color;
}

std::ostream& operator<<(std::ostream& out, const Font& font) {
  return out << "font=" << Utf16ToUtf8(font.face) << ':' << font.height << ':' << font.weight
             << (font.italic ? ":italic" : "") << (font.vertical ? ":vertical" : "");
}

// Evenly spaced columns as "first..last/step".
std::ostream& operator<<(std::ostream& out, std::span<const std::int32_t> columns) {
  const auto step = [&](std::size_t i) { return columns[i] - columns[i - 1]; };
  bool isEven = columns.size() > 2;
  for (std::size_t i = 2; i < columns.size(); ++i) isEven = isEven && step(i) == step(1);
  if (isEven) return out << columns.front() << ".." << columns.back() << '/' << step(1);
  for (std::size_t i = 0; i < columns.size(); ++i) out << (i > 0 ? "," : "") << columns[i];
  return out;
}

std::ostream& operator<<(std::ostream& out, const BitImageView& bits) {
  for (std::int32_t y = 0; y < bits.height; ++y) {
    if (y > 0) out << '/';
    for (std::int32_t x = 0; x < bits.width; ++x) out << (bits.At(x, y) ? '#' : '.');
  }
  return out;
}

}  // namespace

TextExtent BlockTextExtent(std::u16string_view text, const Font& font) {
  return {static_cast<std::int32_t>(text.size()) * font.height * 3 / 5,
          font.height + font.height / 5, font.height};
}

std::string RecordingSurface::TakeRecord() {
  std::string record = record_.str();
  record_.str({});
  return record;
}

void RecordingSurface::SetOrigin(PixelPoint origin) {
  origin_ = origin;
  record_ << "origin " << origin << '\n';
}

PixelRect RecordingSurface::Bounds() const {
  return {origin_.x, origin_.y, WrapAdd(origin_.x, size_.width), WrapAdd(origin_.y, size_.height)};
}

void RecordingSurface::FillRect(const PixelRect& box, Color color) {
  record_ << "fill " << box << ' ' << color << '\n';
}

void RecordingSurface::Polyline(std::span<const PixelPoint> points, const Pen& pen) {
  record_ << "line " << points << ' ' << pen << '\n';
}

void RecordingSurface::Bezier(const std::array<PixelPoint, 4>& control, const Pen& pen) {
  record_ << "bezier " << std::span<const PixelPoint>(control) << ' ' << pen << '\n';
}

void RecordingSurface::Rectangle(const PixelRect& box, const Pen& pen, const Brush& brush) {
  record_ << "rectangle " << box << ' ' << pen << ' ' << brush << '\n';
}

void RecordingSurface::Ellipse(const PixelRect& box, const Pen& pen, const Brush& brush) {
  record_ << "ellipse " << box << ' ' << pen << ' ' << brush << '\n';
}

void RecordingSurface::Arc(const PixelRect& box, PixelPoint from, PixelPoint to, const Pen& pen) {
  record_ << "arc " << box << " from=" << from << " to=" << to << ' ' << pen << '\n';
}

void RecordingSurface::Polygon(std::span<const PixelPoint> points, const Pen& pen,
                               const Brush& brush) {
  record_ << "polygon " << points << ' ' << pen << ' ' << brush << '\n';
}

void RecordingSurface::Pixels(std::int32_t y, std::span<const std::int32_t> columns, Color color) {
  record_ << "pixels y=" << y << " x=" << columns << ' ' << color << '\n';
}

void RecordingSurface::FocusRect(const PixelRect& box) {
  record_ << "focus " << box << '\n';
}

void RecordingSurface::Bits(const PixelRect& box, const BitImageView& bits, Color color) {
  record_ << "bits " << box << ' ' << bits << ' ' << color << '\n';
}

void RecordingSurface::Image(const RasterImage& image, PixelPoint at) {
  record_ << "image " << at << ' ' << image.Size() << '\n';
}

TextExtent RecordingSurface::MeasureText(std::u16string_view text, const Font& font) {
  return BlockTextExtent(text, font);
}

void RecordingSurface::Text(PixelPoint at, std::u16string_view text, const Font& font,
                            Color color) {
  record_ << "text " << at << " \"" << Utf16ToUtf8(text) << "\" " << font << ' ' << color << '\n';
}

}  // namespace mivo

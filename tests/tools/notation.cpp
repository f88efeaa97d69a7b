#include "notation.h"

#include <charconv>
#include <stdexcept>

#include "ptn_obj_arc.h"
#include "ptn_obj_circle.h"
#include "ptn_obj_line.h"
#include "ptn_obj_polygon.h"
#include "ptn_obj_text.h"
#include "text_encoding.h"

namespace mivo {
namespace {

constexpr std::string_view kSides = "LTRB";

std::string PointText(SPoint p) {
  return Concat({std::to_string(p.x), ",", std::to_string(p.y)});
}

std::string Quoted(std::u16string_view text) {
  return Concat({"\"", Utf16ToUtf8(text), "\""});
}

std::string NodesText(const SPtnObj& object, std::int32_t count) {
  std::string text;
  for (std::int32_t i = 0; i < count; ++i) text += Concat({" ", PointText(object.GetNode(i))});
  return text;
}

std::string StrokeText(const SPtnObj& object) {
  std::string text;
  if (object.width != 1) text += Concat({" w", std::to_string(object.width)});
  if (object.style != SPtnObj::kSolid) text += Concat({" s", std::to_string(object.style)});
  if (object.fill != SPtnObj::kNotFilled) text += Concat({" f", std::to_string(object.fill)});
  return text;
}

std::string DescribeText(const SPtnObjText& text) {
  std::string result = Concat({"text ", PointText(text.Position()), " ", Quoted(text.Text())});
  if (text.FontSize() != 10) result += Concat({" size ", std::to_string(text.FontSize())});
  if (!text.FontName().empty()) result += Concat({" face ", Quoted(text.FontName())});
  if (text.IsBold()) result += " bold";
  if (text.IsItalic()) result += " italic";
  if (text.Align() != 0) result += Concat({" align ", std::to_string(text.Align())});
  if (!text.IsHorizontal()) result += " vertical";
  return result;
}

/// Reads a list of words from front to back.
class WordReader {
 public:
  explicit WordReader(std::string_view text) : words_(Words(text)) {}

  [[nodiscard]] bool AtEnd() const { return next_ == words_.size(); }
  [[nodiscard]] const std::string& Peek() const {
    if (AtEnd()) throw std::invalid_argument("a word is missing");
    return words_[next_];
  }
  const std::string& Take() {
    const std::string& word = Peek();
    ++next_;
    return word;
  }
  bool TakeIf(std::string_view word) {
    if (AtEnd() || words_[next_] != word) return false;
    ++next_;
    return true;
  }

 private:
  std::vector<std::string> words_;
  std::size_t next_ = 0;
};

bool LooksLikePoint(const std::string& word) {
  return word.find(',') != std::string::npos;
}

std::unique_ptr<SPtnObj> ParseLine(WordReader& words) {
  auto line = std::make_unique<SPtnObjLine>();
  line->SetStart(ParsePoint(words.Take()));
  line->SetEnd(ParsePoint(words.Take()));
  return line;
}

std::unique_ptr<SPtnObj> ParseEllipse(WordReader& words) {
  const SPoint corner1 = ParsePoint(words.Take());
  return std::make_unique<SPtnObjCircle>(corner1, ParsePoint(words.Take()));
}

std::unique_ptr<SPtnObj> ParsePolygon(WordReader& words) {
  std::vector<SPoint> points;
  while (!words.AtEnd() && LooksLikePoint(words.Peek())) points.push_back(ParsePoint(words.Take()));
  return std::make_unique<SPtnObjPolygon>(std::move(points));
}

std::unique_ptr<SPtnObj> ParseArc(WordReader& words) {
  const SPoint center = ParsePoint(words.Take());
  const std::int32_t radius = ParseNumber(words.Take().substr(1));
  // Angles can be set only from points, or by a record.
  const std::vector<std::string> angles = SplitAt(words.Take(), '-');
  const std::string record =
      Concat({"X:", std::to_string(center.x), ",Y:", std::to_string(center.y),
              ",R:", std::to_string(radius), ",B:", angles.at(0), ",E:", angles.at(1), ",-AR\n"});
  const std::u16string text = Utf8ToUtf16(record);
  SRecordReader reader;
  reader.AttachString(text);
  auto arc = std::make_unique<SPtnObjArc>();
  if (!arc->Read(reader)) throw std::invalid_argument("not an arc: " + record);
  return arc;
}

std::unique_ptr<SPtnObj> ParseText(WordReader& words) {
  auto text = std::make_unique<SPtnObjText>();
  text->SetPosition(ParsePoint(words.Take()));
  text->SetText(Utf8ToUtf16(words.Take()));
  if (words.TakeIf("size")) text->SetFontSize(ParseNumber(words.Take()));
  if (words.TakeIf("face")) text->SetFontName(Utf8ToUtf16(words.Take()));
  if (words.TakeIf("bold")) text->SetBold(true);
  if (words.TakeIf("italic")) text->SetItalic(true);
  if (words.TakeIf("align")) text->SetAlign(ParseNumber(words.Take()));
  if (words.TakeIf("vertical")) text->SetHorizontal(false);
  return text;
}

void ParseStroke(WordReader& words, SPtnObj& object) {
  while (!words.AtEnd() && words.Peek() != "curve") {
    const std::string& word = words.Take();
    const std::int32_t value = ParseNumber(std::string_view(word).substr(1));
    switch (word[0]) {
      case 'w':
        object.width = value;
        break;
      case 's':
        object.style = value;
        break;
      case 'f':
        object.fill = value;
        break;
      default:
        throw std::invalid_argument("unknown word: " + word);
    }
  }
  if (!words.TakeIf("curve")) return;
  auto& line = dynamic_cast<SPtnObjLine&>(object);
  line.SetCurve(true);
  for (const std::int32_t node : {2, 3}) {
    const SPoint p = ParsePoint(words.Take());
    line.SetNode(node, p.x, p.y);
  }
}

SCompPin ParsePin(WordReader& words, std::int32_t blockCount) {
  SCompPin pin(blockCount);
  pin.location = ParsePlace(words.Take());
  pin.SetNameFromDisplayText(Utf8ToUtf16(words.Take()));
  std::int32_t block = 0;
  for (const std::string& number : SplitAt(words.Take(), ',')) {
    if (number != "-") pin.SetNumber(block, Utf8ToUtf16(number));
    ++block;
  }
  if (words.TakeIf("type")) pin.type = ParseNumber(words.Take());
  if (words.TakeIf("mask")) pin.nameMask = static_cast<std::uint32_t>(ParseNumber(words.Take()));
  return pin;
}

std::unique_ptr<SPtnObj> ParseObject(const std::string& kind, WordReader& words) {
  if (kind == "line") return ParseLine(words);
  if (kind == "ellipse") return ParseEllipse(words);
  if (kind == "polygon") return ParsePolygon(words);
  if (kind == "arc") return ParseArc(words);
  if (kind == "text") return ParseText(words);
  throw std::invalid_argument("unknown element: " + kind);
}

template <typename Predicate>
std::string Join(std::span<const SCompEditElm> elements, Predicate wanted) {
  std::string text;
  for (const SCompEditElm& element : elements) {
    if (!wanted(element)) continue;
    if (!text.empty()) text += "; ";
    text += Describe(element);
  }
  return text.empty() ? "none" : text;
}

}  // namespace

std::string Describe(const SCompPin& pin) {
  const auto side = static_cast<std::size_t>(pin.location.side);
  std::string text = Concat({"pin ", kSides.substr(side, 1), std::to_string(pin.location.offset)});
  const std::u16string name = pin.DisplayName();
  text += ' ';
  text += name.empty() || name.find(u' ') != name.npos ? Quoted(name) : Utf16ToUtf8(name);
  for (std::int32_t block = 0; block < pin.NumberCount(); ++block) {
    const auto number = pin.GetNumber(block);
    text += block == 0 ? ' ' : ',';
    text += number ? Utf16ToUtf8(*number) : "-";
  }
  if (pin.type != 0) text += Concat({" type ", std::to_string(pin.type)});
  if (pin.nameMask != SCompPin::kWholeNameShown)
    text += Concat({" mask ", std::to_string(pin.nameMask)});
  return text;
}

std::string Describe(const SPtnObj& object) {
  switch (object.GetType()) {
    case PtnObjType::None:
      break;
    case PtnObjType::Line: {
      const auto& line = dynamic_cast<const SPtnObjLine&>(object);
      std::string text = Concat({"line", NodesText(line, 2), StrokeText(line)});
      if (line.IsCurve()) {
        text += Concat({" curve ", PointText(line.GetNode(2)), " ", PointText(line.GetNode(3))});
      }
      return text;
    }
    case PtnObjType::Circle:
      return Concat({"ellipse", NodesText(object, 2), StrokeText(object)});
    case PtnObjType::Polygon:
      return Concat({"polygon", NodesText(object, object.GetNodeCount()), StrokeText(object)});
    case PtnObjType::Arc: {
      const auto& arc = dynamic_cast<const SPtnObjArc&>(object);
      return Concat({"arc ", PointText(arc.Center()), " r", std::to_string(arc.Radius()), " ",
                     std::to_string(arc.Begin()), "-", std::to_string(arc.End()), StrokeText(arc)});
    }
    case PtnObjType::Text:
      return DescribeText(dynamic_cast<const SPtnObjText&>(object));
  }
  return "unknown object";
}

std::string Describe(const SCompEditElm& element) {
  return element.Pin() != nullptr ? Describe(*element.Pin()) : Describe(*element.Object());
}

std::string DescribeDocument(const SCompEditDoc& document) {
  return Join(document.Elements(), [](const SCompEditElm& e) { return e.IsAlive(); });
}

std::string DescribeSelection(const SCompEditDoc& document) {
  return Join(document.Selection(), [](const SCompEditElm&) { return true; });
}

std::string DescribeComponent(const SComponent& component) {
  SCompEditDoc document;
  document.Load(&component);
  return DescribeDocument(document);
}

void AddElements(SComponent& component, std::string_view elements) {
  std::vector<SCompPin> pins = component.Pins();
  for (const std::string& element : SplitAt(elements, ';')) {
    WordReader words(element);
    const std::string kind = words.Take();
    if (kind == "pin") {
      pins.push_back(ParsePin(words, component.BlockCount()));
      continue;
    }
    std::unique_ptr<SPtnObj> object = ParseObject(kind, words);
    ParseStroke(words, *object);
    SPtn* const pattern = component.MutablePattern();
    if (pattern == nullptr) throw std::invalid_argument("no pattern for: " + element);
    pattern->objects.push_back(std::move(object));
  }
  component.SetPins(std::move(pins));
}

std::string Concat(std::initializer_list<std::string_view> parts) {
  std::string text;
  for (const std::string_view part : parts) text += part;
  return text;
}

std::vector<std::string> Words(std::string_view text) {
  std::vector<std::string> words;
  std::size_t at = 0;
  while ((at = text.find_first_not_of(' ', at)) != text.npos) {
    const bool quoted = text[at] == '"';
    const std::size_t first = quoted ? at + 1 : at;
    const std::size_t end = std::min(text.find(quoted ? '"' : ' ', first), text.size());
    words.emplace_back(text.substr(first, end - first));
    at = quoted ? end + 1 : end;
    if (at >= text.size()) break;
  }
  return words;
}

std::vector<std::string> SplitAt(std::string_view text, char separator) {
  std::vector<std::string> parts;
  std::size_t first = 0;
  for (std::size_t end; (end = text.find(separator, first)) != text.npos; first = end + 1) {
    parts.emplace_back(text.substr(first, end - first));
  }
  parts.emplace_back(text.substr(first));
  return parts;
}

SPoint ParsePoint(std::string_view text) {
  const std::size_t comma = text.find(',');
  if (comma == text.npos) throw std::invalid_argument("not a point: " + std::string(text));
  return {ParseNumber(text.substr(0, comma)), ParseNumber(text.substr(comma + 1))};
}

std::int32_t ParseNumber(std::string_view text) {
  std::int32_t value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size()) {
    throw std::invalid_argument("not a number: " + std::string(text));
  }
  return value;
}

SPinLocation ParsePlace(std::string_view text) {
  const std::size_t side = text.empty() ? kSides.npos : kSides.find(text[0]);
  if (side == kSides.npos) throw std::invalid_argument("not a place: " + std::string(text));
  return {static_cast<PinSide>(side), ParseNumber(text.substr(1))};
}

}  // namespace mivo

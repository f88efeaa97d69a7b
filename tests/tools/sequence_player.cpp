#include "sequence_player.h"

#include <map>
#include <stdexcept>

#include "notation.h"
#include "recording_surface.h"
#include "text_encoding.h"

namespace mivo {
namespace {

template <typename Value>
using Names = std::map<std::string, Value, std::less<>>;

const Names<Command> kCommands = {
    {"undo", Command::Undo},
    {"cut", Command::Cut},
    {"copy", Command::Copy},
    {"paste", Command::Paste},
    {"delete", Command::Delete},
    {"mirror", Command::Mirror},
    {"rotate", Command::Rotate},
    {"property", Command::Property},
    {"next-name", Command::NextPinName},
    {"next-number", Command::NextPinNumber},
    {"zoom-in", Command::ZoomIn},
    {"zoom-out", Command::ZoomOut},
    {"pin-grid", Command::PinProperty},
    {"swap", Command::SwapPinNameAndNumber},
    {"selector", Command::Selector},
    {"pin", Command::PinTool},
    {"line", Command::LineTool},
    {"ellipse", Command::CircleTool},
    {"polygon", Command::PolygonTool},
    {"arc", Command::ArcTool},
    {"text", Command::TextTool},
    {"node-mode", Command::EditNodeMode},
    {"bit-pattern", Command::CreateBitPattern},
    {"add-node", Command::AddNode},
};

const Names<ViewKey> kKeys = {
    {"escape", ViewKey::Escape},
    {"delete", ViewKey::Delete},
    {"page-up", ViewKey::PageUp},
    {"page-down", ViewKey::PageDown},
    {"left", ViewKey::Left},
    {"up", ViewKey::Up},
    {"right", ViewKey::Right},
    {"down", ViewKey::Down},
    {"tab", ViewKey::Tab},
    {"back-tab", ViewKey::BackTab},
    {"enter", ViewKey::Enter},
    {"menu", ViewKey::Menu},
    {"S", ViewKey::S},
    {"P", ViewKey::P},
    {"L", ViewKey::L},
    {"C", ViewKey::C},
    {"G", ViewKey::G},
    {"A", ViewKey::A},
    {"T", ViewKey::T},
    {"N", ViewKey::N},
};

template <typename Value>
Value Named(const Names<Value>& names, const std::string& name) {
  const auto found = names.find(name);
  if (found == names.end()) throw std::invalid_argument("unknown name: " + name);
  return found->second;
}

bool Has(const std::vector<std::string>& words, std::string_view word) {
  return std::find(words.begin(), words.end(), word) != words.end();
}

/// What stands behind "key=" in one of the words.
std::optional<std::string> ValueOf(const std::vector<std::string>& words, std::string_view key) {
  for (const std::string& word : words) {
    if (word.size() > key.size() && word.starts_with(key) && word[key.size()] == '=') {
      return word.substr(key.size() + 1);
    }
  }
  return {};
}

std::int32_t NumberOf(const std::vector<std::string>& words, std::string_view key,
                      std::int32_t otherwise) {
  const std::optional<std::string> value = ValueOf(words, key);
  return value ? ParseNumber(*value) : otherwise;
}

std::string YesNo(bool value) {
  return value ? "yes" : "no";
}

/// Line feeds and NULs can be written as \n and \0.
std::u16string Unescaped(std::string_view text) {
  std::string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool escape = text[i] == '\\' && i + 1 < text.size();
    if (!escape) {
      result += text[i];
      continue;
    }
    ++i;
    result += text[i] == 'n' ? '\n' : text[i] == '0' ? '\0' : text[i];
  }
  return Utf8ToUtf16(result);
}

std::string Escaped(std::u16string_view text) {
  std::string result;
  for (const char c : Utf16ToUtf8(text))
    result += c == '\n' ? std::string("\\n") : std::string(1, c);
  return result;
}

std::string Text(const PinValues& v) {
  std::string text = Concat({"pin name=", Utf16ToUtf8(v.name), " numbers="});
  for (std::size_t i = 0; i < v.numbers.size(); ++i) {
    text += Concat({i > 0 ? "," : "", Utf16ToUtf8(v.numbers[i])});
  }
  if (v.shape != 0) text += Concat({" shape=", std::to_string(v.shape)});
  if (v.hideNumber) text += " hide";
  if (v.nameMask != SCompPin::kWholeNameShown) {
    text += Concat({" mask=", std::to_string(v.nameMask)});
  }
  return text;
}

std::string Text(const LineValues& v) {
  return Concat({"line w=", std::to_string(v.width), v.curve ? " curve" : "", v.dot ? " dot" : ""});
}

std::string Text(const ShapeValues& v) {
  return Concat({"shape w=", std::to_string(v.width), v.dot ? " dot" : "", v.fill ? " fill" : "",
                 v.fillAllowed ? "" : " no-fill-allowed"});
}

std::string Text(const TextValues& v) {
  std::string text = Concat({"text=", Utf16ToUtf8(v.text), " height=", std::to_string(v.height),
                             " weight=", std::to_string(v.weight)});
  if (v.italic) text += " italic";
  if (!v.face.empty()) text += Concat({" face=", Utf16ToUtf8(v.face)});
  if (v.align != 0) text += Concat({" align=", std::to_string(v.align)});
  return text;
}

std::string Text(std::monostate) {
  return "nothing";
}

}  // namespace

std::optional<std::string> SequencePlayer::Do(const std::string& step) {
  const std::size_t space = std::min(step.find(' '), step.size());
  const std::string verb = step.substr(0, space);
  const std::string_view rest = std::string_view(step).substr(std::min(space + 1, step.size()));
  const Words words = mivo::Words(rest);

  if (Prepare(verb, rest, words)) return {};
  if (!opened_) Open();
  if (Act(verb, words)) {
    rig_.PaintAsAsked();
    if (!rig_.editor.HasFront() && Front() != "nothing") return "a front that is not told of";
    return BrokenInvariant(rig_);
  }
  const std::optional<std::string> actual = Actual(verb, words);
  if (!actual) throw std::invalid_argument("unknown step: " + step);
  if (*actual == rest) return {};
  return Concat({verb, " is: ", *actual});
}

bool SequencePlayer::Prepare(const std::string& verb, std::string_view rest, const Words& words) {
  if (opened_ && (verb == "component" || verb == "has")) {
    throw std::invalid_argument("the component is open already");
  }
  if (verb == "component") {
    const std::vector<std::string> size = SplitAt(words.at(0), 'x');
    rig_.component =
        NewComponent({ParseNumber(size.at(0)), ParseNumber(size.at(1))},
                     NumberOf(words, "blocks", 1), !Has(words, "no-pattern"), Has(words, "bits"));
  } else if (verb == "has") {
    AddElements(rig_.component, rest);
  } else if (verb == "clip") {
    rig_.clipboard.text = rest == "none" ? std::nullopt : std::optional(Unescaped(rest));
  } else if (verb == "clipboard-refuses") {
    rig_.clipboard.refuses = true;
  } else if (verb == "answer") {
    Answer(words);
  } else {
    return false;
  }
  return true;
}

void SequencePlayer::Open() {
  rig_.editor.SetComponent(&rig_.component);
  loaded_ = DescribeDocument(rig_.editor.Document());
  rig_.PaintAsAsked();
  rig_.host.calls.clear();
  opened_ = true;
}

bool SequencePlayer::Act(const std::string& verb, const Words& words) {
  CompEditor& editor = rig_.editor;
  if (Mouse(verb, words)) return true;
  if (verb == "key") {
    lastResult_ = YesNo(editor.Key(Named(kKeys, words.at(0)), Has(words, "shift")));
  } else if (verb == "do") {
    lastResult_ = YesNo(editor.Execute(Named(kCommands, words.at(0))));
  } else if (verb == "wheel") {
    editor.Wheel(ParseNumber(words.at(0)), Has(words, "ctrl"));
  } else if (verb == "grid-select") {
    lastResult_ = YesNo(editor.SelectPin(ParsePlace(words.at(0))));
  } else if (verb == "grid-edit") {
    const SCompEditElm* const selected = editor.Document().SingleSelection();
    if (selected == nullptr || selected->Pin() == nullptr) {
      throw std::invalid_argument("no pin to edit");
    }
    selected->Pin()->SetNameFromDisplayText(Utf8ToUtf16(words.at(0)));
    editor.SelectedPinEdited();
  } else if (verb == "commit") {
    lastResult_ = YesNo(editor.Commit(Has(words, "keep") ? SCompEditDoc::FarObjects::Keep
                                                         : SCompEditDoc::FarObjects::Drop));
  } else if (verb == "mark-changed") {
    editor.MarkChanged();
  } else if (verb == "close") {
    editor.SetComponent(nullptr);
    loaded_ = DescribeDocument(editor.Document());
  } else if (verb == "reopen") {
    editor.SetComponent(&rig_.component);
    loaded_ = DescribeDocument(editor.Document());
  } else if (verb == "window") {
    const std::vector<std::string> size = SplitAt(words.at(0), 'x');
    const std::optional<std::string> ratio = ValueOf(words, "ratio");
    editor.Resize({ParseNumber(size.at(0)), ParseNumber(size.at(1))},
                  ratio ? std::stod(*ratio) : 1.0);
  } else if (verb == "margin") {
    editor.SetMargin(ParseNumber(words.at(0)));
  } else if (verb == "scroll-to") {
    const SPoint to = ParsePoint(words.at(0));
    editor.ScrollTo({to.x, to.y});
  } else {
    return false;
  }
  return true;
}

bool SequencePlayer::Mouse(const std::string& verb, const Words& words) {
  CompEditor& editor = rig_.editor;
  if (verb == "press") {
    editor.PressLeft(Pixel(words.at(0)));
  } else if (verb == "release") {
    editor.ReleaseLeft(Pixel(words.at(0)));
  } else if (verb == "move") {
    for (const std::string& word : words) editor.MoveMouse(Pixel(word));
  } else if (verb == "click") {
    for (const std::string& word : words) {
      const PixelPoint at = Pixel(word);
      editor.MoveMouse(at);
      editor.PressLeft(at);
      editor.ReleaseLeft(at);
    }
  } else if (verb == "drag") {
    editor.PressLeft(Pixel(words.at(0)));
    for (const std::string& word : words) editor.MoveMouse(Pixel(word));
    editor.ReleaseLeft(Pixel(words.back()));
  } else if (verb == "double-click") {
    const PixelPoint at = Pixel(words.at(0));
    editor.PressLeft(at);
    editor.ReleaseLeft(at);
    editor.DoubleClick(at);
    editor.ReleaseLeft(at);
  } else if (verb == "right-press") {
    editor.PressRight(Pixel(words.at(0)));
  } else if (verb == "right-release") {
    editor.ReleaseRight(Pixel(words.at(0)));
  } else if (verb == "right-click") {
    editor.PressRight(Pixel(words.at(0)));
    editor.ReleaseRight(Pixel(words.at(0)));
  } else if (verb == "leave") {
    editor.LeaveMouse();
  } else if (verb == "lose-capture") {
    editor.CaptureLost();
  } else {
    return false;
  }
  return true;
}

void SequencePlayer::Answer(const Words& words) {
  const std::string& what = words.at(0);
  FakePrompts::Answer answer;
  if (what == "pin") {
    PinValues values;
    values.name = Utf8ToUtf16(ValueOf(words, "name").value_or(""));
    for (const std::string& number : SplitAt(ValueOf(words, "numbers").value_or(""), ',')) {
      values.numbers.push_back(Utf8ToUtf16(number));
    }
    values.shape = NumberOf(words, "shape", 0);
    values.hideNumber = Has(words, "hide");
    values.nameMask = static_cast<std::uint32_t>(NumberOf(words, "mask", -1));
    answer = values;
  } else if (what == "line") {
    answer = LineValues{NumberOf(words, "w", 1), Has(words, "curve"), Has(words, "dot")};
  } else if (what == "shape") {
    answer = ShapeValues{NumberOf(words, "w", 1), Has(words, "dot"), Has(words, "fill"), true};
  } else if (what == "text") {
    TextValues values;
    values.text = Utf8ToUtf16(ValueOf(words, "text").value_or(""));
    values.height = NumberOf(words, "height", 10);
    values.weight = NumberOf(words, "weight", 400);
    values.italic = Has(words, "italic");
    values.face = Utf8ToUtf16(ValueOf(words, "face").value_or(""));
    values.align = NumberOf(words, "align", 0);
    answer = values;
  } else if (what != "cancel") {
    throw std::invalid_argument("no such answer: " + what);
  }
  rig_.prompts.answers.push_back(std::move(answer));
}

std::optional<std::string> SequencePlayer::Actual(const std::string& verb, const Words& words) {
  const CompEditor& editor = rig_.editor;
  const SCompEditDoc& document = editor.Document();
  if (verb == "doc") return DescribeDocument(document);
  if (verb == "selection") return DescribeSelection(document);
  if (verb == "changed") return YesNo(document.SelectionChanged());
  if (verb == "dirty") return YesNo(document.IsDirty());
  if (verb == "operation") return std::to_string(document.Operation());
  if (verb == "result") return lastResult_;
  if (verb == "stored") return DescribeComponent(rig_.component);
  if (verb == "cursor") return rig_.host.cursor == CursorShape::Move ? "move" : "arrow";
  if (verb == "captured") return YesNo(rig_.host.captured);
  if (verb == "hint") {
    const std::optional<StringId> hint = editor.Hint();
    return hint ? Utf16ToUtf8(TextTable().Text(*hint)) : std::string();
  }
  if (verb == "zoom") return std::to_string(editor.Coordinates().Scale().factor);
  if (verb == "clipboard") {
    return rig_.clipboard.text ? Escaped(*rig_.clipboard.text) : std::string("none");
  }
  if (verb == "asked") return Asked();
  if (verb == "front") return Front();
  if (verb == "undo-all") return UndoneToTheStart();
  if (verb == "at") {
    // Where a component point is shown.
    const PixelPoint pixel = editor.Coordinates().ToDevice(ParsePoint(words.at(0)));
    return Concat({words.at(0), " @", std::to_string(pixel.x), ",", std::to_string(pixel.y)});
  }
  if (verb == "host") {
    std::string calls;
    for (const std::string& call : rig_.host.calls)
      calls += Concat({calls.empty() ? "" : " ", call});
    rig_.host.calls.clear();
    return calls.empty() ? "none" : calls;
  }
  if (verb == "enabled" || verb == "disabled" || verb == "checked") {
    std::string matching;
    for (const std::string& word : words) {
      const Command command = Named(kCommands, word);
      const bool holds = verb == "checked" ? editor.IsChecked(command)
                                           : editor.IsEnabled(command) == (verb == "enabled");
      if (holds) matching += Concat({matching.empty() ? "" : " ", word});
    }
    return matching;
  }
  return {};
}

std::string SequencePlayer::Asked() const {
  if (rig_.prompts.asked.empty()) return "nothing";
  return std::visit([](const auto& values) { return Text(values); }, rig_.prompts.asked.back());
}

std::string SequencePlayer::Front() {
  RecordingSurface surface(rig_.editor.Coordinates().ClientSize());
  rig_.editor.PaintFront(surface);
  std::string calls;
  for (const std::string& call : SplitAt(surface.TakeRecord(), '\n')) {
    if (call.empty() || call.starts_with("origin ")) continue;
    calls += Concat({calls.empty() ? "" : " / ", call});
  }
  return calls.empty() ? "nothing" : calls;
}

std::string SequencePlayer::UndoneToTheStart() {
  // Each undo lowers the counter, so this ends.
  while (rig_.editor.Document().CanUndo()) rig_.editor.Execute(Command::Undo);
  const std::string now = DescribeDocument(rig_.editor.Document());
  return now == loaded_ ? "gives what was loaded" : now;
}

PixelPoint SequencePlayer::Pixel(std::string_view word) const {
  const bool pixels = word.starts_with('@');
  const SPoint point = ParsePoint(pixels ? word.substr(1) : word);
  if (pixels) return {point.x, point.y};
  return rig_.editor.Coordinates().ToDevice(point);
}

}  // namespace mivo

// Plays any events, as a user, the clipboard, the dialogs and the main frame make them, on the
// components of any library, and looks after each of them whether editor and document are sound.
//
// The input is a row of events of a few bytes each, see NextStep; behind it, from its opening tag
// on, may stand a library. With MIVO_FUZZ_STEPS in the environment the events are written as the
// steps of a sequence, see tests/tools/sequences.

#include <algorithm>
#include <array>
#include <cstdlib>
#include <optional>
#include <string>

#include "fuzz_target.h"
#include "mivo_doc.h"
#include "record_writer.h"
#include "sequence_player.h"

namespace mivo {
namespace {

// --- Events --------------------------------------------------------------------------------------

/// Bytes from front to back, and 0 behind the last of them.
class EventBytes {
 public:
  explicit EventBytes(std::string_view bytes) : bytes_(bytes) {}

  [[nodiscard]] bool AtEnd() const { return bytes_.empty(); }
  std::uint8_t Byte() {
    if (bytes_.empty()) return 0;
    const auto byte = static_cast<std::uint8_t>(bytes_.front());
    bytes_.remove_prefix(1);
    return byte;
  }
  std::int32_t Number() { return static_cast<std::int8_t>(Byte()); }
  template <std::size_t size>
  std::string OneOf(const std::array<const char*, size>& words) {
    return words[Byte() % size];
  }

 private:
  std::string_view bytes_;
};

constexpr std::array kFarPoints = {"2147483647,2147483647",  "-2147483648,-2147483648",
                                   "@2147483647,2147483647", "@-2147483648,-2147483648",
                                   "@2147483647,0",          "100000,-100000",
                                   "1073741824,5",           "@0,0"};

constexpr std::array kKeys = {"escape", "delete", "page-up",  "page-down", "left", "up", "right",
                              "down",   "tab",    "back-tab", "enter",     "menu", "S",  "P",
                              "L",      "C",      "G",        "A",         "T",    "N"};

constexpr std::array kCommands = {"undo",    "cut",       "copy",        "paste",     "delete",
                                  "mirror",  "rotate",    "property",    "next-name", "next-number",
                                  "zoom-in", "zoom-out",  "pin-grid",    "swap",      "selector",
                                  "pin",     "line",      "ellipse",     "polygon",   "arc",
                                  "text",    "node-mode", "bit-pattern", "add-node"};

constexpr std::array kAnswers = {"text text=NEW height=20",
                                 "text text=",
                                 "text text=x height=-1000 weight=700 italic face=F align=8",
                                 "line w=3 curve dot",
                                 "line w=1",
                                 "shape w=2 fill",
                                 "shape w=1 dot",
                                 "pin name=N7/\\A numbers=1,2 shape=4",
                                 "pin name= numbers= shape=12 hide mask=0",
                                 "cancel"};

constexpr std::array kClips = {
    "none",
    "words",
    "+MIVO_PTN_V.1.0\\n+L,X:1,Y:1,X:31,Y:1,-L\\n+PG,N:3,X:0,Y:0,X:9,Y:0,X:5,Y:5,-PG\\n",
    "+MIVO_PTN_V.1.0\\n+AR,X:2147483647,Y:-2147483648,R:2147483647,B:0,E:5759,-AR\\n",
    "+MIVO_PTN_V.1.0\\n",
    "+MIVO_PIN_V.1.0\\n+PIN,N:P1,DF:FFFFFFFF,L:B4,T:,M:1,-PIN\\n-MIVO_PIN_V.1.0\\n",
    "+MIVO_PIN_V.1.0\\n"};

constexpr std::array kFrameSteps = {"commit",
                                    "commit keep",
                                    "reopen",
                                    "close",
                                    "mark-changed",
                                    "leave",
                                    "lose-capture",
                                    "grid-select L2",
                                    "grid-select B4",
                                    "window 120x90",
                                    "window 160x120 ratio=1.5",
                                    "window 0x0",
                                    "margin 120",
                                    "scroll-to 60,40",
                                    "scroll-to -2147483648,2147483647",
                                    "clipboard-refuses"};

std::string Point(EventBytes& in) {
  const std::int32_t x = in.Number();
  if (x == -128) return in.OneOf(kFarPoints);
  return std::to_string(x) + "," + std::to_string(in.Number());
}

constexpr const char* kOpen = "open";
constexpr const char* kSave = "save";

/// The next event as a step of a sequence, or one of the two above.
std::string NextStep(EventBytes& in) {
  switch (in.Byte() % 18) {
    case 0:
      return "move " + Point(in);
    case 1:
      return "press " + Point(in);
    case 2:
      return "release " + Point(in);
    case 3:
      return "click " + Point(in);
    case 4: {
      const std::string from = Point(in);
      return "drag " + from + " " + Point(in);
    }
    case 5:
      return "double-click " + Point(in);
    case 6:
      return "right-press " + Point(in);
    case 7:
      return "right-release " + Point(in);
    case 8:
      return "wheel " + std::to_string(4 * in.Number());
    case 9:
      return "wheel " + std::to_string(4 * in.Number()) + " ctrl";
    case 10:
      return "key " + in.OneOf(kKeys);
    case 11:
      return "key " + in.OneOf(kKeys) + " shift";
    case 12:
      return "do " + in.OneOf(kCommands);
    case 13:
      return "answer " + in.OneOf(kAnswers);
    case 14:
      return "clip " + in.OneOf(kClips);
    case 15:
      return in.OneOf(kFrameSteps);
    case 16:
      return kOpen;
    default:
      return kSave;
  }
}

// --- What is edited ------------------------------------------------------------------------------

/// Something of every kind.
constexpr std::string_view kOwnLibrary =
    "+TARSL_LIB_V.1.0\nVER:82\n"
    "+PTN,N:A,X:101,Y:81\n+L,X:10,Y:10,X:60,Y:10,-L\n"
    "+L,W:3,S:1,CV:1,X:10,Y:20,X:60,Y:50,X:20,Y:60,X:50,Y:0,-L\n"
    "+C,X:30,Y:30,X:70,Y:60,F:1,-C\n+PG,W:2,N:3,X:5,Y:5,X:45,Y:5,X:45,Y:45,-PG\n"
    "+AR,X:50,Y:40,R:20,B:300,E:2000,-AR\n+TX,X:20,Y:70,S:TEXT,FS:80,-TX\n"
    "+L,X:300,Y:300,X:340,Y:300,-L\n-PTN\n"
    "+COMP,N:A,P:A\nX:10,Y:8,B:2\n+PIN,N:A,DF:FFFFFFFF,L:L2,T:,M:1,M:2,-PIN\n"
    "+PIN,N:B/C,DF:FFFFFFFF,L:L5,T:,M:3,-PIN\n+PIN,N:D,DF:FFFFFFFF,L:R3,T:N,M:4,M:5,-PIN\n-COMP\n"
    "+COMP,N:B\nX:4,Y:3,B:1\n+PIN,N:E,DF:1,L:T2,T:,M:7,-PIN\n-COMP\n"
    "+COMP,N:C,P:A\nX:10,Y:8,B:1\n-COMP\n-TARSL_LIB_V.1.0\n";

std::string Saved(const SMivoDoc& library) {
  std::string bytes;
  StringByteSink sink(bytes);
  Require(library.Write(sink), "a library saves");
  return bytes;
}

class CountingSink final : public FindingSink {
 public:
  void Report(const Finding& /*finding*/) override { ++findings; }

  int findings = 0;
};

/// The component as a file holds it, without its bit pattern, which has no undo.
std::u16string RecordOf(SComponent component) {
  if (SPtn* const pattern = component.MutablePattern()) pattern->SetBitPatternArea({1, 1}, true);
  std::u16string text;
  SRecordWriter writer;
  writer.AttachString(text);
  component.Write(writer, u"C");
  return text;
}

/// A library whose components are edited one after the other in the rig of the sequence tests.
class Session {
 public:
  explicit Session(std::string_view bytes) {
    if (!library_.Load(bytes, u"fuzz.ZLB") || library_.Components().empty()) {
      library_.Clear();
      Require(library_.Load(kOwnLibrary, u"own.ZLB"), "the target's own library loads");
    }
    Do("window 160x120");
    Open(0);
  }

  void Play(const std::string& step, std::uint8_t number) {
    if (step == kOpen) {
      Open(number % library_.Components().size());
    } else if (step == kSave) {
      Save();
    } else {
      Do(step);
      if (step == "reopen") loaded_ = Edited();
    }
  }

  void UndoAll() {
    if (Editor().Component() == nullptr) Open(current_);
    Do("undo-all gives what was loaded");
    Require(!Editor().Document().CanUndo(), "undo comes to an end");
    Require(Edited() == loaded_, "undo gives the bytes that were loaded");
  }

  void Save() {
    Leave(SCompEditDoc::FarObjects::Keep);
    const std::string bytes = Saved(library_);
    SMivoDoc again;
    CountingSink sink;
    Require(again.Load(bytes, u"again.ZLB", &sink), "what was saved loads");
    Require(sink.findings > 0 || Saved(again) == bytes, "what was saved and loaded is what it was");
    Open(current_);
  }

 private:
  CompEditor& Editor() { return player_.Rig().editor; }

  void Do(const std::string& step) {
    static const bool show = std::getenv("MIVO_FUZZ_STEPS") != nullptr;
    if (show) std::printf("%s\n", step.c_str());
    const std::optional<std::string> wrong = player_.Do(step);
    Require(!wrong, wrong ? wrong->c_str() : "");
    RequireSound();
  }

  /// What the component would be after a commit now.
  std::u16string Edited() {
    SComponent copy = player_.Rig().component;
    Editor().Document().CopyTo(copy);
    return RecordOf(copy);
  }

  void RequireSound() {
    const CompEditor& editor = Editor();
    const SCompEditDoc& document = editor.Document();
    const EditRig& rig = player_.Rig();
    for (const auto elements : {document.Elements(), document.Selection()}) {
      for (const SCompEditElm& element : elements) {
        if (element.Pin() == nullptr) continue;
        Require(element.Pin()->NumberCount() == document.Blocks(),
                "a pin has a number slot for each block");
        const std::int32_t offset = element.Pin()->location.offset;
        Require(0 <= offset && offset <= SPinLocation::kMaxOffset, "a pin sits on the outline");
      }
    }
    if (editor.Component() == nullptr) {
      Require(document.Selection().empty(), "nothing is selected without a component");
      return;
    }
    Require(document.BodySize() == rig.component.Size(), "editing keeps the size of the body");
    Require(document.Blocks() == rig.component.BlockCount(), "editing keeps the blocks");
    Require(
        document.IsDirty() || document.SelectionChanged() || Edited() == RecordOf(rig.component),
        "what differs from the component counts as changed");
  }

  /// Puts the component back into the library.
  void Leave(SCompEditDoc::FarObjects farObjects) {
    static_cast<void>(Editor().Commit(farObjects));
    if (Editor().Component() != nullptr) {
      Require(Edited() == RecordOf(player_.Rig().component), "a commit writes everything back");
    }
    Do("close");
    *library_.Components()[current_] = player_.Rig().component;
  }

  void Open(std::size_t index) {
    if (Editor().Component() != nullptr) Leave(SCompEditDoc::FarObjects::Drop);
    current_ = index;
    player_.Rig().component = *library_.Components()[index];
    Do("reopen");
    loaded_ = Edited();
  }

  SMivoDoc library_;
  SequencePlayer player_;
  std::size_t current_ = 0;
  std::u16string loaded_;
};

}  // namespace
}  // namespace mivo

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace mivo;
  const std::string_view input = InputBytes(data, size);
  const std::size_t library = std::min(input.find("+TARSL_"), input.size());
  Session session(input.substr(library));
  EventBytes events(input.substr(0, library));
  while (!events.AtEnd()) {
    const std::string step = NextStep(events);
    session.Play(step, step == kOpen ? events.Byte() : 0);
  }
  session.UndoAll();
  session.Save();
  return 0;
}

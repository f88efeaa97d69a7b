#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "notation.h"
#include "record_text.h"
#include "sequence_player.h"
#include "text_encoding.h"

namespace mivo {
namespace {

// Steps of sequences at random. A failure shows the steps as they would stand in a sequence.

using Steps = std::vector<std::string>;

/// Something of every kind, in a form that nothing but an edit changes.
const Steps kComponent = {
    "component 10x8 blocks=2",
    "has pin L2 A 1,2; pin L5 B/C 3,-; pin R3 D 4,5 type 8; pin T5 E 6,7",
    "has line 10,10 60,10; line 10,20 60,50 w3 curve 20,60 50,0; ellipse 30,30 70,60 f1",
    "has polygon 5,5 45,5 45,45 w2; arc 50,40 r20 300-2000; text 20,70 \"TEXT\"",
    "has line 300,300 340,300"};

rc::Gen<std::string> Point() {
  return rc::gen::map(rc::gen::pair(rc::gen::inRange(-30, 135), rc::gen::inRange(-30, 115)),
                      [](const std::pair<int, int>& p) {
                        return Concat({std::to_string(p.first), ",", std::to_string(p.second)});
                      });
}

rc::Gen<std::string> Numbered(const std::string& verb, int from, int to,
                              const std::string& rest = {}) {
  return rc::gen::map(rc::gen::inRange(from, to), [verb, rest](int number) {
    return Concat({verb, " ", std::to_string(number), rest});
  });
}

rc::Gen<std::string> AtPoint(const std::string& verb) {
  return rc::gen::map(Point(), [verb](const std::string& p) { return Concat({verb, " ", p}); });
}

rc::Gen<std::string> BetweenPoints(const std::string& verb) {
  return rc::gen::map(rc::gen::pair(Point(), Point()),
                      [verb](const std::pair<std::string, std::string>& p) {
                        return Concat({verb, " ", p.first, " ", p.second});
                      });
}

rc::Gen<std::string> MouseStep() {
  return rc::gen::oneOf(AtPoint("click"), AtPoint("click"), BetweenPoints("drag"),
                        BetweenPoints("drag"), AtPoint("double-click"), AtPoint("press"),
                        AtPoint("move"), AtPoint("release"), AtPoint("right-press"),
                        AtPoint("right-release"), Numbered("wheel", -300, 300),
                        Numbered("wheel", -300, 300, " ctrl"),
                        rc::gen::element<std::string>("leave", "lose-capture"));
}

rc::Gen<std::string> KeyStep() {
  return rc::gen::map(
      rc::gen::element<std::string>("escape", "delete", "page-up", "page-down", "left", "up",
                                    "right", "down", "down shift", "tab", "back-tab", "enter",
                                    "menu", "S", "P", "L", "C", "G", "A", "T", "N"),
      [](const std::string& key) {
        return Concat({"key ", key});
      });
}

rc::Gen<std::string> CommandStep() {
  return rc::gen::map(
      rc::gen::element<std::string>("undo", "cut", "copy", "paste", "paste", "mirror", "rotate",
                                    "property", "next-name", "next-number", "swap", "pin-grid",
                                    "bit-pattern", "add-node", "selector", "node-mode"),
      [](const std::string& command) {
        return Concat({"do ", command});
      });
}

rc::Gen<std::string> AnswerStep() {
  return rc::gen::element<std::string>(
      "answer text text=NEW height=20", "answer text text=", "answer line w=3 curve dot",
      "answer shape w=2 fill", "answer pin name=N7 numbers=1,2 shape=4", "answer cancel");
}

rc::Gen<std::string> ClipStep() {
  return rc::gen::element<std::string>(
      "clip none", "clip words",
      "clip +MIVO_PTN_V.1.0\\n+L,X:1,Y:1,X:31,Y:1,-L\\n+PG,N:3,X:0,Y:0,X:9,Y:0,X:5,Y:5,-PG\\n",
      "clip +MIVO_PIN_V.1.0\\n+PIN,N:P1,DF:FFFFFFFF,L:B4,T:,M:1,-PIN\\n-MIVO_PIN_V.1.0\\n");
}

rc::Gen<std::string> FrameStep() {
  return rc::gen::element<std::string>("commit", "commit keep", "reopen", "grid-select L2",
                                       "grid-select B4", "window 120x90", "window 400x400",
                                       "window 500x300 ratio=1.5", "margin 120", "scroll-to 60,40");
}

rc::Gen<Steps> RandomSteps() {
  return rc::gen::container<Steps>(rc::gen::weightedOneOf<std::string>({{8, MouseStep()},
                                                                        {4, KeyStep()},
                                                                        {3, CommandStep()},
                                                                        {1, AnswerStep()},
                                                                        {1, ClipStep()},
                                                                        {1, FrameStep()}}));
}

/// Plays steps on the component; every step checks the invariants.
void PlayAll(SequencePlayer& player, const Steps& steps) {
  for (const Steps* const part : {&kComponent, &steps}) {
    for (const std::string& step : *part) {
      const std::optional<std::string> wrong = player.Do(step);
      if (wrong) RC_FAIL(Concat({step, ": ", *wrong}));
    }
  }
}

std::vector<std::string> SortedElements(const CompEditor& editor) {
  std::vector<std::string> elements = SplitAt(DescribeDocument(editor.Document()), ';');
  for (std::string& element : elements) element.erase(0, element.find_first_not_of(' '));
  std::sort(elements.begin(), elements.end());
  return elements;
}

RC_GTEST_PROP(RandomSequence, EnoughUndosGiveBackWhatWasLoaded, ()) {
  SequencePlayer player;
  PlayAll(player, *RandomSteps());
  const std::optional<std::string> wrong = player.Do("undo-all gives what was loaded");
  if (wrong) RC_FAIL(*wrong);
  RC_ASSERT(player.Rig().editor.Document().Operation() == 0);
}

RC_GTEST_PROP(RandomSequence, WritingBackAndLoadingGivesWhatTheDocumentShowed, ()) {
  SequencePlayer player;
  PlayAll(player, *RandomSteps());
  CompEditor& editor = player.Rig().editor;
  // Releases what is selected, which drops objects that are not worth keeping.
  static_cast<void>(editor.Commit(SCompEditDoc::FarObjects::Keep));
  const std::vector<std::string> shown = SortedElements(editor);
  editor.SetComponent(editor.Component());
  RC_ASSERT(SortedElements(editor) == shown);
}

RC_GTEST_PROP(RandomSequence, AReleasedMouseLeavesNoGestureBehind, ()) {
  SequencePlayer player;
  PlayAll(player, *RandomSteps());
  EditRig& rig = player.Rig();
  rig.editor.CaptureLost();
  RC_ASSERT(!rig.host.captured);
  const std::string before = DescribeSelection(rig.editor.Document());
  rig.editor.ReleaseLeft({10, 10});
  rig.editor.ReleaseRight({10, 10});
  RC_ASSERT(DescribeSelection(rig.editor.Document()) == before);
  RC_ASSERT(!rig.host.captured);
}

/// What a commit would make of the component now.
std::u16string CommitWouldGive(const CompEditor& editor) {
  SComponent copy = *editor.Component();
  editor.Document().CopyTo(copy);
  return WrittenText([&copy](SRecordWriter& writer) { copy.Write(writer, u"TEST"); });
}

RC_GTEST_PROP(RandomSequence, EveryCompletedOperationIsTold, ()) {
  SequencePlayer player;
  PlayAll(player, {});
  EditRig& rig = player.Rig();
  RC_ASSERT(!player.Do("leave"));  // the first step that is none opens the component
  std::u16string before = CommitWouldGive(rig.editor);
  int told = rig.host.operations;
  for (const std::string& step : *RandomSteps()) {
    const std::optional<std::string> wrong = player.Do(step);
    if (wrong) RC_FAIL(Concat({step, ": ", *wrong}));
    if (rig.host.captured) continue;  // a gesture is no operation before it ends
    const std::u16string now = CommitWouldGive(rig.editor);
    // Who opens a component without a commit means to drop what was done.
    if (now != before && rig.host.operations == told && step != "reopen") {
      RC_FAIL(Concat({step, " was not told"}));
    }
    before = now;
    told = rig.host.operations;
  }
}

// --- Clipboard -----------------------------------------------------------------------------------

/// Words of our texts and others, in any order.
rc::Gen<std::string> Fragment() {
  return rc::gen::element<std::string>(
      "+L", "-L", "+C", "-C", "+PG", "-PG", "+AR", "-AR", "+TX", "-TX", "+PIN", "-PIN", "+XYZ",
      "X:5", "Y:-7", "X:2147483647", "Y:-2147483648", "W:3", "S:1", "S:text", "N:3", "N:99", "F:1",
      "R:20", "B:-100", "E:99999", "L:T5", "L:R999", "M:1", "DF:FFFFFFFF", "FN:Face", "FS:80",
      "FF:BI", "A:5", "D:0", "%2C", "%0", ",", "\n", "+MIVO_PTN_V.1.0", "-MIVO_PIN_V.1.0", "");
}

rc::Gen<std::u16string> FragmentText() {
  return rc::gen::map(
      rc::gen::pair(rc::gen::element<std::string>("+MIVO_PIN_V.1.0", "+MIVO_PTN_V.1.0", ""),
                    rc::gen::container<std::vector<std::string>>(Fragment())),
      [](const std::pair<std::string, std::vector<std::string>>& parts) {
        std::string text = parts.first;
        for (const std::string& part : parts.second) text += Concat({",", part});
        return Utf8ToUtf16(text);
      });
}

rc::Gen<std::u16string> AnyText() {
  return rc::gen::map(
      rc::gen::pair(rc::gen::element<std::u16string>(u"+MIVO_PIN_V.1.0", u"+MIVO_PTN_V.1.0", u""),
                    rc::gen::arbitrary<std::vector<std::uint16_t>>()),
      [](const std::pair<std::u16string, std::vector<std::uint16_t>>& parts) {
        std::u16string text = parts.first;
        for (const std::uint16_t unit : parts.second) text += static_cast<char16_t>(unit);
        return text;
      });
}

RC_GTEST_PROP(RandomClipboard, AnyTextWhateverPastesWithoutHarm, ()) {
  SequencePlayer player;
  PlayAll(player, {});
  player.Rig().clipboard.text = *rc::gen::oneOf(FragmentText(), AnyText());
  const Steps steps = {"do paste", "click 50,-5", "do mirror",      "do rotate", "key down shift",
                       "do copy",  "do paste",    "drag 5,5 20,30", "do cut",    "do zoom-in"};
  for (const std::string& step : steps) {
    const std::optional<std::string> wrong = player.Do(step);
    if (wrong) RC_FAIL(Concat({step, ": ", *wrong}));
  }
  const std::optional<std::string> wrong = player.Do("undo-all gives what was loaded");
  if (wrong) RC_FAIL(*wrong);
}

}  // namespace
}  // namespace mivo

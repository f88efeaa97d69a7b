#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <map>
#include <ostream>
#include <string>
#include <variant>
#include <vector>

#include "clipboard_text.h"
#include "comp_edit_doc.h"
#include "edit_generators.h"
#include "edit_samples.h"
#include "next_name.h"
#include "text_encoding.h"

namespace mivo {
namespace {

/// Edits a document the way the view does, remembers what it showed before each operation, and
/// checks every undo against that.
class Editor {
 public:
  explicit Editor(const ComponentRecipe& recipe) : component_(MakeComponent(recipe)) {
    doc_.Load(&component_);
    loaded_ = Shown(doc_);
  }

  void Perform(const EditStep& step) {
    using Action = EditStep::Action;
    const SPoint a = step.object.points[0];
    const SPoint b = step.object.points[1];
    switch (step.action) {
      case Action::PickPinAt:
        Pick([&] { return doc_.PickPinAt(a); });
        break;
      case Action::PickPinByLocation:
        Pick([&] { return doc_.PickPinByLocation(step.location); });
        break;
      case Action::PickElement:
        Pick([&] { return doc_.PickElement(step.index % (doc_.Elements().size() + 1)); });
        break;
      case Action::Band:
        Pick([&] { return doc_.PickObjectsInRect(SRect::Spanning(a, b)) > 0; });
        break;
      case Action::Move:
        doc_.MoveSelection(a.x, a.y);
        break;
      case Action::Mirror:
        doc_.MirrorSelection();
        break;
      case Action::Rotate:
        doc_.RotateSelection();
        break;
      case Action::AddPin: {
        BeginOperation();
        SCompPin pin = MakePin(step.location.side, step.location.offset);
        pin.ResizeNumbers(doc_.Blocks());
        doc_.AddPin(&pin);
        break;
      }
      case Action::AddObject:
        BeginOperation();
        doc_.AddObject(MakeObject(step.object).get());
        break;
      case Action::Delete:
        doc_.DeleteSelection();
        break;
      case Action::Release:
        doc_.ReleaseSelection();
        break;
      case Action::EditNode:
        EditNode(step.index, b);
        break;
      case Action::AddNode:
        AddNode(step.index, b);
        break;
      case Action::MovePin:
        EditPin([&](SCompPin& pin) { pin.location = doc_.PinLocationFromPoint(b); });
        break;
      case Action::RenamePin:
        EditPin([](SCompPin& pin) { pin.SetNameFromDisplayText(NextName(pin.DisplayName())); });
        break;
      case Action::Copy:
        doc_.CopyToClipboard(clipboard_);
        break;
      case Action::Paste:
        Paste(a);
        break;
      case Action::WriteBack:
        WriteBack(step.index % 2 == 0);
        break;
      case Action::Undo:
        Undo();
        break;
    }
    CheckInvariants();
  }

  void UndoAll() {
    while (doc_.CanUndo()) Undo();
    RC_ASSERT(Shown(doc_) == loaded_);
  }

  /// A copy gives what a write-back would, before that is done.
  void CopyThenWriteBack() {
    const std::string shown = Shown(doc_) + Selected(doc_);
    const std::string copied = Copied();
    RC_ASSERT(Shown(doc_) + Selected(doc_) == shown);
    doc_.WriteBack(component_, SCompEditDoc::FarObjects::Keep);
    RC_ASSERT(RecordOf(component_) == copied);
    RC_ASSERT(Copied() == copied);
  }

  void WriteBackAndReload() {
    doc_.WriteBack(component_, SCompEditDoc::FarObjects::Keep);
    SCompEditDoc reloaded;
    reloaded.Load(&component_);
    RC_ASSERT(Shown(reloaded) == Shown(doc_));
  }

 private:
  [[nodiscard]] std::string Copied() const {
    SComponent copy = component_;
    doc_.CopyTo(copy);
    return RecordOf(copy);
  }

  void RememberShown() { before_[doc_.Operation()] = Shown(doc_); }

  void BeginOperation() {
    doc_.ReleaseSelection();
    doc_.RaiseOperation();
    RememberShown();
  }

  template <typename PickSome>
  void Pick(PickSome pick) {
    doc_.RaiseOperation();
    doc_.ReleaseSelection();
    RememberShown();
    if (!pick()) doc_.LowerOperation();
  }

  void EditNode(std::uint32_t index, SPoint place) {
    if (doc_.SingleSelection() == nullptr) return;
    SPtnObj* const object = doc_.SingleSelection()->Object();
    if (object == nullptr || object->GetNodeCount() == 0) return;
    object->SetNode(static_cast<std::int32_t>(index & 0x7fff) % object->GetNodeCount(), place.x,
                    place.y);
    doc_.SetSelectionChanged(true);
  }

  void AddNode(std::uint32_t index, SPoint place) {
    if (doc_.SingleSelection() == nullptr) return;
    auto* const polygon = dynamic_cast<SPtnObjPolygon*>(doc_.SingleSelection()->Object());
    if (polygon == nullptr || polygon->GetNodeCount() >= SPtnObjPolygon::kMaxVertices) return;
    polygon->InsertNode(static_cast<std::int32_t>(index % 4), place.x, place.y);
    doc_.SetSelectionChanged(true);
  }

  template <typename Edit>
  void EditPin(Edit edit) {
    if (doc_.SingleSelection() == nullptr || doc_.SingleSelection()->Pin() == nullptr) return;
    edit(*doc_.SingleSelection()->Pin());
    doc_.SetSelectionChanged(true);
  }

  void Paste(SPoint offset) {
    ClipboardContent content = ReadClipboardText(clipboard_.GetText().value_or(u""), doc_.Blocks());
    if (auto* pinText = std::get_if<PinText>(&content)) {
      if (!pinText->pin) return;
      BeginOperation();
      doc_.AddPin(&*pinText->pin);
    } else if (auto* patternText = std::get_if<PatternText>(&content)) {
      doc_.ReleaseSelection();
      const std::string before = Shown(doc_);
      doc_.PasteObjects(std::move(patternText->objects), offset.x, offset.y);
      before_[doc_.Operation()] = before;
    }
  }

  void WriteBack(bool drop) {
    doc_.ReleaseSelection();
    const std::string before = Shown(doc_);
    doc_.WriteBack(component_,
                   drop ? SCompEditDoc::FarObjects::Drop : SCompEditDoc::FarObjects::Keep);
    before_[doc_.Operation()] = before;
    doc_.SetDirty(false);
  }

  void Undo() {
    doc_.ReleaseSelection();
    std::int32_t last = 0;
    for (const SCompEditElm& element : doc_.Elements()) {
      last = std::max({last, element.CreatedBy(), element.DeletedBy()});
    }
    const std::string shown = Shown(doc_);
    const bool dirty = doc_.IsDirty();
    RC_ASSERT(doc_.Undo() == (last > 0));
    RC_ASSERT(Shown(doc_) == (last > 0 ? before_.at(last) : shown));
    RC_ASSERT(doc_.Operation() == std::max(last - 1, 0));
    RC_ASSERT(doc_.IsDirty() == (last > 0 || dirty));
  }

  void CheckInvariants() {
    for (const SCompEditElm& element : doc_.Elements()) {
      RC_ASSERT(element.CreatedBy() <= doc_.Operation());
      RC_ASSERT(element.DeletedBy() <= doc_.Operation());
      RC_ASSERT(!element.Source());
    }
    for (const SCompEditElm& element : doc_.Selection()) {
      RC_ASSERT(element.IsAlive());
      if (element.Source()) RC_ASSERT(!doc_.Elements()[*element.Source()].IsAlive());
    }
    // Nothing that a write-back would give changes without a new revision.
    const std::string copied = Copied();
    RC_ASSERT(copied == copied_ || doc_.Revision() != revision_ || copied_.empty());
    copied_ = copied;
    revision_ = doc_.Revision();
    // A document that shows anything else than was loaded or written back last knows it.
    if (doc_.Selection().empty() && !doc_.IsDirty()) {
      SCompEditDoc reloaded;
      reloaded.Load(&component_);
      if (component_.Pattern() != nullptr) RC_ASSERT(Shown(reloaded) == Shown(doc_));
    }
  }

  SComponent component_;
  SCompEditDoc doc_;
  FakeClipboard clipboard_;
  std::string loaded_;
  std::string copied_;  ///< and its revision, after the last step
  std::uint64_t revision_ = 0;
  std::map<std::int32_t, std::string> before_;
};

RC_GTEST_PROP(EditProperty, EveryUndoGivesThePreviousDocumentAndEnoughOfThemTheLoadedOne,
              (const ComponentRecipe& recipe, const std::vector<EditStep>& steps)) {
  Editor editor(recipe);
  for (const EditStep& step : steps) editor.Perform(step);
  editor.UndoAll();
}

RC_GTEST_PROP(EditProperty, ACopyIsWhatAWriteBackWouldGive,
              (ComponentRecipe recipe, const std::vector<EditStep>& steps)) {
  Editor editor(recipe);
  for (const EditStep& step : steps) editor.Perform(step);
  editor.CopyThenWriteBack();
}

RC_GTEST_PROP(EditProperty, WriteBackThenLoadGivesWhatTheDocumentShowed,
              (ComponentRecipe recipe, const std::vector<EditStep>& steps)) {
  recipe.drawn = true;
  Editor editor(recipe);
  for (const EditStep& step : steps) editor.Perform(step);
  editor.WriteBackAndReload();
}

// --- Clipboard texts -----------------------------------------------------------------------------

RC_GTEST_PROP(ClipboardTextProperty, PatternTextRoundTrip,
              (const std::vector<ObjectRecipe>& recipes, SPoint origin)) {
  std::vector<SCompEditElm> selection;
  for (const ObjectRecipe& recipe : recipes) {
    std::unique_ptr<SPtnObj> object = MakeObject(recipe);
    if (object->IsValid()) selection.emplace_back(1, std::move(object));
  }
  const std::u16string text = WriteClipboardText(selection, origin);
  ClipboardContent content = ReadClipboardText(text, 1);
  RC_ASSERT(std::holds_alternative<PatternText>(content));
  Objects& objects = std::get<PatternText>(content).objects;
  RC_ASSERT(objects.size() == selection.size());
  for (std::size_t i = 0; i < objects.size(); ++i) {
    objects[i]->Move(origin.x, origin.y);
    RC_ASSERT(RecordOf(*objects[i]) == RecordOf(*selection[i].Object()));
  }
}

/// Text for the clipboard, shown readably when it makes a test fail.
struct PasteText {
  std::u16string text;
};

std::ostream& operator<<(std::ostream& out, const PasteText& pasted) {
  return out << Utf16ToUtf8(pasted.text);
}

rc::Gen<PasteText> AnyPasteText() {
  const auto piece = rc::gen::element<std::u16string>(
      u"+MIVO_PIN_V.1.0", u"-MIVO_PIN_V.1.0", u"+MIVO_PTN_V.1.0", u"-MIVO_PTN_V.1.0", u"+PIN",
      u"-PIN", u"+L", u"-L", u"+C", u"-C", u"+PG", u"-PG", u"+AR", u"-AR", u"+TX", u"-TX", u"+X",
      u"-X", u"X:7", u"Y:-3", u"X:", u":", u"N:3", u"N:\\A", u"N:\\", u"W:99999999999", u"R:5",
      u"B:5761", u"E:-1", u"S:text", u"S:%2C%00", u"CV:1", u"D:0", u"A:15", u"FS:200", u"FF:BIUS",
      u"L:T255", u"L:Q256", u"M:1", u"T:NCm", u"DF:%20FF", u"%", u"%4", u"+", u"-");
  const auto separator = rc::gen::element<std::u16string>(u",", u"\n", u"\r\n", u",", u"\n", u" ",
                                                          std::u16string(1, u'\0'), u"");
  const auto noise = rc::gen::container<std::u16string>(
      rc::gen::map(rc::gen::inRange(0, 0x10000), [](int c) { return static_cast<char16_t>(c); }));
  const auto token = rc::gen::weightedOneOf<std::u16string>({{12, piece}, {1, noise}});
  const auto start = rc::gen::element<std::u16string>(u"+MIVO_PIN_V.1.0\n", u"+MIVO_PTN_V.1.0\n",
                                                      u"+MIVO_PIN_V.1.0", u"+MIVO_PTN_V.1.0,", u"");
  return rc::gen::apply(
      [](std::u16string text, const std::vector<std::pair<std::u16string, std::u16string>>& rest) {
        for (const auto& [fieldText, end] : rest) text += fieldText + end;
        return PasteText{text};
      },
      start,
      rc::gen::container<std::vector<std::pair<std::u16string, std::u16string>>>(
          rc::gen::pair(token, separator)));
}

RC_GTEST_PROP(ClipboardTextProperty, AnyTextPastedDoesNoHarm, ()) {
  const std::u16string text = (*AnyPasteText()).text;
  SComponent component =
      MakeComponent({6, 4}, 2, {MakePin(PinSide::Left, 1)}, Drawn::Yes, OneOfEach());
  SCompEditDoc doc;
  doc.Load(&component);
  const std::string before = Shown(doc);

  ClipboardContent content = ReadClipboardText(text, doc.Blocks());
  if (auto* pattern = std::get_if<PatternText>(&content)) {
    RC_ASSERT(CanPaste(text));
    doc.PasteObjects(std::move(pattern->objects), 3, 4);
    RC_ASSERT(doc.Operation() == 1);
  } else if (auto* pinText = std::get_if<PinText>(&content)) {
    RC_ASSERT(CanPaste(text));
    doc.RaiseOperation();
    if (pinText->pin) {
      RC_ASSERT(pinText->pin->NumberCount() == 2);
      doc.AddPin(&*pinText->pin);
    }
  }
  doc.MirrorSelection();
  doc.RotateSelection();
  FakeClipboard clipboard;
  doc.CopyToClipboard(clipboard);
  doc.WriteBack(component, SCompEditDoc::FarObjects::Drop);
  SCompEditDoc reloaded;
  reloaded.Load(&component);
  RC_ASSERT(Shown(reloaded) == Shown(doc));
  while (doc.CanUndo()) doc.Undo();
  RC_ASSERT(Shown(doc) == before);
}

}  // namespace
}  // namespace mivo

#include "comp_edit_doc.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "edit_samples.h"

namespace mivo {
namespace {

using testing::HasSubstr;
using testing::Not;

constexpr SPoint kSize{6, 4};

SComponent Drawing() {
  return MakeComponent(kSize, 1,
                       {MakePin(PinSide::Left, 1, u"IN"), MakePin(PinSide::Right, 2, u"Q")},
                       Drawn::Yes, OneOfEach());
}

TEST(CompEditDocTest, StartsEmpty) {
  const SCompEditDoc doc;
  EXPECT_TRUE(doc.Elements().empty());
  EXPECT_TRUE(doc.Selection().empty());
  EXPECT_EQ(doc.Operation(), 0);
  EXPECT_FALSE(doc.CanUndo());
  EXPECT_FALSE(doc.IsDirty());
  EXPECT_FALSE(doc.SelectionChanged());
  EXPECT_EQ(doc.BodySize(), (SPoint{1, 1}));
  EXPECT_EQ(doc.Blocks(), 1);
  EXPECT_EQ(doc.SelectionRect(), SRect{});
  EXPECT_TRUE(doc.lastPinName.empty());
  EXPECT_TRUE(doc.lastPinNumber.empty());
}

TEST(CompEditDocTest, LoadTakesPinsThenObjectsInOrder) {
  const SComponent component = MakeComponent(
      kSize, 3, {MakePin(PinSide::Left, 1), MakePin(PinSide::Top, 2)}, Drawn::Yes, OneOfEach());
  SCompEditDoc doc;
  doc.Load(&component);

  EXPECT_EQ(doc.BodySize(), kSize);
  EXPECT_EQ(doc.Blocks(), 3);
  ASSERT_EQ(doc.Elements().size(), 7u);
  EXPECT_EQ(*doc.Elements()[0].Pin(), component.Pins()[0]);
  EXPECT_EQ(*doc.Elements()[1].Pin(), component.Pins()[1]);
  for (std::size_t i = 0; i < 5; ++i) {
    const SCompEditElm& element = doc.Elements()[i + 2];
    EXPECT_EQ(element.GetKind(), SCompEditElm::Kind::Object);
    EXPECT_EQ(element.Pin(), nullptr);
    EXPECT_EQ(RecordOf(*element.Object()), RecordOf(*component.Pattern()->objects[i]));
    EXPECT_NE(element.Object(), component.Pattern()->objects[i].get());
  }
  for (const SCompEditElm& element : doc.Elements()) {
    EXPECT_TRUE(element.IsAlive());
    EXPECT_EQ(element.CreatedBy(), 0);
    EXPECT_FALSE(element.Source());
  }
  EXPECT_FALSE(doc.CanUndo());
  EXPECT_FALSE(doc.IsDirty());
}

TEST(CompEditDocTest, LoadOfAComponentWithoutPatternTakesItsPins) {
  const SComponent component = MakeComponent(kSize, 1, {MakePin(PinSide::Left, 1)}, Drawn::No);
  SCompEditDoc doc;
  doc.Load(&component);
  ASSERT_EQ(doc.Elements().size(), 1u);
  EXPECT_EQ(doc.Elements()[0].GetKind(), SCompEditElm::Kind::Pin);
  EXPECT_EQ(doc.Elements()[0].Object(), nullptr);
}

TEST(CompEditDocTest, LoadForgetsWhatWasThereBefore) {
  const SComponent component = Drawing();
  SCompEditDoc doc;
  doc.Load(&component);
  doc.RaiseOperation();
  doc.AddObject(component.Pattern()->objects[0].get());
  doc.SetDirty(true);
  doc.lastPinName = u"A1";
  doc.lastPinNumber = u"7";

  const SComponent other = MakeComponent({2, 2}, 2, {}, Drawn::No);
  doc.Load(&other);
  EXPECT_TRUE(doc.Elements().empty());
  EXPECT_TRUE(doc.Selection().empty());
  EXPECT_FALSE(doc.CanUndo());
  EXPECT_FALSE(doc.IsDirty());
  EXPECT_FALSE(doc.SelectionChanged());
  EXPECT_EQ(doc.Blocks(), 2);
  EXPECT_TRUE(doc.lastPinName.empty());
  EXPECT_TRUE(doc.lastPinNumber.empty());
}

TEST(CompEditDocTest, LoadOfNothingClears) {
  const SComponent component = MakeComponent(kSize, 3, {MakePin(PinSide::Left, 1)}, Drawn::No);
  SCompEditDoc doc;
  doc.Load(&component);
  doc.RaiseOperation();
  doc.Load(nullptr);
  EXPECT_TRUE(doc.Elements().empty());
  EXPECT_FALSE(doc.CanUndo());
  EXPECT_EQ(doc.Blocks(), 1);
}

TEST(CompEditDocTest, EditingLeavesTheLoadedComponentAlone) {
  const SComponent component = Drawing();
  const std::string before = RecordOf(component);
  SCompEditDoc doc;
  doc.Load(&component);
  doc.RaiseOperation();
  doc.PickObjectsInRect({-100, -100, 100, 100});
  doc.MoveSelection(3, 4);
  doc.ReleaseSelection();
  doc.RaiseOperation();
  ASSERT_TRUE(doc.PickPinByLocation({PinSide::Left, 1}));
  doc.SingleSelection()->Pin()->location = {PinSide::Top, 4};
  doc.SetSelectionChanged(true);
  doc.ReleaseSelection();
  EXPECT_EQ(RecordOf(component), before);
}

TEST(CompEditDocTest, ElementsKeepTheirPinsAndObjectsInPlace) {
  const SComponent component = Drawing();
  SCompEditDoc doc;
  doc.Load(&component);
  const SCompPin* const pin = doc.Elements()[0].Pin();
  const SPtnObj* const object = doc.Elements()[2].Object();
  for (int i = 0; i < 100; ++i) {
    doc.RaiseOperation();
    doc.AddObject(component.Pattern()->objects[0].get());
    doc.ReleaseSelection();
  }
  EXPECT_EQ(doc.Elements()[0].Pin(), pin);
  EXPECT_EQ(doc.Elements()[2].Object(), object);
}

TEST(CompEditDocTest, FindsTheFirstAlivePinAtALocation) {
  const SComponent component =
      MakeComponent(kSize, 1,
                    {MakePin(PinSide::Left, 1, u"A"), MakePin(PinSide::Top, 1, u"B"),
                     MakePin(PinSide::Top, 1, u"C")},
                    Drawn::No);
  SCompEditDoc doc;
  doc.Load(&component);
  EXPECT_EQ(doc.FindPinAtLocation({PinSide::Top, 1}), doc.Elements()[1].Pin());
  EXPECT_EQ(doc.FindPinAtLocation({PinSide::Top, 2}), nullptr);
  EXPECT_EQ(doc.FindPinAtLocation({PinSide::Right, 1}), nullptr);

  doc.RaiseOperation();
  ASSERT_TRUE(doc.PickPinByLocation({PinSide::Top, 1}));
  // What is selected does not count, so that a pin never stands in its own way.
  EXPECT_EQ(doc.FindPinAtLocation({PinSide::Top, 1}), doc.Elements()[2].Pin());
}

TEST(CompEditDocTest, PinGeometryIsThatOfTheBody) {
  const SComponent component = MakeComponent(kSize, 1, {}, Drawn::No);
  SCompEditDoc doc;
  doc.Load(&component);
  EXPECT_EQ(doc.PinPoint({PinSide::Right, 2}), (SPoint{60, 20}));
  EXPECT_EQ(doc.PinRect({PinSide::Bottom, 2}), (SRect{16, 40, 24, 50}));
  EXPECT_EQ(doc.PinLocationFromPoint({70, 20}), (SPinLocation{PinSide::Right, 2}));
}

// --- Write-back ----------------------------------------------------------------------------------

TEST(CompEditDocWriteBackTest, GivesTheComponentWhatTheDocumentShows) {
  SComponent component = Drawing();
  component.note = u"note";
  SCompEditDoc doc;
  doc.Load(&component);
  doc.RaiseOperation();
  ASSERT_TRUE(doc.PickPinByLocation({PinSide::Left, 1}));
  doc.DeleteSelection();
  doc.RaiseOperation();
  ASSERT_TRUE(doc.PickElement(2));
  doc.MoveSelection(1, 1);  // not released yet

  doc.WriteBack(component, SCompEditDoc::FarObjects::Keep);
  EXPECT_TRUE(doc.Selection().empty());
  EXPECT_EQ(component.Pins().size(), 1u);
  EXPECT_EQ(component.Pattern()->objects.size(), 5u);
  EXPECT_EQ(component.note, u"note");
  SCompEditDoc reloaded;
  reloaded.Load(&component);
  EXPECT_EQ(Shown(reloaded), Shown(doc));
}

TEST(CompEditDocWriteBackTest, OfAnUntouchedDocumentChangesNothing) {
  SComponent component =
      MakeComponent(kSize, 2, {MakePin(PinSide::Left, 1)}, Drawn::Yes, OneOfEach());
  const std::string before = RecordOf(component);
  SCompEditDoc doc;
  doc.Load(&component);
  doc.WriteBack(component, SCompEditDoc::FarObjects::Drop);
  EXPECT_EQ(RecordOf(component), before);
  EXPECT_FALSE(doc.IsDirty());
}

TEST(CompEditDocWriteBackTest, WritesCopies) {
  SComponent component = Drawing();
  SCompEditDoc doc;
  doc.Load(&component);
  doc.WriteBack(component, SCompEditDoc::FarObjects::Keep);
  const std::string written = RecordOf(component);
  doc.RaiseOperation();
  doc.PickObjectsInRect({-100, -100, 100, 100});
  doc.MoveSelection(3, 4);
  EXPECT_EQ(RecordOf(component), written);
}

TEST(CompEditDocWriteBackTest, PinsHaveOneNumberPerBlock) {
  SComponent component = MakeComponent(kSize, 3, {MakePin(PinSide::Left, 1)}, Drawn::No);
  SCompEditDoc doc;
  doc.Load(&component);
  doc.RaiseOperation();
  const SCompPin onePinOfOneBlock = MakePin(PinSide::Left, 2);
  doc.AddPin(&onePinOfOneBlock);
  doc.WriteBack(component, SCompEditDoc::FarObjects::Keep);
  EXPECT_EQ(component.BlockCount(), 3);
  ASSERT_EQ(component.Pins().size(), 2u);
  EXPECT_EQ(component.Pins()[0].NumberCount(), 3);
  EXPECT_EQ(component.Pins()[1].NumberCount(), 3);
}

TEST(CompEditDocWriteBackTest, SetsSizeAndBlocksOfTheDocument) {
  const SComponent loaded = MakeComponent(kSize, 3, {}, Drawn::No);
  SCompEditDoc doc;
  doc.Load(&loaded);
  SComponent other = MakeComponent({1, 1}, 1, {}, Drawn::Yes);
  doc.WriteBack(other, SCompEditDoc::FarObjects::Keep);
  EXPECT_EQ(other.Size(), kSize);
  EXPECT_EQ(other.BlockCount(), 3);
  EXPECT_EQ(other.PatternSize(), (SPoint{11, 11}));  // resizing the pattern is not its business
}

TEST(CompEditDocWriteBackTest, GivesNoPatternToAComponentWithoutOne) {
  SComponent component = MakeComponent(kSize, 1, {MakePin(PinSide::Left, 1)}, Drawn::No);
  SCompEditDoc doc;
  doc.Load(&component);
  doc.PasteObjects(OneOfEach(), 0, 0);
  doc.WriteBack(component, SCompEditDoc::FarObjects::Keep);
  EXPECT_EQ(component.Pattern(), nullptr);
  EXPECT_EQ(component.Pins().size(), 1u);
}

TEST(CompEditDocWriteBackTest, EmptiesThePatternWhenEverythingWasDeleted) {
  SComponent component = Drawing();
  SCompEditDoc doc;
  doc.Load(&component);
  doc.RaiseOperation();
  doc.PickObjectsInRect({-100, -100, 100, 100});
  doc.DeleteSelection();
  doc.WriteBack(component, SCompEditDoc::FarObjects::Keep);
  ASSERT_NE(component.Pattern(), nullptr);
  EXPECT_TRUE(component.Pattern()->objects.empty());
}

TEST(CompEditDocWriteBackTest, LeavesASharedPatternToTheOthers) {
  SComponent component = Drawing();
  auto shared = std::make_shared<SPtn>(*component.Pattern());
  component.SharePattern(shared);
  SCompEditDoc doc;
  doc.Load(&component);
  doc.RaiseOperation();
  doc.PickObjectsInRect({-100, -100, 100, 100});
  doc.DeleteSelection();
  doc.WriteBack(component, SCompEditDoc::FarObjects::Keep);
  EXPECT_TRUE(component.Pattern()->objects.empty());
  EXPECT_EQ(shared->objects.size(), 5u);
}

TEST(CompEditDocWriteBackTest, RaisesTheOperationAndKeepsTheChangeMark) {
  SComponent component = Drawing();
  SCompEditDoc doc;
  doc.Load(&component);
  doc.RaiseOperation();
  ASSERT_TRUE(doc.PickPinByLocation({PinSide::Left, 1}));
  doc.DeleteSelection();
  ASSERT_TRUE(doc.IsDirty());
  doc.WriteBack(component, SCompEditDoc::FarObjects::Drop);
  EXPECT_EQ(doc.Operation(), 2);
  EXPECT_TRUE(doc.IsDirty());
  doc.SetDirty(false);
  EXPECT_FALSE(doc.IsDirty());
}

TEST(CompEditDocWriteBackTest, FarObjectsAreThoseMoreThan15UnitsOutside) {
  Objects objects;
  objects.push_back(MakeCircle({-15, -15}, {75, 55}));  // up to the limit on every side
  objects.push_back(MakeCircle({-16, 0}, {10, 10}));
  objects.push_back(MakeCircle({0, -16}, {10, 10}));
  objects.push_back(MakeCircle({0, 0}, {76, 10}));
  objects.push_back(MakeCircle({0, 0}, {10, 56}));
  objects.push_back(MakeLine({-15, 0}, {-500, 0}));  // a line stays when it touches
  objects.push_back(MakeLine({-16, 0}, {-500, 0}));
  SComponent component =
      MakeComponent(kSize, 1, {MakePin(PinSide::Left, 1)}, Drawn::Yes, std::move(objects));
  SCompEditDoc doc;
  doc.Load(&component);
  doc.WriteBack(component, SCompEditDoc::FarObjects::Drop);
  EXPECT_TRUE(doc.IsDirty());
  EXPECT_EQ(component.Pins().size(), 1u);
  ASSERT_EQ(component.Pattern()->objects.size(), 2u);
  EXPECT_EQ(component.Pattern()->objects[0]->GetNode(0), (SPoint{-15, -15}));
  EXPECT_EQ(component.Pattern()->objects[1]->GetNode(0), (SPoint{-15, 0}));
}

TEST(CompEditDocWriteBackTest, FarObjectsStayWhenTheCheckIsOff) {
  Objects objects;
  objects.push_back(MakeCircle({1000, 1000}, {1010, 1010}));
  SComponent component = MakeComponent(kSize, 1, {}, Drawn::Yes, std::move(objects));
  SCompEditDoc doc;
  doc.Load(&component);
  doc.WriteBack(component, SCompEditDoc::FarObjects::Keep);
  EXPECT_FALSE(doc.IsDirty());
  EXPECT_EQ(component.Pattern()->objects.size(), 1u);
}

TEST(CompEditDocWriteBackTest, UndoBringsDroppedObjectsBack) {
  Objects objects;
  objects.push_back(MakeCircle({1000, 1000}, {1010, 1010}));
  objects.push_back(MakeCircle({0, 0}, {10, 10}));
  SComponent component = MakeComponent(kSize, 1, {}, Drawn::Yes, std::move(objects));
  SCompEditDoc doc;
  doc.Load(&component);
  const std::string loaded = Shown(doc);
  doc.WriteBack(component, SCompEditDoc::FarObjects::Drop);
  EXPECT_NE(Shown(doc), loaded);
  doc.SetDirty(false);

  EXPECT_TRUE(doc.Undo());
  EXPECT_EQ(Shown(doc), loaded);
  EXPECT_TRUE(doc.IsDirty());
}

TEST(CompEditDocWriteBackTest, DroppingIsAnOperationOfItsOwn) {
  Objects objects;
  objects.push_back(MakeCircle({0, 0}, {10, 10}));
  SComponent component = MakeComponent(kSize, 1, {}, Drawn::Yes, std::move(objects));
  SCompEditDoc doc;
  doc.Load(&component);
  doc.RaiseOperation();
  doc.PickObjectsInRect({0, 0, 10, 10});
  doc.MoveSelection(500, 0);
  doc.ReleaseSelection();
  const std::string moved = Shown(doc);
  doc.WriteBack(component, SCompEditDoc::FarObjects::Drop);
  EXPECT_THAT(Shown(doc), Not(HasSubstr("+C")));
  EXPECT_TRUE(doc.Undo());
  EXPECT_EQ(Shown(doc), moved);
}

}  // namespace
}  // namespace mivo

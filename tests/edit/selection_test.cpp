#include <gtest/gtest.h>

#include "comp_edit_doc.h"
#include "edit_samples.h"

namespace mivo {
namespace {

constexpr SPoint kSize{6, 4};
constexpr SRect kEverywhere{-1000, -1000, 1000, 1000};

class SelectionTest : public testing::Test {
 protected:
  void LoadWith(std::vector<SCompPin> pins, Objects objects) {
    component = MakeComponent(kSize, 1, std::move(pins), Drawn::Yes, std::move(objects));
    doc.Load(&component);
    doc.RaiseOperation();
  }
  void LoadSample() {
    LoadWith({MakePin(PinSide::Left, 1, u"IN"), MakePin(PinSide::Right, 2, u"Q")}, OneOfEach());
  }
  const SCompEditElm& Only() { return *doc.SingleSelection(); }

  SComponent component;
  SCompEditDoc doc;
};

TEST_F(SelectionTest, OperationsOnNoSelectionChangeNothing) {
  LoadSample();
  const std::string before = Shown(doc);
  const SRect rect = doc.SelectionRect();
  FakeClipboard clipboard;
  EXPECT_FALSE(doc.ReleaseSelection());
  EXPECT_FALSE(doc.DeleteSelection());
  EXPECT_FALSE(doc.SelectionHasPin());
  EXPECT_FALSE(doc.SelectionHasObject());
  EXPECT_FALSE(doc.SelectionContains({0, 0}));
  EXPECT_FALSE(doc.MoveSelection(1, 1));
  EXPECT_FALSE(doc.MirrorSelection());
  EXPECT_FALSE(doc.RotateSelection());
  EXPECT_FALSE(doc.CopyToClipboard(clipboard));
  EXPECT_FALSE(clipboard.text);
  EXPECT_EQ(doc.SingleSelection(), nullptr);
  doc.UpdateSelectionRect();
  EXPECT_EQ(doc.SelectionRect(), rect);
  EXPECT_EQ(Shown(doc), before);
  EXPECT_FALSE(doc.IsDirty());
  EXPECT_FALSE(doc.SelectionChanged());
}

TEST_F(SelectionTest, NothingIsAddedForNull) {
  LoadSample();
  EXPECT_FALSE(doc.AddPin(nullptr));
  EXPECT_FALSE(doc.AddObject(nullptr));
  EXPECT_TRUE(doc.Selection().empty());
  EXPECT_FALSE(doc.SelectionChanged());
}

TEST_F(SelectionTest, WhatIsAddedIsACopyUnderTheCurrentNumber) {
  LoadSample();
  const SCompPin pin = MakePin(PinSide::Top, 3);
  EXPECT_TRUE(doc.AddPin(&pin));
  ASSERT_NE(doc.SingleSelection(), nullptr);
  EXPECT_NE(Only().Pin(), &pin);
  EXPECT_EQ(*Only().Pin(), pin);
  EXPECT_EQ(Only().CreatedBy(), 1);
  EXPECT_TRUE(Only().IsAlive());
  EXPECT_FALSE(Only().Source());
  EXPECT_TRUE(doc.SelectionChanged());

  const auto line = MakeLine({1, 2}, {3, 4});
  EXPECT_TRUE(doc.AddObject(line.get()));
  ASSERT_EQ(doc.Selection().size(), 2u);
  EXPECT_EQ(doc.SingleSelection(), nullptr);
  EXPECT_NE(doc.Selection()[1].Object(), line.get());
  EXPECT_EQ(RecordOf(*doc.Selection()[1].Object()), RecordOf(*line));
  EXPECT_TRUE(doc.SelectionHasPin());
  EXPECT_TRUE(doc.SelectionHasObject());
}

// --- Picking -------------------------------------------------------------------------------------

TEST_F(SelectionTest, PickPinAtTakesThePinWhoseRectangleContainsThePoint) {
  // Left side, cell 1: (-10, 6) to (0, 14).
  for (const SPoint corner : {SPoint{-10, 6}, SPoint{0, 6}, SPoint{-10, 14}, SPoint{0, 14}}) {
    LoadSample();
    ASSERT_TRUE(doc.PickPinAt(corner));
    EXPECT_EQ(*Only().Pin(), component.Pins()[0]);
  }
  for (const SPoint outside : {SPoint{-11, 10}, SPoint{1, 10}, SPoint{-5, 5}, SPoint{-5, 15}}) {
    LoadSample();
    EXPECT_FALSE(doc.PickPinAt(outside));
    EXPECT_TRUE(doc.Selection().empty());
  }
}

TEST_F(SelectionTest, APickMarksTheElementAndSelectsItsCopy) {
  LoadSample();
  ASSERT_TRUE(doc.PickPinAt({-5, 10}));
  const SCompEditElm& source = doc.Elements()[0];
  EXPECT_FALSE(source.IsAlive());
  EXPECT_EQ(source.DeletedBy(), 1);
  EXPECT_EQ(Only().Source(), 0u);
  EXPECT_EQ(Only().CreatedBy(), 1);
  EXPECT_TRUE(Only().IsAlive());
  EXPECT_NE(Only().Pin(), source.Pin());
  EXPECT_EQ(*Only().Pin(), *source.Pin());
  EXPECT_FALSE(doc.SelectionChanged());
  EXPECT_EQ(doc.SelectionRect(), (SRect{-11, 5, 1, 15}));
}

TEST_F(SelectionTest, PicksTheFirstOfSeveralPinsAndSkipsDeletedOnes) {
  LoadWith({MakePin(PinSide::Left, 1, u"A"), MakePin(PinSide::Left, 1, u"B")}, {});
  ASSERT_TRUE(doc.PickPinAt({-5, 10}));
  EXPECT_EQ(Only().Source(), 0u);
  doc.DeleteSelection();
  doc.RaiseOperation();
  ASSERT_TRUE(doc.PickPinAt({-5, 10}));
  EXPECT_EQ(Only().Source(), 1u);
}

TEST_F(SelectionTest, PickPinAtNeverTakesAnObject) {
  LoadWith({}, OneOfEach());
  EXPECT_FALSE(doc.PickPinAt({10, 10}));
}

TEST_F(SelectionTest, PickPinByLocationComparesSideAndOffset) {
  LoadSample();
  EXPECT_FALSE(doc.PickPinByLocation({PinSide::Left, 2}));
  EXPECT_FALSE(doc.PickPinByLocation({PinSide::Right, 1}));
  ASSERT_TRUE(doc.PickPinByLocation({PinSide::Right, 2}));
  EXPECT_EQ(Only().Source(), 1u);
  EXPECT_FALSE(doc.SelectionChanged());
}

TEST_F(SelectionTest, ASinglePickReleasesTheSelectionBefore) {
  LoadSample();
  ASSERT_TRUE(doc.PickElement(2));
  doc.MoveSelection(1, 1);
  doc.RaiseOperation();
  ASSERT_TRUE(doc.PickPinAt({-5, 10}));
  EXPECT_EQ(doc.Selection().size(), 1u);
  EXPECT_FALSE(doc.SelectionChanged());
  ASSERT_EQ(doc.Elements().size(), 8u);  // the moved line
  EXPECT_EQ(doc.Elements()[7].CreatedBy(), 1);

  doc.RaiseOperation();
  ASSERT_TRUE(doc.PickPinByLocation({PinSide::Right, 2}));
  EXPECT_EQ(doc.Selection().size(), 1u);
  EXPECT_TRUE(doc.Elements()[0].IsAlive());
}

TEST_F(SelectionTest, APickThatHitsNothingReleasesTheSelectionToo) {
  LoadSample();
  ASSERT_TRUE(doc.PickElement(2));
  EXPECT_FALSE(doc.PickPinAt({30, 30}));
  EXPECT_TRUE(doc.Selection().empty());
  ASSERT_TRUE(doc.PickElement(2));
  EXPECT_FALSE(doc.PickPinByLocation({PinSide::Top, 9}));
  EXPECT_TRUE(doc.Selection().empty());
}

TEST_F(SelectionTest, PickElementTakesAliveElementsOnly) {
  LoadSample();
  EXPECT_FALSE(doc.PickElement(7));
  ASSERT_TRUE(doc.PickElement(6));
  EXPECT_EQ(Only().Source(), 6u);
  doc.DeleteSelection();
  EXPECT_FALSE(doc.PickElement(6));
  EXPECT_TRUE(doc.Selection().empty());
}

TEST_F(SelectionTest, PickElementOfTheSelectedElementPicksItAgain) {
  LoadSample();
  ASSERT_TRUE(doc.PickElement(2));
  ASSERT_TRUE(doc.PickElement(2));
  EXPECT_EQ(doc.Selection().size(), 1u);
}

TEST_F(SelectionTest, ABandPicksObjectsInsideAndLinesThatItTouches) {
  Objects objects;
  objects.push_back(MakeCircle({0, 0}, {10, 10}));
  objects.push_back(MakeCircle({0, 0}, {11, 10}));
  objects.push_back(MakeLine({10, 10}, {50, 50}));
  objects.push_back(MakeLine({11, 11}, {50, 50}));
  LoadWith({MakePin(PinSide::Left, 0)}, std::move(objects));
  EXPECT_EQ(doc.PickObjectsInRect({-50, -50, 10, 10}), 2u);
  ASSERT_EQ(doc.Selection().size(), 2u);
  EXPECT_EQ(doc.Selection()[0].Source(), 1u);
  EXPECT_EQ(doc.Selection()[1].Source(), 3u);
  EXPECT_EQ(doc.SelectionRect(), (SRect{-1, -1, 51, 51}));
  EXPECT_TRUE(doc.Elements()[0].IsAlive());
  EXPECT_EQ(doc.Elements()[1].DeletedBy(), 1);
}

TEST_F(SelectionTest, ABandDoesNotReleaseButMakesTheSelectionUnchanged) {
  LoadSample();
  ASSERT_TRUE(doc.PickElement(2));
  doc.SetSelectionChanged(true);
  EXPECT_EQ(doc.PickObjectsInRect({500, 500, 600, 600}), 0u);
  EXPECT_TRUE(doc.SelectionChanged());
  EXPECT_EQ(doc.PickObjectsInRect(kEverywhere), 4u);
  EXPECT_EQ(doc.Selection().size(), 5u);
  EXPECT_FALSE(doc.SelectionChanged());
}

// --- Releasing and deleting ----------------------------------------------------------------------

TEST_F(SelectionTest, ReleasedUnchangedItGoesBackWhereItCameFrom) {
  LoadSample();
  const std::string before = Shown(doc);
  EXPECT_EQ(doc.PickObjectsInRect(kEverywhere), 5u);
  EXPECT_NE(Shown(doc), before);
  EXPECT_TRUE(doc.ReleaseSelection());
  EXPECT_EQ(Shown(doc), before);
  EXPECT_EQ(doc.Elements().size(), 7u);
  EXPECT_FALSE(doc.IsDirty());
}

TEST_F(SelectionTest, ReleasedChangedItIsAppended) {
  LoadSample();
  ASSERT_TRUE(doc.PickElement(3));
  doc.MoveSelection(1, 0);
  const std::string selected = Selected(doc);
  doc.RaiseOperation();  // as the next gesture does before it releases
  EXPECT_TRUE(doc.ReleaseSelection());
  EXPECT_TRUE(doc.Selection().empty());
  EXPECT_FALSE(doc.SelectionChanged());
  EXPECT_TRUE(doc.IsDirty());
  ASSERT_EQ(doc.Elements().size(), 8u);
  const SCompEditElm& appended = doc.Elements()[7];
  EXPECT_EQ(RecordOf(*appended.Object()), selected);
  EXPECT_EQ(appended.CreatedBy(), 1);
  EXPECT_FALSE(appended.Source());
  EXPECT_FALSE(doc.Elements()[3].IsAlive());
}

TEST_F(SelectionTest, ADegenerateNewObjectDisappears) {
  LoadSample();
  const std::string before = Shown(doc);
  doc.AddObject(MakeCircle({5, 5}, {5, 5}).get());
  doc.AddObject(MakePolygon({{1, 1}, {1, 1}}).get());
  doc.AddObject(MakeText({0, 0}, u"").get());
  EXPECT_TRUE(doc.ReleaseSelection());
  EXPECT_EQ(Shown(doc), before);
  EXPECT_EQ(doc.Elements().size(), 7u);
}

// A line counts as worth keeping whatever its length.
TEST_F(SelectionTest, ANewLineOfNoLengthStays) {
  LoadSample();
  doc.AddObject(MakeLine({5, 5}, {5, 5}).get());
  EXPECT_TRUE(doc.ReleaseSelection());
  EXPECT_EQ(doc.Elements().size(), 8u);
}

TEST_F(SelectionTest, ADegenerateObjectDoesNotTakeOthersWithIt) {
  LoadSample();
  doc.AddObject(MakeCircle({5, 5}, {5, 5}).get());
  const SCompPin pin = MakePin(PinSide::Top, 3);
  doc.AddPin(&pin);
  doc.AddObject(MakeLine({0, 0}, {1, 1}).get());
  doc.ReleaseSelection();
  ASSERT_EQ(doc.Elements().size(), 9u);
  EXPECT_EQ(*doc.Elements()[7].Pin(), pin);
  EXPECT_EQ(doc.Elements()[8].Object()->GetType(), PtnObjType::Line);
}

TEST_F(SelectionTest, DeletingWhatWasThereIsAChange) {
  LoadSample();
  ASSERT_TRUE(doc.PickElement(2));
  EXPECT_TRUE(doc.DeleteSelection());
  EXPECT_TRUE(doc.Selection().empty());
  EXPECT_TRUE(doc.IsDirty());
  EXPECT_EQ(doc.Elements()[2].DeletedBy(), 1);
}

TEST_F(SelectionTest, DeletingWhatIsNewLeavesNothing) {
  LoadSample();
  const std::string before = Shown(doc);
  doc.AddObject(MakeLine({0, 0}, {1, 1}).get());
  EXPECT_TRUE(doc.DeleteSelection());
  EXPECT_FALSE(doc.IsDirty());
  EXPECT_FALSE(doc.SelectionChanged());
  EXPECT_EQ(Shown(doc), before);
  EXPECT_FALSE(doc.ReleaseSelection());
}

// --- Rectangle -----------------------------------------------------------------------------------

TEST_F(SelectionTest, TheRectangleIsOneUnitLargerThanTheUnionOfItsMembers) {
  LoadSample();
  doc.AddObject(MakeCircle({5, 30}, {15, 25}).get());
  EXPECT_EQ(doc.SelectionRect(), (SRect{4, 24, 16, 31}));
  const SCompPin pin = MakePin(PinSide::Top, 3);  // (26, -10) to (34, 0)
  doc.AddPin(&pin);
  EXPECT_EQ(doc.SelectionRect(), (SRect{4, -11, 35, 31}));
}

TEST_F(SelectionTest, ContainsIsInclusiveOnAllEdges) {
  LoadSample();
  doc.AddObject(MakeCircle({5, 25}, {15, 30}).get());  // rectangle (4, 24) to (16, 31)
  EXPECT_TRUE(doc.SelectionContains({4, 24}));
  EXPECT_TRUE(doc.SelectionContains({16, 31}));
  EXPECT_FALSE(doc.SelectionContains({3, 25}));
  EXPECT_FALSE(doc.SelectionContains({17, 25}));
  EXPECT_FALSE(doc.SelectionContains({10, 23}));
  EXPECT_FALSE(doc.SelectionContains({10, 32}));
  doc.ReleaseSelection();
  EXPECT_FALSE(doc.SelectionContains({10, 27}));
}

TEST_F(SelectionTest, TheRectangleFollowsChangesFromOutside) {
  LoadSample();
  ASSERT_TRUE(doc.PickPinByLocation({PinSide::Left, 1}));
  Only().Pin()->location = {PinSide::Bottom, 2};
  doc.SetSelectionChanged(true);
  EXPECT_EQ(doc.SelectionRect(), (SRect{15, 39, 25, 51}));

  doc.RaiseOperation();
  ASSERT_TRUE(doc.PickElement(6));  // the text, which a drawing now measures
  static_cast<SPtnObjText*>(Only().Object())->SetExtent(40, 12);
  doc.UpdateSelectionRect();
  EXPECT_EQ(doc.SelectionRect(), (SRect{3, 18, 45, 32}));
  EXPECT_FALSE(doc.SelectionChanged());
}

TEST_F(SelectionTest, TheRectangleWrapsWhereCoordinatesEnd) {
  constexpr std::int32_t kLargest = std::numeric_limits<std::int32_t>::max();
  constexpr std::int32_t kSmallest = std::numeric_limits<std::int32_t>::min();
  LoadSample();
  doc.AddObject(MakeCircle({kSmallest, kSmallest}, {kLargest, kLargest}).get());
  EXPECT_EQ(doc.SelectionRect(), (SRect{kLargest, kLargest, kSmallest, kSmallest}));
  EXPECT_TRUE(doc.MoveSelection(kLargest, kSmallest));
  EXPECT_TRUE(doc.MirrorSelection());
  EXPECT_TRUE(doc.RotateSelection());
}

// --- Move, mirror, rotate ------------------------------------------------------------------------

TEST_F(SelectionTest, MovesObjectsAndLeavesPins) {
  LoadSample();
  ASSERT_TRUE(doc.PickPinByLocation({PinSide::Left, 1}));
  EXPECT_EQ(doc.PickObjectsInRect({0, 0, 20, 28}), 4u);
  EXPECT_TRUE(doc.MoveSelection(3, -4));
  EXPECT_TRUE(doc.SelectionChanged());
  EXPECT_EQ(*doc.Selection()[0].Pin(), component.Pins()[0]);
  EXPECT_EQ(doc.Selection()[1].Object()->GetNode(0), (SPoint{5, -1}));
  EXPECT_EQ(doc.Selection()[2].Object()->GetNode(0), (SPoint{8, 1}));
}

TEST_F(SelectionTest, MovingByNothingIsNoChange) {
  LoadSample();
  ASSERT_TRUE(doc.PickElement(2));
  EXPECT_FALSE(doc.MoveSelection(0, 0));
  EXPECT_FALSE(doc.SelectionChanged());
  EXPECT_TRUE(doc.MoveSelection(0, 1));
  EXPECT_TRUE(doc.SelectionChanged());
}

TEST_F(SelectionTest, OnlyPinsAreNeitherMovedNorMirroredNorRotated) {
  LoadSample();
  ASSERT_TRUE(doc.PickPinByLocation({PinSide::Left, 1}));
  const SRect rect = doc.SelectionRect();
  EXPECT_FALSE(doc.MoveSelection(3, 3));
  EXPECT_FALSE(doc.MirrorSelection());
  EXPECT_FALSE(doc.RotateSelection());
  EXPECT_EQ(doc.SelectionRect(), rect);
  EXPECT_FALSE(doc.SelectionChanged());
  EXPECT_EQ(*Only().Pin(), component.Pins()[0]);
}

TEST_F(SelectionTest, MirrorsAboutTheMiddleOfTheRectangle) {
  LoadWith({}, {});
  doc.AddObject(MakeCircle({0, 0}, {10, 10}).get());
  doc.AddObject(MakeLine({15, 2}, {21, 4}).get());
  ASSERT_EQ(doc.SelectionRect(), (SRect{-1, -1, 22, 11}));  // middle at 21 ÷ 2 = 10
  EXPECT_TRUE(doc.MirrorSelection());
  EXPECT_EQ(doc.Selection()[0].Object()->GetNode(0), (SPoint{20, 0}));
  EXPECT_EQ(doc.Selection()[1].Object()->GetNode(0), (SPoint{5, 2}));
  EXPECT_EQ(doc.Selection()[1].Object()->GetNode(1), (SPoint{-1, 4}));
  EXPECT_EQ(doc.SelectionRect(), (SRect{-2, -1, 21, 11}));
  EXPECT_TRUE(doc.SelectionChanged());
}

TEST_F(SelectionTest, TheMiddleIsTruncatedTowardZero) {
  LoadWith({}, {});
  doc.AddObject(MakeLine({-9, 0}, {-2, 0}).get());
  ASSERT_EQ(doc.SelectionRect(), (SRect{-10, -1, -1, 1}));  // middle at -11 ÷ 2 = -5
  EXPECT_TRUE(doc.MirrorSelection());
  EXPECT_EQ(Only().Object()->GetNode(0), (SPoint{-1, 0}));
}

TEST_F(SelectionTest, RotatesAboutTheMiddleOfTheRectangle) {
  LoadWith({}, {});
  const SCompPin pin = MakePin(PinSide::Top, 3);
  doc.AddObject(MakeLine({0, 0}, {10, 4}).get());
  doc.AddObject(MakeLine({2, 10}, {4, 10}).get());
  ASSERT_EQ(doc.SelectionRect(), (SRect{-1, -1, 11, 11}));  // middle at (5, 5)
  EXPECT_TRUE(doc.RotateSelection());
  EXPECT_EQ(doc.Selection()[0].Object()->GetNode(0), (SPoint{10, 0}));
  EXPECT_EQ(doc.Selection()[0].Object()->GetNode(1), (SPoint{6, 10}));
  EXPECT_EQ(doc.Selection()[1].Object()->GetNode(0), (SPoint{0, 2}));
  EXPECT_EQ(doc.SelectionRect(), (SRect{-1, -1, 11, 11}));
}

TEST_F(SelectionTest, AMixedSelectionTurnsItsObjectsOnly) {
  LoadWith({}, {});
  const SCompPin pin = MakePin(PinSide::Top, 1);  // (6, -10) to (14, 0)
  doc.AddPin(&pin);
  doc.AddObject(MakeLine({6, 0}, {14, 10}).get());
  doc.SetSelectionChanged(false);
  EXPECT_TRUE(doc.MirrorSelection());
  EXPECT_TRUE(doc.SelectionChanged());
  EXPECT_EQ(*doc.Selection()[0].Pin(), pin);
  EXPECT_EQ(doc.Selection()[1].Object()->GetNode(0), (SPoint{14, 0}));
}

TEST_F(SelectionTest, PasteMovesAndSelectsUnderOneNumber) {
  LoadSample();
  doc.PasteObjects(OneOfEach(), 100, 200);
  EXPECT_EQ(doc.Operation(), 2);
  EXPECT_TRUE(doc.SelectionChanged());
  ASSERT_EQ(doc.Selection().size(), 5u);
  EXPECT_EQ(doc.Selection()[0].Object()->GetNode(0), (SPoint{102, 203}));
  for (const SCompEditElm& element : doc.Selection()) {
    EXPECT_EQ(element.CreatedBy(), 2);
    EXPECT_FALSE(element.Source());
  }
  EXPECT_TRUE(doc.SelectionContains({110, 210}));
}

TEST_F(SelectionTest, PasteOfNothingTakesANumberAllTheSame) {
  LoadSample();
  doc.PasteObjects({}, 100, 200);
  EXPECT_EQ(doc.Operation(), 2);
  EXPECT_FALSE(doc.SelectionChanged());
  EXPECT_TRUE(doc.Selection().empty());
}

}  // namespace
}  // namespace mivo

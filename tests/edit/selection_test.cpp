#include <gtest/gtest.h>

#include "comp_edit_doc.h"
#include "edit_samples.h"
#include "selection_fixture.h"

namespace mivo {
namespace {

constexpr SRect kEverywhere{-1000, -1000, 1000, 1000};

using SelectionTest = SelectionFixture;

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

}  // namespace
}  // namespace mivo

#include <gtest/gtest.h>

#include <limits>

#include "comp_edit_doc.h"
#include "edit_samples.h"
#include "selection_fixture.h"

namespace mivo {
namespace {

using SelectionChangeTest = SelectionFixture;

// --- Rectangle -----------------------------------------------------------------------------------

TEST_F(SelectionChangeTest, TheRectangleIsOneUnitLargerThanTheUnionOfItsMembers) {
  LoadSample();
  doc.AddObject(MakeCircle({5, 30}, {15, 25}).get());
  EXPECT_EQ(doc.SelectionRect(), (SRect{4, 24, 16, 31}));
  const SCompPin pin = MakePin(PinSide::Top, 3);  // (26, -10) to (34, 0)
  doc.AddPin(&pin);
  EXPECT_EQ(doc.SelectionRect(), (SRect{4, -11, 35, 31}));
}

TEST_F(SelectionChangeTest, ContainsIsInclusiveOnAllEdges) {
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

TEST_F(SelectionChangeTest, TheRectangleFollowsChangesFromOutside) {
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

TEST_F(SelectionChangeTest, TheRectangleWrapsWhereCoordinatesEnd) {
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

TEST_F(SelectionChangeTest, MovesObjectsAndLeavesPins) {
  LoadSample();
  ASSERT_TRUE(doc.PickPinByLocation({PinSide::Left, 1}));
  EXPECT_EQ(doc.PickObjectsInRect({0, 0, 20, 28}), 4u);
  EXPECT_TRUE(doc.MoveSelection(3, -4));
  EXPECT_TRUE(doc.SelectionChanged());
  EXPECT_EQ(*doc.Selection()[0].Pin(), component.Pins()[0]);
  EXPECT_EQ(doc.Selection()[1].Object()->GetNode(0), (SPoint{5, -1}));
  EXPECT_EQ(doc.Selection()[2].Object()->GetNode(0), (SPoint{8, 1}));
}

TEST_F(SelectionChangeTest, MovingByNothingIsNoChange) {
  LoadSample();
  ASSERT_TRUE(doc.PickElement(2));
  EXPECT_FALSE(doc.MoveSelection(0, 0));
  EXPECT_FALSE(doc.SelectionChanged());
  EXPECT_TRUE(doc.MoveSelection(0, 1));
  EXPECT_TRUE(doc.SelectionChanged());
}

TEST_F(SelectionChangeTest, OnlyPinsAreNeitherMovedNorMirroredNorRotated) {
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

TEST_F(SelectionChangeTest, MirrorsAboutTheMiddleOfTheRectangle) {
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

TEST_F(SelectionChangeTest, TheMiddleIsTruncatedTowardZero) {
  LoadWith({}, {});
  doc.AddObject(MakeLine({-9, 0}, {-2, 0}).get());
  ASSERT_EQ(doc.SelectionRect(), (SRect{-10, -1, -1, 1}));  // middle at -11 ÷ 2 = -5
  EXPECT_TRUE(doc.MirrorSelection());
  EXPECT_EQ(Only().Object()->GetNode(0), (SPoint{-1, 0}));
}

TEST_F(SelectionChangeTest, RotatesAboutTheMiddleOfTheRectangle) {
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

TEST_F(SelectionChangeTest, AMixedSelectionTurnsItsObjectsOnly) {
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

TEST_F(SelectionChangeTest, PasteMovesAndSelectsUnderOneNumber) {
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

TEST_F(SelectionChangeTest, PasteOfNothingTakesANumberAllTheSame) {
  LoadSample();
  doc.PasteObjects({}, 100, 200);
  EXPECT_EQ(doc.Operation(), 2);
  EXPECT_FALSE(doc.SelectionChanged());
  EXPECT_TRUE(doc.Selection().empty());
}

}  // namespace
}  // namespace mivo

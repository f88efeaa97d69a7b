#include <gtest/gtest.h>

#include "comp_edit_doc.h"
#include "edit_samples.h"

namespace mivo {
namespace {

constexpr SPoint kSize{6, 4};
constexpr SRect kEverywhere{-1000, -1000, 1000, 1000};

class UndoTest : public testing::Test {
 protected:
  void SetUp() override {
    component = MakeComponent(kSize, 1,
                              {MakePin(PinSide::Left, 1, u"IN"), MakePin(PinSide::Right, 2, u"Q")},
                              Drawn::Yes, OneOfEach());
    doc.Load(&component);
    loaded = Shown(doc);
  }

  void PickLine() {
    doc.RaiseOperation();
    ASSERT_TRUE(doc.PickElement(2));
  }

  SComponent component;
  SCompEditDoc doc;
  std::string loaded;
};

TEST_F(UndoTest, RightAfterLoadingReturnsFalse) {
  EXPECT_FALSE(doc.CanUndo());
  EXPECT_FALSE(doc.Undo());
  EXPECT_EQ(Shown(doc), loaded);
  EXPECT_FALSE(doc.IsDirty());
}

TEST_F(UndoTest, OfAnEmptyDocumentReturnsFalseAndTakesTheNumberBack) {
  SCompEditDoc empty;
  empty.RaiseOperation();
  EXPECT_TRUE(empty.CanUndo());
  EXPECT_FALSE(empty.Undo());
  EXPECT_FALSE(empty.CanUndo());
}

TEST_F(UndoTest, APickReleasedUnchangedLeavesNoHistory) {
  PickLine();
  doc.MoveSelection(5, 5);
  doc.ReleaseSelection();
  const std::string moved = Shown(doc);

  doc.RaiseOperation();
  ASSERT_TRUE(doc.PickElement(3));
  EXPECT_TRUE(doc.ReleaseSelection());
  EXPECT_EQ(Shown(doc), moved);
  EXPECT_EQ(doc.Operation(), 2);

  EXPECT_TRUE(doc.Undo());  // skips the number of the pick
  EXPECT_EQ(Shown(doc), loaded);
  EXPECT_EQ(doc.Operation(), 0);
}

TEST_F(UndoTest, OnlyNumbersWithoutATraceReturnFalseAndAreTakenBack) {
  for (int i = 0; i < 5; ++i) {
    PickLine();
    doc.ReleaseSelection();
  }
  EXPECT_TRUE(doc.CanUndo());
  EXPECT_FALSE(doc.Undo());
  EXPECT_FALSE(doc.CanUndo());
  EXPECT_FALSE(doc.IsDirty());
}

TEST_F(UndoTest, OfAMoveGivesThePlaceBack) {
  PickLine();
  doc.MoveSelection(5, 5);
  doc.ReleaseSelection();
  EXPECT_NE(Shown(doc), loaded);
  EXPECT_TRUE(doc.Undo());
  EXPECT_EQ(Shown(doc), loaded);
}

TEST_F(UndoTest, ReleasesAFloatingChangeAndReversesIt) {
  PickLine();
  doc.MoveSelection(5, 5);
  EXPECT_TRUE(doc.Undo());
  EXPECT_TRUE(doc.Selection().empty());
  EXPECT_EQ(Shown(doc), loaded);
}

TEST_F(UndoTest, OfADeletionRevives) {
  doc.RaiseOperation();
  doc.PickObjectsInRect(kEverywhere);
  doc.DeleteSelection();
  doc.RaiseOperation();
  ASSERT_TRUE(doc.PickPinByLocation({PinSide::Left, 1}));
  doc.DeleteSelection();
  EXPECT_TRUE(doc.Undo());
  EXPECT_TRUE(doc.Undo());
  EXPECT_EQ(Shown(doc), loaded);
  EXPECT_FALSE(doc.Undo());
}

TEST_F(UndoTest, OfADeletedMoveGivesTheFirstPlaceBack) {
  PickLine();
  doc.MoveSelection(5, 5);
  doc.DeleteSelection();
  EXPECT_TRUE(doc.Undo());
  EXPECT_EQ(Shown(doc), loaded);
}

TEST_F(UndoTest, OfAnAdditionRemoves) {
  doc.RaiseOperation();
  const SCompPin pin = MakePin(PinSide::Top, 3);
  doc.AddPin(&pin);
  doc.ReleaseSelection();
  doc.RaiseOperation();
  doc.AddObject(MakeLine({0, 0}, {1, 1}).get());
  doc.ReleaseSelection();
  EXPECT_TRUE(doc.Undo());
  EXPECT_TRUE(doc.Undo());
  EXPECT_EQ(Shown(doc), loaded);
}

TEST_F(UndoTest, OfAPasteRemovesAllOfItAtOnce) {
  doc.PasteObjects(OneOfEach(), 3, 3);
  EXPECT_EQ(doc.Operation(), 1);
  doc.ReleaseSelection();
  EXPECT_EQ(doc.Elements().size(), 12u);
  EXPECT_TRUE(doc.Undo());
  EXPECT_EQ(Shown(doc), loaded);
}

TEST_F(UndoTest, OfAChangedPinGivesThePinBack) {
  doc.RaiseOperation();
  ASSERT_TRUE(doc.PickPinByLocation({PinSide::Right, 2}));
  doc.SingleSelection()->Pin()->location = {PinSide::Bottom, 1};
  doc.SingleSelection()->Pin()->SetNameFromDisplayText(u"\\Q");
  doc.SetSelectionChanged(true);
  doc.ReleaseSelection();
  EXPECT_NE(Shown(doc), loaded);
  EXPECT_TRUE(doc.Undo());
  EXPECT_EQ(Shown(doc), loaded);
}

TEST_F(UndoTest, OfAnObjectEditedToNothingGivesItBack) {
  doc.RaiseOperation();
  ASSERT_TRUE(doc.PickElement(3));  // the ellipse
  SPtnObj& circle = *doc.SingleSelection()->Object();
  circle.SetNode(0, circle.GetNode(1).x, circle.GetNode(1).y);
  doc.SetSelectionChanged(true);
  doc.ReleaseSelection();
  EXPECT_EQ(Shown(doc).find("+C"), std::string::npos);
  EXPECT_TRUE(doc.Undo());
  EXPECT_EQ(Shown(doc), loaded);
}

TEST_F(UndoTest, GoesBackOperationByOperation) {
  std::vector<std::string> states{loaded};
  for (int i = 1; i <= 20; ++i) {
    doc.RaiseOperation();
    // The element that was moved last stands at the end of the list.
    ASSERT_TRUE(doc.PickElement(i == 1 ? 2 : doc.Elements().size() - 1));
    doc.MoveSelection(i, -i);
    doc.ReleaseSelection();
    states.push_back(Shown(doc));
  }
  while (!states.empty()) {
    ASSERT_EQ(Shown(doc), states.back());
    states.pop_back();
    ASSERT_EQ(doc.Undo(), !states.empty());
  }
}

TEST_F(UndoTest, AfterAnUndoEditingGoesOnWithTheNumberThatWasTakenBack) {
  PickLine();
  doc.MoveSelection(5, 5);
  doc.Undo();
  PickLine();
  doc.MoveSelection(-5, -5);
  doc.ReleaseSelection();
  EXPECT_EQ(doc.Operation(), 1);
  EXPECT_TRUE(doc.Undo());
  EXPECT_EQ(Shown(doc), loaded);
}

TEST_F(UndoTest, SetsTheChangeMarkThatMayHaveBeenTakenBack) {
  PickLine();
  doc.MoveSelection(5, 5);
  doc.WriteBack(component, SCompEditDoc::FarObjects::Keep);
  doc.SetDirty(false);
  EXPECT_TRUE(doc.Undo());
  EXPECT_TRUE(doc.IsDirty());

  doc.SetDirty(false);
  EXPECT_FALSE(doc.Undo());
  EXPECT_FALSE(doc.IsDirty());
}

TEST_F(UndoTest, NumbersTakenBackAreGivenOutAgain) {
  EXPECT_EQ(doc.Operation(), 0);
  doc.LowerOperation();
  EXPECT_EQ(doc.Operation(), 0);
  doc.RaiseOperation();
  doc.RaiseOperation();
  doc.LowerOperation();
  EXPECT_EQ(doc.Operation(), 1);
}

TEST_F(UndoTest, OfAPickThatHitNothingFindsTheOperationBefore) {
  PickLine();
  doc.MoveSelection(5, 5);
  doc.RaiseOperation();
  EXPECT_FALSE(doc.PickPinAt({30, 30}));  // releases the moved line on the way
  doc.LowerOperation();
  EXPECT_EQ(doc.Operation(), 1);
  EXPECT_TRUE(doc.Undo());
  EXPECT_EQ(Shown(doc), loaded);
}

}  // namespace
}  // namespace mivo

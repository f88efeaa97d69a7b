#include "pin_rows.h"

#include <gtest/gtest.h>

#include <rapidcheck/gtest.h>

#include <algorithm>
#include <vector>

#include "grid_rig.h"

namespace mivo {
namespace {

using PinRowsTest = GridTest;

TEST_F(PinRowsTest, RowsRunAroundTheBody) {
  Open(MakeComponent({{PinSide::Top, 2},
                      {PinSide::Right, 1},
                      {PinSide::Left, 3},
                      {PinSide::Bottom, 2},
                      {PinSide::Left, 1}}));
  EXPECT_EQ(Listed(), "L1 L3 B2 R1 T2");
}

TEST_F(PinRowsTest, RightSideRunsUpward) {
  Open(MakeComponent({{PinSide::Right, 1}, {PinSide::Right, 3}}));
  EXPECT_EQ(Listed(), "R3 R1");
}

TEST_F(PinRowsTest, TopRunsFromRightToLeft) {
  Open(MakeComponent({{PinSide::Top, 4}, {PinSide::Top, 9}, {PinSide::Top, 5}}));
  EXPECT_EQ(Listed(), "T9 T5 T4");
}

TEST_F(PinRowsTest, OffsetsAreOrderedAsNumbers) {
  Open(MakeComponent({{PinSide::Left, 10}, {PinSide::Left, 9}, {PinSide::Left, 255}}));
  EXPECT_EQ(Listed(), "L9 L10 L255");
}

TEST_F(PinRowsTest, SelectedPinStandsInItsPlaceOnce) {
  Open(MakeComponent({{PinSide::Left, 1}, {PinSide::Left, 3}, {PinSide::Bottom, 2}}));
  ASSERT_TRUE(Editor().SelectPin({PinSide::Left, 3}));
  EXPECT_EQ(Listed(), "L1 [L3] B2");
}

TEST_F(PinRowsTest, DeletedPinsAreNotListed) {
  Open(MakeComponent({{PinSide::Left, 1}, {PinSide::Left, 3}}));
  ASSERT_TRUE(Editor().SelectPin({PinSide::Left, 1}));
  Editor().Execute(Command::Delete);
  EXPECT_EQ(Listed(), "L3");
}

TEST_F(PinRowsTest, NothingOpenMeansNoRows) {
  EXPECT_EQ(Listed(), "");
  EXPECT_EQ(Grid().SelectedRow(), -1);
}

TEST(LocationText, IsLetterAndOffset) {
  EXPECT_EQ(LocationText({PinSide::Left, 3}), u"L3");
  EXPECT_EQ(LocationText({PinSide::Top, 0}), u"T0");
  EXPECT_EQ(LocationText({PinSide::Right, 12}), u"R12");
  EXPECT_EQ(LocationText({PinSide::Bottom, 255}), u"B255");
}

// Whatever pins there are, at places of their own or not: each has a row, and from row to row the
// way around the body goes on.
RC_GTEST_PROP(PinRowsProperty, EveryPinHasARowOnTheWayAround, ()) {
  const auto places = *rc::gen::container<std::vector<std::pair<int, int>>>(
      rc::gen::pair(rc::gen::inRange(0, 4), rc::gen::inRange(0, 20)));
  std::vector<PinSpec> specs;
  for (const auto& [side, offset] : places) specs.push_back({static_cast<PinSide>(side), offset});
  SComponent component = MakeComponent(specs);
  EditorRig rig;
  rig.editor.SetComponent(&component);
  const bool isSelected =
      !specs.empty() && rig.editor.SelectPin({specs.front().side, specs.front().offset});

  const std::vector<PinRow> rows = PinRows(rig.editor.Document());
  std::vector<std::pair<int, int>> listed;
  for (const PinRow& row : rows) {
    listed.emplace_back(static_cast<int>(row.pin->location.side), row.pin->location.offset);
  }
  std::vector<std::pair<int, int>> sortedPlaces = places;
  std::vector<std::pair<int, int>> sortedRows = listed;
  std::sort(sortedPlaces.begin(), sortedPlaces.end());
  std::sort(sortedRows.begin(), sortedRows.end());
  RC_ASSERT(sortedRows == sortedPlaces);

  RC_ASSERT(std::count_if(rows.begin(), rows.end(), [](const PinRow& row) {
              return row.isSelected;
            }) == (isSelected ? 1 : 0));

  constexpr std::array<int, 4> kRank = {0, 3, 2, 1};  // of left, top, right, bottom
  for (std::size_t i = 1; i < listed.size(); ++i) {
    const auto [side, offset] = listed[i];
    const auto [sideBefore, offsetBefore] = listed[i - 1];
    const int rank = kRank[static_cast<std::size_t>(side)];
    const int rankBefore = kRank[static_cast<std::size_t>(sideBefore)];
    RC_ASSERT(rankBefore <= rank);
    if (rankBefore != rank) continue;
    const bool isDownOrRight = side == 0 || side == 3;
    RC_ASSERT((isDownOrRight ? offsetBefore <= offset : offsetBefore >= offset));
  }
}

}  // namespace
}  // namespace mivo

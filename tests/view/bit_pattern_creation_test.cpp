#include "bit_pattern_creation.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "block_text_surface.h"
#include "case_name.h"
#include "ptn_obj_circle.h"
#include "ptn_obj_line.h"
#include "ptn_obj_polygon.h"
#include "ptn_obj_text.h"

namespace mivo {
namespace {

class BitPatternCreation : public testing::Test {
 protected:
  BitPatternCreation() { Resize({5, 3}); }

  // Makes a component with a pattern of `pixels` whose bits are all clear.
  void Resize(SPoint pixels) {
    component_.UsePattern(true, false);
    component_.MutablePattern()->SetBitPatternArea(pixels, false);
  }

  void Add(std::unique_ptr<SPtnObj> object) {
    component_.MutablePattern()->objects.push_back(std::move(object));
  }
  void AddLine(SPoint start, SPoint end) {
    auto line = std::make_unique<SPtnObjLine>();
    line->SetStart(start);
    line->SetEnd(end);
    Add(std::move(line));
  }

  void Load() { document_.Load(&component_); }
  bool Create() { return CreateBitPattern(&component_, document_, surfaces_, {}); }
  bool LoadAndCreate() {
    Load();
    return Create();
  }

  const std::vector<std::uint8_t>& Bytes() const {
    return component_.Pattern()->bitPattern->Bytes();
  }
  std::string Bits() const {
    const SPtn& pattern = *component_.Pattern();
    const std::int32_t stride = SBitPattern::Stride(pattern.size.x);
    std::string text;
    for (std::int32_t y = 0; y < pattern.size.y; ++y) {
      for (std::int32_t x = 0; x < pattern.size.x; ++x) {
        const auto byte = Bytes()[static_cast<std::size_t>(y * stride + x / 8)];
        text += (byte & (0x80 >> (x % 8))) != 0 ? '#' : '.';
      }
      text += '\n';
    }
    return text;
  }

  SComponent component_;
  SCompEditDoc document_;
  BlockTextSurfaceFactory surfaces_;
};

TEST_F(BitPatternCreation, DrawsOnePixelPerUnit) {
  AddLine({1, 1}, {3, 1});
  EXPECT_TRUE(LoadAndCreate());
  EXPECT_EQ(Bits(),
            ".....\n"
            ".###.\n"
            ".....\n");
}

TEST_F(BitPatternCreation, OverwritesTheOldBits) {
  AddLine({0, 0}, {0, 0});
  Load();
  component_.MutablePattern()->bitPattern->Row(5, 2)[0] = 0xFF;
  EXPECT_TRUE(Create());
  EXPECT_EQ(Bits(),
            "#....\n"
            ".....\n"
            ".....\n");
}

TEST_F(BitPatternCreation, DrawsInListOrderAndContrastingFillsWhite) {
  auto ellipse = std::make_unique<SPtnObjCircle>(SPoint{0, 0}, SPoint{4, 2});
  ellipse->fill = 1;
  Add(std::move(ellipse));
  auto polygon =
      std::make_unique<SPtnObjPolygon>(std::vector<SPoint>{{1, 0}, {3, 0}, {3, 2}, {1, 2}});
  polygon->fill = 0;
  Add(std::move(polygon));
  EXPECT_TRUE(LoadAndCreate());
  EXPECT_EQ(Bits(),
            ".###.\n"
            "##.##\n"
            ".###.\n");
}

TEST_F(BitPatternCreation, DrawsTexts) {
  auto text = std::make_unique<SPtnObjText>();
  text->SetText(u"I");
  text->SetPosition({1, 1});
  text->SetAlign(SPtnObjText::kUpper);
  Add(std::move(text));
  EXPECT_TRUE(LoadAndCreate());
  EXPECT_EQ(Bits(),
            ".....\n"
            ".####\n"
            ".####\n");
}

TEST_F(BitPatternCreation, PinsAreNotDrawn) {
  component_.SetPins({SCompPin(1)});
  EXPECT_TRUE(LoadAndCreate());
  EXPECT_EQ(Bits().find('#'), std::string::npos);
}

TEST_F(BitPatternCreation, DeletedObjectsAreNotDrawn) {
  AddLine({0, 0}, {4, 0});
  AddLine({0, 2}, {4, 2});
  Load();
  document_.RaiseOperation();
  ASSERT_TRUE(document_.PickElement(0));
  ASSERT_TRUE(document_.DeleteSelection());
  EXPECT_TRUE(Create());
  EXPECT_EQ(Bits(),
            ".....\n"
            ".....\n"
            "#####\n");
}

TEST_F(BitPatternCreation, ReleasesTheSelectionFirst) {
  AddLine({0, 0}, {4, 0});
  Load();
  document_.RaiseOperation();
  ASSERT_TRUE(document_.PickElement(0));
  ASSERT_TRUE(document_.MoveSelection(0, 1));
  EXPECT_TRUE(Create());
  EXPECT_TRUE(document_.Selection().empty());
  EXPECT_EQ(Bits(),
            ".....\n"
            "#####\n"
            ".....\n");
}

TEST_F(BitPatternCreation, ObjectsAreCutOffAtTheBorder) {
  AddLine({-100, 1}, {100, 1});
  AddLine({2, -100}, {2, 100});
  EXPECT_TRUE(LoadAndCreate());
  EXPECT_EQ(Bits(),
            "..#..\n"
            "#####\n"
            "..#..\n");
}

struct WidthCase {
  const char* name;
  std::int32_t width;
  std::vector<std::uint8_t> row;  // with a line through all of it
};

class CreatedRow : public BitPatternCreation, public testing::WithParamInterface<WidthCase> {};

TEST_P(CreatedRow, HasWholeWordsAndClearPadding) {
  Resize({GetParam().width, 2});
  AddLine({-5, 0}, {1000, 0});
  EXPECT_TRUE(LoadAndCreate());
  std::vector<std::uint8_t> expected = GetParam().row;
  expected.resize(2 * expected.size(), 0);
  EXPECT_EQ(Bytes(), expected);
}

INSTANTIATE_TEST_SUITE_P(
    Widths, CreatedRow,
    testing::Values(WidthCase{"OnePixel", 1, {0x80, 0}}, WidthCase{"WholeByte", 8, {0xFF, 0}},
                    WidthCase{"WholeWord", 16, {0xFF, 0xFF}},
                    // 4 bytes in the image and in the pattern.
                    WidthCase{"Wide17", 17, {0xFF, 0xFF, 0x80, 0}},
                    // 8 bytes in the image, 6 in the pattern.
                    WidthCase{"Wide33", 33, {0xFF, 0xFF, 0xFF, 0xFF, 0x80, 0}}),
    kCaseName);

TEST_F(BitPatternCreation, RowsBeyond501PixelsAreDrawnAsFarAsTheyAreStored) {
  component_.MutablePattern()->size = {600, 2};
  component_.MutablePattern()->bitPattern = SBitPattern({600, 2});
  AddLine({0, 0}, {599, 0});
  EXPECT_TRUE(LoadAndCreate());
  std::vector<std::uint8_t> expected(128, 0);
  std::fill_n(expected.begin(), 62, std::uint8_t{0xFF});
  expected[62] = 0xF8;  // 501 pixels
  EXPECT_EQ(Bytes(), expected);
}

TEST_F(BitPatternCreation, FailsWithoutAComponent) {
  EXPECT_FALSE(CreateBitPattern(nullptr, document_, surfaces_, {}));
}

TEST_F(BitPatternCreation, FailsWithoutAPattern) {
  component_.UsePattern(false, false);
  component_.SetPins({SCompPin(1)});
  EXPECT_FALSE(LoadAndCreate());
  EXPECT_EQ(component_.Pattern(), nullptr);
}

TEST_F(BitPatternCreation, FailsWithoutABitPatternToOverwrite) {
  component_.MutablePattern()->bitPattern.reset();
  AddLine({0, 0}, {4, 0});
  EXPECT_FALSE(LoadAndCreate());
  EXPECT_FALSE(component_.Pattern()->bitPattern);
}

TEST_F(BitPatternCreation, FailsWithoutElements) {
  EXPECT_FALSE(LoadAndCreate());
  EXPECT_EQ(Bits().find('#'), std::string::npos);
}

TEST_F(BitPatternCreation, FailsWhenTheBitPatternIsOfAnotherSize) {
  AddLine({0, 0}, {4, 0});
  component_.MutablePattern()->size = {50, 3};
  const std::vector<std::uint8_t> before = Bytes();
  EXPECT_FALSE(LoadAndCreate());
  EXPECT_EQ(Bytes(), before);
}

TEST_F(BitPatternCreation, ChangesOnlyThisComponentsPattern) {
  AddLine({0, 0}, {4, 0});
  SComponent other = component_;
  EXPECT_TRUE(LoadAndCreate());
  EXPECT_NE(component_.Pattern()->bitPattern->Bytes(), other.Pattern()->bitPattern->Bytes());
}

TEST_F(BitPatternCreation, IsNoOperation) {
  AddLine({0, 0}, {4, 0});
  Load();
  EXPECT_TRUE(Create());
  EXPECT_FALSE(document_.CanUndo());
}

}  // namespace
}  // namespace mivo

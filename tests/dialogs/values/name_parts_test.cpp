#include "name_parts.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace mivo {
namespace {

using Parts = std::vector<std::u16string_view>;

TEST(NameParts, EndAtSlashes) {
  struct Case {
    std::u16string_view name;
    Parts parts;
  };
  const Case cases[] = {
      {u"A", {u"A"}},
      {u"A/B", {u"A", u"B"}},
      {u"A/B\\/C/", {u"A", u"B\\/C", u""}},  // an overlined slash parts nothing
      {u"", {u""}},
      {u"/", {u"", u""}},
      {u"//A", {u"", u"", u"A"}},
      {u"A\\\\/B", {u"A\\\\", u"B"}},  // an overlined backslash
      {u"A\\\\\\/B", {u"A\\\\\\/B"}},
      {u"A/\\", {u"A", u"\\"}},  // nothing left to be overlined
      {u"\\A/\\B", {u"\\A", u"\\B"}},
  };
  for (const Case& test : cases) {
    EXPECT_EQ(SplitPinName(test.name), test.parts) << testing::PrintToString(test.name);
  }
}

TEST(NameParts, TheFirst32FollowTheMask) {
  EXPECT_TRUE(IsNamePartShown(1, 0));
  EXPECT_FALSE(IsNamePartShown(1, 1));
  EXPECT_TRUE(IsNamePartShown(0x80000000, 31));
  EXPECT_FALSE(IsNamePartShown(0x7FFFFFFF, 31));
  EXPECT_TRUE(IsNamePartShown(0, 32));
  EXPECT_TRUE(IsNamePartShown(0, 4000));
}

TEST(NameParts, MakeTheMask) {
  EXPECT_EQ(NameMaskOf({}), 0xFFFFFFFF);
  EXPECT_EQ(NameMaskOf({true, true}), 0xFFFFFFFF);
  EXPECT_EQ(NameMaskOf({false, true, false}), 0xFFFFFFFA);
  EXPECT_EQ(NameMaskOf(std::vector<bool>(32, false)), 0u);
  // Further parts have no bit.
  EXPECT_EQ(NameMaskOf(std::vector<bool>(40, false)), 0u);
  std::vector<bool> onlyLastHidden(40, true);
  onlyLastHidden[39] = false;
  EXPECT_EQ(NameMaskOf(onlyLastHidden), 0xFFFFFFFF);
}

TEST(NameParts, MaskAndPartsAgree) {
  for (const std::uint32_t mask : {0x00000000u, 0x12345678u, 0x80000001u, 0xFFFFFFFFu}) {
    std::vector<bool> shown;
    for (std::size_t part = 0; part < 32; ++part) shown.push_back(IsNamePartShown(mask, part));
    EXPECT_EQ(NameMaskOf(shown), mask);
  }
}

}  // namespace
}  // namespace mivo

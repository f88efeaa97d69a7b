#include <gtest/gtest.h>

#include "case_name.h"
#include "ptn_obj.h"
#include "ptn_obj_reading.h"

namespace mivo {
namespace {

struct TagCase {
  const char* name;
  std::u16string_view tag;
  PtnObjType type;
  std::u16string_view initialRecord;
};

class CreatePtnObjFor : public testing::TestWithParam<TagCase> {};

TEST_P(CreatePtnObjFor, MakesTheClassOfTheTag) {
  const auto object = CreatePtnObj(GetParam().tag);
  ASSERT_NE(object, nullptr);
  EXPECT_EQ(object->GetType(), GetParam().type);
}

TEST_P(CreatePtnObjFor, MakesItInItsInitialState) {
  const auto object = CreatePtnObj(GetParam().tag);
  ASSERT_NE(object, nullptr);
  EXPECT_EQ(Written(*object), GetParam().initialRecord);
  EXPECT_EQ(object->fill, SPtnObj::kNotFilled);
}

INSTANTIATE_TEST_SUITE_P(
    , CreatePtnObjFor,
    testing::Values(
        TagCase{"Line", u"+L", PtnObjType::Line, u"+L,W:1,S:0,CV:0,X:-1,Y:-1,X:-1,Y:-1,-L\n"},
        TagCase{"Circle", u"+C", PtnObjType::Circle, u"+C,W:1,S:0,F:-1,X:-1,Y:-1,X:-1,Y:-1,-C\n"},
        TagCase{"Polygon", u"+PG", PtnObjType::Polygon, u""},
        TagCase{"Arc", u"+AR", PtnObjType::Arc, u"+AR,W:1,S:0,X:10,Y:10,R:10,B:0,E:5760,-AR\n"},
        TagCase{"Text", u"+TX", PtnObjType::Text, u"+TX,X:0,Y:0,A:0,D:1,S:,FN:,FS:10,FF:,-TX\n"}),
    kCaseName);

class CreatePtnObjRefuses : public testing::TestWithParam<std::u16string_view> {};

TEST_P(CreatePtnObjRefuses, AnyOtherTag) {
  EXPECT_EQ(CreatePtnObj(GetParam()), nullptr);
}

INSTANTIATE_TEST_SUITE_P(, CreatePtnObjRefuses,
                         testing::Values(u"", u"+", u"L", u"-L", u"+l", u"+LL", u"+P", u"+PTN",
                                         u"+BMP", u"+L ", u"+AR:1"));

TEST(PtnObjType, NumbersAreThoseOfTheDrawingDispatcher) {
  EXPECT_EQ(static_cast<int>(PtnObjType::None), 0);
  EXPECT_EQ(static_cast<int>(PtnObjType::Line), 1);
  EXPECT_EQ(static_cast<int>(PtnObjType::Circle), 2);
  EXPECT_EQ(static_cast<int>(PtnObjType::Polygon), 3);
  EXPECT_EQ(static_cast<int>(PtnObjType::Arc), 4);
  EXPECT_EQ(static_cast<int>(PtnObjType::Text), 5);
}

}  // namespace
}  // namespace mivo

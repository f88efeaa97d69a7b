#include "ptn_obj_polygon.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "case_name.h"
#include "geometry_printing.h"
#include "ptn_obj_reading.h"

namespace mivo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();

SPtnObjPolygon Triangle() {
  return SPtnObjPolygon({{0, 0}, {10, 0}, {4, 7}});
}

/// (0, 0), (1, 1) and so on.
SPtnObjPolygon Diagonal(std::int32_t count) {
  std::vector<SPoint> points;
  for (std::int32_t i = 0; i < count; ++i) points.push_back({i, i});
  return SPtnObjPolygon(points);
}

// Writing

TEST(PolygonRecord, HoldsTheVerticesInOrder) {
  SPtnObjPolygon polygon = Triangle();
  polygon.width = 2;
  polygon.style = 1;
  polygon.fill = 0;
  EXPECT_EQ(Written(polygon), u"+PG,W:2,S:1,F:0,N:3,X:0,Y:0,X:10,Y:0,X:4,Y:7,-PG\n");
  EXPECT_EQ(Written(polygon, {1, -1}), u"+PG,W:2,S:1,F:0,N:3,X:-1,Y:1,X:9,Y:1,X:3,Y:8,-PG\n");
}

TEST(PolygonRecord, TakesTwoToThirtyTwoVertices) {
  for (const std::int32_t count : {0, 1, 33, 100}) {
    SRecordWriter writer;
    std::u16string text;
    writer.AttachString(text);
    EXPECT_FALSE(Diagonal(count).Write(writer)) << count;
    EXPECT_EQ(text, u"") << count;
  }
  for (const std::int32_t count : {2, 32}) {
    SRecordWriter writer;
    std::u16string text;
    writer.AttachString(text);
    EXPECT_TRUE(Diagonal(count).Write(writer)) << count;
    EXPECT_NE(text, u"") << count;
  }
}

TEST(PolygonRecord, IsNotWrittenOnceInsertingWentBeyondThirtyTwoVertices) {
  SPtnObjPolygon polygon = Diagonal(32);
  EXPECT_NE(Written(polygon), u"");
  polygon.InsertNode(31, 100, 0);
  EXPECT_EQ(polygon.GetNodeCount(), 33);
  EXPECT_EQ(Written(polygon), u"");
}

// Reading

TEST(PolygonRecord, ReadsBack) {
  SPtnObjPolygon polygon;
  const ReadRecord read =
      ReadInto(polygon, u"+PG,W:2,S:1,F:1,N:3,X:0,Y:0,X:10,Y:0,X:4,Y:7,-PG\n+L\n");
  EXPECT_TRUE(read.ok);
  EXPECT_THAT(read.findings, IsEmpty());
  EXPECT_EQ(read.next, u"+L");
  EXPECT_EQ(polygon.width, 2);
  EXPECT_EQ(polygon.style, 1);
  EXPECT_EQ(polygon.fill, 1);
  EXPECT_THAT(polygon.Points(), ElementsAre(SPoint{0, 0}, SPoint{10, 0}, SPoint{4, 7}));
}

TEST(PolygonRecord, ReadsBackThirtyTwoVertices) {
  SPtnObjPolygon polygon;
  EXPECT_TRUE(ReadInto(polygon, Written(Diagonal(32))).ok);
  EXPECT_EQ(polygon.Points(), Diagonal(32).Points());
}

TEST(PolygonRecord, DropsTheClosingCopyOfTheFirstVertex) {
  SPtnObjPolygon polygon;
  const ReadRecord read = ReadInto(polygon, u"+PG,N:4,X:0,Y:0,X:10,Y:0,X:10,Y:10,X:0,Y:0,-PG\n");
  EXPECT_TRUE(read.ok);
  EXPECT_THAT(polygon.Points(), ElementsAre(SPoint{0, 0}, SPoint{10, 0}, SPoint{10, 10}));
  EXPECT_THAT(read.Kinds(), ElementsAre(FindingKind::VertexDropped));
}

TEST(PolygonRecord, DropsRepeatedVertices) {
  SPtnObjPolygon polygon;
  const ReadRecord read =
      ReadInto(polygon, u"+PG,N:6,X:0,Y:0,X:0,Y:0,X:5,Y:5,X:5,Y:5,X:5,Y:5,X:0,Y:9,-PG\n");
  EXPECT_TRUE(read.ok);
  EXPECT_THAT(polygon.Points(), ElementsAre(SPoint{0, 0}, SPoint{5, 5}, SPoint{0, 9}));
  EXPECT_THAT(read.Kinds(), SizeIs(3));
  EXPECT_THAT(read.Kinds(), testing::Each(FindingKind::VertexDropped));
}

TEST(PolygonRecord, DeclaresAtMostWhatIsKept) {
  SPtnObjPolygon polygon;
  EXPECT_TRUE(ReadInto(polygon, u"+PG,N:32,X:0,Y:0,X:1,Y:1,-PG\n").ok);
  EXPECT_EQ(polygon.GetNodeCount(), 2);
}

TEST(PolygonRecord, IgnoresVerticesBeyondTheDeclaredCount) {
  SPtnObjPolygon polygon;
  const ReadRecord read = ReadInto(polygon, u"+PG,N:2,X:0,Y:0,X:1,Y:1,X:2,Y:2,-PG\n");
  EXPECT_TRUE(read.ok);
  EXPECT_THAT(polygon.Points(), ElementsAre(SPoint{0, 0}, SPoint{1, 1}));
  EXPECT_THAT(read.Kinds(), ElementsAre(FindingKind::SurplusValue, FindingKind::SurplusValue));
}

TEST(PolygonRecord, MayDeclareItsCountAgain) {
  SPtnObjPolygon polygon;
  // The closing copy is taken back, yet the next vertex may not repeat it either.
  EXPECT_TRUE(ReadInto(polygon, u"+PG,N:3,X:0,Y:0,X:1,Y:1,X:0,Y:0,N:5,X:0,Y:0,X:2,Y:2,-PG\n").ok);
  EXPECT_THAT(polygon.Points(), ElementsAre(SPoint{0, 0}, SPoint{1, 1}, SPoint{2, 2}));
  EXPECT_TRUE(ReadInto(polygon, u"+PG,N:5,X:0,Y:0,X:1,Y:1,N:2,X:2,Y:2,-PG\n").ok);
  EXPECT_EQ(polygon.GetNodeCount(), 2);
}

TEST(PolygonRecord, KeepsXUntilTheNextOne) {
  SPtnObjPolygon polygon;
  EXPECT_TRUE(ReadInto(polygon, u"+PG,N:3,Y:1,X:5,Y:2,Y:3,-PG\n").ok);
  EXPECT_THAT(polygon.Points(), ElementsAre(SPoint{0, 1}, SPoint{5, 2}, SPoint{5, 3}));
}

TEST(PolygonRecord, ReportsWhatTheNextReadWouldDrop) {
  SPtnObjPolygon polygon;
  // The last vertex kept equals the first, but was not the last one declared.
  const ReadRecord open = ReadInto(polygon, u"+PG,N:5,X:0,Y:0,X:9,Y:0,X:9,Y:9,X:0,Y:0,-PG\n");
  EXPECT_TRUE(open.ok);
  EXPECT_EQ(polygon.GetNodeCount(), 4);
  EXPECT_THAT(open.Kinds(), ElementsAre(FindingKind::NotCanonical));
  const ReadRecord again = ReadInto(polygon, Written(polygon));
  EXPECT_TRUE(again.ok);
  EXPECT_EQ(polygon.GetNodeCount(), 3);
}

struct RefusedCase {
  const char* name;
  std::u16string_view text;
  FindingKind why;
};

class PolygonRecordRefused : public testing::TestWithParam<RefusedCase> {};

TEST_P(PolygonRecordRefused, LeavesNoVerticesAndStandsBehindItsEnd) {
  SPtnObjPolygon polygon = Triangle();
  polygon.width = 7;
  const ReadRecord read = ReadInto(polygon, std::u16string(GetParam().text) + u",+L\n");
  EXPECT_FALSE(read.ok);
  EXPECT_THAT(polygon.Points(), IsEmpty());
  EXPECT_EQ(polygon.width, 7);
  EXPECT_EQ(read.next, u"+L");
  ASSERT_THAT(read.findings, testing::Not(IsEmpty()));
  EXPECT_EQ(read.findings.back().kind, GetParam().why);
  EXPECT_EQ(read.findings.back().record, u"+PG");
}

INSTANTIATE_TEST_SUITE_P(
    , PolygonRecordRefused,
    testing::Values(
        RefusedCase{"CountAboveThirtyTwo", u"+PG,N:33,X:0,Y:0,X:1,Y:1,X:2,Y:2,-PG",
                    FindingKind::ObjectValueInvalid},
        RefusedCase{"CountOfOne", u"+PG,W:9,N:1,X:0,Y:0,-PG", FindingKind::ObjectValueInvalid},
        RefusedCase{"CountOfZero", u"+PG,N:0,-PG", FindingKind::ObjectValueInvalid},
        RefusedCase{"NegativeCount", u"+PG,N:-3,-PG", FindingKind::ObjectValueInvalid},
        RefusedCase{"HugeCount", u"+PG,N:99999999999,-PG", FindingKind::ObjectValueInvalid},
        RefusedCase{"XBeforeN", u"+PG,X:0,N:2,Y:0,X:1,Y:1,-PG", FindingKind::ObjectValueInvalid},
        RefusedCase{"YBeforeN", u"+PG,Y:0,N:2,X:1,Y:1,-PG", FindingKind::ObjectValueInvalid},
        RefusedCase{"SecondCountInvalid", u"+PG,N:2,X:0,Y:0,N:50,X:1,Y:1,-PG",
                    FindingKind::ObjectValueInvalid},
        RefusedCase{"ErrorSkipsOtherTags", u"+PG,N:1,-L,-PTN,+X,-PG",
                    FindingKind::ObjectValueInvalid},
        RefusedCase{"NoCount", u"+PG,W:9,-PG", FindingKind::ObjectIncomplete},
        RefusedCase{"OneVertex", u"+PG,W:9,N:2,X:3,Y:3,-PG", FindingKind::ObjectIncomplete},
        RefusedCase{"OneDistinctVertex", u"+PG,N:3,X:3,Y:3,X:3,Y:3,X:3,Y:3,-PG",
                    FindingKind::ObjectIncomplete},
        RefusedCase{"ClosedByAnotherTag", u"+PG,W:9,N:2,X:0,Y:0,X:1,Y:1,-C",
                    FindingKind::ObjectClosedWrongly}),
    kCaseName);

TEST(PolygonRecord, CutOffByTheEndOfTheDataIsAcceptedWithTwoVertices) {
  SPtnObjPolygon polygon;
  const ReadRecord two = ReadInto(polygon, u"+PG,W:5,N:4,X:0,Y:0,X:1,Y:1\n");
  EXPECT_TRUE(two.ok);
  EXPECT_EQ(polygon.GetNodeCount(), 2);
  EXPECT_EQ(polygon.width, 5);
  EXPECT_THAT(two.Kinds(), ElementsAre(FindingKind::DataCutOff));
  EXPECT_FALSE(ReadInto(polygon, u"+PG,W:5,N:4,X:0,Y:0,X:1\n").ok);
  EXPECT_EQ(polygon.GetNodeCount(), 0);
}

TEST(PolygonRecord, WithAnInvalidCountMayBeCutOff) {
  SPtnObjPolygon polygon;
  EXPECT_FALSE(ReadInto(polygon, u"+PG,N:1,X:0\n").ok);
}

// Nodes

TEST(PolygonNodes, AreTheVertices) {
  SPtnObjPolygon polygon = Triangle();
  EXPECT_EQ(polygon.GetNodeCount(), 3);
  polygon.SetNode(1, 20, 30);
  EXPECT_THAT(Nodes(polygon), ElementsAre(SPoint{0, 0}, SPoint{20, 30}, SPoint{4, 7}));
}

TEST(PolygonNodes, BeforeTheFirstAreTheFirst) {
  SPtnObjPolygon polygon = Triangle();
  EXPECT_EQ(polygon.GetNode(-1), (SPoint{0, 0}));
  polygon.SetNode(kMin, 1, 1);
  EXPECT_THAT(polygon.Points(), ElementsAre(SPoint{1, 1}, SPoint{10, 0}, SPoint{4, 7}));
}

TEST(PolygonNodes, BehindTheLastAreNone) {
  SPtnObjPolygon polygon = Triangle();
  for (const std::int32_t index : {3, 4, 1000, kMax}) {
    EXPECT_EQ(polygon.GetNode(index), (SPoint{0, 0})) << index;
    polygon.SetNode(index, 99, 99);
  }
  EXPECT_EQ(polygon.Points(), Triangle().Points());
}

TEST(PolygonNodes, OfNoVerticesAreNone) {
  SPtnObjPolygon polygon;
  for (const std::int32_t index : {0, 1, -1, kMin, kMax}) {
    EXPECT_EQ(polygon.GetNode(index), (SPoint{0, 0})) << index;
    polygon.SetNode(index, 99, 99);
    polygon.InsertNode(index, 99, 99);
  }
  EXPECT_EQ(polygon.GetNodeCount(), 0);
}

TEST(PolygonNodes, AreInsertedBehindTheirIndex) {
  SPtnObjPolygon polygon = Triangle();
  polygon.InsertNode(0, 5, 5);
  EXPECT_THAT(polygon.Points(),
              ElementsAre(SPoint{0, 0}, SPoint{5, 5}, SPoint{10, 0}, SPoint{4, 7}));
  polygon.InsertNode(3, 6, 6);
  EXPECT_EQ(polygon.Points().back(), (SPoint{6, 6}));
}

TEST(PolygonNodes, AreInsertedBehindAnExistingOneOnly) {
  SPtnObjPolygon polygon = Triangle();
  for (const std::int32_t index : {-1, 3, kMin, kMax}) polygon.InsertNode(index, 5, 5);
  EXPECT_EQ(polygon.Points(), Triangle().Points());
}

// Normalizing

struct NormalizeCase {
  const char* name;
  std::vector<SPoint> points;
  std::vector<SPoint> normalized;
};

class PolygonNormalize : public testing::TestWithParam<NormalizeCase> {};

TEST_P(PolygonNormalize, DropsWhatEqualsItsSuccessor) {
  SPtnObjPolygon polygon(GetParam().points);
  polygon.Normalize();
  EXPECT_EQ(polygon.Points(), GetParam().normalized);
}

TEST_P(PolygonNormalize, DecidesOverValidity) {
  SPtnObjPolygon polygon(GetParam().points);
  EXPECT_EQ(polygon.IsValid(), !GetParam().normalized.empty());
  EXPECT_EQ(polygon.Points(), GetParam().normalized);
}

constexpr SPoint kA{0, 0};
constexpr SPoint kB{10, 0};
constexpr SPoint kC{4, 7};

INSTANTIATE_TEST_SUITE_P(
    , PolygonNormalize,
    testing::Values(NormalizeCase{"Empty", {}, {}}, NormalizeCase{"One", {kA}, {}},
                    NormalizeCase{"TwoAlike", {kA, kA}, {}},
                    NormalizeCase{"Two", {kA, kB}, {kA, kB}},
                    NormalizeCase{"Closed", {kA, kB, kC, kA}, {kA, kB, kC}},
                    NormalizeCase{"ThereAndBack", {kA, kB, kA}, {kA, kB}},
                    NormalizeCase{"Runs", {kA, kA, kB, kB, kB, kC}, {kA, kB, kC}},
                    NormalizeCase{"RunOverTheEnd", {kA, kA, kB, kC, kA, kA}, {kA, kB, kC}},
                    NormalizeCase{"AllAlike", {kC, kC, kC, kC}, {}},
                    NormalizeCase{"DistantRepeats", {kA, kB, kA, kC}, {kA, kB, kA, kC}}),
    kCaseName);

}  // namespace
}  // namespace mivo

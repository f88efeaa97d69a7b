#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "case_name.h"
#include "library_testing.h"

// Alias records.

namespace mivo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(LibraryAlias, ListsAComponentOnceMore) {
  const LoadedLibrary library(LibraryFile(ComponentRecord(u"A") + AliasRecord(u"A2", u"A")));
  EXPECT_TRUE(library.loaded);
  EXPECT_THAT(library.Names(), ElementsAre(u"A", u"A2"));
  ASSERT_EQ(library.library.Components().size(), 1u);
  for (const auto& entry : library.library.Names().Entries()) {
    EXPECT_EQ(entry->Component(), library.library.Components()[0].get());
  }
}

TEST(LibraryAlias, MayBeOneOfAnAlias) {
  const LoadedLibrary library(
      LibraryFile(ComponentRecord(u"A") + AliasRecord(u"A2", u"A") + AliasRecord(u"A3", u"A2")));
  EXPECT_THAT(library.Names(), ElementsAre(u"A", u"A2", u"A3"));
  EXPECT_EQ(library.library.Names().Find(u"A3")->Component(),
            library.library.Names().Find(u"A")->Component());
}

TEST(LibraryAlias, IsSavedAsOneOfTheFirstName) {
  const LoadedLibrary library(
      LibraryFile(ComponentRecord(u"A") + AliasRecord(u"A2", u"A") + AliasRecord(u"A3", u"A2")));
  EXPECT_THAT(Saved(library.library), testing::HasSubstr("-COMP\n"
                                                         "+ALIAS,A:A2,N:A,-ALIAS\n"
                                                         "+ALIAS,A:A3,N:A,-ALIAS\n"
                                                         "-TARSL_LIB_V.1.0\n"));
}

TEST(LibraryAlias, OfAnUnknownNameIsDropped) {
  const LoadedLibrary library(LibraryFile(AliasRecord(u"A2", u"A") + ComponentRecord(u"A")));
  EXPECT_TRUE(library.loaded);
  EXPECT_THAT(library.Names(), ElementsAre(u"A"));
  EXPECT_THAT(library.findings.all,
              ElementsAre(Finding{FindingKind::AliasTargetMissing, 4, 17, u"+ALIAS", u"A"}));
}

TEST(LibraryAlias, GetsAUniqueName) {
  const LoadedLibrary library(
      LibraryFile(ComponentRecord(u"A") + ComponentRecord(u"B") + AliasRecord(u"B", u"A")));
  EXPECT_THAT(library.Names(), ElementsAre(u"A", u"B", u"B(1)"));
  EXPECT_EQ(library.library.Names().Find(u"B(1)")->Component(),
            library.library.Names().Find(u"A")->Component());
  EXPECT_THAT(library.findings.all,
              ElementsAre(Finding{FindingKind::NameChanged, 6, 16, u"+ALIAS", u"B(1)"}));
}

TEST(LibraryAlias, OfItsOwnNameGetsAUniqueName) {
  const LoadedLibrary library(LibraryFile(ComponentRecord(u"A") + AliasRecord(u"A", u"A")));
  EXPECT_THAT(library.Names(), ElementsAre(u"A", u"A(1)"));
}

TEST(LibraryAlias, FollowsNamesAcrossBlocks) {
  const LoadedLibrary library(
      LibraryFile(ComponentRecord(u"A")) +
      LibraryFile(ComponentRecord(u"A") + AliasRecord(u"X", u"A(1)") + AliasRecord(u"Y", u"A")));
  EXPECT_TRUE(library.loaded);
  EXPECT_THAT(library.Names(), ElementsAre(u"A", u"A(1)", u"X", u"Y"));
  EXPECT_EQ(library.library.Names().Find(u"Y")->Component(), library.library.Components()[0].get());
}

struct AliasCase {
  const char* name;
  std::u16string_view record;  ///< behind a component called "A"
  bool loaded;
  std::vector<std::u16string> names;
  std::vector<FindingKind> findings;
};

void PrintTo(const AliasCase& aliasCase, std::ostream* out) {
  *out << aliasCase.name;
}

class LibraryAliasCase : public testing::TestWithParam<AliasCase> {};

TEST_P(LibraryAliasCase, IsReadOrRefused) {
  const LoadedLibrary library("+TARSL_LIB_V.1.0\nVER:82\n" +
                              Utf16ToUtf8(ComponentRecord(u"A").append(GetParam().record)));
  EXPECT_EQ(library.loaded, GetParam().loaded);
  EXPECT_EQ(library.Names(), GetParam().names);
  EXPECT_EQ(library.findings.Kinds(), GetParam().findings);
}

INSTANTIATE_TEST_SUITE_P(
    Closed, LibraryAliasCase,
    testing::Values(
        AliasCase{
            "InEitherOrder", u"+ALIAS,N:A,A:B,-ALIAS,-TARSL_LIB_V.1.0\n", true, {u"A", u"B"}, {}},
        AliasCase{"LastFieldsCount",
                  u"+ALIAS,N:X,A:Y,N:A,A:B,-ALIAS,-TARSL_LIB_V.1.0\n",
                  true,
                  {u"A", u"B"},
                  {}},
        AliasCase{"NamesUpToANul",
                  u"+ALIAS,A:B%00x,N:A%00x,-ALIAS,-TARSL_LIB_V.1.0\n",
                  true,
                  {u"A", u"B"},
                  {FindingKind::TextCutAtNul, FindingKind::TextCutAtNul}},
        AliasCase{"WithoutItsName",
                  u"+ALIAS,N:A,-ALIAS\n",
                  false,
                  {u"A"},
                  {FindingKind::IncompleteRecord}},
        AliasCase{"WithoutItsTarget",
                  u"+ALIAS,A:B,-ALIAS\n",
                  false,
                  {u"A"},
                  {FindingKind::IncompleteRecord}},
        AliasCase{"WithAnEmptyName",
                  u"+ALIAS,A:,N:A,-ALIAS\n",
                  false,
                  {u"A"},
                  {FindingKind::FieldWithoutValue, FindingKind::IncompleteRecord}},
        AliasCase{"WithAnEmptyTarget",
                  u"+ALIAS,A:B,N:,-ALIAS\n",
                  false,
                  {u"A"},
                  {FindingKind::FieldWithoutValue, FindingKind::IncompleteRecord}},
        AliasCase{"WithANulForAName",
                  u"+ALIAS,A:%00B,N:A,-ALIAS\n",
                  false,
                  {u"A"},
                  {FindingKind::TextCutAtNul, FindingKind::IncompleteRecord}},
        AliasCase{"ByAnotherTag",
                  u"+ALIAS,A:B,N:A,-COMP\n",
                  false,
                  {u"A"},
                  {FindingKind::WrongClosingTag}},
        AliasCase{"WithAnUnknownKey",
                  u"+ALIAS,A:B,N:A,X:1,-ALIAS,-TARSL_LIB_V.1.0\n",
                  true,
                  {u"A", u"B"},
                  {FindingKind::UnknownKey}},
        AliasCase{"WithAnUnknownRecord",
                  u"+ALIAS,A:B,+X,-ALIAS,-X,N:A,-ALIAS,-TARSL_LIB_V.1.0\n",
                  true,
                  {u"A", u"B"},
                  {FindingKind::UnknownRecord}}),
    kCaseName);

INSTANTIATE_TEST_SUITE_P(
    CutOff, LibraryAliasCase,
    testing::Values(AliasCase{"WithBothNames",
                              u"+ALIAS,A:B,N:A\n",
                              true,
                              {u"A", u"B"},
                              {FindingKind::DataCutOff, FindingKind::DataCutOff}},
                    AliasCase{"WithoutItsName",
                              u"+ALIAS,N:A\n",
                              true,
                              {u"A"},
                              {FindingKind::DataCutOff, FindingKind::DataCutOff}},
                    AliasCase{"WithoutItsTarget",
                              u"+ALIAS,A:B\n",
                              true,
                              {u"A"},
                              {FindingKind::DataCutOff, FindingKind::DataCutOff}},
                    AliasCase{"AtOnce",
                              u"+ALIAS\n",
                              true,
                              {u"A"},
                              {FindingKind::DataCutOff, FindingKind::DataCutOff}},
                    AliasCase{"InAnUnknownRecord",
                              u"+ALIAS,A:B,N:A,+X,-ALIAS\n",
                              false,
                              {u"A"},
                              {FindingKind::UnknownRecord, FindingKind::UnclosedRecord}}),
    kCaseName);

TEST(LibraryAlias, WithoutBothNamesReportsWhere) {
  const LoadedLibrary library(LibraryFile(ComponentRecord(u"A") + u"\n  +ALIAS,N:A,-ALIAS\n"));
  EXPECT_FALSE(library.loaded);
  EXPECT_THAT(library.findings.all,
              ElementsAre(Finding{FindingKind::IncompleteRecord, 6, 14, u"+ALIAS", u"-ALIAS"}));
  EXPECT_THAT(library.library.Path().has_value(), false);
  EXPECT_THAT(library.Names(), testing::Not(IsEmpty()));
}

}  // namespace
}  // namespace mivo

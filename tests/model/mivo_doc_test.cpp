#include "mivo_doc.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "library_testing.h"

// The library as its window changes it.

namespace mivo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::unique_ptr<SComponent> NewComponent() {
  auto component = std::make_unique<SComponent>();
  component->SetBodySize({1, 1});
  return component;
}

std::vector<std::u16string> Names(const SMivoDoc& library) {
  std::vector<std::u16string> names;
  for (const auto& entry : library.Names().Entries()) names.push_back(entry->Name());
  return names;
}

TEST(Library, IsEmptyAtFirst) {
  const SMivoDoc library;
  EXPECT_THAT(library.Components(), IsEmpty());
  EXPECT_THAT(Names(library), IsEmpty());
  EXPECT_EQ(library.Path(), std::nullopt);
  EXPECT_EQ(library.property, u"");
}

TEST(Library, ListsAComponentUnderAUniqueName) {
  SMivoDoc library;
  NameEntry* const first = library.AddComponent(NewComponent(), u"R");
  NameEntry* const second = library.AddComponent(NewComponent(), u"R");
  EXPECT_EQ(first->Name(), u"R");
  EXPECT_EQ(second->Name(), u"R(1)");
  ASSERT_EQ(library.Components().size(), 2u);
  EXPECT_EQ(first->Component(), library.Components()[0].get());
  EXPECT_EQ(second->Component(), library.Components()[1].get());
}

TEST(Library, ListsAliasesUnderUniqueNames) {
  SMivoDoc library;
  NameEntry* const own = library.AddComponent(NewComponent(), u"R");
  NameEntry* const alias = library.AddAlias(own->Component(), u"R");
  EXPECT_EQ(alias->Name(), u"R(1)");
  EXPECT_EQ(alias->Component(), own->Component());
  EXPECT_EQ(library.Components().size(), 1u);
}

TEST(Library, RenamesToAUniqueName) {
  SMivoDoc library;
  NameEntry* const first = library.AddComponent(NewComponent(), u"A");
  library.AddComponent(NewComponent(), u"B");
  library.Rename(*first, u"B");
  EXPECT_THAT(Names(library), ElementsAre(u"B(1)", u"B"));
  library.Rename(*first, u"C");
  EXPECT_THAT(Names(library), ElementsAre(u"C", u"B"));
}

TEST(Library, RemovesAComponentWithItsLastName) {
  SMivoDoc library;
  NameEntry* const own = library.AddComponent(NewComponent(), u"A");
  SComponent* const component = own->Component();
  NameEntry* const alias = library.AddAlias(component, u"A2");
  library.AddComponent(NewComponent(), u"B");

  library.Remove(*own);
  EXPECT_THAT(Names(library), ElementsAre(u"A2", u"B"));
  ASSERT_EQ(library.Components().size(), 2u);
  EXPECT_EQ(alias->Component(), component);

  library.Remove(*alias);
  EXPECT_THAT(Names(library), ElementsAre(u"B"));
  ASSERT_EQ(library.Components().size(), 1u);
  EXPECT_EQ(library.Names().Find(u"B")->Component(), library.Components()[0].get());
}

TEST(LibraryClear, ForgetsComponentsNamesAndPath) {
  SMivoDoc library;
  library.AddComponent(NewComponent(), u"A");
  library.SetPath(u"a.ZLB");
  library.Clear();
  EXPECT_THAT(library.Components(), IsEmpty());
  EXPECT_THAT(Names(library), IsEmpty());
  EXPECT_EQ(library.Path(), std::nullopt);
  EXPECT_EQ(library.AddComponent(NewComponent(), u"A")->Name(), u"A");
}

TEST(LibraryClear, KeepsPropertyTextAndVersion) {
  SMivoDoc library;
  ASSERT_TRUE(library.Load("+TARSL_LIB_V.1.0\nVER:75\nPROP:text\n-TARSL_LIB_V.1.0\n", u"a"));
  library.Clear();
  EXPECT_EQ(library.property, u"text");
  EXPECT_EQ(library.Version(), 75);

  ASSERT_TRUE(library.Load("+TARSL_LIB_V.1.0\nVER:80\n-TARSL_LIB_V.1.0\n", u"b"));
  EXPECT_EQ(library.property, u"text") << "a file without the field leaves the earlier text";
  EXPECT_EQ(library.Version(), 80);
  library.Clear();
  ASSERT_TRUE(library.Load("+TARSL_LIB_V.1.0\nVER:80\nPROP:\n-TARSL_LIB_V.1.0\n", u"c"));
  EXPECT_EQ(library.property, u"");
}

TEST(LibraryLoad, TakesThePathWhenItSucceeds) {
  SMivoDoc library;
  ASSERT_TRUE(library.Load(LibraryFile(u""), u"dir/a.ZLB"));
  EXPECT_EQ(library.Path(), u"dir/a.ZLB");
}

TEST(LibraryLoad, FailsAtOnceWithAPath) {
  SMivoDoc library;
  ASSERT_TRUE(library.Load(LibraryFile(ComponentRecord(u"A")), u"a.ZLB"));
  EXPECT_FALSE(library.Load(LibraryFile(ComponentRecord(u"B")), u"b.ZLB"));
  EXPECT_THAT(Names(library), ElementsAre(u"A"));
  EXPECT_EQ(library.Path(), u"a.ZLB");
}

TEST(LibraryLoad, KeepsWhatPrecedesAFaultButTakesNoPath) {
  const LoadedLibrary library(
      LibraryFile(ComponentRecord(u"A") + u"+COMP,N:B,-COMP\n" + ComponentRecord(u"C")));
  EXPECT_FALSE(library.loaded);
  EXPECT_EQ(library.library.Path(), std::nullopt);
  EXPECT_THAT(library.Names(), ElementsAre(u"A"));
  EXPECT_EQ(library.library.Components().size(), 1u);
}

TEST(LibraryLoad, WorksAgainAfterAFailure) {
  SMivoDoc library;
  EXPECT_FALSE(library.Load("no library", u"a.ZLB"));
  EXPECT_TRUE(library.Load(LibraryFile(u""), u"b.ZLB"));
  EXPECT_EQ(library.Path(), u"b.ZLB");
}

}  // namespace
}  // namespace mivo

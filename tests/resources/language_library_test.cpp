#include "language_library.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "mivo_language.h"
#include "temp_folder.h"

#ifndef _WIN32
#include <sys/stat.h>
#endif

namespace mivo {
namespace {

namespace fs = std::filesystem;

fs::path LibraryPath(const char* name) {
  return fs::path(MIVO_TEST_LANGUAGES) / name / kLanguageLibraryName;
}

/// The program's texts with the language library `name`.
TextTable TextsWith(const char* name) {
  TextTable texts;
  EXPECT_TRUE(texts.Translate(LoadLanguageLibrary(LibraryPath(name))));
  return texts;
}

TEST(LanguageLibrary, GivesItsTexts) {
  const TextTable texts = TextsWith("good");
  EXPECT_EQ(texts.Text(StringId::SaveChanges), u"Änderungen speichern?\n📚");
  EXPECT_EQ(texts.Text(Command::Open), u"command");
  EXPECT_EQ(texts.Hint(Command::Open), u"hint");
}

TEST(LanguageLibrary, HandsOnTheNumberOfTheControl) {
  const TextTable::Translation translation = LoadLanguageLibrary(LibraryPath("good"));
  ASSERT_TRUE(translation);
  EXPECT_EQ(translation({static_cast<TextKind>(4), 144, 1015}), u"control");
  EXPECT_EQ(translation({static_cast<TextKind>(4), 144, 1016}), u"");
}

#ifdef _WIN32
TEST(LanguageLibrary, MayBeOnAServer) {
  const fs::path share = L"\\\\mivo-test\\share";  // of packaging/windows/wine-environment
  if (!fs::exists(share)) GTEST_SKIP() << "there is no such server";
  const fs::path copy = share / kLanguageLibraryName;
  fs::remove(copy);
  fs::copy_file(LibraryPath("good"), copy);
  EXPECT_TRUE(LoadLanguageLibrary(copy));
}
#endif

TEST(LanguageLibrary, TextThatItLacksIsTheProgramsOwn) {
  const TextTable texts = TextsWith("good");
  EXPECT_EQ(texts.Text(StringId::CannotUndo), u"You can't undo this command.\nContinue?");
  EXPECT_EQ(texts.Text(Command::Save), u"&Save\tCtrl+S");
}

TEST(LanguageLibrary, EmptyTextCountsAsMissing) {
  EXPECT_EQ(TextsWith("good").Text(StringId::SizeRange), u"Size must be 1~255.");
}

TEST(LanguageLibrary, TextThatIsNotUtf8CountsAsMissing) {
  EXPECT_EQ(TextsWith("good").Text(StringId::SaveFailed),
            u"Cannnot save the document. Try saving as.");
}

TEST(LanguageLibrary, TextWithoutAnEndCountsAsMissing) {
  const TextTable texts = TextsWith("good");
  EXPECT_EQ(texts.Text(StringId::BlocksRange), u"Blocks must be 1~255.");
  EXPECT_EQ(texts.Text(StringId::FixedBlockRange),
            std::u16string(MIVO_LANGUAGE_MAX_BYTES - 1, u'x'));
}

TEST(LanguageLibrary, OfAnotherVersionIsLoadedButNotUsed) {
  const TextTable::Translation translation = LoadLanguageLibrary(LibraryPath("other_version"));
  ASSERT_TRUE(translation);
  TextTable texts;
  EXPECT_FALSE(texts.Translate(translation));
  EXPECT_EQ(texts.Text(StringId::SaveChanges), u"Save changes?");
  EXPECT_EQ(translation(IdOf(Command::Open)), u"command") << "it stays loaded";
}

TEST(LanguageLibrary, WithoutTheFunctionIsIgnored) {
  ASSERT_TRUE(fs::exists(LibraryPath("without_function")));
  EXPECT_FALSE(LoadLanguageLibrary(LibraryPath("without_function")));
}

TEST(LanguageLibrary, MissingIsIgnored) {
  const TempFolder folder;
  EXPECT_FALSE(LoadLanguageLibrary(folder / kLanguageLibraryName));
}

class NoLanguageLibrary : public testing::TestWithParam<std::string> {};

TEST_P(NoLanguageLibrary, IsIgnored) {
  const TempFolder folder;
  EXPECT_FALSE(LoadLanguageLibrary(folder.Put(kLanguageLibraryName, GetParam())));
}

INSTANTIATE_TEST_SUITE_P(Contents, NoLanguageLibrary,
                         testing::Values(std::string(), std::string("This is a text."),
                                         std::string(10000, '\0'), std::string("MZ\x90\0", 4)));

#ifndef _WIN32  // Windows' loader looks at the whole file first; Wine's does not, and would fail
                // this
// The system's loader ends the process when it touches what is missing.
TEST(LanguageLibrary, CutOffAnywhereIsIgnored) {
  const TempFolder folder;
  const std::string whole = BytesOf(LibraryPath("good"));
  ASSERT_GT(whole.size(), 10000u);
  std::vector<std::size_t> sizes = {1, 4, 16, 63, 64, 65, 200, whole.size() - 1};
  for (std::size_t size = 300; size < whole.size(); size += 123) sizes.push_back(size);
  for (const std::size_t size : sizes) {
    const fs::path cut = folder.Put(kLanguageLibraryName, whole.substr(0, size));
    EXPECT_FALSE(LoadLanguageLibrary(cut)) << size;
  }
  EXPECT_TRUE(LoadLanguageLibrary(folder.Put(kLanguageLibraryName, whole)));
}

TEST(LanguageLibrary, OfAnotherMachineIsIgnored) {
  const TempFolder folder;
  std::string bytes = BytesOf(LibraryPath("good"));
  bytes[4] = static_cast<char>(3 - bytes[4]);  // 32 bits for 64, and the other way round
  EXPECT_FALSE(LoadLanguageLibrary(folder.Put(kLanguageLibraryName, bytes)));
}
#endif

TEST(LanguageLibrary, FolderOfThatNameIsIgnored) {
  const TempFolder folder;
  const fs::path path = folder / kLanguageLibraryName;
  fs::create_directory(path);
  EXPECT_FALSE(LoadLanguageLibrary(path));
}

#ifndef _WIN32
TEST(LanguageLibrary, PipeOfThatNameIsIgnored) {
  const TempFolder folder;
  const fs::path path = folder / kLanguageLibraryName;
  ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
  EXPECT_FALSE(LoadLanguageLibrary(path)) << "and nobody waits for its other end";
}
#endif

TEST(LanguageLibrary, PathThatDependsOnTheCurrentFolderIsIgnored) {
  const fs::path relative = fs::relative(LibraryPath("good"));
  ASSERT_TRUE(fs::exists(relative));
  EXPECT_FALSE(LoadLanguageLibrary(relative));
}

}  // namespace
}  // namespace mivo

// Reading and replacing files on Windows: what its names, paths, attributes and locks do.

#define NOMINMAX
#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "file_writer.h"
#include "path_text.h"
#include "read_file.h"
#include "temp_folder.h"

namespace mivo {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

/// Writes `bytes` to `path`: "ok", or "failed" when there is a text that says why.
std::string Replace(const fs::path& path, std::string_view bytes) {
  FileWriter writer(path);
  const bool written = writer.Write(bytes);
  if (writer.Commit()) return written ? "ok" : "committed what was not written";
  return writer.ErrorText().empty() ? "failed without a reason" : "failed";
}

/// The bytes, or "failed" when there is a text that says why.
std::string Outcome(const FileResult<std::string>& result) {
  if (result.Ok()) return result.Value();
  return result.Error().empty() ? "failed without a reason" : "failed";
}

/// `path` held open by another program that shares it as `sharing` says.
class OpenElsewhere {
 public:
  OpenElsewhere(const fs::path& path, DWORD sharing)
      : handle_(
            CreateFileW(path.c_str(), GENERIC_READ, sharing, nullptr, OPEN_EXISTING, 0, nullptr)) {
    EXPECT_NE(handle_, INVALID_HANDLE_VALUE);
  }
  ~OpenElsewhere() { CloseHandle(handle_); }
  OpenElsewhere(const OpenElsewhere&) = delete;
  OpenElsewhere& operator=(const OpenElsewhere&) = delete;

 private:
  HANDLE handle_;
};

// --- Paths ---------------------------------------------------------------------------------------

TEST(PathText, ReturnsAsItWas) {
  for (const char16_t* text : {u"C:\\a b\\Stückliste 😀.ZLB", u"\\\\server\\share\\a.ZLB",
                               u"\\\\?\\C:\\a", u"Z:a", u"C:/a/b"}) {
    EXPECT_EQ(TextFromPath(PathFromText(text)), text);
  }
}

TEST(PathText, ALoneSurrogateIsNoFailure) {
  const std::u16string text = u"a\xD800z";
  EXPECT_EQ(TextFromPath(PathFromText(text)), text);
}

TEST(PathText, AnArgumentIsUtf8) {
  EXPECT_EQ(TextFromPath(PathFromArgument("\xCE\xA9\xF0\x9F\x98\x80")), u"Ω😀");
}

TEST(File, AFileOfAnyNameIsWrittenAndRead) {
  const TempFolder folder;
  const fs::path user = folder.Path() / PathFromText(u"Jürgen Жуков 世界 😀");
  fs::create_directory(user);
  const fs::path path = user / PathFromText(u"Ω.ZLB");
  EXPECT_EQ(Replace(path, "old"), "ok");
  EXPECT_EQ(Replace(path, "new"), "ok");
  EXPECT_EQ(Outcome(ReadFile(path)), "new");
}

TEST(File, APathMayBeLongerThanTheSystemsUsualLimit) {
  const TempFolder folder;
  fs::path deep = folder.Path();
  while (deep.native().size() < 600) {
    deep /= std::wstring(60, L'n');
    ASSERT_TRUE(CreateDirectoryW((L"\\\\?\\" + deep.native()).c_str(), nullptr));
  }
  const fs::path path = deep / "a.ZLB";
  EXPECT_EQ(Replace(path, "old"), "ok");
  EXPECT_EQ(Replace(path, "new"), "ok");
  EXPECT_EQ(Outcome(ReadFile(path)), "new");
  EXPECT_NE(GetFileAttributesW((L"\\\\?\\" + path.native()).c_str()), INVALID_FILE_ATTRIBUTES);
}

TEST(File, AnExtendedPathIsTakenAsItIs) {
  const TempFolder folder;
  const fs::path path = L"\\\\?\\" + (folder / "a.ZLB").native();
  EXPECT_EQ(Replace(path, "new"), "ok");
  EXPECT_EQ(Outcome(ReadFile(path)), "new");
  EXPECT_THAT(folder.Names(), ElementsAre("a.ZLB"));
}

TEST(File, AForwardSlashSeparatesFolders) {
  const TempFolder folder;
  fs::create_directory(folder / "sub");
  std::wstring path = (folder / "sub" / "a.ZLB").native();
  for (wchar_t& c : path) {
    if (c == L'\\') c = L'/';
  }
  EXPECT_EQ(Replace(path, "new"), "ok");
  EXPECT_EQ(BytesOf(folder / "sub/a.ZLB"), "new");
}

class FileOnAServer : public testing::TestWithParam<std::size_t> {};

TEST_P(FileOnAServer, IsWrittenAndRead) {
  const fs::path share = L"\\\\mivo-test\\share";  // of packaging/windows/wine-environment
  if (!fs::exists(share)) GTEST_SKIP() << "there is no such server";
  fs::path folder = share / std::to_wstring(GetCurrentProcessId());
  fs::create_directory(folder);
  while (folder.native().size() < GetParam()) {
    folder /= std::wstring(60, L'n');
    // The folder of an earlier process of that number may be there still.
    ASSERT_TRUE(CreateDirectoryW((L"\\\\?\\UNC" + folder.native().substr(1)).c_str(), nullptr) ||
                GetLastError() == ERROR_ALREADY_EXISTS);
  }
  EXPECT_EQ(Replace(folder / "a.ZLB", "old"), "ok");
  EXPECT_EQ(Replace(folder / "a.ZLB", "new"), "ok");
  EXPECT_EQ(Outcome(ReadFile(folder / "a.ZLB")), "new");
  EXPECT_EQ(Outcome(ReadFile(folder / "none")), "failed");
}

INSTANTIATE_TEST_SUITE_P(PathLength, FileOnAServer, testing::Values(0u, 400u));

// --- Content -------------------------------------------------------------------------------------

TEST(File, EveryByteIsKept) {
  const TempFolder folder;
  std::string bytes;
  for (int i = 0; i < 256; ++i) bytes.push_back(static_cast<char>(i));
  bytes += "\r\n\x1A\n";
  EXPECT_EQ(Replace(folder / "file", bytes), "ok");
  EXPECT_EQ(Outcome(ReadFile(folder / "file")), bytes);
  EXPECT_EQ(fs::file_size(folder / "file"), bytes.size());
}

TEST(File, AShorterContentReplacesTheWholeOldOne) {
  const TempFolder folder;
  const auto path = folder.Put("file", "a much longer old content");
  EXPECT_EQ(Replace(path, "new"), "ok");
  EXPECT_EQ(BytesOf(path), "new");
  EXPECT_THAT(folder.Names(), ElementsAre("file"));
}

TEST(File, WithoutCommitNothingHappens) {
  const TempFolder folder;
  const auto path = folder.Put("file", "old");
  {
    FileWriter writer(path);
    EXPECT_TRUE(writer.Write("new"));
    EXPECT_EQ(BytesOf(path), "old");
  }
  EXPECT_EQ(BytesOf(path), "old");
  EXPECT_THAT(folder.Names(), ElementsAre("file"));
}

TEST(File, AHiddenFileStaysHidden) {
  const TempFolder folder;
  const auto path = folder.Put("file", "old");
  ASSERT_TRUE(SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_HIDDEN));
  EXPECT_EQ(Replace(path, "new"), "ok");
  EXPECT_EQ(GetFileAttributesW(path.c_str()) & FILE_ATTRIBUTE_HIDDEN, FILE_ATTRIBUTE_HIDDEN);
  EXPECT_EQ(BytesOf(path), "new");
}

TEST(File, TheStandardDeviceTakesAnything) {
  EXPECT_EQ(Replace("NUL", "new"), "ok");
  EXPECT_EQ(Outcome(ReadFile("NUL")), "failed") << "not a regular file";
}

// --- What is refused -----------------------------------------------------------------------------

TEST(File, WhatIsNotThereCannotBeRead) {
  const TempFolder folder;
  EXPECT_EQ(Outcome(ReadFile(folder / "none")), "failed");
  EXPECT_EQ(Outcome(ReadFile(folder / "none/file")), "failed");
  EXPECT_EQ(Outcome(ReadFile("")), "failed");
}

TEST(File, AFolderIsNoFile) {
  const TempFolder folder;
  fs::create_directory(folder / "sub");
  EXPECT_EQ(Outcome(ReadFile(folder / "sub")), "failed");
  EXPECT_EQ(Replace(folder / "sub", "new"), "failed");
  EXPECT_THAT(folder.Names(), ElementsAre("sub"));
}

TEST(File, WhereThereIsNoFolderNothingIsWritten) {
  const TempFolder folder;
  EXPECT_EQ(Replace(folder / "none/file", "new"), "failed");
  EXPECT_EQ(Replace(folder.Path() / L"question?.ZLB", "new"), "failed");
  EXPECT_THAT(folder.Names(), IsEmpty());
}

TEST(File, AReadOnlyFileStays) {
  const TempFolder folder;
  const auto path = folder.Put("file", "old");
  ASSERT_TRUE(SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_READONLY));
  EXPECT_EQ(Replace(path, "new"), "failed");
  EXPECT_EQ(BytesOf(path), "old");
  EXPECT_THAT(folder.Names(), ElementsAre("file"));
  ASSERT_TRUE(SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL));
}

// --- Files that another program has open ---------------------------------------------------------

// Windows replaces it, Wine refuses; neither may leave anything in between.
TEST(File, WhatAnotherProgramSharesWithEverybodyIsReplacedOrStays) {
  const TempFolder folder;
  const auto path = folder.Put("file", "old");
  const OpenElsewhere other(path, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE);
  EXPECT_EQ(Outcome(ReadFile(path)), "old");
  const bool isReplaced = Replace(path, "new") == "ok";
  EXPECT_EQ(BytesOf(path), isReplaced ? "new" : "old");
  EXPECT_THAT(folder.Names(), ElementsAre("file"));
}

struct SharingCase {
  const char* name;
  DWORD sharing;
};

class FileOpenElsewhere : public testing::TestWithParam<SharingCase> {};

TEST_P(FileOpenElsewhere, StaysAsItIs) {
  const TempFolder folder;
  const auto path = folder.Put("file", "old");
  {
    const OpenElsewhere other(path, GetParam().sharing);
    EXPECT_EQ(Replace(path, "new"), "failed");
    EXPECT_THAT(folder.Names(), ElementsAre("file"));
  }
  EXPECT_EQ(BytesOf(path), "old");
  EXPECT_EQ(Replace(path, "new"), "ok") << "once it is closed";
}

INSTANTIATE_TEST_SUITE_P(
    Sharing, FileOpenElsewhere,
    testing::Values(SharingCase{"WithNobody", 0}, SharingCase{"WithReaders", FILE_SHARE_READ},
                    SharingCase{"ForAnythingButRenaming", FILE_SHARE_READ | FILE_SHARE_WRITE}),
    [](const auto& test) { return test.param.name; });

TEST(File, WhatAnotherProgramOpensMeanwhileStays) {
  const TempFolder folder;
  const auto path = folder.Put("file", "old");
  FileWriter writer(path);
  EXPECT_TRUE(writer.Write("new"));
  {
    const OpenElsewhere other(path, FILE_SHARE_READ);
    EXPECT_FALSE(writer.Commit());
    EXPECT_THAT(folder.Names(), ElementsAre("file"));
  }
  EXPECT_EQ(BytesOf(path), "old");
}

TEST(File, WhatAnotherProgramLocksCannotBeRead) {
  const TempFolder folder;
  const auto path = folder.Put("file", "old");
  const OpenElsewhere other(path, 0);
  EXPECT_EQ(Outcome(ReadFile(path)), "failed");
}

}  // namespace
}  // namespace mivo

// What the executable carries for Windows to read: icon, version information and manifest.

#define NOMINMAX
#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace mivo {
namespace {

using testing::HasSubstr;
using testing::Not;

class ProgramResources : public testing::Test {
 protected:
  ProgramResources() { EXPECT_NE(program_, nullptr); }
  ~ProgramResources() override { FreeLibrary(program_); }

  /// The bytes of the resource 1 of this type; empty when there is none.
  [[nodiscard]] std::string_view Resource(const wchar_t* type) const {
    const HRSRC found = FindResourceW(program_, MAKEINTRESOURCEW(1), type);
    if (found == nullptr) return {};
    return {static_cast<const char*>(LockResource(LoadResource(program_, found))),
            SizeofResource(program_, found)};
  }

  static constexpr const wchar_t* kProgram = L"" MIVO_PROGRAM;

 private:
  const HMODULE program_ = LoadLibraryExW(kProgram, nullptr, LOAD_LIBRARY_AS_DATAFILE);
};

TEST_F(ProgramResources, HoldTheIconInEverySize) {
  const std::string_view directory = Resource(RT_GROUP_ICON);
  ASSERT_GE(directory.size(), 6u);
  EXPECT_EQ(directory[4], 8) << "icons";
}

TEST_F(ProgramResources, TellTheVersion) {
  const DWORD size = GetFileVersionInfoSizeW(kProgram, nullptr);
  ASSERT_GT(size, 0u);
  std::vector<char> info(size);
  ASSERT_TRUE(GetFileVersionInfoW(kProgram, 0, size, info.data()));
  const auto text = [&](const std::wstring& name) {
    void* value = nullptr;
    UINT length = 0;
    const std::wstring path = L"\\StringFileInfo\\040904B0\\" + name;
    if (!VerQueryValueW(info.data(), path.c_str(), &value, &length)) return std::wstring();
    return std::wstring(static_cast<const wchar_t*>(value));
  };
  EXPECT_EQ(text(L"ProductName"), L"Mivo");
  EXPECT_EQ(text(L"FileVersion"), L"0.84.00");
  EXPECT_EQ(text(L"OriginalFilename"), L"mivo.exe");
}

TEST_F(ProgramResources, AskForScalingAndLongPathsButForNoOtherCodePage) {
  const std::string manifest(Resource(RT_MANIFEST));
  EXPECT_THAT(manifest, HasSubstr(">PerMonitorV2</dpiAwareness>"));
  EXPECT_THAT(manifest, HasSubstr(">true</longPathAware>"));
  EXPECT_THAT(manifest, HasSubstr("level=\"asInvoker\""));
  EXPECT_THAT(manifest, Not(HasSubstr("<activeCodePage")));
}

}  // namespace
}  // namespace mivo

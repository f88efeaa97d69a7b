// The settings file and the system's own profile functions understand each other.

#define NOMINMAX
#include <windows.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "settings_file.h"
#include "settings_location.h"
#include "temp_folder.h"

namespace mivo {
namespace {

namespace fs = std::filesystem;

std::wstring SystemReads(const fs::path& path, const wchar_t* section, const wchar_t* key) {
  wchar_t value[100];
  const DWORD length =
      GetPrivateProfileStringW(section, key, L"(missing)", value, 100, path.c_str());
  return {value, length};
}

void SystemWrites(const fs::path& path, const wchar_t* section, const wchar_t* key,
                  const wchar_t* value) {
  ASSERT_TRUE(WritePrivateProfileStringW(section, key, value, path.c_str()));
  WritePrivateProfileStringW(nullptr, nullptr, nullptr, path.c_str());  // the system's own copy
}

/// The file as the program creates it beside itself, in a folder with an unusual name.
class SystemProfile : public testing::Test {
 protected:
  SystemProfile() {
    const fs::path program = folder_.Path() / L"J\u00FCrgen \u0416";
    fs::create_directory(program);
    path_ = ChooseSettingsFile({program, program, {}});
  }

  const TempFolder folder_;
  fs::path path_;
};

TEST_F(SystemProfile, ReadsWhatTheProgramWrites) {
  SettingsFile settings(path_);
  settings.SetInt(u"WindowPosition", u"Width", 1234);
  settings.SetInt(u"Setting", u"EditWindowMargin", -5);
  settings.SetInt(u"WindowPosition", u"Height", -2147483647 - 1);
  settings.SetInt(u"WindowPosition", u"Width", 77);
  EXPECT_EQ(SystemReads(path_, L"WindowPosition", L"Width"), L"77");
  EXPECT_EQ(SystemReads(path_, L"windowposition", L"HEIGHT"), L"-2147483648");
  EXPECT_EQ(SystemReads(path_, L"Setting", L"EditWindowMargin"), L"-5");
  EXPECT_EQ(SystemReads(path_, L"Setting", L"Width"), L"(missing)");
  EXPECT_EQ(
      static_cast<INT>(GetPrivateProfileIntW(L"Setting", L"EditWindowMargin", 3, path_.c_str())),
      -5);
}

TEST_F(SystemProfile, WritesWhatTheProgramReads) {
  SystemWrites(path_, L"LabelFont", L"FaceName", L"\u039C\u03A9 Gothic \u2126");
  SystemWrites(path_, L"LabelFont", L"Height", L"12");
  SystemWrites(path_, L"Setting", L"EditWindowMargin", L"-60");
  const SettingsFile settings(path_);
  EXPECT_EQ(settings.GetString(u"LabelFont", u"FaceName", u""), u"\u039C\u03A9 Gothic \u2126");
  EXPECT_EQ(settings.GetInt(u"LabelFont", u"Height", 9), 12);
  EXPECT_EQ(settings.GetInt(u"Setting", u"EditWindowMargin", 0), -60);
  EXPECT_EQ(settings.GetInt(u"LabelFont", u"IsBold", 400), 400);
}

TEST_F(SystemProfile, BothWriteIntoOneFile) {
  SettingsFile settings(path_);
  settings.SetInt(u"WindowPosition", u"Width", 500);
  SystemWrites(path_, L"WindowPosition", L"Height", L"400");
  SystemWrites(path_, L"Other", L"Key", L"\u00E4\u20AC");
  settings.SetInt(u"WindowPosition", u"cmdShow", 3);
  settings.SetInt(u"WindowPosition", u"Height", 401);
  EXPECT_EQ(SystemReads(path_, L"WindowPosition", L"Width"), L"500");
  EXPECT_EQ(SystemReads(path_, L"WindowPosition", L"Height"), L"401");
  EXPECT_EQ(SystemReads(path_, L"WindowPosition", L"cmdShow"), L"3");
  EXPECT_EQ(SystemReads(path_, L"Other", L"Key"), L"\u00E4\u20AC");
  EXPECT_EQ(BytesOf(path_).substr(0, 2), "\xFF\xFE") << "and the file stays what it was";
}

TEST_F(SystemProfile, WritesAnEightBitFileThatTheProgramReads) {
  const fs::path path = folder_.Put("8BIT.INI", "[LabelFont]\r\nHeight=11\r\n");
  SystemWrites(path, L"LabelFont", L"FaceName", L"Stra\u00DFe");
  SettingsFile settings(path);
  EXPECT_EQ(settings.GetString(u"LabelFont", u"FaceName", u""), u"Stra\u00DFe");
  settings.SetInt(u"WindowPosition", u"Width", 640);
  EXPECT_EQ(SystemReads(path, L"WindowPosition", L"Width"), L"640");
  EXPECT_EQ(SystemReads(path, L"LabelFont", L"FaceName"), L"Stra\u00DFe");
}

}  // namespace
}  // namespace mivo

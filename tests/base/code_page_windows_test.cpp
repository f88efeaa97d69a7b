// The system's 8-bit code page. This program is run under several of them.

#define NOMINMAX
#include <windows.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <string>
#include <string_view>

#include "text_encoding.h"

namespace mivo {
namespace {

using namespace std::string_view_literals;

struct Sample {
  std::string_view bytes;
  std::u16string_view text;
};

TEST(DecodeSystemCodePage, TakesThatOfTheSystem) {
  const std::map<UINT, Sample> samples = {
      {1252, {"\x80 \xC4\x9F", u"\u20AC \u00C4\u0178"}},
      {1251, {"\x80 \xC4\xFF", u"\u0402 \u0414\u044F"}},
      {932, {"\x83\x65\x83\x58 \x83\x67\xB1", u"\u30C6\u30B9 \u30C8\uFF71"}},
  };
  if (const char* const asked = std::getenv("MIVO_TEST_CODE_PAGE")) {
    ASSERT_EQ(GetACP(), std::stoul(asked));
  }
  const auto sample = samples.find(GetACP());
  if (sample == samples.end()) GTEST_SKIP() << "no sample of code page " << GetACP();
  EXPECT_EQ(DecodeSystemCodePage(sample->second.bytes), sample->second.text);
}

TEST(DecodeSystemCodePage, KeepsAscii) {
  EXPECT_EQ(DecodeSystemCodePage(""), u"");
  EXPECT_EQ(DecodeSystemCodePage("a\0b\r\n%~"sv), u"a\0b\r\n%~"sv);
}

}  // namespace
}  // namespace mivo

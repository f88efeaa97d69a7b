// Clipboard texts of pins and drawing objects that do not fit into the memory.

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <variant>

#include "allocation_meter.h"
#include "clipboard_text.h"
#include "little_memory.h"
#include "text_encoding.h"

namespace mivo {
namespace {

std::u16string Repeated(std::u16string_view header, std::u16string_view record, int count) {
  std::u16string text(header);
  for (int i = 0; i < count; ++i) text.append(record);
  return text;
}

TEST(ClipboardMemory, ObjectsThatDoNotFitAreNotPasted) {
  if (kHasSanitizer) GTEST_SKIP() << "a sanitizer takes memory without limit";
  const std::u16string text = Repeated(u"+MIVO_PTN_V.1.0\n", u"+L,X:1,Y:1,X:9,Y:9,-L\n", 500000);
  EXPECT_EQ(RunWithLittleMemory([&]() -> std::string {
              const ClipboardContent content = ReadClipboardText(text, 1);
              return std::holds_alternative<std::monostate>(content) ? "refused" : "pasted";
            }),
            "refused");
}

TEST(ClipboardMemory, OfAnyNumberOfPinsOneIsKept) {
  if (kHasSanitizer) GTEST_SKIP() << "a sanitizer takes memory without limit";
  const std::u16string text =
      Repeated(u"+MIVO_PIN_V.1.0\n", u"+PIN,N:A,DF:FFFFFFFF,L:L1,T:,M:1,-PIN\n", 500000);
  EXPECT_EQ(RunWithLittleMemory([&]() -> std::string {
              const ClipboardContent content = ReadClipboardText(text, 255);
              const auto* const pins = std::get_if<PinText>(&content);
              return pins != nullptr && pins->pin ? "pasted" : "refused";
            }),
            "pasted");
}

TEST(ClipboardMemory, APinThatDoesNotFitIsNotPasted) {
  if (kHasSanitizer) GTEST_SKIP() << "a sanitizer takes memory without limit";
  std::u16string text = u"+MIVO_PIN_V.1.0\n+PIN";
  for (int i = 0; i < 255; ++i) text.append(u",M:").append(32700, u'7');
  text += u",-PIN\n";
  EXPECT_EQ(RunWithLittleMemory([&]() -> std::string {
              const ClipboardContent content = ReadClipboardText(text, 255);
              return std::holds_alternative<std::monostate>(content) ? "refused" : "pasted";
            }),
            "refused");
}

TEST(ClipboardMemory, ObjectsStayInTheBudget) {
  if (kHasSanitizer) GTEST_SKIP() << "too slow, and would count the same";
  constexpr std::size_t kMegabyte = std::size_t{1} << 20;
  for (const std::u16string_view record :
       {u"+L,-L,", u"+C,-C,", u"+AR,-AR,", u"+PG,N:3,X:0,Y:0,X:1,Y:1,X:2,Y:0,-PG,",
        u"+TX,X:0,Y:0,S:A,FS:8,-TX,"}) {
    const std::u16string text =
        Repeated(u"+MIVO_PTN_V.1.0\n", record, static_cast<int>(16 * kMegabyte / record.size()));
    const AllocationMeter meter;
    const ClipboardContent content = ReadClipboardText(text, 1);
    ASSERT_TRUE(std::holds_alternative<PatternText>(content));
    EXPECT_LE(meter.Peak(), 64 * kMegabyte + 12 * text.size() * sizeof(char16_t))
        << Utf16ToUtf8(record);
  }
}

}  // namespace
}  // namespace mivo

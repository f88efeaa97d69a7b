#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "mivo_doc.h"
#include "sample_features.h"
#include "text_encoding.h"

namespace mivo {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* kLibraries[] = {"standard.ZLB", "microcontrollers.ZLB",
                                      "connectors-and-supply.ZLB"};
constexpr const char* kSchematic = "flasher.ZSC";
constexpr const char* kOldLibrary = "workshop-1998.ZLB";

std::string ReadSample(const std::string& name) {
  std::ifstream file(MIVO_SAMPLES + name, std::ios::binary);
  EXPECT_TRUE(file.is_open()) << name;
  return {std::istreambuf_iterator<char>(file), {}};
}

class Findings final : public FindingSink {
 public:
  void Report(const Finding& finding) override {
    reports.push_back("line " + std::to_string(finding.line) + ": " +
                      Utf16ToUtf8(MessageOf(finding.kind)) + ": " + Utf16ToUtf8(finding.text));
  }
  std::vector<std::string> reports;
};

/// A sample, loaded.
struct Sample {
  explicit Sample(const std::string& name) : bytes(ReadSample(name)) {
    EXPECT_TRUE(library.Load(bytes, Utf8ToUtf16(name), &findings)) << name;
  }

  [[nodiscard]] std::string Saved() const {
    std::string text;
    StringByteSink sink(text);
    EXPECT_TRUE(library.Write(sink));
    return text;
  }

  [[nodiscard]] const SComponent& Component(std::u16string_view name) const {
    const NameEntry* entry = library.Names().Find(name);
    EXPECT_NE(entry, nullptr) << Utf16ToUtf8(name);
    static const SComponent none;
    return entry != nullptr ? *entry->Component() : none;
  }

  std::string bytes;
  Findings findings;
  SMivoDoc library;
};

std::vector<std::string> Names(const SMivoDoc& library) {
  std::vector<std::string> names;
  for (const auto& entry : library.Names().Entries()) names.push_back(Utf16ToUtf8(entry->Name()));
  return names;
}

/// The numbers of the pin called `name` in the order of the blocks.
std::vector<std::string> Numbers(const SComponent& component, std::u16string_view name) {
  std::vector<std::string> numbers;
  for (const SCompPin& pin : component.Pins()) {
    if (pin.DisplayName() != name) continue;
    for (std::int32_t block = 0; block < pin.NumberCount(); ++block) {
      numbers.push_back(Utf16ToUtf8(pin.GetNumber(block).value_or(u"")));
    }
  }
  return numbers;
}

/// The file's name in characters that a test's name can have.
std::string SampleName(const testing::TestParamInfo<const char*>& test) {
  std::string name = test.param;
  std::erase_if(name, [](unsigned char c) { return std::isalnum(c) == 0; });
  return name;
}

class CurrentLibrary : public testing::TestWithParam<const char*> {};

TEST_P(CurrentLibrary, LoadsWithoutFindingsAndIsSavedByteForByte) {
  const Sample sample(GetParam());

  EXPECT_THAT(sample.findings.reports, IsEmpty());
  EXPECT_EQ(sample.library.Version(), SMivoDoc::kVersion);
  EXPECT_FALSE(sample.library.property.empty());
  EXPECT_TRUE(sample.Saved() == sample.bytes) << "saving changes " << GetParam();
}

TEST_P(CurrentLibrary, HasPinsOnTheOutlineAndDrawingsThatTheEditorKeeps) {
  constexpr std::int32_t kCell = 10;
  constexpr std::int32_t kOverhang = 15;
  const Sample sample(GetParam());

  for (const auto& entry : sample.library.Names().Entries()) {
    SCOPED_TRACE(Utf16ToUtf8(entry->Name()));
    const SComponent& component = *entry->Component();
    const SPoint size = component.Size();
    for (const SCompPin& pin : component.Pins()) {
      const PinSide side = pin.location.side;
      const bool upright = side == PinSide::Left || side == PinSide::Right;
      EXPECT_GT(pin.location.offset, 0);
      EXPECT_LT(pin.location.offset, upright ? size.y : size.x);
    }
    if (component.Pattern() == nullptr) continue;
    const SRect area{-kOverhang, -kOverhang, size.x * kCell + kOverhang,
                     size.y * kCell + kOverhang};
    for (const auto& object : component.Pattern()->objects) {
      EXPECT_TRUE(object->IsInRect(area));
      EXPECT_TRUE(object->IsValid());
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Samples, CurrentLibrary, testing::ValuesIn(kLibraries), SampleName);

class AnySample : public testing::TestWithParam<const char*> {};

TEST_P(AnySample, IsSavedAlikeEveryTime) {
  const Sample sample(GetParam());
  const std::string saved = sample.Saved();
  SMivoDoc again;
  Findings findings;

  ASSERT_TRUE(again.Load(saved, u"again.ZLB", &findings));

  EXPECT_THAT(findings.reports, IsEmpty());
  EXPECT_EQ(Names(again), Names(sample.library));
  std::string savedAgain;
  StringByteSink sink(savedAgain);
  ASSERT_TRUE(again.Write(sink));
  EXPECT_TRUE(savedAgain == saved);
}

INSTANTIATE_TEST_SUITE_P(Samples, AnySample,
                         testing::Values("standard.ZLB", "microcontrollers.ZLB",
                                         "connectors-and-supply.ZLB", kSchematic, kOldLibrary),
                         SampleName);

TEST(Samples, UseEveryFeature) {
  std::set<std::string> features;
  for (const char* name : kLibraries) CollectFeatures(Sample(name).library, features);
  CollectFeatures(Sample(kOldLibrary).library, features);

  std::vector<std::string> missing;
  std::ranges::set_difference(AllFeatures(), features, std::back_inserter(missing));
  EXPECT_THAT(missing, IsEmpty());
  std::vector<std::string> unknown;
  std::ranges::set_difference(features, AllFeatures(), std::back_inserter(unknown));
  EXPECT_THAT(unknown, IsEmpty());
}

TEST(StandardLibrary, HasFourGatesIn7400UnderThreeNames) {
  const Sample sample("standard.ZLB");
  const SComponent& nand = sample.Component(u"7400");

  EXPECT_EQ(&sample.Component(u"74LS00"), &nand);
  EXPECT_EQ(&sample.Component(u"74HC00"), &nand);
  EXPECT_EQ(nand.BlockCount(), 4);
  EXPECT_THAT(Numbers(nand, u"A"), ElementsAre("1", "4", "9", "12"));
  EXPECT_THAT(Numbers(nand, u"B"), ElementsAre("2", "5", "10", "13"));
  EXPECT_THAT(Numbers(nand, u"Y"), ElementsAre("3", "6", "8", "11"));
  const SComponent& supply = sample.Component(u"7400-SUPPLY");
  EXPECT_EQ(supply.Type(), BlockType::Shared);
  EXPECT_THAT(Numbers(supply, u"VCC"), ElementsAre("14"));
  EXPECT_THAT(Numbers(supply, u"GND"), ElementsAre("7"));
}

TEST(StandardLibrary, HasPixelsOfTheLedWhereItsTriangleIs) {
  const Sample sample("standard.ZLB");
  const SPtn* pattern = sample.Component(u"LED").Pattern();
  ASSERT_NE(pattern, nullptr);
  ASSERT_TRUE(pattern->bitPattern);
  const auto isSet = [&](std::int32_t x, std::int32_t y) {
    const auto at = static_cast<std::size_t>(y * SBitPattern::Stride(pattern->size.x) + x / 8);
    return (pattern->bitPattern->Bytes()[at] & (0x80 >> (x % 8))) != 0;
  };

  EXPECT_EQ(pattern->size, (SPoint{41, 31}));
  EXPECT_TRUE(isSet(0, 20)) << "the lead";
  EXPECT_TRUE(isSet(18, 20)) << "inside the triangle";
  EXPECT_FALSE(isSet(5, 10)) << "above the lead";
}

class Controller : public testing::TestWithParam<std::pair<const char*, int>> {};

TEST_P(Controller, HasEveryPinOfItsPackageOnce) {
  const Sample sample("microcontrollers.ZLB");
  const auto& [name, count] = GetParam();
  std::vector<int> numbers;

  for (const SCompPin& pin : sample.Component(Utf8ToUtf16(name)).Pins()) {
    numbers.push_back(std::stoi(Utf16ToUtf8(pin.GetNumber(0).value_or(u"0"))));
  }

  std::sort(numbers.begin(), numbers.end());
  std::vector<int> expected;
  for (int number = 1; number <= count; ++number) expected.push_back(number);
  EXPECT_EQ(numbers, expected);
}

INSTANTIATE_TEST_SUITE_P(Samples, Controller,
                         testing::Values(std::pair{"ATTINY85-20PU", 8}, std::pair{"PIC16F84A", 18},
                                         std::pair{"MSP430G2553IN20", 20},
                                         std::pair{"ATMEGA328P-PU", 28}, std::pair{"62256", 28},
                                         std::pair{"27C256", 28}, std::pair{"AT89C51", 40},
                                         std::pair{"Z80", 40}, std::pair{"STM32F103R8T6", 64},
                                         std::pair{"ATMEGA2560-16AU", 100}));

TEST(Microcontrollers, HaveOverlinedAndPartlyHiddenNames) {
  const Sample sample("microcontrollers.ZLB");
  const SComponent& component = sample.Component(u"STM32F103R8T6");

  EXPECT_THAT(Numbers(component, u"\\N\\R\\S\\T"), ElementsAre("7"));
  const auto& pins = component.Pins();
  const auto pin = std::find_if(pins.begin(), pins.end(), [](const SCompPin& p) {
    return p.DisplayName() == u"PA9/USART1_TX/TIM1_CH2";
  });
  ASSERT_NE(pin, pins.end());
  EXPECT_EQ(pin->nameMask, 0xFFFFFFFBU);
}

TEST(Schematic, YieldsTheComponentsOfAllItsBlocks) {
  const Sample sample(kSchematic);

  EXPECT_THAT(sample.findings.reports,
              testing::Each(testing::HasSubstr(Utf16ToUtf8(MessageOf(FindingKind::NameChanged)))));
  EXPECT_THAT(Names(sample.library), ElementsAre("NE555", "R", "R(1)", "C_POL", "C", "R(2)", "LED",
                                                 "VCC", "GND", "GND(1)"));
  EXPECT_EQ(sample.Component(u"R(2)").prefix, u"R");
  EXPECT_TRUE(sample.Component(u"LED").Pattern()->bitPattern);
}

TEST(OldLibrary, IsDecodedFromWindows1252) {
  const Sample sample(kOldLibrary);

  EXPECT_THAT(sample.findings.reports, IsEmpty());
  EXPECT_EQ(sample.library.Version(), 70);
  EXPECT_EQ(sample.library.property, u"Bauteile für die Werkstatt – Stand März 1998");
  EXPECT_THAT(Names(sample.library), ElementsAre("R-5W", "C-10U", "UA741", "LM741"));
  EXPECT_EQ(sample.Component(u"R-5W").note, u"Drahtwiderstand 5 W, ±5%, -55 °C…155 °C");
  EXPECT_EQ(sample.Component(u"C-10U").note,
            u"Condensateur à électrolyte sec, qualité «longue durée»");
  EXPECT_EQ(sample.Component(u"C-10U").package, u"Ø 5 mm");
  EXPECT_EQ(sample.Component(u"LM741").partNumber, u"µA741CN");
}

}  // namespace
}  // namespace mivo

#include "packed_texts.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <tuple>

#include "text_gen.h"

namespace mivo {
namespace {

constexpr std::nullopt_t kAbsent = std::nullopt;

std::vector<std::optional<std::u16string_view>> Slots(const PackedTexts& texts) {
  std::vector<std::optional<std::u16string_view>> slots;
  for (std::int32_t i = 0; i < texts.Count(); ++i) slots.push_back(texts.Get(i));
  return slots;
}

PackedTexts Texts(const std::vector<std::optional<std::u16string_view>>& slots) {
  PackedTexts texts(static_cast<std::int32_t>(slots.size()));
  for (std::size_t i = 0; i < slots.size(); ++i) texts.Set(static_cast<std::int32_t>(i), slots[i]);
  return texts;
}

using Expected = std::vector<std::optional<std::u16string_view>>;

TEST(PackedTexts, HasNoSlotsByDefault) {
  const PackedTexts texts;
  EXPECT_EQ(texts.Count(), 0);
  EXPECT_EQ(texts.Get(0), kAbsent);
}

TEST(PackedTexts, StartsWithAbsentSlots) {
  EXPECT_EQ(Slots(PackedTexts(3)), (Expected{kAbsent, kAbsent, kAbsent}));
}

TEST(PackedTexts, TellsAnEmptyTextFromAnAbsentOne) {
  EXPECT_EQ(Slots(Texts({u"", kAbsent, u""})), (Expected{u"", kAbsent, u""}));
}

TEST(PackedTexts, ReplacesATextByALongerShorterOrAbsentOne) {
  PackedTexts texts = Texts({u"one", u"two", u"three"});
  texts.Set(1, u"twenty-two");
  EXPECT_EQ(Slots(texts), (Expected{u"one", u"twenty-two", u"three"}));
  texts.Set(0, u"");
  EXPECT_EQ(Slots(texts), (Expected{u"", u"twenty-two", u"three"}));
  texts.Set(1, kAbsent);
  EXPECT_EQ(Slots(texts), (Expected{u"", kAbsent, u"three"}));
  texts.Set(2, kAbsent);
  EXPECT_EQ(Slots(texts), (Expected{u"", kAbsent, kAbsent}));
}

TEST(PackedTexts, SkipsSlotsThatComeLater) {
  PackedTexts texts(4);
  texts.Set(2, u"c");
  texts.Set(0, u"a");
  EXPECT_EQ(Slots(texts), (Expected{u"a", kAbsent, u"c", kAbsent}));
}

TEST(PackedTexts, HasNoOtherSlots) {
  PackedTexts texts = Texts({u"a", u"b"});
  texts.Set(-1, u"x");
  texts.Set(2, u"x");
  EXPECT_EQ(Slots(texts), (Expected{u"a", u"b"}));
  EXPECT_EQ(texts.Get(-1), kAbsent);
  EXPECT_EQ(texts.Get(2), kAbsent);
}

TEST(PackedTexts, KeepsTextsOfAnyLengthAndContent) {
  const std::u16string nul(1, u'\0');
  for (const std::size_t length : {0xFFFEu, 0xFFFFu, 0x10000u, 0x20001u}) {
    const std::u16string text(length, u'\xFFFF');
    EXPECT_EQ(Slots(Texts({text, nul, text})), (Expected{text, nul, text})) << length;
  }
}

TEST(PackedTexts, DropsSlotsFromTheEnd) {
  PackedTexts texts = Texts({u"a", kAbsent, u"c"});
  texts.Resize(2);
  EXPECT_EQ(Slots(texts), (Expected{u"a", kAbsent}));
  texts.Resize(4);
  EXPECT_EQ(Slots(texts), (Expected{u"a", kAbsent, kAbsent, kAbsent}));
  texts.Resize(0);
  EXPECT_EQ(Slots(texts), Expected{});
  texts.Resize(-1);
  EXPECT_EQ(texts.Count(), 0);
}

TEST(PackedTexts, EqualsWhatHasTheSameSlots) {
  PackedTexts changed = Texts({u"a", u"b", u"c"});
  changed.Set(2, kAbsent);
  changed.Set(1, kAbsent);
  EXPECT_EQ(changed, Texts({u"a", kAbsent, kAbsent}));
  EXPECT_NE(changed, Texts({u"a", kAbsent}));
  EXPECT_NE(changed, Texts({u"a", u"", kAbsent}));
}

/// Sets slot `slot` to a text (or nothing), or resizes to `slot` slots.
using Step = std::tuple<std::int32_t, bool, bool, TextUnits>;

RC_GTEST_PROP(PackedTextsProperty, BehavesLikeAVectorOfOptionalTexts, ()) {
  const auto count = *rc::gen::inRange<std::int32_t>(0, 10);
  const auto steps = *rc::gen::container<std::vector<Step>>(rc::gen::tuple(
      rc::gen::inRange<std::int32_t>(-1, 11), rc::gen::arbitrary<bool>(),
      rc::gen::map(rc::gen::inRange(0, 8), [](int n) { return n == 0; }), GenText()));
  PackedTexts texts(count);
  std::vector<std::optional<std::u16string>> model(static_cast<std::size_t>(count));
  for (const auto& [slot, present, resize, units] : steps) {
    const std::size_t index = static_cast<std::size_t>(slot);
    std::optional<std::u16string> text;
    if (present) text = ToText(units);
    if (resize) {
      texts.Resize(slot);
      model.resize(slot < 0 ? 0 : index);
    } else {
      texts.Set(slot, text);
      if (slot >= 0 && index < model.size()) model[index] = text;
    }
    RC_ASSERT(texts.Count() == static_cast<std::int32_t>(model.size()));
    PackedTexts fresh(texts.Count());
    for (std::size_t i = 0; i < model.size(); ++i) {
      RC_ASSERT(texts.Get(static_cast<std::int32_t>(i)) == model[i]);
      fresh.Set(static_cast<std::int32_t>(i), model[i]);
    }
    RC_ASSERT(texts == fresh);
  }
}

}  // namespace
}  // namespace mivo

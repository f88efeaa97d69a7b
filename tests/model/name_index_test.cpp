#include "name_index.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <string>

#include "case_name.h"

namespace mivo {
namespace {

using testing::ElementsAre;

std::vector<std::u16string> Names(const NameIndex& index) {
  std::vector<std::u16string> names;
  for (const auto& entry : index.Entries()) names.push_back(entry->Name());
  return names;
}

std::u16string WithNumber(std::u16string name, int number) {
  name += u'(';
  for (const char c : std::to_string(number)) name += static_cast<char16_t>(c);
  return name += u')';
}

NameIndex IndexOf(const std::vector<std::u16string>& names) {
  NameIndex index;
  for (const std::u16string& name : names) index.Add(name, nullptr);
  return index;
}

struct UniqueCase {
  const char* name;
  std::vector<std::u16string> taken;
  std::u16string wanted;
  std::u16string unique;
};

void PrintTo(const UniqueCase& uniqueCase, std::ostream* out) {
  *out << uniqueCase.name;
}

class UniqueName : public testing::TestWithParam<UniqueCase> {};

TEST_P(UniqueName, IsFree) {
  NameIndex index = IndexOf(GetParam().taken);
  EXPECT_EQ(index.UniqueName(GetParam().wanted), GetParam().unique);
  EXPECT_EQ(index.UniqueName(GetParam().wanted), GetParam().unique) << "asking takes nothing";
}

INSTANTIATE_TEST_SUITE_P(
    , UniqueName,
    testing::Values(
        UniqueCase{"Free", {u"S"}, u"R", u"R"},
        UniqueCase{"FreeWithANumber", {u"R"}, u"R(7)", u"R(7)"},
        UniqueCase{"OtherCaseIsFree", {u"r"}, u"R", u"R"},
        UniqueCase{"Second", {u"R"}, u"R", u"R(1)"},
        UniqueCase{"Third", {u"R", u"R(1)"}, u"R", u"R(2)"},
        UniqueCase{"Gap", {u"R", u"R(1)", u"R(3)"}, u"R", u"R(2)"},
        UniqueCase{"CountsOnFromItsNumber", {u"R", u"R(1)", u"R(2)"}, u"R(1)", u"R(3)"},
        UniqueCase{"DoesNotCountBack", {u"R(5)"}, u"R(5)", u"R(6)"},
        UniqueCase{"NoDigits", {u"R()"}, u"R()", u"R(1)"},
        UniqueCase{"NoBase", {u"(1)"}, u"(1)", u"(2)"},
        UniqueCase{"ParenthesesAlone", {u"()"}, u"()", u"(1)"},
        UniqueCase{"Empty", {u""}, u"", u"(1)"},
        UniqueCase{"LeadingZeros", {u"R(007)"}, u"R(007)", u"R(8)"},
        UniqueCase{"NotANumber", {u"R(x)"}, u"R(x)", u"R(x)(1)"},
        UniqueCase{"PartlyANumber", {u"R(1x)"}, u"R(1x)", u"R(1x)(1)"},
        UniqueCase{"SignIsNoDigit", {u"R(-1)"}, u"R(-1)", u"R(-1)(1)"},
        UniqueCase{"FullWidthDigitIsNoDigit", {u"R(\uFF11)"}, u"R(\uFF11)", u"R(\uFF11)(1)"},
        UniqueCase{"NothingOpens", {u"1)"}, u"1)", u"1)(1)"},
        UniqueCase{"ClosingParenthesisAlone", {u")"}, u")", u")(1)"},
        UniqueCase{"DigitsAlone", {u"12)"}, u"12)", u"12)(1)"},
        UniqueCase{"NumberNotAtTheEnd", {u"R(1)a"}, u"R(1)a", u"R(1)a(1)"},
        UniqueCase{"TwoNumbers", {u"R(1)(2)"}, u"R(1)(2)", u"R(1)(3)"},
        UniqueCase{"NestedParentheses", {u"R((2)"}, u"R((2)", u"R((3)"},
        UniqueCase{"LargestNumberWraps", {u"R(2147483647)"}, u"R(2147483647)", u"R(-2147483648)"},
        UniqueCase{
            "NumberBeyondAllBounds", {u"R(99999999999)"}, u"R(99999999999)", u"R(-2147483648)"}),
    kCaseName);

TEST(NameIndex, GivesUpAfter4096Attempts) {
  NameIndex index = IndexOf({u"R"});
  for (int n = 1; n < NameIndex::kMaxAttempts; ++n) index.Add(WithNumber(u"R", n), nullptr);
  EXPECT_EQ(index.UniqueName(u"R"), u"R(4096)");
  index.Add(u"R(4096)", nullptr);
  EXPECT_EQ(index.UniqueName(u"R"), u"R(4096)") << "taken, but the last one tried";
  EXPECT_EQ(index.UniqueName(u"R(1)"), u"R(4097)");
}

TEST(NameIndex, ShortensANameThatLeavesNoRoomForANumber) {
  constexpr std::size_t kLimit = NameIndex::kMaxNumberedLength;
  const std::u16string fits(kLimit - 13, u'n');
  EXPECT_EQ(IndexOf({fits}).UniqueName(fits), WithNumber(fits, 1));
  const std::u16string longest(kLimit, u'n');
  NameIndex index = IndexOf({longest});
  EXPECT_EQ(index.UniqueName(longest), WithNumber(fits, 1));
  index.Add(WithNumber(fits, 1), nullptr);
  EXPECT_EQ(index.UniqueName(longest), WithNumber(fits, 2));
  index.Add(longest + u'x', nullptr);
  EXPECT_EQ(index.UniqueName(longest + u'x'), WithNumber(fits, 2)) << "longer than any record's";
  const std::u16string numbered = std::u16string(kLimit - 3, u'n') + u"(9)";
  index.Add(numbered, nullptr);
  EXPECT_EQ(index.UniqueName(numbered), WithNumber(fits, 10)) << "the number goes on";
}

TEST(NameIndex, ShortensNoSurrogatePairToAHalf) {
  constexpr std::size_t kKept = NameIndex::kMaxNumberedLength - 13;
  const std::u16string before(kKept - 1, u'n');
  const std::u16string name = before + u"\U0001F600" + std::u16string(12, u'x');
  EXPECT_EQ(IndexOf({name}).UniqueName(name), WithNumber(before, 1));
}

TEST(NameIndex, FindsTheFirstOfEqualNames) {
  NameIndex index;
  EXPECT_EQ(index.Find(u"A"), nullptr);
  NameEntry* const first = index.Add(u"A", nullptr);
  NameEntry* const second = index.Add(u"A", nullptr);
  index.Add(u"B", nullptr);
  EXPECT_EQ(index.Find(u"A"), first);
  EXPECT_EQ(index.Find(u"a"), nullptr);
  index.Remove(*first);
  EXPECT_EQ(index.Find(u"A"), second);
  index.Remove(*second);
  EXPECT_EQ(index.Find(u"A"), nullptr);
  EXPECT_THAT(Names(index), ElementsAre(u"B"));
}

TEST(NameIndex, KeepsTheOrderWhenANameChanges) {
  NameIndex index = IndexOf({u"A", u"B", u"C"});
  NameEntry* const entry = index.Find(u"B");
  index.Rename(*entry, u"X");
  EXPECT_THAT(Names(index), ElementsAre(u"A", u"X", u"C"));
  EXPECT_EQ(index.Find(u"B"), nullptr);
  EXPECT_EQ(index.Find(u"X"), entry);
  index.Rename(*entry, u"X");
  EXPECT_EQ(index.Find(u"X"), entry);
}

TEST(NameIndex, FindsTheFirstOfNamesMadeEqual) {
  NameIndex index = IndexOf({u"A", u"B"});
  NameEntry* const a = index.Find(u"A");
  NameEntry* const b = index.Find(u"B");
  index.Rename(*b, u"A");
  EXPECT_EQ(index.Find(u"A"), a);
  index.Rename(*a, u"C");
  EXPECT_EQ(index.Find(u"A"), b);
  index.Rename(*a, u"A");
  EXPECT_EQ(index.Find(u"A"), a) << "the first in the order of the list";
}

TEST(NameIndex, FindsANumberSetFree) {
  NameIndex index = IndexOf({u"R", u"R(1)", u"R(2)"});
  EXPECT_EQ(index.UniqueName(u"R"), u"R(3)");
  index.Remove(*index.Find(u"R(1)"));
  EXPECT_EQ(index.UniqueName(u"R"), u"R(1)");
  index.Add(u"R(1)", nullptr);
  EXPECT_EQ(index.UniqueName(u"R"), u"R(3)");
  index.Rename(*index.Find(u"R(2)"), u"S");
  EXPECT_EQ(index.UniqueName(u"R"), u"R(2)");
}

TEST(NameIndex, ForgetsEverything) {
  NameIndex index = IndexOf({u"R", u"R(1)"});
  EXPECT_EQ(index.UniqueName(u"R"), u"R(2)");
  index.Clear();
  EXPECT_EQ(index.Find(u"R"), nullptr);
  EXPECT_TRUE(index.Entries().empty());
  index.Add(u"R", nullptr);
  EXPECT_EQ(index.UniqueName(u"R"), u"R(1)");
}

/// The index without any cleverness: a list that is searched.
class PlainIndex {
 public:
  [[nodiscard]] bool Has(const std::u16string& name) const {
    return std::find(names.begin(), names.end(), name) != names.end();
  }

  [[nodiscard]] std::u16string UniqueName(const std::u16string& name) const {
    if (!Has(name)) return name;
    std::u16string base = name;
    int number = 0;
    const std::size_t open = name.rfind(u'(');
    if (name.back() == u')' && open != std::u16string::npos &&
        name.find_first_not_of(u"0123456789", open + 1) == name.size() - 1) {
      base = name.substr(0, open);
      for (std::size_t i = open + 1; i + 1 < name.size(); ++i)
        number = 10 * number + (name[i] - u'0');
    }
    std::u16string candidate;
    for (int attempt = 0; attempt < NameIndex::kMaxAttempts; ++attempt) {
      candidate = WithNumber(base, ++number);
      if (!Has(candidate)) break;
    }
    return candidate;
  }

  std::vector<std::u16string> names;
};

/// One of a few names, so that they meet often.
std::u16string NameNumber(int number) {
  static const std::u16string kNames[] = {u"R",   u"R(1)", u"R(2)", u"R(3)", u"R(03)",
                                          u"R()", u"R(9)", u"S",    u"S(1)", u"(1)"};
  return kNames[static_cast<std::size_t>(number)];
}

struct IndexStep {
  int action;  ///< 0 to 4 add under a unique name, 5 add as it is, 6 and 7 rename, 8 remove, 9 ask
  int name;
  std::size_t entry;
};

void showValue(const IndexStep& step, std::ostream& out) {
  out << "action " << step.action << ", name " << step.name << ", entry " << step.entry;
}

rc::Gen<IndexStep> GenIndexStep() {
  return rc::gen::build<IndexStep>(rc::gen::set(&IndexStep::action, rc::gen::inRange(0, 10)),
                                   rc::gen::set(&IndexStep::name, rc::gen::inRange(0, 10)),
                                   rc::gen::set(&IndexStep::entry));
}

RC_GTEST_PROP(NameIndexProperty, AgreesWithAListThatIsSearched, ()) {
  const auto steps = *rc::gen::scale(3, rc::gen::container<std::vector<IndexStep>>(GenIndexStep()));
  NameIndex index;
  PlainIndex plain;
  for (const IndexStep& step : steps) {
    const std::u16string name = NameNumber(step.name);
    const std::u16string unique = plain.UniqueName(name);
    RC_ASSERT(index.UniqueName(name) == unique);
    const std::size_t at = plain.names.empty() ? 0 : step.entry % plain.names.size();
    if (step.action < 6) {
      const std::u16string added = step.action < 5 ? unique : name;
      index.Add(added, nullptr);
      plain.names.push_back(added);
    } else if (plain.names.empty()) {
      continue;
    } else if (step.action < 8) {
      index.Rename(*index.Entries()[at], unique);
      plain.names[at] = unique;
    } else if (step.action == 8) {
      index.Remove(*index.Entries()[at]);
      plain.names.erase(plain.names.begin() + static_cast<std::ptrdiff_t>(at));
    }
    RC_ASSERT(Names(index) == plain.names);
    for (std::size_t i = 0; i < plain.names.size(); ++i) {
      const auto first = std::find(plain.names.begin(), plain.names.end(), plain.names[i]);
      RC_ASSERT(index.Find(plain.names[i]) ==
                index.Entries()[static_cast<std::size_t>(first - plain.names.begin())].get());
    }
  }
}

}  // namespace
}  // namespace mivo

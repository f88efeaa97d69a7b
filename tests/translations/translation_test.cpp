// What holds for every translation that comes with the program.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cctype>
#include <filesystem>
#include <map>
#include <ostream>
#include <regex>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "case_name.h"
#include "language_library.h"
#include "text_encoding.h"

namespace mivo {

void PrintTo(const TextId& id, std::ostream* out) {
  *out << "kind " << static_cast<std::int32_t>(id.kind) << " number " << id.number << " control "
       << id.control;
}

namespace {

using testing::IsEmpty;

struct Language {
  const char* name;  ///< of its folder
  /// What stands for the English words in the names of keys.
  std::vector<std::pair<std::string, std::string>> keyWords;
};

class TranslationTest : public testing::TestWithParam<Language> {
 protected:
  TranslationTest()
      : translation_(LoadLanguageLibrary(std::filesystem::path(MIVO_TRANSLATIONS) /
                                         GetParam().name / kLanguageLibraryName)) {}

  void SetUp() override { ASSERT_TRUE(translation_) << "cannot be loaded"; }

  [[nodiscard]] std::string Translated(const TextId& id) const {
    return Utf16ToUtf8(translation_(id));
  }

  /// The ids for which `differs` says that the English text and its translation do not agree.
  template <typename Differs>
  [[nodiscard]] std::vector<TextId> IdsWhere(Differs differs) const {
    std::vector<TextId> ids;
    for (const TextId& id : AllTextIds()) {
      if (differs(Utf16ToUtf8(BuiltInText(id)), Translated(id))) ids.push_back(id);
    }
    return ids;
  }

  [[nodiscard]] const TextTable::Translation& All() const { return translation_; }

 private:
  TextTable::Translation translation_;
};

/// All that `pattern` finds in `text`, in order.
std::vector<std::string> Matches(const std::string& text, const char* pattern) {
  const std::regex regex(pattern);
  std::vector<std::string> found;
  for (std::sregex_iterator i(text.begin(), text.end(), regex), end; i != end; ++i) {
    found.push_back(i->str());
  }
  return found;
}

/// The keys named at the end of a menu text; empty without.
std::string Keys(const std::string& text) {
  const std::size_t tab = text.find('\t');
  return tab == std::string::npos ? std::string() : text.substr(tab + 1);
}

TEST_P(TranslationTest, IsOfTheProgramsVersion) {
  EXPECT_TRUE(TextTable().Translate(All()));
}

TEST_P(TranslationTest, HasEveryText) {
  EXPECT_THAT(IdsWhere([](const std::string&, const std::string& translated) {
                return translated.empty();
              }),
              IsEmpty());
}

TEST_P(TranslationTest, HasNothingElse) {
  constexpr std::int32_t kKinds = 8;
  constexpr std::int32_t kNumbers = 65536;
  constexpr std::int32_t kDialogs = 300;
  constexpr std::int32_t kControls = 1200;
  std::vector<TextId> surplus;
  const auto look = [&](const TextId& id) {
    if (BuiltInText(id).empty() && !Translated(id).empty()) surplus.push_back(id);
  };
  for (std::int32_t kind = -1; kind < kKinds; ++kind) {
    for (std::int32_t number = -1; number < kNumbers; ++number) {
      look({static_cast<TextKind>(kind), number});
    }
    for (std::int32_t dialog = 0; dialog < kDialogs; ++dialog) {
      for (std::int32_t control = 1; control < kControls; ++control) {
        look({static_cast<TextKind>(kind), dialog, control});
      }
    }
  }
  EXPECT_THAT(surplus, IsEmpty());
}

TEST_P(TranslationTest, IsTranslated) {
  const auto same = IdsWhere([](const std::string& english, const std::string& translated) {
    return english == translated && Matches(english, "[A-Za-z]+").size() > 3;
  });
  EXPECT_THAT(same, IsEmpty()) << "still English";
}

TEST_P(TranslationTest, KeepsWhatStandsForValues) {
  EXPECT_THAT(IdsWhere([](const std::string& english, const std::string& translated) {
                return Matches(english, "%.") != Matches(translated, "%.");
              }),
              IsEmpty());
}

TEST_P(TranslationTest, KeepsLineBreaks) {
  EXPECT_THAT(IdsWhere([](const std::string& english, const std::string& translated) {
                return Matches(english, "\n") != Matches(translated, "\n");
              }),
              IsEmpty());
}

TEST_P(TranslationTest, KeepsBlanksAtTheEnds) {
  EXPECT_THAT(IdsWhere([](const std::string& english, const std::string& translated) {
                return english.starts_with(' ') != translated.starts_with(' ') ||
                       english.ends_with(' ') != translated.ends_with(' ');
              }),
              IsEmpty());
}

TEST_P(TranslationTest, KeepsTheDotsOfCommandsThatAsk) {
  EXPECT_THAT(IdsWhere([](const std::string& english, const std::string& translated) {
                return (english.find("...") == std::string::npos) !=
                       (translated.find("...") == std::string::npos);
              }),
              IsEmpty());
}

TEST_P(TranslationTest, HasAMnemonicWhereTheProgramHasOne) {
  EXPECT_THAT(IdsWhere([](const std::string& english, const std::string& translated) {
                return Matches(english, "&[^& ]").size() != Matches(translated, "&[^& ]").size();
              }),
              IsEmpty());
}

TEST_P(TranslationTest, HasEachMnemonicOncePerDialog) {
  std::map<std::int32_t, std::set<std::string>> used;
  for (const TextId& id : AllTextIds()) {
    if (id.kind != TextKind::Dialog) continue;
    for (const std::string& mnemonic : Matches(Translated(id), "&[^& ]")) {
      const auto letter = static_cast<char>(std::tolower(static_cast<unsigned char>(mnemonic[1])));
      EXPECT_TRUE(used[id.number].insert({letter}).second) << testing::PrintToString(id);
    }
  }
  EXPECT_FALSE(used.empty());
}

TEST_P(TranslationTest, NamesTheSameKeys) {
  for (const TextId& id : AllTextIds()) {
    std::string keys = Keys(Utf16ToUtf8(BuiltInText(id)));
    for (const auto& [english, translated] : GetParam().keyWords) {
      keys = std::regex_replace(keys, std::regex(english), translated);
    }
    EXPECT_EQ(Keys(Translated(id)), keys) << testing::PrintToString(id);
  }
}

INSTANTIATE_TEST_SUITE_P(
    All, TranslationTest,
    testing::Values(Language{
        "de",
        {{"Ctrl", "Strg"}, {"Del", "Entf"}, {"Page up", "Bild auf"}, {"Page down", "Bild ab"}}}),
    kCaseName);

}  // namespace
}  // namespace mivo

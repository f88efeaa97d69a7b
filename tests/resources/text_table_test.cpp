#include "text_table.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

namespace mivo {
namespace {

TextId Id(StringId id) {
  return {TextKind::String, static_cast<std::int32_t>(id)};
}

/// A translation as a table; a missing text is empty.
TextTable::Translation From(std::map<TextId, std::u16string> texts) {
  return [texts = std::move(texts)](TextId id) {
    const auto found = texts.find(id);
    return found == texts.end() ? std::u16string() : found->second;
  };
}

TEST(TextTable, EveryIdHasAText) {
  EXPECT_GT(AllTextIds().size(), 90u);
  for (const TextId id : AllTextIds()) {
    EXPECT_FALSE(BuiltInText(id).empty()) << static_cast<std::int32_t>(id.kind) << ' ' << id.number;
  }
}

TEST(TextTable, UnknownIdHasNone) {
  EXPECT_EQ(BuiltInText({TextKind::String, 0}), u"");
  EXPECT_EQ(BuiltInText({TextKind::Menu, 99999}), u"");
}

TEST(TextTable, EveryCommandWithAMenuTextHasAHint) {
  std::set<std::int32_t> commands;
  std::set<std::int32_t> hints;
  for (const TextId id : AllTextIds()) {
    if (id.kind == TextKind::Command) commands.insert(id.number);
    if (id.kind == TextKind::Hint) hints.insert(id.number);
  }
  EXPECT_EQ(commands, hints);
}

TEST(TextTable, MessagesHaveTheirExactWording) {
  EXPECT_EQ(BuiltInText(Id(StringId::SaveFailed)), u"Cannnot save the document. Try saving as.");
  EXPECT_EQ(BuiltInText(Id(StringId::LaterVersion)),
            u"This file was created by the later version. \nSome data may have been lost.");
  EXPECT_EQ(BuiltInText(Id(StringId::CannotUndo)), u"You can't undo this command.\nContinue?");
  EXPECT_EQ(BuiltInText(Id(StringId::OverwriteBitPattern)),
            u"It CREATES BIT-PATTERN and OVERWRITES EXISTING");
}

TEST(TextTable, TranslationOfTheSameVersionIsUsed) {
  TextTable table;
  EXPECT_TRUE(table.Translate(From({{Id(StringId::Version), u"0.84.00"},
                                    {Id(StringId::SaveChanges), u"Änderungen speichern?"}})));
  EXPECT_EQ(table.Text(StringId::SaveChanges), u"Änderungen speichern?");
}

TEST(TextTable, MissingTranslationFallsBackToTheBuiltInText) {
  TextTable table;
  EXPECT_TRUE(table.Translate(From({{Id(StringId::Version), u"0.84.00"}})));
  EXPECT_EQ(table.Text(StringId::SaveChanges), u"Save changes?");
  EXPECT_EQ(table.Text(Command::Open), u"&Open...\tCtrl+O");
  EXPECT_EQ(table.Text(MenuId::File), u"&File");
}

TEST(TextTable, TranslationOfAnotherVersionIsIgnored) {
  TextTable table;
  EXPECT_FALSE(table.Translate(From({{Id(StringId::Version), u"0.84.01"},
                                     {Id(StringId::SaveChanges), u"Änderungen speichern?"}})));
  EXPECT_EQ(table.Text(StringId::SaveChanges), u"Save changes?");
  EXPECT_FALSE(table.Translate(From({})));
  EXPECT_FALSE(table.Translate(nullptr));
}

}  // namespace
}  // namespace mivo

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

TEST(TextTable, ControlsHaveTheirExactTexts) {
  struct Case {
    std::int32_t dialog;
    std::int32_t control;
    std::u16string_view text;
  };
  const Case cases[] = {
      {100, 0, u"About Mivo"},
      {100, 1043, u"Mivo Version "},
      {137, 0, u"Pin - property"},
      {137, 1003, u"&Name"},
      {137, 1005, u"&Block"},
      {137, 1007, u"&Hide number"},
      {137, 1049, u"Show/Hide"},
      {144, 0, u"Property - component"},
      {144, 1015, u"&Name"},
      {144, 1016, u"Numbe&r"},
      {144, 1017, u"&X"},
      {144, 1018, u"&Blocks"},
      {144, 1019, u"&Y"},
      {144, 1020, u"Use &Pattern"},
      {144, 1021, u"No &Bit-pattern"},
      {144, 1022, u"Manufacturer"},
      {144, 1023, u"MfrPartNumber"},
      {144, 1024, u"Package"},
      {144, 1025, u"No&te"},
      {144, 1050, u"&Fixed block Num"},
      {144, 1051, u"&Shared block"},
      {145, 0, u"Property - pattern"},
      {145, 1022, u"&Dot"},
      {145, 1023, u"&Fill"},
      {145, 1024, u"&Width"},
      {146, 0, u"Property - library"},
      {147, 0, u"Add alias"},
      {147, 1028, u"Alias for"},
      {148, 0, u"Property -text"},
      {148, 1030, u"&Text"},
      {148, 1031, u"Left"},
      {148, 1032, u"Center"},
      {148, 1033, u"Right"},
      {148, 1034, u"Upper"},
      {148, 1035, u"Center"},
      {148, 1036, u"Lower"},
      {148, 1037, u"Use common font"},
      {148, 1038, u"&Font..."},
      {157, 0, u"Show/Hide name individually"},
      {157, 1048, u"Show All"},
      {157, 1049, u"Hide All"},
      {158, 0, u"Property - Line"},
      {158, 1022, u"&Dot"},
      {158, 1023, u"&Curve line"},
      {158, 1024, u"&Width"},
  };
  for (const Case& test : cases) {
    EXPECT_EQ(BuiltInText({TextKind::Dialog, test.dialog, test.control}), test.text)
        << test.dialog << ' ' << test.control;
  }
}

TEST(TextTable, RefusalsHaveTheirExactWording) {
  EXPECT_EQ(BuiltInText(Id(StringId::SizeRange)), u"Size must be 1~255.");
  EXPECT_EQ(BuiltInText(Id(StringId::BlocksRange)), u"Blocks must be 1~255.");
  EXPECT_EQ(BuiltInText(Id(StringId::FixedBlockRange)), u"Fixed Block Number must be 1~255.");
  EXPECT_EQ(BuiltInText(Id(StringId::InvalidComponentName)), u"Invalid component name.");
  EXPECT_EQ(BuiltInText(Id(StringId::TextTooLong)), u"Enter at most %d characters.");
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

#include "schematic_data.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace mivo {
namespace {

/// A 4 × 3 component with a pin, a pattern and every text.
std::unique_ptr<SComponent> Gate() {
  auto component = std::make_unique<SComponent>();
  component->SetSize({4, 3}, true, true);
  SCompPin pin(1);
  pin.SetNameFromDisplayText(u"\\A B");
  pin.SetNumber(0, u"1,2");
  component->SetPins({pin});
  component->note = u"a note";
  component->manufacturer = u"maker";
  component->partNumber = u"number";
  component->package = u"DIP14";
  return component;
}

std::u16string TextOf(const SComponent& component) {
  std::u16string text;
  SRecordWriter writer;
  writer.AttachString(text);
  component.Write(writer, u"same name");
  return text;
}

TEST(SchematicData, WritesAPlacedComponentWithItsLibraryBlock) {
  SMivoDoc doc;
  const NameEntry* const entry = doc.AddComponent(Gate(), u"7400");
  EXPECT_EQ(WriteComponentText(*entry),
            u"+TARSL_DATA_V.1.0\n"
            u"+COMPONENT\n"
            u"+TARSL_LIB_V.1.0\n"
            u"VER:82\n"
            u"+PTN,N:7400,X:41,Y:31\n"
            u"-PTN\n"
            u"+COMP,N:7400\n"
            u"X:4,Y:3,B:1\n"
            u"TYPE:GEN,FB:0\n"
            u"R:U\n"
            u"P:7400\n"
            u"+PIN,N:\\A%20B,DF:FFFFFFFF,L:L0,T:,M:1%2C2,-PIN\n"
            u"NOTE:a%20note,MFR:maker,MFRPN:number,PKG:DIP14,-COMP\n"
            u"-TARSL_LIB_V.1.0\n"
            u"X:40,Y:30,LIB:7400,N:7400,R:U\n"
            u"-COMPONENT\n"
            u"-TARSL_DATA_V.1.0\n");
}

TEST(SchematicData, EntryWithoutANameHasNoText) {
  SMivoDoc doc;
  EXPECT_EQ(WriteComponentText(*doc.AddComponent(Gate(), u"")), u"");
}

TEST(SchematicData, AliasIsCopiedUnderItsOwnName) {
  SMivoDoc doc;
  const NameEntry* const entry = doc.AddComponent(Gate(), u"7400");
  const NameEntry* const alias = doc.AddAlias(entry->Component(), u"74LS00");
  EXPECT_NE(WriteComponentText(*alias).find(u"LIB:74LS00,N:74LS00,R:U"), std::u16string::npos);
}

TEST(SchematicData, CopyAndPasteInOneLibraryAddsASecondComponent) {
  SMivoDoc doc;
  const NameEntry* const entry = doc.AddComponent(Gate(), u"name");
  const NameEntry* const pasted = PasteComponentText(doc, WriteComponentText(*entry));
  ASSERT_NE(pasted, nullptr);
  EXPECT_EQ(pasted->Name(), u"name(1)");
  EXPECT_NE(pasted->Component(), entry->Component());
  EXPECT_EQ(TextOf(*pasted->Component()), TextOf(*entry->Component()));
}

TEST(SchematicData, OnlyTheFirstComponentIsTaken) {
  SMivoDoc doc;
  const NameEntry* const pasted = PasteComponentText(
      doc,
      u"+TARSL_DATA_V.1.0\n+WIRE,X:1,-WIRE\n+TARSL_LIB_V.1.0\nVER:82\n"
      u"+COMP,N:first,X:1,Y:1,B:1,-COMP\n+COMP,N:second,X:1,Y:1,B:1,-COMP\n-TARSL_LIB_V.1.0\n");
  ASSERT_NE(pasted, nullptr);
  EXPECT_EQ(pasted->Name(), u"first");
  EXPECT_EQ(doc.Names().Entries().size(), 1u);
}

TEST(SchematicData, TextsThatAreNoSchematicDataAddNothing) {
  for (const std::u16string_view text :
       {u"", u"+TARSL_LIB_V.1.0\nVER:82\n+COMP,N:a,X:1,Y:1,B:1,-COMP\n-TARSL_LIB_V.1.0\n",
        u"+TARSL_DATA_V.1.0\n+WIRE,X:1,-WIRE\n-TARSL_DATA_V.1.0\n",
        u"+TARSL_DATA_V.1.0\n+TARSL_LIB_V.1.0\nVER:82\n-TARSL_LIB_V.1.0\n"}) {
    SMivoDoc doc;
    doc.AddComponent(Gate(), u"7400");
    EXPECT_EQ(PasteComponentText(doc, text), nullptr);
    EXPECT_EQ(doc.Names().Entries().size(), 1u);
  }
}

TEST(SchematicData, MalformedComponentIsNotPasted) {
  SMivoDoc doc;
  EXPECT_EQ(PasteComponentText(doc,
                               u"+TARSL_DATA_V.1.0\n+TARSL_LIB_V.1.0\nVER:82\n"
                               u"+COMP,N:a,X:-1\n-COMP\n-TARSL_LIB_V.1.0\n"),
            nullptr);
  EXPECT_TRUE(doc.Names().Entries().empty());
}

TEST(SchematicData, PasteNeedsTheTagAndMoreThanSixtyEightBytes) {
  const std::u16string tag = u"+TARSL_DATA_V.1.0";
  EXPECT_FALSE(CanPasteComponent(u""));
  EXPECT_FALSE(CanPasteComponent(tag));
  EXPECT_FALSE(CanPasteComponent(tag + std::u16string(16, u'\n')));
  EXPECT_TRUE(CanPasteComponent(tag + std::u16string(17, u'\n')));
  EXPECT_FALSE(CanPasteComponent(u" " + tag + std::u16string(50, u'\n')));
  EXPECT_FALSE(CanPasteComponent(tag + u'\0' + std::u16string(50, u'\n')));
  EXPECT_FALSE(CanPasteComponent(u"+TARSL_LIB_V.1.0" + std::u16string(50, u'\n')));
}

}  // namespace
}  // namespace mivo

// Every dialog that the frame and its view open, with the library behind it.

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <functional>

#include "about_dlg.h"
#include "add_alias.h"
#include "comp_property.h"
#include "dialog_driver.h"
#include "frame_rig.h"
#include "line_property_dlg.h"
#include "note_edit.h"
#include "pin_name_show_hide.h"
#include "pin_property.h"
#include "prop_lib.h"
#include "ptn_obj_circle.h"
#include "ptn_obj_line.h"
#include "ptn_obj_text.h"
#include "ptn_property.h"
#include "ptn_text_dlg.h"

namespace mivo {
namespace {

const std::string kTwoBlocks =
    "+COMP,N:two\nX:6,Y:5,B:2\nTYPE:GEN,FB:0\nR:IC\n"
    "+PIN,N:\\A/B,DF:FFFFFFFF,L:L1,T:,M:1,M:5,-PIN\nNOTE:words,MFR:m,MFRPN:p,PKG:k,-COMP\n";

class MainFrameDialogsTest : public FrameTest {
 protected:
  MainFrameDialogsTest() {
    Frame().SetPrompts(std::make_unique<DialogPrompts>(Frame(), kTexts));
    Put("d.ZLB", LibraryFile(kTwoBlocks + ComponentRecord("one")));
    Frame().Open(PathOf("d.ZLB"));
    Frame().resize(900, 700);
    Frame().show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&Frame()));
  }

  [[nodiscard]] CompEditor& Editor() { return Frame().View().Editor(); }
  [[nodiscard]] const SCompPin* SelectedPin() {
    const SCompEditElm* const element = Editor().Document().SingleSelection();
    return element != nullptr ? element->Pin() : nullptr;
  }
  template <typename Object>
  [[nodiscard]] const Object* SelectedObject() {
    const SCompEditElm* const element = Editor().Document().SingleSelection();
    return element != nullptr ? dynamic_cast<const Object*>(element->Object()) : nullptr;
  }
  [[nodiscard]] std::string Saved() {
    Trigger(Command::Save);
    return Content("d.ZLB");
  }

  /// Lets a command open its dialog, deals with it and presses a button.
  template <typename Dialog>
  void Use(Command command, const char* button, const std::function<void(Dialog&)>& use = nullptr) {
    EXPECT_TRUE(Answer<Dialog>([&] { Trigger(command); },
                               [&](Dialog& dialog) {
                                 if (use) use(dialog);
                                 Click(dialog, button);
                               }));
  }

  /// A place of the component in the view.
  [[nodiscard]] QPoint At(SPoint point) {
    const PixelPoint pixel = Editor().Coordinates().ToDevice(point);
    return (QPointF(pixel.x, pixel.y) / Frame().View().viewport()->devicePixelRatioF()).toPoint();
  }
  void ClickView(SPoint point) {
    QTest::mouseClick(Frame().View().viewport(), Qt::LeftButton, {}, At(point));
  }
  /// Gives the component a pattern, as its dialog does.
  void UsePattern() {
    Use<CCompProperty>(Command::ComponentProperty, "okButton",
                       [](CCompProperty& dialog) { Click(dialog, "usePatternCheck"); });
  }
  /// Draws with a tool that takes two clicks; the figure is selected then.
  void Draw(Command tool) {
    UsePattern();
    Trigger(tool);
    ClickView({10, 10});
    ClickView({40, 30});
    ASSERT_NE(Editor().Document().SingleSelection(), nullptr);
  }

  static const TextTable kTexts;
};

const TextTable MainFrameDialogsTest::kTexts;

// --- Components ----------------------------------------------------------------------------------

TEST_F(MainFrameDialogsTest, NewComponentStartsWithTheDefaults) {
  Use<CCompProperty>(Command::NewComponent, "okButton", [](CCompProperty& dialog) {
    EXPECT_EQ(TextOf(dialog, "nameEdit"), u"NAME");
    EXPECT_EQ(TextOf(dialog, "prefixEdit"), u"U");
    EXPECT_EQ(TextOf(dialog, "widthEdit"), u"2");
    Type(dialog, "nameEdit", "NEW");
    Type(dialog, "widthEdit", "7");
  });
  EXPECT_EQ(ListedNames(), "[NEW] two one");
  EXPECT_EQ(Editor().Component()->Size(), (SPoint{7, 2}));
  EXPECT_TRUE(Frame().IsModified());
}

TEST_F(MainFrameDialogsTest, ComponentPropertyShowsAndChangesTheComponent) {
  Use<CCompProperty>(Command::ComponentProperty, "okButton", [](CCompProperty& dialog) {
    EXPECT_EQ(TextOf(dialog, "nameEdit"), u"two");
    EXPECT_EQ(TextOf(dialog, "prefixEdit"), u"IC");
    EXPECT_EQ(TextOf(dialog, "widthEdit"), u"6");
    EXPECT_EQ(TextOf(dialog, "heightEdit"), u"5");
    EXPECT_EQ(TextOf(dialog, "blocksEdit"), u"2");
    EXPECT_EQ(TextOf(dialog, "manufacturerEdit"), u"m");
    EXPECT_EQ(TextOf(dialog, "partNumberEdit"), u"p");
    EXPECT_EQ(TextOf(dialog, "packageEdit"), u"k");
    EXPECT_EQ(Find<NoteEdit>(dialog, "noteEdit").Content(), u"words");
    Type(dialog, "nameEdit", "three");
    Type(dialog, "blocksEdit", "3");
    Find<NoteEdit>(dialog, "noteEdit").setPlainText(QStringLiteral("a\nb"));
  });
  EXPECT_EQ(ListedNames(), "[three] one");
  EXPECT_EQ(Editor().Component()->BlockCount(), 3);
  EXPECT_EQ(Editor().Component()->note, u"a\r\nb");
  EXPECT_EQ(NoteText(), "a\nb");
}

TEST_F(MainFrameDialogsTest, AFixedBlockOf255IsShownAndRefused) {
  Put("f.ZLB", LibraryFile("+COMP,N:f\nX:4,Y:3,B:1\nTYPE:FXB,FB:255\nR:U\n"
                           "NOTE:,MFR:,MFRPN:,PKG:,-COMP\n"));
  Frame().Open(PathOf("f.ZLB"));
  Use<CCompProperty>(Command::ComponentProperty, "cancelButton", [](CCompProperty& dialog) {
    EXPECT_TRUE(Find<QCheckBox>(dialog, "fixedBlockCheck").isChecked());
    EXPECT_EQ(TextOf(dialog, "fixedBlockNumberEdit"), u"256");
    EXPECT_EQ(MessageOf([&] { Click(dialog, "okButton"); }), u"Fixed Block Number must be 1~255.");
    EXPECT_EQ(FocusName(dialog), "fixedBlockNumberEdit");
  });
}

TEST_F(MainFrameDialogsTest, DialogsThatAreCancelledChangeNothing) {
  const std::string before = Saved();
  const auto typeName = [](CCompProperty& dialog) { Type(dialog, "nameEdit", "X"); };
  Use<CCompProperty>(Command::NewComponent, "cancelButton", typeName);
  Use<CCompProperty>(Command::ComponentProperty, "cancelButton", typeName);
  Use<CAddAlias>(Command::AddAlias, "cancelButton",
                 [](CAddAlias& dialog) { Type(dialog, "aliasEdit", "X"); });
  Use<CPropLib>(Command::LibraryProperty, "cancelButton", [](CPropLib& dialog) {
    Find<NoteEdit>(dialog, "textEdit").setPlainText(QStringLiteral("X"));
  });
  ASSERT_TRUE(Editor().SelectPin({PinSide::Left, 1}));
  Use<CPinProperty>(Command::Property, "cancelButton",
                    [](CPinProperty& dialog) { Type(dialog, "nameEdit", "X"); });
  EXPECT_FALSE(Editor().Document().SelectionChanged());
  EXPECT_FALSE(Frame().IsModified());
  EXPECT_EQ(Saved(), before);
}

TEST_F(MainFrameDialogsTest, AliasIsAddedUnderTheSelectedName) {
  Use<CAddAlias>(Command::AddAlias, "okButton", [](CAddAlias& dialog) {
    EXPECT_EQ(TextOf(dialog, "nameEdit"), u"two");
    Type(dialog, "aliasEdit", "other");
  });
  EXPECT_NE(ListedNames().find("[other]"), std::string::npos);
  EXPECT_EQ(Editor().Component()->prefix, u"IC");
}

TEST_F(MainFrameDialogsTest, LibraryTextIsKept) {
  Use<CPropLib>(Command::LibraryProperty, "okButton", [](CPropLib& dialog) {
    Find<NoteEdit>(dialog, "textEdit").setPlainText(QStringLiteral("a\nb"));
  });
  EXPECT_EQ(Frame().Library().property, u"a\r\nb");
  Use<CPropLib>(Command::LibraryProperty, "okButton",
                [](CPropLib& dialog) { EXPECT_EQ(dialog.Content(), u"a\r\nb"); });
}

TEST_F(MainFrameDialogsTest, AboutTellsTheVersion) {
  Use<CAboutDlg>(Command::About, "okButton", [](CAboutDlg& dialog) {
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("About Mivo"));
    EXPECT_EQ(Find<QLabel>(dialog, "versionLabel").text(), QStringLiteral("Mivo Version 0.84.00"));
    EXPECT_FALSE(Find<QLabel>(dialog, "iconLabel").pixmap().isNull());
  });
}

// --- Pins ----------------------------------------------------------------------------------------

TEST_F(MainFrameDialogsTest, PinPropertyShowsAndChangesThePin) {
  ASSERT_TRUE(Editor().SelectPin({PinSide::Left, 1}));
  Use<CPinProperty>(Command::Property, "okButton", [](CPinProperty& dialog) {
    EXPECT_EQ(TextOf(dialog, "nameEdit"), u"\\A/B") << "stored with bit 7";
    EXPECT_EQ(TextOf(dialog, "numberEdit"), u"1");
    Type(dialog, "blockEdit", "2");
    EXPECT_EQ(TextOf(dialog, "numberEdit"), u"5");
    Type(dialog, "numberEdit", "9");
    Click(dialog, "hideNumberCheck");
    Click(dialog, "negationRadio");
  });
  ASSERT_NE(SelectedPin(), nullptr);
  EXPECT_EQ(SelectedPin()->Name(), (std::u16string{u'A' | SCompPin::kOverline, u'/', u'B'}));
  EXPECT_EQ(SelectedPin()->GetNumber(0), u"1");
  EXPECT_EQ(SelectedPin()->GetNumber(1), u"9");
  EXPECT_EQ(SelectedPin()->type, 16 + 8);
  Trigger(Command::Undo);
  ASSERT_TRUE(Editor().SelectPin({PinSide::Left, 1}));
  EXPECT_EQ(SelectedPin()->GetNumber(1), u"5") << "one operation";
  EXPECT_EQ(SelectedPin()->type, 0);
}

TEST_F(MainFrameDialogsTest, HiddenPartsOfAPinNameAreKept) {
  ASSERT_TRUE(Editor().SelectPin({PinSide::Left, 1}));
  const auto hideFirst = [](CDlgPinNameShowHide& parts) {
    auto& list = Find<QListWidget>(parts, "partsList");
    EXPECT_EQ(list.count(), 2);
    list.item(0)->setCheckState(Qt::Unchecked);
    Click(parts, "okButton");
  };
  Use<CPinProperty>(Command::Property, "okButton", [&](CPinProperty& dialog) {
    EXPECT_TRUE(Answer<CDlgPinNameShowHide>([&] { Click(dialog, "showHideButton"); }, hideFirst));
  });
  EXPECT_EQ(SelectedPin()->nameMask, 0xFFFFFFFE);
}

TEST_F(MainFrameDialogsTest, NextNameAndNumberGoOnFromThePinDialog) {
  Frame().Names().SelectRow(1);
  ASSERT_TRUE(Editor().SelectPin({PinSide::Left, 1}));
  Use<CPinProperty>(Command::Property, "okButton", [](CPinProperty& dialog) {
    Type(dialog, "nameEdit", "D7");
    Type(dialog, "numberEdit", "20");
  });
  ASSERT_TRUE(Editor().SelectPin({PinSide::Right, 1}));
  Trigger(Command::NextPinName);
  Trigger(Command::NextPinNumber);
  EXPECT_EQ(SelectedPin()->Name(), u"D8");
  EXPECT_EQ(SelectedPin()->GetNumber(0), u"21");
}

TEST_F(MainFrameDialogsTest, DoubleClickOnAPinOpensItsDialog) {
  ClickView({-5, 10});
  ASSERT_NE(SelectedPin(), nullptr);
  EXPECT_TRUE(Answer<CPinProperty>(
      [&] {
        QTest::mouseDClick(Frame().View().viewport(), Qt::LeftButton, {}, At({-5, 10}));
      },
      [](CPinProperty& dialog) {
        Type(dialog, "nameEdit", "X");
        QTest::keyClick(&dialog, Qt::Key_Return);
      }));
  ASSERT_NE(SelectedPin(), nullptr);
  EXPECT_EQ(SelectedPin()->Name(), u"X");
}

// --- Drawing objects -----------------------------------------------------------------------------

TEST_F(MainFrameDialogsTest, LineHasTheDialogOfLines) {
  Draw(Command::LineTool);
  Use<CLinePropertyDlg>(Command::Property, "okButton", [](CLinePropertyDlg& dialog) {
    Find<QComboBox>(dialog, "widthList").setCurrentIndex(4);
    Click(dialog, "curveCheck");
    Click(dialog, "dotCheck");
  });
  ASSERT_NE(SelectedObject<SPtnObjLine>(), nullptr);
  EXPECT_EQ(SelectedObject<SPtnObjLine>()->width, 4);
  EXPECT_TRUE(SelectedObject<SPtnObjLine>()->IsCurve());
  EXPECT_EQ(SelectedObject<SPtnObjLine>()->style, 1);
}

TEST_F(MainFrameDialogsTest, EllipseCanBeFilled) {
  Draw(Command::CircleTool);
  Use<CPtnProperty>(Command::Property, "okButton", [](CPtnProperty& dialog) {
    EXPECT_TRUE(Find<QCheckBox>(dialog, "fillCheck").isEnabled());
    Click(dialog, "fillCheck");
  });
  ASSERT_NE(SelectedObject<SPtnObjCircle>(), nullptr);
  EXPECT_EQ(SelectedObject<SPtnObjCircle>()->fill, 1);
}

TEST_F(MainFrameDialogsTest, ArcCannotBeFilled) {
  UsePattern();
  Trigger(Command::ArcTool);
  for (const SPoint point : {SPoint{30, 30}, SPoint{40, 30}, SPoint{45, 30}, SPoint{30, 15}}) {
    ClickView(point);
  }
  ASSERT_NE(Editor().Document().SingleSelection(), nullptr);
  Use<CPtnProperty>(Command::Property, "okButton", [](CPtnProperty& dialog) {
    EXPECT_FALSE(Find<QCheckBox>(dialog, "fillCheck").isEnabled());
  });
}

TEST_F(MainFrameDialogsTest, TextToolAsksForTheText) {
  UsePattern();
  Trigger(Command::TextTool);
  const auto place = [&](const char* text, const char* button) {
    EXPECT_TRUE(Answer<CPtnTextDlg>(
        [&] {
          ClickView({20, 20});
        },
        [&](CPtnTextDlg& dialog) {
          Type(dialog, "textEdit", text);
          Click(dialog, button);
        }));
  };
  place("words", "cancelButton");
  EXPECT_TRUE(Editor().Document().Selection().empty());
  place("", "okButton");
  EXPECT_TRUE(Editor().Document().Selection().empty());
  place("words", "okButton");
  ASSERT_NE(SelectedObject<SPtnObjText>(), nullptr);
  EXPECT_EQ(SelectedObject<SPtnObjText>()->Text(), u"words");
  EXPECT_EQ(SelectedObject<SPtnObjText>()->FontSize(), 10);

  Use<CPtnTextDlg>(Command::Property, "okButton", [](CPtnTextDlg& dialog) {
    EXPECT_EQ(TextOf(dialog, "textEdit"), u"words");
    Type(dialog, "textEdit", "other");
    Click(dialog, "upperRadio");
  });
  EXPECT_EQ(SelectedObject<SPtnObjText>()->Text(), u"other");
  EXPECT_EQ(SelectedObject<SPtnObjText>()->Align(), 4);
}

}  // namespace
}  // namespace mivo

#include "form_dialog.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <memory>
#include <string>
#include <vector>

#include "about_dlg.h"
#include "add_alias.h"
#include "comp_property.h"
#include "dialog_driver.h"
#include "dialog_texts.h"
#include "line_property_dlg.h"
#include "pin_name_show_hide.h"
#include "pin_property.h"
#include "prop_lib.h"
#include "ptn_property.h"
#include "ptn_text_dlg.h"

namespace mivo {
namespace {

std::vector<std::unique_ptr<QDialog>> AllDialogs(const TextTable& texts) {
  std::vector<std::unique_ptr<QDialog>> dialogs;
  dialogs.push_back(std::make_unique<CAboutDlg>(texts, nullptr));
  dialogs.push_back(std::make_unique<CAddAlias>(texts, u"A", nullptr));
  dialogs.push_back(std::make_unique<CCompProperty>(texts, CompPropertyValues(), nullptr));
  dialogs.push_back(std::make_unique<CLinePropertyDlg>(texts, LineValues(), nullptr));
  dialogs.push_back(std::make_unique<CDlgPinNameShowHide>(texts, u"A/B", 1, nullptr));
  dialogs.push_back(std::make_unique<CPinProperty>(texts, PinValues(), SCommonFont(), nullptr));
  dialogs.push_back(std::make_unique<CPropLib>(texts, u"A", nullptr));
  dialogs.push_back(std::make_unique<CPtnProperty>(texts, ShapeValues(), nullptr));
  dialogs.push_back(std::make_unique<CPtnTextDlg>(texts, TextValues(), nullptr));
  return dialogs;
}

TEST(FormDialog, EveryControlThatTakesTheFocusHasASpokenName) {
  const TextTable texts;
  for (const auto& dialog : AllDialogs(texts)) {
    for (const QWidget* const control : dialog->findChildren<QWidget*>()) {
      if (control->focusPolicy() == Qt::NoFocus || control->focusProxy() != nullptr) continue;
      if (control->objectName().startsWith(QLatin1String("qt_"))) continue;
      EXPECT_FALSE(control->objectName().isEmpty()) << dialog->windowTitle().toStdString();
      EXPECT_FALSE(control->accessibleName().isEmpty()) << control->objectName().toStdString();
      EXPECT_FALSE(control->accessibleName().contains(u'&')) << control->objectName().toStdString();
    }
  }
}

TEST(FormDialog, EveryMnemonicLabelLeadsToAControl) {
  const TextTable texts;
  for (const auto& dialog : AllDialogs(texts)) {
    for (const QLabel* const label : dialog->findChildren<QLabel*>()) {
      EXPECT_TRUE(label->buddy() != nullptr || !label->text().contains(u'&'));
    }
  }
}

TEST(FormDialog, EverythingFitsInAnyFont) {
  const TextTable texts;
  const QFont before = QApplication::font();
  for (const int size : {6, 10, 24, 40}) {
    QFont font = before;
    font.setPointSize(size);
    QApplication::setFont(font);
    for (const auto& dialog : AllDialogs(texts)) {
      Show(*dialog);
      for (const QWidget* const control : dialog->findChildren<QWidget*>()) {
        if (!control->isVisibleTo(dialog.get())) continue;
        if (qobject_cast<const QAbstractSpinBox*>(control->parent()) != nullptr) continue;
        if (control->objectName().isEmpty() && qobject_cast<const QLabel*>(control) == nullptr) {
          continue;
        }
        const QSize least = control->minimumSizeHint();
        EXPECT_TRUE(control->width() >= least.width() && control->height() >= least.height())
            << size << ' ' << control->objectName().toStdString();
      }
    }
  }
  QApplication::setFont(before);
}

TEST(FormDialog, TheTextsAreTheTables) {
  TextTable texts;
  ASSERT_TRUE(texts.Translate([](TextId id) {
    if (id == TextId{TextKind::String, static_cast<std::int32_t>(StringId::Version)}) {
      return std::u16string(BuiltInText(id));
    }
    return u"&T" + std::u16string(BuiltInText(id));
  }));
  for (const auto& dialog : AllDialogs(texts)) {
    EXPECT_TRUE(dialog->windowTitle().startsWith(QLatin1String("&T")));
    for (const QAbstractButton* const button : dialog->findChildren<QAbstractButton*>()) {
      if (button->text().isEmpty()) continue;
      EXPECT_TRUE(button->text().startsWith(QLatin1String("&T"))) << button->text().toStdString();
    }
    for (const QLabel* const label : dialog->findChildren<QLabel*>()) {
      if (label->text().isEmpty()) continue;
      EXPECT_TRUE(label->text().startsWith(QLatin1String("&T"))) << label->text().toStdString();
    }
  }
}

TEST(FormDialog, MnemonicsLeadToTheirFields) {
  const TextTable texts;
  CCompProperty dialog(texts, {}, nullptr);
  Show(dialog);
  struct Case {
    Qt::Key key;
    const char* control;
  };
  for (const Case& test :
       {Case{Qt::Key_X, "widthEdit"}, Case{Qt::Key_Y, "heightEdit"}, Case{Qt::Key_R, "prefixEdit"},
        Case{Qt::Key_T, "noteEdit"}, Case{Qt::Key_N, "nameEdit"}}) {
    QTest::keyClick(&dialog, test.key, Qt::AltModifier);
    EXPECT_EQ(FocusName(dialog), test.control);
  }
}

}  // namespace
}  // namespace mivo

#include "ptn_property.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <optional>

#include "dialog_driver.h"
#include "line_property_dlg.h"

namespace mivo {
namespace {

/// Shows a dialog, lets `edit` use it, presses "OK", and returns the values.
template <typename Dialog, typename Values>
Values Edited(const Values& values, const std::function<void(Dialog&)>& edit = nullptr) {
  const TextTable texts;
  Dialog dialog(texts, values, nullptr);
  Show(dialog);
  if (edit) edit(dialog);
  Click(dialog, "okButton");
  EXPECT_EQ(dialog.result(), QDialog::Accepted);
  return dialog.Values();
}

template <typename Dialog>
class PenWidths : public testing::Test {};

struct Line {
  using Dialog = CLinePropertyDlg;
  using Values = LineValues;
};
struct Shape {
  using Dialog = CPtnProperty;
  using Values = ShapeValues;
};

using DialogsWithPenWidths = testing::Types<Line, Shape>;
TYPED_TEST_SUITE(PenWidths, DialogsWithPenWidths, );

TYPED_TEST(PenWidths, AreZeroToFive) {
  using Dialog = typename TypeParam::Dialog;
  using Values = typename TypeParam::Values;
  const TextTable texts;
  Dialog dialog(texts, Values{.width = 9}, nullptr);
  Show(dialog);
  const auto& list = Find<QComboBox>(dialog, "widthList");
  ASSERT_EQ(list.count(), 6);
  for (int width = 0; width <= 5; ++width) EXPECT_EQ(list.itemText(width), QString::number(width));
  EXPECT_EQ(list.currentText(), QStringLiteral("5"));
  EXPECT_FALSE(list.isEditable());
  EXPECT_EQ(FocusName(dialog), "widthList");
}

TYPED_TEST(PenWidths, ComeBackAsChosen) {
  using Dialog = typename TypeParam::Dialog;
  using Values = typename TypeParam::Values;
  EXPECT_EQ((Edited<Dialog>(Values{.width = 9}).width), 5);
  EXPECT_EQ((Edited<Dialog>(Values{.width = -3}).width), 0);
  EXPECT_EQ((Edited<Dialog>(Values{.width = 3}).width), 3);
  EXPECT_EQ((Edited<Dialog, Values>({},
                                    [](Dialog& dialog) {
                                      QTest::keyClick(&Find<QComboBox>(dialog, "widthList"),
                                                      Qt::Key_Down);
                                    })
                 .width),
            2);
  EXPECT_EQ(
      (Edited<Dialog, Values>(
           {}, [](Dialog& dialog) { Find<QComboBox>(dialog, "widthList").setCurrentIndex(-1); })
           .width),
      0);
}

TEST(PtnProperty, ShowsTheShape) {
  for (const bool dot : {false, true}) {
    for (const bool fill : {false, true}) {
      for (const bool fillAllowed : {false, true}) {
        const ShapeValues values{.width = 2, .dot = dot, .fill = fill, .fillAllowed = fillAllowed};
        EXPECT_EQ(Edited<CPtnProperty>(
                      values,
                      [&](CPtnProperty& dialog) {
                        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Property - pattern"));
                        EXPECT_EQ(Find<QCheckBox>(dialog, "dotCheck").isChecked(), dot);
                        EXPECT_EQ(Find<QCheckBox>(dialog, "fillCheck").isChecked(), fill);
                        EXPECT_EQ(Find<QCheckBox>(dialog, "fillCheck").isEnabled(), fillAllowed);
                      }),
                  values);
      }
    }
  }
}

TEST(PtnProperty, TakesWhatIsClicked) {
  EXPECT_EQ(Edited<CPtnProperty>(ShapeValues{.fillAllowed = true},
                                 [](CPtnProperty& dialog) {
                                   Click(dialog, "dotCheck");
                                   Click(dialog, "fillCheck");
                                 }),
            (ShapeValues{.dot = true, .fill = true, .fillAllowed = true}));
}

TEST(PtnProperty, AnArcCannotBeFilled) {
  EXPECT_FALSE(Edited<CPtnProperty>(ShapeValues{.fillAllowed = false}, [](CPtnProperty& dialog) {
                 Click(dialog, "fillCheck");
               }).fill);
}

TEST(PtnProperty, TabVisitsTheControlsInReadingOrder) {
  const TextTable texts;
  CPtnProperty dialog(texts, {.fillAllowed = true}, nullptr);
  Show(dialog);
  EXPECT_EQ(TabOrder(dialog), (std::vector<std::string>{"widthList", "fillCheck", "dotCheck",
                                                        "okButton", "cancelButton"}));
}

TEST(LinePropertyDlg, ShowsTheLine) {
  for (const bool curve : {false, true}) {
    for (const bool dot : {false, true}) {
      const LineValues values{.width = 4, .curve = curve, .dot = dot};
      EXPECT_EQ(Edited<CLinePropertyDlg>(
                    values,
                    [&](CLinePropertyDlg& dialog) {
                      EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Property - Line"));
                      EXPECT_EQ(Find<QCheckBox>(dialog, "curveCheck").isChecked(), curve);
                      EXPECT_EQ(Find<QCheckBox>(dialog, "dotCheck").isChecked(), dot);
                    }),
                values);
    }
  }
}

TEST(LinePropertyDlg, TakesWhatIsClicked) {
  EXPECT_EQ(Edited<CLinePropertyDlg>(LineValues{},
                                     [](CLinePropertyDlg& dialog) { Click(dialog, "curveCheck"); }),
            (LineValues{.curve = true}));
  EXPECT_EQ(Edited<CLinePropertyDlg>(LineValues{},
                                     [](CLinePropertyDlg& dialog) { Click(dialog, "dotCheck"); }),
            (LineValues{.dot = true}));
}

TEST(LinePropertyDlg, TabVisitsTheControlsInReadingOrder) {
  const TextTable texts;
  CLinePropertyDlg dialog(texts, {}, nullptr);
  Show(dialog);
  EXPECT_EQ(TabOrder(dialog), (std::vector<std::string>{"widthList", "curveCheck", "dotCheck",
                                                        "okButton", "cancelButton"}));
}

}  // namespace
}  // namespace mivo

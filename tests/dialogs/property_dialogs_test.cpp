#include "property_dialogs.h"

#include <gtest/gtest.h>

#include <QWidget>

#include "dialog_driver.h"
#include "line_property_dlg.h"
#include "pin_property.h"
#include "ptn_property.h"
#include "ptn_text_dlg.h"

namespace mivo {
namespace {

class PropertyPrompting : public testing::Test {
 protected:
  /// What `ask` answers when the user presses that button of the dialog.
  template <typename Dialog, typename Ask>
  auto AnswerTo(Ask ask, const char* button) {
    decltype(ask()) answer;
    EXPECT_TRUE(Answer<Dialog>([&] { answer = ask(); },
                               [&](Dialog& dialog) {
                                 EXPECT_EQ(dialog.parentWidget(), &window_);
                                 Click(dialog, button);
                               }));
    return answer;
  }

  QWidget window_;
  TextTable texts_;
  SCommonFont font_;
  PropertyDialogs prompts_{texts_, font_, window_};
};

TEST_F(PropertyPrompting, AskForAPin) {
  const PinValues values{.name = u"A", .nameMask = 6, .numbers = {u"1", u""}, .shape = 8};
  const auto ask = [&] { return prompts_.AskPin(values); };
  EXPECT_EQ(AnswerTo<CPinProperty>(ask, "okButton"), values);
  EXPECT_EQ(AnswerTo<CPinProperty>(ask, "cancelButton"), std::nullopt);
}

TEST_F(PropertyPrompting, AskForALine) {
  const LineValues values{.width = 3, .curve = true, .dot = true};
  const auto ask = [&] { return prompts_.AskLine(values); };
  EXPECT_EQ(AnswerTo<CLinePropertyDlg>(ask, "okButton"), values);
  EXPECT_EQ(AnswerTo<CLinePropertyDlg>(ask, "cancelButton"), std::nullopt);
}

TEST_F(PropertyPrompting, AskForAShape) {
  const ShapeValues values{.width = 3, .dot = true, .fill = true, .fillAllowed = true};
  const auto ask = [&] { return prompts_.AskShape(values); };
  EXPECT_EQ(AnswerTo<CPtnProperty>(ask, "okButton"), values);
  EXPECT_EQ(AnswerTo<CPtnProperty>(ask, "cancelButton"), std::nullopt);
}

TEST_F(PropertyPrompting, AskForAText) {
  const TextValues values{.text = u"T", .align = 5, .face = u"DejaVu Sans", .height = 12};
  const auto ask = [&] { return prompts_.AskText(values); };
  EXPECT_EQ(AnswerTo<CPtnTextDlg>(ask, "okButton"), values);
  EXPECT_EQ(AnswerTo<CPtnTextDlg>(ask, "cancelButton"), std::nullopt);
}

}  // namespace
}  // namespace mivo

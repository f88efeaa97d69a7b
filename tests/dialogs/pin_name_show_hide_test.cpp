#include "pin_name_show_hide.h"

#include <gtest/gtest.h>

#include <QListWidget>
#include <string>
#include <vector>

#include "dialog_driver.h"

namespace mivo {
namespace {

std::u16string NameOfParts(int count) {
  std::u16string name = u"P";
  for (int part = 1; part < count; ++part) name += u"/P";
  return name;
}

class PinNameShowHide : public testing::Test {
 protected:
  QListWidget& Open(std::u16string_view name, std::uint32_t mask) {
    dialog_.emplace(texts_, name, mask, nullptr);
    Show(*dialog_);
    return Find<QListWidget>(*dialog_, "partsList");
  }

  std::vector<std::u16string> Lines(const QListWidget& list) {
    std::vector<std::u16string> lines;
    for (int row = 0; row < list.count(); ++row) {
      lines.push_back(list.item(row)->text().toStdU16String());
    }
    return lines;
  }

  static bool IsChecked(const QListWidget& list, int row) {
    return list.item(row)->checkState() == Qt::Checked;
  }

  /// Presses the space bar on a line.
  static void Toggle(QListWidget& list, int row) {
    list.setCurrentRow(row);
    QTest::keyClick(&list, Qt::Key_Space);
  }

  std::uint32_t Ok() {
    Click(*dialog_, "okButton");
    EXPECT_EQ(dialog_->result(), QDialog::Accepted);
    return dialog_->Mask();
  }

  TextTable texts_;
  std::optional<CDlgPinNameShowHide> dialog_;
};

TEST_F(PinNameShowHide, ListsTheParts) {
  const QListWidget& list = Open(u"A/B\\/C/", 0xFFFFFFFF);
  EXPECT_EQ(dialog_->windowTitle(), QStringLiteral("Show/Hide name individually"));
  EXPECT_EQ(Lines(list), (std::vector<std::u16string>{u"A", u"B\\/C", u""}));
  EXPECT_EQ(FocusName(*dialog_), "partsList");
  EXPECT_EQ(list.currentRow(), 0);
  EXPECT_TRUE(list.item(0)->isSelected());
}

TEST_F(PinNameShowHide, ChecksFollowTheMaskAndMakeIt) {
  QListWidget& list = Open(u"A/B/C", 0x00000005);
  EXPECT_TRUE(IsChecked(list, 0));
  EXPECT_FALSE(IsChecked(list, 1));
  EXPECT_TRUE(IsChecked(list, 2));
  Toggle(list, 1);
  Toggle(list, 2);
  // Bits without a part are set.
  EXPECT_EQ(Ok(), 0xFFFFFFFB);
}

TEST_F(PinNameShowHide, PartsFromThe33rdOnAreAlwaysShown) {
  QListWidget& list = Open(NameOfParts(40), 0);
  ASSERT_EQ(list.count(), 40);
  for (int row = 0; row < 40; ++row) {
    EXPECT_EQ(IsChecked(list, row), row >= 32) << row;
    EXPECT_EQ((list.item(row)->flags() & Qt::ItemIsEnabled) != 0, row < 32) << row;
  }
  Toggle(list, 35);
  EXPECT_TRUE(IsChecked(list, 35));
  Click(*dialog_, "hideAllButton");
  EXPECT_TRUE(IsChecked(list, 39));
  EXPECT_EQ(Ok(), 0u);
}

TEST_F(PinNameShowHide, ShowAllAndHideAll) {
  QListWidget& list = Open(NameOfParts(3), 0xFFFFFFFD);
  Click(*dialog_, "hideAllButton");
  for (int row = 0; row < 3; ++row) EXPECT_FALSE(IsChecked(list, row));
  EXPECT_EQ(dialog_->Mask(), 0xFFFFFFF8);
  Click(*dialog_, "showAllButton");
  for (int row = 0; row < 3; ++row) EXPECT_TRUE(IsChecked(list, row));
  EXPECT_EQ(Ok(), 0xFFFFFFFF);
}

TEST_F(PinNameShowHide, TheLastMaskableBit) {
  QListWidget& list = Open(NameOfParts(32), 0xFFFFFFFF);
  Toggle(list, 31);
  EXPECT_EQ(Ok(), 0x7FFFFFFFu);
}

TEST_F(PinNameShowHide, ShowsControlCharactersInOneLine) {
  const QListWidget& list = Open(u"A\nB/\t", 0xFFFFFFFF);
  EXPECT_EQ(Lines(list), (std::vector<std::u16string>{u"A\uFFFDB", u"\uFFFD"}));
}

TEST_F(PinNameShowHide, TakesANameOf5000Parts) {
  const QListWidget& list = Open(std::u16string(4999, u'/'), 1);
  EXPECT_EQ(list.count(), 5000);
  EXPECT_EQ(Ok(), 1u);
}

TEST_F(PinNameShowHide, AsksForAMask) {
  std::optional<std::uint32_t> mask;
  EXPECT_TRUE(Answer<CDlgPinNameShowHide>(
      [&] { mask = CDlgPinNameShowHide::Ask(texts_, u"A/B", 0xFFFFFFFF, nullptr); },
      [](CDlgPinNameShowHide& dialog) {
        Click(dialog, "hideAllButton");
        Click(dialog, "okButton");
      }));
  EXPECT_EQ(mask, 0xFFFFFFFC);
  EXPECT_TRUE(Answer<CDlgPinNameShowHide>(
      [&] { mask = CDlgPinNameShowHide::Ask(texts_, u"A/B", 0xFFFFFFFF, nullptr); },
      [](CDlgPinNameShowHide& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); }));
  EXPECT_EQ(mask, std::nullopt);
}

TEST_F(PinNameShowHide, TabVisitsTheControlsInReadingOrder) {
  Open(u"A/B", 1);
  EXPECT_EQ(TabOrder(*dialog_),
            (std::vector<std::string>{"partsList", "showAllButton", "hideAllButton", "okButton",
                                      "cancelButton"}));
}

}  // namespace
}  // namespace mivo

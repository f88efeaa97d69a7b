#include "lb_comp_name.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QSignalSpy>
#include <QTest>
#include <memory>

#include "component.h"
#include "wait_until.h"

namespace mivo {
namespace {

/// A list of "A" with its aliases "A2" and "A3", and "B" between them.
class NameListTest : public testing::Test {
 protected:
  NameListTest() {
    list_.resize(200, 200);
    Fill({{u"A", 0}, {u"B", 1}, {u"A2", 0}, {u"A3", 0}});
  }

  void Fill(const std::vector<std::pair<std::u16string, int>>& names) {
    std::vector<NameEntry*> rows;
    entries_.clear();
    for (const auto& [name, component] : names) {
      entries_.push_back(std::make_unique<NameEntry>(name, &components_[component]));
      rows.push_back(entries_.back().get());
    }
    list_.Names().SetEntries(rows);
  }

  void ShowWithFocus() {
    list_.show();
    list_.activateWindow();
    list_.setFocus();
    ASSERT_TRUE(WaitUntil([&] { return list_.hasFocus(); }));
  }

  [[nodiscard]] QImage Row(int row) {
    return list_.viewport()->grab(list_.visualRect(list_.Names().index(row))).toImage();
  }
  /// What of the row is drawn in red, from the first to the last column; empty when nothing is.
  [[nodiscard]] QRect Red(int row) {
    return Extent(Row(row), [](const QColor& color) {
      return color.red() > 200 && color.green() < 120 && color.blue() < 120;
    });
  }
  template <typename Predicate>
  static QRect Extent(const QImage& image, Predicate matches) {
    QRect extent;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        if (matches(image.pixelColor(x, y))) extent |= QRect(x, y, 1, 1);
      }
    }
    return extent;
  }

  SComponent components_[2];
  std::vector<std::unique_ptr<NameEntry>> entries_;
  SLBCompName list_;
};

TEST_F(NameListTest, WithoutASelectionNoNameIsRed) {
  ASSERT_EQ(list_.SelectedEntry(), nullptr);
  for (int row = 0; row < 4; ++row) EXPECT_TRUE(Red(row).isEmpty()) << row;
}

TEST_F(NameListTest, SelectedAliasMarksTheOwnNameAndTheOtherAliases) {
  ShowWithFocus();
  list_.SelectRow(2);
  EXPECT_GE(Red(0).left(), 10);
  EXPECT_TRUE(Red(1).isEmpty()) << "another component";
  EXPECT_TRUE(Red(2).isEmpty()) << "the selected name itself";
  EXPECT_GE(Red(3).left(), 10);
}

TEST_F(NameListTest, MarksAreAsRedOnDark) {
  QPalette colors = list_.palette();
  colors.setColor(QPalette::Base, QColor(35, 38, 41));
  list_.setPalette(colors);
  ShowWithFocus();
  list_.SelectRow(2);
  EXPECT_FALSE(Red(0).isEmpty());
}

TEST_F(NameListTest, SelectedNameIsHighlightedWhileTheListHasTheFocus) {
  ShowWithFocus();
  list_.SelectRow(2);
  EXPECT_EQ(Row(2).pixelColor(150, 7), list_.palette().color(QPalette::Highlight));
  EXPECT_EQ(Row(1).pixelColor(150, 7), list_.palette().color(QPalette::Base));
  list_.clearFocus();
  EXPECT_EQ(Row(2).pixelColor(150, 7), list_.palette().color(QPalette::Base));
}

TEST_F(NameListTest, MarksFollowTheSelection) {
  ShowWithFocus();
  list_.SelectRow(0);
  EXPECT_FALSE(Red(2).isEmpty());
  QTest::keyClick(&list_, Qt::Key_Down);
  EXPECT_EQ(list_.SelectedRow(), 1);
  EXPECT_TRUE(Red(2).isEmpty());
}

TEST_F(NameListTest, AmpersandIsDrawnAsItIs) {
  Fill({{u"&B", 0}, {u"B", 1}, {u"&&B", 0}});
  list_.show();
  const auto drawn = [&](int row) {
    return Extent(Row(row), [](const QColor& color) { return color.lightness() < 128; });
  };
  EXPECT_GT(drawn(0).width(), drawn(1).width() + 3);
  EXPECT_GT(drawn(2).width(), drawn(0).width() + 3);
  EXPECT_EQ(drawn(0).bottom(), drawn(1).bottom()) << "no letter is underlined";
}

TEST_F(NameListTest, NameIsShownWithEveryCharacterOfIt) {
  const std::u16string name = u"\uFEFFA\xD800";
  Fill({{name, 0}});
  const QString shown = list_.Names().index(0).data().toString();
  EXPECT_EQ(shown.toStdU16String(), name);
}

TEST_F(NameListTest, DoubleClickBelowTheLastNameAsksForThePropertyToo) {
  list_.show();
  list_.SelectRow(1);
  const QSignalSpy asked(&list_, &SLBCompName::PropertyRequested);
  QTest::mouseDClick(list_.viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(50, 150));
  EXPECT_EQ(asked.count(), 1);
  EXPECT_EQ(list_.SelectedRow(), 1);
}

TEST_F(NameListTest, NeverSortsByItself) {
  Fill({{u"c", 0}, {u"a", 1}, {u"b", 0}});
  NameEntry added(u"0", &components_[0]);
  list_.Names().Insert(1, &added);
  std::string names;
  for (int row = 0; row < list_.Names().rowCount(); ++row) {
    names += list_.Names().index(row).data().toString().toStdString();
  }
  EXPECT_EQ(names, "c0ab");
  list_.Names().SetEntries({});
}

TEST_F(NameListTest, RowsAreFifteenPixelsHigh) {
  list_.show();
  for (int row = 0; row < 4; ++row) {
    EXPECT_EQ(list_.visualRect(list_.Names().index(row)).height(), 15);
  }
}

}  // namespace
}  // namespace mivo

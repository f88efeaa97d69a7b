#include "key_lock_panes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QKeyEvent>
#include <QLabel>
#include <QStatusBar>
#include <QTest>
#include <string>

#include "text_table.h"

namespace mivo {
namespace {

class KeyLockPanesTest : public testing::Test {
 protected:
  KeyLockPanesTest() {
    for (QLabel* const pane : panes_.Panes()) bar_.addPermanentWidget(pane);
    bar_.show();
  }

  void Press(Qt::Key key) { QTest::keyClick(&other_, key); }
  /// The words that can be read.
  [[nodiscard]] std::string Shown() const {
    std::string shown;
    for (const QLabel* const pane : panes_.Panes()) {
      if (pane->isVisible()) shown += pane->text().toStdString() + ' ';
    }
    return shown;
  }

  std::optional<KeyLocks> locks_ = KeyLocks{.num = true};
  int asked_ = 0;
  QWidget other_;  ///< which has the focus
  QStatusBar bar_;
  const TextTable texts_;
  KeyLockPanes panes_{texts_,
                      [this] {
                        ++asked_;
                        return locks_;
                      },
                      &bar_};
};

TEST_F(KeyLockPanesTest, ShowWhatIsOnOnceTheProgramIsActive) {
  QApplicationStateChangeEvent active(Qt::ApplicationActive);
  QCoreApplication::sendEvent(QCoreApplication::instance(), &active);
  EXPECT_EQ(Shown(), "NUM ");
}

TEST_F(KeyLockPanesTest, FollowTheKeys) {
  locks_ = KeyLocks{.caps = true, .num = true};
  Press(Qt::Key_CapsLock);
  EXPECT_EQ(Shown(), "CAP NUM ");
  locks_ = KeyLocks{.caps = true};
  Press(Qt::Key_NumLock);
  EXPECT_EQ(Shown(), "CAP ");
  locks_ = KeyLocks{.scroll = true};
  Press(Qt::Key_ScrollLock);
  EXPECT_EQ(Shown(), "SCRL ");
}

TEST_F(KeyLockPanesTest, LookAgainWhenTheUserComesBack) {
  locks_ = KeyLocks{.caps = true};
  QApplicationStateChangeEvent back(Qt::ApplicationActive);
  QCoreApplication::sendEvent(QCoreApplication::instance(), &back);
  EXPECT_EQ(Shown(), "CAP ");
}

TEST_F(KeyLockPanesTest, DoNotAskForOtherKeys) {
  const int before = asked_;
  Press(Qt::Key_A);
  Press(Qt::Key_Shift);
  EXPECT_EQ(asked_, before);
}

TEST_F(KeyLockPanesTest, AreEmptyWhereNobodyKnows) {
  locks_ = std::nullopt;
  Press(Qt::Key_CapsLock);
  EXPECT_EQ(Shown(), "");
}

TEST_F(KeyLockPanesTest, KeepTheirPlace) {
  const auto places = [this] {
    bar_.grab();  // lays out
    std::vector<int> left;
    for (const QLabel* const pane : panes_.Panes()) left.push_back(pane->x());
    return left;
  };
  locks_ = KeyLocks{true, true, true};
  Press(Qt::Key_CapsLock);
  const std::vector<int> all = places();
  locks_ = KeyLocks{.scroll = true};
  Press(Qt::Key_CapsLock);
  EXPECT_EQ(places().back(), all.back());
  locks_ = KeyLocks{.caps = true};
  Press(Qt::Key_CapsLock);
  EXPECT_EQ(places().front(), all.front());
}

#ifndef _WIN32  // which knows its keyboard without a window
// The platform of the tests tells nothing, and that is no fault.
TEST(KeyLocksOfThePlatform, AreUnknownWithoutAKeyboard) {
  if (QGuiApplication::platformName() != QLatin1String("offscreen")) GTEST_SKIP();
  EXPECT_EQ(ReadKeyLocks(), std::nullopt);
}
#endif

}  // namespace
}  // namespace mivo

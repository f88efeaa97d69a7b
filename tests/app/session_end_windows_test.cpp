#define NOMINMAX
#include <windows.h>

#include <gtest/gtest.h>

#include <QAbstractEventDispatcher>
#include <QWidget>
#include <optional>

#include "session_end.h"

namespace mivo {
namespace {

/// What the program answers when the system sends `message` to `window`; nothing when it leaves the
/// answer to the system. `isMeant` says whether an end of the session really comes.
std::optional<qintptr> Answer(const QWidget& window, UINT message, bool isMeant = false) {
  MSG msg{};
  msg.hwnd = reinterpret_cast<HWND>(window.winId());
  msg.message = message;
  msg.wParam = isMeant ? TRUE : FALSE;
  qintptr result = -1;
  const bool answered =
      QAbstractEventDispatcher::instance()->filterNativeEvent("windows_generic_MSG", &msg, &result);
  return answered ? std::optional(result) : std::nullopt;
}

TEST(SessionEnd, IsLetGoOnWhenTheProgramMayEnd) {
  QWidget window;
  const SessionEnd end(window, [](bool) { return true; });
  EXPECT_EQ(Answer(window, WM_QUERYENDSESSION), TRUE);
}

TEST(SessionEnd, IsCalledOffWhenTheProgramMayNotEnd) {
  QWidget window;
  const SessionEnd end(window, [](bool) { return false; });
  EXPECT_EQ(Answer(window, WM_QUERYENDSESSION), FALSE);
}

TEST(SessionEnd, AsksOnceForAllWindows) {
  QWidget window;
  const QWidget other;
  int asked = 0;
  const SessionEnd end(window, [&](bool) { return ++asked > 0; });
  EXPECT_EQ(Answer(other, WM_QUERYENDSESSION), std::nullopt);
  EXPECT_EQ(asked, 0);
  EXPECT_EQ(Answer(window, WM_QUERYENDSESSION), TRUE);
  EXPECT_EQ(asked, 1);
}

TEST(SessionEnd, WaitsWhileTheQuestionIsShown) {
  QWidget window;
  const QWidget other;
  int asked = 0;
  const SessionEnd end(window, [&](bool mayAsk) {
    EXPECT_TRUE(mayAsk);
    ++asked;
    EXPECT_EQ(Answer(window, WM_QUERYENDSESSION), FALSE);
    EXPECT_EQ(Answer(other, WM_QUERYENDSESSION), FALSE);
    return true;
  });
  EXPECT_EQ(Answer(window, WM_QUERYENDSESSION), TRUE);
  EXPECT_EQ(asked, 1);
}

TEST(SessionEnd, AsksAgainAfterItWasCalledOff) {
  QWidget window;
  bool may = false;
  const SessionEnd end(window, [&](bool) { return may; });
  EXPECT_EQ(Answer(window, WM_QUERYENDSESSION), FALSE);
  may = true;
  EXPECT_EQ(Answer(window, WM_QUERYENDSESSION), TRUE);
}

TEST(SessionEnd, ClosesTheWindowOnceItComes) {
  QWidget window;
  window.show();
  const SessionEnd end(window, [](bool) { return true; });
  EXPECT_EQ(Answer(window, WM_QUERYENDSESSION), TRUE);
  EXPECT_EQ(Answer(window, WM_ENDSESSION, false), std::nullopt);
  EXPECT_TRUE(window.isVisible()) << "another program called it off";
  EXPECT_EQ(Answer(window, WM_ENDSESSION, true), std::nullopt);
  EXPECT_FALSE(window.isVisible());
}

TEST(SessionEnd, ClosesNothingThatMayNotEnd) {
  QWidget window;
  window.show();
  const SessionEnd end(window, [](bool) { return false; });
  EXPECT_EQ(Answer(window, WM_QUERYENDSESSION), FALSE);
  EXPECT_EQ(Answer(window, WM_ENDSESSION, true), std::nullopt);
  EXPECT_TRUE(window.isVisible());
}

TEST(SessionEnd, LeavesOtherMessagesAlone) {
  QWidget window;
  const SessionEnd end(window, [](bool) { return false; });
  EXPECT_EQ(Answer(window, WM_CLOSE), std::nullopt);
}

TEST(SessionEnd, IsNobodysConcernAfterwards) {
  QWidget window;
  {
    const SessionEnd end(window, [](bool) { return false; });
  }
  EXPECT_EQ(Answer(window, WM_QUERYENDSESSION), std::nullopt);
}

}  // namespace
}  // namespace mivo

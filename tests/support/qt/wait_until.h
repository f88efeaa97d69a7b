#ifndef MIVO_TESTS_SUPPORT_QT_WAIT_UNTIL_H
#define MIVO_TESTS_SUPPORT_QT_WAIT_UNTIL_H

#include <QTest>

namespace mivo {

/// Lets the event loop run until `condition` holds; false when it does not within a time that only
/// a broken program needs.
template <typename Condition>
[[nodiscard]] bool WaitUntil(Condition condition) {
  return QTest::qWaitFor(condition, 60000);
}

}  // namespace mivo

#endif

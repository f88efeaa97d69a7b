#include "session_end.h"

#include <QGuiApplication>
#include <QSessionManager>
#include <QWidget>
#include <utility>

namespace mivo {

/// Goes with its connection.
class SessionEnd::Watch final : public QObject {};

SessionEnd::SessionEnd(QWidget& /*window*/, std::function<bool(bool)> mayEnd)
    : watch_(std::make_unique<Watch>()) {
  QObject::connect(
      qApp, &QGuiApplication::commitDataRequest, watch_.get(),
      [mayEnd = std::move(mayEnd)](QSessionManager& session) {
        const bool mayAsk = session.allowsInteraction();
        if (!mayEnd(mayAsk)) {
          session.cancel();  // ends the asking as well; after a release it would begin another one
        } else if (mayAsk) {
          session.release();
        }
      },
      Qt::DirectConnection);
}

SessionEnd::~SessionEnd() = default;

}  // namespace mivo

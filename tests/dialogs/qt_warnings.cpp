// Makes the toolkit's complaints failures: each is about a mistake in a dialog.

#include <gtest/gtest.h>

#include <QMessageLogContext>
#include <QString>

namespace mivo {
namespace {

void Report(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message) {
  // Windows that nobody sees have no manager to tell their sizes to.
  if (message.startsWith(QLatin1String("This plugin does not support"))) return;
  if (type == QtWarningMsg || type == QtCriticalMsg) ADD_FAILURE() << message.toStdString();
}

class FailOnWarnings final : public testing::Environment {
 public:
  void SetUp() override { qInstallMessageHandler(Report); }
  void TearDown() override { qInstallMessageHandler(nullptr); }
};

[[maybe_unused]] testing::Environment* const environment =
    testing::AddGlobalTestEnvironment(new FailOnWarnings);

}  // namespace
}  // namespace mivo

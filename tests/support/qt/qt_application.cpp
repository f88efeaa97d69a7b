// Gives every test of the executable an application, from before the first test to after the last.

#include <gtest/gtest.h>

#include <QApplication>
#include <QStyle>
#include <memory>

namespace mivo {
namespace {

class ApplicationEnvironment final : public testing::Environment {
 public:
  void SetUp() override {
    // The same look everywhere, whatever desktop the tests are run on.
    QApplication::setStyle(QStringLiteral("Fusion"));
    application_ = std::make_unique<QApplication>(argumentCount_, arguments_);
    // A style from before the application would be nobody's once a test takes another one.
    QApplication::style()->setParent(application_.get());
  }
  void TearDown() override { application_.reset(); }

 private:
  char name_[5] = "test";
  char* arguments_[2] = {name_, nullptr};
  int argumentCount_ = 1;
  std::unique_ptr<QApplication> application_;
};

[[maybe_unused]] testing::Environment* const environment =
    testing::AddGlobalTestEnvironment(new ApplicationEnvironment);

}  // namespace
}  // namespace mivo

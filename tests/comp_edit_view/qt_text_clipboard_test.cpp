#include "qt_text_clipboard.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QSignalSpy>

namespace mivo {
namespace {

/// A text that counts how often it is fetched.
class CountedText final : public QMimeData {
 public:
  CountedText(QString text, int& fetched) : text_(std::move(text)), fetched_(fetched) {}

  [[nodiscard]] QStringList formats() const override { return {QStringLiteral("text/plain")}; }

 protected:
  [[nodiscard]] QVariant retrieveData(const QString& /*mimeType*/,
                                      QMetaType /*type*/) const override {
    ++fetched_;
    return text_;
  }

 private:
  QString text_;
  int& fetched_;
};

class QtTextClipboardTest : public testing::Test {
 protected:
  ~QtTextClipboardTest() override { QGuiApplication::clipboard()->clear(); }

  void Offer(const QString& text) {
    QGuiApplication::clipboard()->setMimeData(new CountedText(text, fetched_));
  }

  int fetched_ = 0;
  QtTextClipboard clipboard_;
};

TEST_F(QtTextClipboardTest, GivesBackWhatWasPutThere) {
  const std::u16string text = u"+X,\uFEFF\xD800\u00C4,-X";
  ASSERT_TRUE(clipboard_.SetText(text));
  EXPECT_EQ(clipboard_.GetText(), text);
}

TEST_F(QtTextClipboardTest, FetchesATextOncePerChange) {
  Offer(QStringLiteral("+X,-X"));
  for (int i = 0; i < 10; ++i) EXPECT_EQ(clipboard_.GetText(), u"+X,-X");
  EXPECT_EQ(fetched_, 1);
  Offer(QStringLiteral("+Y,-Y"));
  EXPECT_EQ(clipboard_.GetText(), u"+Y,-Y");
  EXPECT_EQ(fetched_, 2);
}

TEST_F(QtTextClipboardTest, KeepsNoTextThatIsNoRecord) {
  Offer(QStringLiteral("a long letter"));
  EXPECT_EQ(clipboard_.GetText(), std::nullopt);
  EXPECT_EQ(clipboard_.GetText(), std::nullopt);
  EXPECT_EQ(fetched_, 1);
}

TEST_F(QtTextClipboardTest, HasNoTextOfAPicture) {
  auto* const picture = new QMimeData;
  picture->setData(QStringLiteral("image/png"), "png");
  QGuiApplication::clipboard()->setMimeData(picture);
  EXPECT_EQ(clipboard_.GetText(), std::nullopt);
}

TEST_F(QtTextClipboardTest, TellsOfEveryChange) {
  const QSignalSpy changes(&clipboard_, &QtTextClipboard::Changed);
  Offer(QStringLiteral("+X,-X"));
  ASSERT_TRUE(clipboard_.SetText(u"+Y,-Y"));
  QGuiApplication::clipboard()->clear();
  EXPECT_EQ(changes.count(), 3);
  EXPECT_EQ(clipboard_.GetText(), std::nullopt);
}

}  // namespace
}  // namespace mivo

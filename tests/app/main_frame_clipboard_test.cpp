// Components on the clipboard: between windows, and what asking for it costs.

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <memory>

#include "frame_rig.h"

namespace mivo {
namespace {

const std::string kPart =
    "+PTN,N:part,X:41,Y:31\n+L,W:1,S:0,CV:0,X:0,Y:0,X:5,Y:5,-L\n-PTN\n"
    "+COMP,N:part\nX:4,Y:3,B:2\nTYPE:GEN,FB:0\nR:U\nP:part\n"
    "+PIN,N:A,DF:FFFFFFFF,L:L1,T:,M:1,M:2,-PIN\nNOTE:a%20note,MFR:m,MFRPN:n,PKG:p,-COMP\n";

class MainFrameClipboardTest : public FrameTest {
 protected:
  MainFrameClipboardTest() {
    Put("parts.ZLB", LibraryFile(ComponentRecord("first") + ComponentRecord("second")));
    Frame().Open(PathOf("parts.ZLB"));
  }
  ~MainFrameClipboardTest() override { QGuiApplication::clipboard()->clear(); }
};

/// Any text, which counts how often it is fetched.
class CountedText final : public QMimeData {
 public:
  explicit CountedText(int& fetched) : fetched_(fetched) {}
  [[nodiscard]] QStringList formats() const override { return {QStringLiteral("text/plain")}; }

 protected:
  [[nodiscard]] QVariant retrieveData(const QString&, QMetaType) const override {
    ++fetched_;
    return QStringLiteral("+TARSL_DATA_V.1.0") + QString(100, QLatin1Char('x'));
  }

 private:
  int& fetched_;
};

TEST_F(MainFrameClipboardTest, IsAskedOncePerChangeWhateverTheUserDoes) {
  int fetched = 0;
  QGuiApplication::clipboard()->setMimeData(new CountedText(fetched));
  EXPECT_TRUE(IsEnabled(Command::PasteComponent));
  EXPECT_EQ(fetched, 1);
  for (int i = 0; i < 10; ++i) {
    Trigger(Command::ZoomIn);
    Trigger(Command::ZoomOut);
    Frame().Names().SelectRow(i % 2);
    EditSelectedComponent();
    Trigger(Command::Undo);
  }
  EXPECT_EQ(fetched, 1);
}

TEST_F(MainFrameClipboardTest, PasteIsPossibleAsSoonAsAComponentIsThere) {
  QGuiApplication::clipboard()->setText(QStringLiteral("+TARSL_LIB_V.1.0") +
                                        QString(100, QLatin1Char('x')));
  EXPECT_FALSE(IsEnabled(Command::PasteComponent)) << "a bare library block";
  Trigger(Command::CopyComponent);
  EXPECT_TRUE(IsEnabled(Command::PasteComponent));
  QGuiApplication::clipboard()->clear();
  EXPECT_FALSE(IsEnabled(Command::PasteComponent));
}

TEST_F(MainFrameClipboardTest, CopyOfAComponentHasItsPinsPatternAndProperties) {
  Put("one.ZLB", LibraryFile(kPart));
  Frame().Open(PathOf("one.ZLB"));
  Trigger(Command::CopyComponent);
  Trigger(Command::PasteComponent);
  EXPECT_EQ(ListedNames(), "[part(1)] part");
  Trigger(Command::Save);
  std::string copy = kPart;
  for (std::size_t at = 0; (at = copy.find(":part", at)) != std::string::npos; at += 8) {
    copy.replace(at, 5, ":part(1)");
  }
  EXPECT_EQ(Content("one.ZLB"), LibraryFile(copy + kPart));
}

TEST_F(MainFrameClipboardTest, CopyTakesThePendingEditAlong) {
  EditSelectedComponent();
  Trigger(Command::CopyComponent);
  EXPECT_TRUE(Frame().IsModified());
  const QString text = QGuiApplication::clipboard()->text();
  EXPECT_EQ(text.count(QStringLiteral("+PIN")), 1);
}

TEST_F(MainFrameClipboardTest, PasteKeepsThePendingEdit) {
  Trigger(Command::CopyComponent);
  EditSelectedComponent();
  const SComponent* const edited = Frame().View().Editor().Component();
  Trigger(Command::PasteComponent);
  EXPECT_EQ(edited->Pins().size(), 1u);
  EXPECT_EQ(ListedNames(), "[first(1)] first second");
}

TEST_F(MainFrameClipboardTest, ComponentGoesFromOneWindowToAnother) {
  SettingsFile settings(Folder().Put("OTHER.INI", "\xFF\xFE"));
  const TextTable texts;
  CMainFrame other(settings, texts);
  Put("other.ZLB", LibraryFile(ComponentRecord("second", "another%20note")));
  other.Open(PathOf("other.ZLB"));
  Frame().Names().SelectRow(1);
  Trigger(Command::CutComponent);
  EXPECT_EQ(ListedNames(), "[first]");
  ASSERT_TRUE(other.Action(Command::PasteComponent)->isEnabled());
  other.Action(Command::PasteComponent)->trigger();
  ASSERT_EQ(other.Names().Names().rowCount(), 2);
  EXPECT_EQ(other.Names().Names().Entry(0)->Name(), u"second(1)");
  EXPECT_EQ(other.Names().SelectedRow(), 0);
  other.Action(Command::CopyComponent)->trigger();
  Trigger(Command::PasteComponent);
  EXPECT_EQ(ListedNames(), "[second(1)] first") << "and back";
}

TEST_F(MainFrameClipboardTest, EveryCharacterOfANamePasses) {
  Put("odd.ZLB", LibraryFile(ComponentRecord("\xEF\xBB\xBF&%2C\xF0\x9F\x98\x80")));
  Frame().Open(PathOf("odd.ZLB"));
  const std::u16string name = Frame().Names().SelectedEntry()->Name();
  Trigger(Command::CopyComponent);
  Trigger(Command::New);
  Trigger(Command::PasteComponent);
  ASSERT_EQ(Frame().Names().Names().rowCount(), 1);
  EXPECT_EQ(Frame().Names().SelectedEntry()->Name(), name);
}

}  // namespace
}  // namespace mivo

#include "task_progress.h"

#include <QApplication>
#include <QProgressBar>
#include <functional>
#include <set>

#include "frame_rig.h"
#include "status_pane.h"
#include "wait_until.h"

namespace mivo {
namespace {

using namespace std::chrono_literals;

/// A clock that stands still until it is told otherwise.
class ManualClock {
 public:
  void Add(std::chrono::milliseconds time) { now_ += time; }
  [[nodiscard]] TaskProgress::Clock Reader() {
    return [this] { return now_; };
  }

 private:
  std::chrono::steady_clock::time_point now_;
};

/// Counts how often it is painted.
class PaintedWidget final : public QWidget {
 public:
  int paints = 0;

 protected:
  void paintEvent(QPaintEvent*) override { ++paints; }
};

class TaskProgressTest : public testing::Test {
 protected:
  TaskProgressTest() {
    pane_.show();
    progress_ =
        std::make_unique<TaskProgress>(pane_, QStringLiteral("Opening a.ZLB"), clock_.Reader());
  }
  [[nodiscard]] TaskProgress& Progress() { return *progress_; }
  void EndTask() { progress_.reset(); }
  void Pass(std::chrono::milliseconds time) { clock_.Add(time); }
  [[nodiscard]] const QProgressBar& Bar() { return *pane_.findChild<QProgressBar*>(); }
  [[nodiscard]] double Part() { return Bar().value() / static_cast<double>(Bar().maximum()); }

 private:
  TextTable texts_;
  StatusPane pane_{texts_};
  ManualClock clock_;
  std::unique_ptr<TaskProgress> progress_;
};

TEST_F(TaskProgressTest, AShortTaskShowsNothing) {
  Progress().Advance(1, 10);
  Pass(999ms);
  Progress().Advance(9, 10);
  EXPECT_FALSE(Bar().isVisible());
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(TaskProgressTest, ALongTaskShowsItsPartsUntilItEnds) {
  Pass(1000ms);
  Progress().Advance(5, 10);
  EXPECT_TRUE(Bar().isVisible());
  EXPECT_DOUBLE_EQ(Part(), 0.5);
  ASSERT_NE(QApplication::overrideCursor(), nullptr);
  Pass(50ms);
  Progress().Advance(15, 20);
  EXPECT_DOUBLE_EQ(Part(), 0.75);
  EndTask();
  EXPECT_FALSE(Bar().isVisible());
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(TaskProgressTest, EstimatesMayBeWrongOrMissing) {
  Pass(1000ms);
  Progress().Advance(30, 10);
  EXPECT_DOUBLE_EQ(Part(), 1);
  Pass(50ms);
  Progress().Advance(30, 0);
  EXPECT_DOUBLE_EQ(Part(), 0);
}

TEST_F(TaskProgressTest, ShowsNoMoreThanTheEyeCanFollow) {
  Pass(1000ms);
  Progress().Advance(1, 10);
  Pass(49ms);
  Progress().Advance(9, 10);
  EXPECT_DOUBLE_EQ(Part(), 0.1);
  Pass(1ms);
  Progress().Advance(9, 10);
  EXPECT_DOUBLE_EQ(Part(), 0.9);
}

TEST_F(TaskProgressTest, WindowsRepaint) {
  PaintedWidget window;
  window.show();
  ASSERT_TRUE(WaitUntil([&] { return window.paints > 0; }));
  const int before = window.paints;
  window.update();
  Progress().Advance(1, 10);
  EXPECT_EQ(window.paints, before) << "not in the first second";
  Pass(1000ms);
  Progress().Advance(2, 10);
  EXPECT_GT(window.paints, before);
}

/// Lets every look at the clock find a second more gone, and does something at each.
class LongTaskTest : public FrameTest {
 protected:
  LongTaskTest() {
    Put("a.ZLB", LibraryFile(ComponentRecord("A") + ComponentRecord("B")));
    Put("b.ZLB", LibraryFile(ComponentRecord("C")));
    Frame().show();
  }
  void During(std::function<void()> happening) {
    happening_ = std::move(happening);
    Frame().SetClock([this] {
      now_ += 1s;
      if (happening_) happening_();
      return now_;
    });
  }
  [[nodiscard]] QProgressBar& Bar() { return *Frame().findChild<QProgressBar*>(); }

 private:
  std::function<void()> happening_;
  std::chrono::steady_clock::time_point now_;
};

TEST_F(LongTaskTest, OpeningTellsTheFile) {
  std::set<std::string> words;
  int values = 0;
  During([&] {
    words.insert(StatusText());
    if (Bar().isVisible()) values |= Bar().value() > 500 ? 2 : 1;
  });
  Put("a.ZLB", LibraryFile(ComponentRecord("A") + std::string(200000, '\n')));
  Frame().Open(PathOf("a.ZLB"));
  EXPECT_EQ(words.count("Opening a.ZLB"), 1u);
  EXPECT_EQ(values, 3) << "the bytes are counted while they come";
  EXPECT_EQ(StatusText(), "Select pins and objects");
  EXPECT_FALSE(Bar().isVisible());
}

TEST_F(LongTaskTest, SavingTellsTheFile) {
  Frame().Open(PathOf("a.ZLB"));
  std::set<std::string> words;
  During([&] { words.insert(StatusText()); });
  Trigger(Command::Save);
  EXPECT_EQ(words.count("Saving a.ZLB"), 1u);
  EXPECT_EQ(StatusText(), "Select pins and objects");
}

TEST_F(LongTaskTest, ClosingWaitsUntilTheLibraryIsThere) {
  bool closedMeanwhile = false;
  int asked = 0;
  During([&] {
    if (asked++ < 3) Frame().close();
    closedMeanwhile = closedMeanwhile || !Frame().isVisible();
  });
  Frame().Open(PathOf("a.ZLB"));
  EXPECT_FALSE(closedMeanwhile);
  EXPECT_EQ(ListedNames(), "[A] B");
  EXPECT_TRUE(WaitUntil([&] { return !Frame().isVisible(); })) << "now it may";
}

TEST_F(LongTaskTest, CommandsDoNothingMeanwhile) {
  Frame().Open(PathOf("a.ZLB"));
  During([&] {
    Trigger(Command::New);
    Trigger(Command::MoveNameDown);
    Trigger(Command::CutComponent);
    Frame().Open(PathOf("b.ZLB"));
  });
  Trigger(Command::Save);
  EXPECT_EQ(ListedNames(), "[A] B");
  During([&] {
    Trigger(Command::New);
    Frame().Open(PathOf("a.ZLB"));
  });
  Frame().Open(PathOf("b.ZLB"));
  EXPECT_EQ(ListedNames(), "[C]");
}

TEST_F(LongTaskTest, AnotherNameIsShownOnceTheFileIsWritten) {
  Frame().Open(PathOf("a.ZLB"));
  EditSelectedComponent();
  const SComponent* const shown = Frame().View().Editor().Component();
  const SComponent* meanwhile = nullptr;
  During([&] {
    Frame().Names().SelectRow(1);
    meanwhile = Frame().View().Editor().Component();
  });
  Trigger(Command::Save);
  EXPECT_EQ(meanwhile, shown);
  EXPECT_TRUE(WaitUntil([&] {
    return Frame().View().Editor().Component() == Frame().Names().SelectedEntry()->Component();
  }));
  EXPECT_NE(Frame().View().Editor().Component(), shown);
  EXPECT_FALSE(Frame().IsModified());
}

}  // namespace
}  // namespace mivo

// A process that saves all the time is killed at random moments.

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <string>
#include <thread>

#include "library_guard.h"
#include "open_doc.h"

namespace mivo {
namespace {

namespace fs = std::filesystem;

/// Few enough for every test run; script/kill-test does more.
int Kills() {
  const char* const wanted = std::getenv("MIVO_KILLS");
  return wanted != nullptr ? std::atoi(wanted) : 25;
}

std::string ManyComponents(const std::string& note) {
  std::string records;
  for (int i = 0; i < 1000; ++i) records += ComponentText("part" + std::to_string(i), note);
  return LibraryText(records);
}

/// Opens the library, changes it, saves it, and again without end. Tells `reports` when a save
/// begins and when it is done.
[[noreturn]] void SaveForEver(const fs::path& file, const fs::path& stateFolder, int reports) {
  for (std::uint64_t round = 0;; ++round) {
    OpenDoc open(BytesOf(file), file);
    LibraryGuard guard(stateFolder);
    guard.Opened(open.View(), IdentityOf(BytesOf(file)), LibraryGuard::Losses::None);
    for (NameEntry* const entry : open.entries) {
      entry->Component()->note = round % 2 == 0 ? u"even" : u"odd";
    }
    if (write(reports, "b", 1) != 1 || !guard.Save(open.View(), TextFromPath(file)).saved ||
        write(reports, "d", 1) != 1) {
      std::_Exit(1);
    }
  }
}

/// A process that saves without end, from the beginning of its first save on.
class Saving {
 public:
  Saving(const fs::path& file, const fs::path& stateFolder) {
    int ends[2];
    if (pipe(ends) != 0) return;
    reports_ = ends[0];
    child_ = fork();
    if (child_ == 0) SaveForEver(file, stateFolder, ends[1]);
    close(ends[1]);
    WaitForReport();
  }
  ~Saving() { close(reports_); }
  Saving(const Saving&) = delete;
  Saving& operator=(const Saving&) = delete;

  void WaitForReport() const {
    char report;
    EXPECT_EQ(read(reports_, &report, 1), 1) << "a save failed";
  }
  /// Whether it was alive until now.
  [[nodiscard]] bool Kill() const {
    int status = 0;
    return child_ > 0 && kill(child_, SIGKILL) == 0 && waitpid(child_, &status, 0) == child_ &&
           WIFSIGNALED(status);
  }

 private:
  int reports_ = -1;
  pid_t child_ = -1;
};

std::chrono::microseconds TimeOfOneSave(const fs::path& file, const fs::path& stateFolder) {
  const Saving saving(file, stateFolder);
  const auto begin = std::chrono::steady_clock::now();
  saving.WaitForReport();
  const auto end = std::chrono::steady_clock::now();
  EXPECT_TRUE(saving.Kill());
  return std::chrono::duration_cast<std::chrono::microseconds>(end - begin);
}

/// Names in the folder of the library beside the library itself.
std::vector<std::string> LeftIn(const fs::path& folder) {
  std::vector<std::string> left;
  for (const auto& entry : fs::directory_iterator(folder)) {
    if (entry.path().filename() != "parts.ZLB") left.push_back(entry.path().filename().string());
  }
  return left;
}

TEST(SaveKill, TheFileIsWholeWheneverTheProcessIsKilled) {
  const TempFolder folder;
  for (const char* const name : {"libs", "other"}) fs::create_directory(folder / name);
  const std::string start = ManyComponents("start");
  const std::string even = ManyComponents("even");
  const std::string odd = ManyComponents("odd");
  const fs::path file = folder.Put("libs/parts.ZLB", start);
  const std::chrono::microseconds save =
      TimeOfOneSave(folder.Put("other/parts.ZLB", start), folder / "state");
  std::mt19937 random(std::random_device{}());
  std::uniform_int_distribution<std::chrono::microseconds::rep> delay(0, 2 * save.count());
  int withTemporary = 0;
  int changed = 0;
  for (int i = 0; i < Kills(); ++i) {
    const std::string before = BytesOf(file);
    const Saving saving(file, folder / "state");
    std::this_thread::sleep_for(std::chrono::microseconds(delay(random)));
    ASSERT_TRUE(saving.Kill()) << "a save failed";

    const std::string after = BytesOf(file);
    ASSERT_TRUE(after == start || after == even || after == odd)
        << "kill " << i << " tore the file";
    if (after != before) ++changed;
    const std::vector<std::string> left = LeftIn(folder / "libs");
    ASSERT_LE(left.size(), 1u) << "kill " << i;
    if (left.empty()) continue;
    EXPECT_TRUE(left.front().starts_with(".parts.ZLB.mivo-")) << left.front();
    ++withTemporary;
  }
  EXPECT_GT(changed, 0) << "no kill came behind a save";

  // The next save leaves nothing behind, and the copies are whole too.
  OpenDoc open(BytesOf(file), file);
  LibraryGuard guard(folder / "state");
  guard.Opened(open.View(), IdentityOf(BytesOf(file)), LibraryGuard::Losses::None);
  EXPECT_FALSE(guard.IsOpenElsewhere());
  EXPECT_TRUE(guard.Save(open.View(), TextFromPath(file)).saved);
  EXPECT_TRUE(LeftIn(folder / "libs").empty());
  for (const auto& entry : fs::directory_iterator(guard.CopiesFolder())) {
    const std::string copy = BytesOf(entry.path());
    EXPECT_TRUE(copy == start || copy == even || copy == odd) << entry.path().filename();
  }
  std::printf("%d kills, %d with a temporary file left, %d with another content than before\n",
              Kills(), withTemporary, changed);
}

}  // namespace
}  // namespace mivo

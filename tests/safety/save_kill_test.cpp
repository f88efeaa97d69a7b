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

/// Opens the library, changes it, saves it, and again without end.
[[noreturn]] void SaveForEver(const fs::path& file, const fs::path& stateFolder) {
  for (std::uint64_t round = 0;; ++round) {
    OpenDoc open(BytesOf(file), file);
    LibraryGuard guard(stateFolder);
    guard.Opened(open.View(), IdentityOf(BytesOf(file)), LibraryGuard::Losses::None);
    for (NameEntry* const entry : open.entries) {
      entry->Component()->note = round % 2 == 0 ? u"even" : u"odd";
    }
    if (!guard.Save(open.View(), TextFromPath(file)).saved) std::_Exit(1);
  }
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
  fs::create_directory(folder / "libs");
  const std::string start = ManyComponents("start");
  const std::string even = ManyComponents("even");
  const std::string odd = ManyComponents("odd");
  const fs::path file = folder.Put("libs/parts.ZLB", start);
  std::mt19937 random(std::random_device{}());
  std::uniform_int_distribution<int> microseconds(0, 60000);
  int withTemporary = 0;
  int changed = 0;
  for (int i = 0; i < Kills(); ++i) {
    const std::string before = BytesOf(file);
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) SaveForEver(file, folder / "state");
    std::this_thread::sleep_for(std::chrono::microseconds(microseconds(random)));
    ASSERT_EQ(kill(child, SIGKILL), 0);
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status)) << "a save failed";

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
  RecordProperty("kills_with_a_temporary_file", withTemporary);
  RecordProperty("kills_after_a_save", changed);

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

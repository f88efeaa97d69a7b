// Files that cannot be replaced as what they are, and file systems with no room or several of them.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <string>

#include "child_process.h"
#include "file_writer.h"
#include "temp_folder.h"
#include "unprivileged_user.h"

namespace mivo {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

/// Writes `bytes` to `path`, rewriting it when needed: "replaced", "rewritten", or the error.
std::string Save(const fs::path& path, std::string_view bytes) {
  FileWriter writer(path, FileWriter::Durability::OnDisk, FileWriter::Rewriting::WhenNeeded);
  const std::string how = writer.RewritesInPlace() ? "rewritten" : "replaced";
  const bool written = writer.Write(bytes);
  if (!writer.Commit()) return writer.ErrorText();
  return written ? how : "committed what was not written";
}

struct stat StatusOf(const fs::path& path) {
  struct stat status {};
  EXPECT_EQ(stat(path.c_str(), &status), 0);
  return status;
}

TEST(FileRewrite, AnOrdinaryFileIsReplaced) {
  const TempFolder folder;
  EXPECT_EQ(Save(folder / "file", "first"), "replaced");
  EXPECT_EQ(Save(folder / "file", "second"), "replaced");
}

TEST(FileRewrite, SeveralNamesStaySeveralNamesOfOneFile) {
  const TempFolder folder;
  const auto path = folder.Put("file", "a long old content");
  fs::create_hard_link(path, folder / "other");
  EXPECT_EQ(Save(path, "new"), "rewritten");
  EXPECT_EQ(BytesOf(folder / "other"), "new");
  EXPECT_EQ(StatusOf(path).st_nlink, 2u);
  EXPECT_EQ(Save(folder / "other", "a longer new content than before"), "rewritten");
  EXPECT_EQ(BytesOf(path), "a longer new content than before");
  EXPECT_THAT(folder.Names(), ElementsAre("file", "other"));
}

TEST(FileRewrite, NothingIsWrittenBeforeCommit) {
  const TempFolder folder;
  const auto path = folder.Put("file", "old");
  fs::create_hard_link(path, folder / "other");
  {
    FileWriter writer(path, FileWriter::Durability::OnDisk, FileWriter::Rewriting::WhenNeeded);
    EXPECT_TRUE(writer.Write("new"));
    EXPECT_EQ(BytesOf(path), "old");
  }
  EXPECT_EQ(BytesOf(path), "old");
}

TEST(FileRewrite, WhoeverForbidsItSplitsTheNames) {
  const TempFolder folder;
  const auto path = folder.Put("file", "old");
  fs::create_hard_link(path, folder / "other");
  FileWriter writer(path);
  EXPECT_FALSE(writer.RewritesInPlace());
  EXPECT_TRUE(writer.Write("new"));
  EXPECT_TRUE(writer.Commit());
  EXPECT_EQ(BytesOf(path), "new");
  EXPECT_EQ(BytesOf(folder / "other"), "old");
}

TEST(FileRewrite, AFileInAFolderThatTakesNothingNewIsRewritten) {
  const TempFolder folder;
  const auto path = folder.Put("file", "old");
  const UnprivilegedUser user;
  ASSERT_EQ(chmod(folder.Path().c_str(), 0555), 0);
  EXPECT_EQ(Save(path, "new"), "rewritten");
  EXPECT_EQ(Save(folder / "another", "new"), "Permission denied");
  ASSERT_EQ(chmod(folder.Path().c_str(), 0755), 0);
  EXPECT_EQ(BytesOf(path), "new");
  EXPECT_THAT(folder.Names(), ElementsAre("file"));
}

TEST(FileRewrite, AFileOfAnotherOwnerKeepsItsOwner) {
  if (geteuid() != 0) GTEST_SKIP() << "only root makes files of two users";
  const TempFolder folder;
  const auto path = folder.Put("file", "old");
  EXPECT_EQ(RunInChild([&]() -> std::string {
              const UnprivilegedUser user;
              // The user who owns nothing takes everything over; this file is somebody else's.
              if (seteuid(0) != 0 || chown(path.c_str(), 1234, 2345) != 0 ||
                  chmod(path.c_str(), 0666) != 0 || seteuid(65534) != 0) {
                return "no other owner";
              }
              return Save(path, "new");
            }),
            "rewritten");
  EXPECT_EQ(BytesOf(path), "new");
  EXPECT_EQ(StatusOf(path).st_uid, 1234u);
  EXPECT_EQ(StatusOf(path).st_gid, 2345u);
  EXPECT_EQ(StatusOf(path).st_mode & 0777, 0666u);
  EXPECT_THAT(folder.Names(), ElementsAre("file"));
}

TEST(FileRewrite, AFileThatMayBeWrittenButNotReadIsRefused) {
  const TempFolder folder;
  const auto path = folder.Put("file", "old");
  fs::create_hard_link(path, folder / "other");
  const UnprivilegedUser user;
  ASSERT_EQ(chmod(path.c_str(), 0200), 0);
  EXPECT_EQ(Save(path, "new"), "Permission denied") << "its content could not be brought back";
  ASSERT_EQ(chmod(path.c_str(), 0600), 0);
  EXPECT_EQ(BytesOf(path), "old");
}

TEST(FileRewrite, AReadOnlyFileIsRefused) {
  const TempFolder folder;
  const auto path = folder.Put("file", "old");
  fs::create_hard_link(path, folder / "other");
  const UnprivilegedUser user;
  ASSERT_EQ(chmod(path.c_str(), 0444), 0);
  EXPECT_EQ(Save(path, "new"), "Permission denied");
  EXPECT_EQ(BytesOf(path), "old");
}

TEST(FileRewrite, AFailureBringsTheOldContentBack) {
  const TempFolder folder;
  const auto path = folder.Put("file", "old");
  fs::create_hard_link(path, folder / "other");
  EXPECT_EQ(RunInChild([&]() -> std::string {
              ReportFileSizeLimitAsFailure();
              const rlimit limit{1000, RLIM_INFINITY};
              if (setrlimit(RLIMIT_FSIZE, &limit) != 0) return "no limit";
              return Save(path, std::string(2000, 'n'));
            }),
            "File too large");
  EXPECT_EQ(BytesOf(path), "old");
}

// --- File systems --------------------------------------------------------------------------------

constexpr const char* kNoMount = "no file system can be mounted";

/// Runs `action` with a file system of 64 KB mounted at `folder`, in a child that alone sees it.
std::string RunWithSmallDisk(const fs::path& folder, const std::function<std::string()>& action) {
  return RunInChild([&]() -> std::string {
    if (unshare(CLONE_NEWNS) != 0 ||
        mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
        mount("tmpfs", folder.c_str(), "tmpfs", 0, "size=64k") != 0) {
      return kNoMount;
    }
    return action();
  });
}

/// "old" when the file is still as the test wrote it.
std::string KindOf(const fs::path& path, std::size_t oldSize) {
  const std::string bytes = BytesOf(path);
  if (bytes == std::string(oldSize, 'o')) return "old";
  return "neither";
}

TEST(FullDisk, LeavesTheOldFileWhetherItIsReplacedOrRewritten) {
  const TempFolder folder;
  constexpr std::size_t kOldSize = 20000;
  const std::string outcome = RunWithSmallDisk(folder.Path(), [&]() -> std::string {
    std::string trace;
    folder.Put("file", std::string(kOldSize, 'o'));
    trace += Save(folder / "file", std::string(100000, 'n')) + ": " +
             KindOf(folder / "file", kOldSize) + "\n";
    fs::create_hard_link(folder / "file", folder / "other");
    trace += Save(folder / "file", std::string(100000, 'n')) + ": " +
             KindOf(folder / "file", kOldSize) + "\n";
    for (const std::string& name : folder.Names()) trace += name + " ";
    return trace;
  });
  if (outcome == kNoMount) GTEST_SKIP() << kNoMount;
  EXPECT_EQ(outcome,
            "No space left on device: old\n"
            "No space left on device: old\n"
            "file other ");
}

TEST(FullDisk, ADiskWithoutRoomForASecondCopyKeepsTheFirst) {
  const TempFolder folder;
  constexpr std::size_t kOldSize = 40000;
  const std::string outcome = RunWithSmallDisk(folder.Path(), [&]() -> std::string {
    folder.Put("file", std::string(kOldSize, 'o'));
    const std::string saved = Save(folder / "file", std::string(kOldSize, 'n'));
    return saved + ": " + KindOf(folder / "file", kOldSize);
  });
  if (outcome == kNoMount) GTEST_SKIP() << kNoMount;
  EXPECT_EQ(outcome, "No space left on device: old");
}

TEST(OtherDisk, ALinkToAnotherFileSystemIsFollowed) {
  const TempFolder folder;
  fs::create_directory(folder / "disk");
  fs::create_symlink("disk/file", folder / "link");
  const std::string outcome = RunWithSmallDisk(folder / "disk", [&]() -> std::string {
    folder.Put("disk/file", "old");
    const std::string saved = Save(folder / "link", "new");
    return saved + ": " + BytesOf(folder / "disk/file") +
           (fs::is_symlink(folder / "link") ? " behind the link" : " instead of the link");
  });
  if (outcome == kNoMount) GTEST_SKIP() << kNoMount;
  EXPECT_EQ(outcome, "replaced: new behind the link");
}

}  // namespace
}  // namespace mivo

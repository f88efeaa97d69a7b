#include "file_writer.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <string>
#include <thread>

#include "child_process.h"
#include "temp_folder.h"
#include "unprivileged_user.h"

namespace mivo {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::MatchesRegex;

/// Writes `bytes` to `path`: "ok", or the error.
std::string Replace(const fs::path& path, std::string_view bytes) {
  FileWriter writer(path);
  const bool written = writer.Write(bytes);
  if (writer.Commit()) return written ? "ok" : "committed what was not written";
  return writer.ErrorText();
}

mode_t ModeOf(const fs::path& path) {
  struct stat status;
  return stat(path.c_str(), &status) == 0 ? status.st_mode & 07777 : 0;
}

TEST(FileWriter, CreatesAFile) {
  const TempFolder folder;
  EXPECT_EQ(Replace(folder / "new", "content"), "ok");
  EXPECT_EQ(BytesOf(folder / "new"), "content");
  EXPECT_THAT(folder.Names(), ElementsAre("new"));
}

TEST(FileWriter, ReplacesTheWholeContent) {
  const TempFolder folder;
  const auto path = folder.Put("file", "a much longer old content");
  EXPECT_EQ(Replace(path, std::string_view("a\r\n\0", 4)), "ok");
  EXPECT_EQ(BytesOf(path), std::string("a\r\n\0", 4));
  EXPECT_THAT(folder.Names(), ElementsAre("file"));
}

TEST(FileWriter, WithoutAnyWriteTheFileIsEmpty) {
  const TempFolder folder;
  const auto path = folder.Put("file", "old");
  FileWriter writer(path);
  EXPECT_TRUE(writer.Commit());
  EXPECT_EQ(BytesOf(path), "");
}

TEST(FileWriter, TheOldFileStaysUntilCommit) {
  const TempFolder folder;
  const auto path = folder.Put("file", "old");
  FileWriter writer(path);
  EXPECT_TRUE(writer.Write(std::string(1000000, 'x')));
  EXPECT_EQ(BytesOf(path), "old");
  EXPECT_TRUE(writer.Commit());
  EXPECT_EQ(BytesOf(path), std::string(1000000, 'x'));
}

TEST(FileWriter, WritesBesideTheTargetUnderARecognisableName) {
  const TempFolder folder;
  const FileWriter writer(folder / "My library.ZLB");
  EXPECT_THAT(folder.Names(), ElementsAre(MatchesRegex(R"(\.My library\.ZLB\.mivo-[0-9a-z]{6})")));
}

TEST(FileWriter, ANameOfTheGreatestLengthCanBeWritten) {
  const TempFolder folder;
  const std::string name(255, 'n');
  EXPECT_EQ(Replace(folder / name, "content"), "ok");
  EXPECT_THAT(folder.Names(), ElementsAre(name));
}

TEST(FileWriter, ARelativePathIsRelativeToTheCurrentFolder) {
  const TempFolder folder;
  EXPECT_EQ(RunInChild([&]() -> std::string {
              if (chdir(folder.Path().c_str()) != 0) return "no folder";
              return Replace("file", "content");
            }),
            "ok");
  EXPECT_EQ(BytesOf(folder / "file"), "content");
}

TEST(FileWriter, WithoutCommitNothingHappens) {
  const TempFolder folder;
  const auto path = folder.Put("file", "old");
  {
    FileWriter writer(path);
    EXPECT_TRUE(writer.Write("new"));
  }
  EXPECT_EQ(BytesOf(path), "old");
  EXPECT_THAT(folder.Names(), ElementsAre("file"));
}

TEST(FileWriter, TakesNothingAfterCommit) {
  const TempFolder folder;
  FileWriter writer(folder / "file");
  ASSERT_TRUE(writer.Write("all"));
  ASSERT_TRUE(writer.Commit());
  EXPECT_FALSE(writer.Write("more"));
  EXPECT_EQ(BytesOf(folder / "file"), "all");
}

TEST(FileWriter, KeepsThePermissions) {
  const TempFolder folder;
  const auto path = folder.Put("file", "old");
  for (const mode_t mode : {0600u, 0640u, 0664u, 0666u, 0755u}) {
    ASSERT_EQ(chmod(path.c_str(), mode), 0);
    EXPECT_EQ(Replace(path, "new"), "ok");
    EXPECT_EQ(ModeOf(path), mode);
  }
}

TEST(FileWriter, TheTemporaryFileIsNoMoreOpenThanTheOldFile) {
  const TempFolder folder;
  const auto path = folder.Put("file", "old");
  ASSERT_EQ(chmod(path.c_str(), 0600), 0);
  const FileWriter writer(path);
  const auto names = folder.Names();
  ASSERT_EQ(names.size(), 2u);
  EXPECT_EQ(ModeOf(folder / names[0]), 0600u);
}

TEST(FileWriter, ANewFileRespectsTheMask) {
  const TempFolder folder;
  for (const mode_t mask : {0022u, 0027u, 0077u}) {
    const std::string name = std::to_string(mask);
    EXPECT_EQ(RunInChild([&] {
                umask(mask);
                return Replace(folder / name, "content");
              }),
              "ok");
    EXPECT_EQ(ModeOf(folder / name), 0666u & ~mask);
  }
}

TEST(FileWriter, KeepsTheOwnerWherePossible) {
  if (geteuid() != 0) GTEST_SKIP() << "only root owns files of two users";
  const TempFolder folder;
  const auto path = folder.Put("file", "old");
  ASSERT_EQ(chown(path.c_str(), 1234, 2345), 0);
  ASSERT_EQ(chmod(path.c_str(), 0640), 0);
  EXPECT_EQ(Replace(path, "new"), "ok");
  struct stat status;
  ASSERT_EQ(stat(path.c_str(), &status), 0);
  EXPECT_EQ(status.st_uid, 1234u);
  EXPECT_EQ(status.st_gid, 2345u);
  EXPECT_EQ(status.st_mode & 07777, 0640u);
}

TEST(FileWriter, FollowsALinkAndLetsItStay) {
  const TempFolder folder;
  fs::create_directory(folder / "sub");
  folder.Put("sub/file", "old");
  fs::create_symlink("sub/file", folder / "link");
  EXPECT_EQ(Replace(folder / "link", "new"), "ok");
  EXPECT_EQ(fs::read_symlink(folder / "link"), "sub/file");
  EXPECT_FALSE(fs::is_symlink(folder / "sub/file"));
  EXPECT_EQ(BytesOf(folder / "sub/file"), "new");
  EXPECT_THAT(folder.Names(), ElementsAre("link", "sub"));
}

TEST(FileWriter, FollowsAChainOfLinks) {
  const TempFolder folder;
  fs::create_directory(folder / "sub");
  const auto file = folder.Put("file", "old");
  fs::create_symlink("sub/second", folder / "first");
  fs::create_symlink("third", folder / "sub/second");
  fs::create_symlink(file, folder / "sub/third");
  EXPECT_EQ(Replace(folder / "first", "new"), "ok");
  EXPECT_EQ(BytesOf(file), "new");
  EXPECT_TRUE(fs::is_symlink(folder / "sub/third"));
}

TEST(FileWriter, ADanglingLinkCreatesItsTarget) {
  const TempFolder folder;
  fs::create_directory(folder / "sub");
  fs::create_symlink("sub/file", folder / "link");
  EXPECT_EQ(Replace(folder / "link", "new"), "ok");
  EXPECT_TRUE(fs::is_symlink(folder / "link"));
  EXPECT_EQ(BytesOf(folder / "sub/file"), "new");
}

TEST(FileWriter, RefusesALinkToItself) {
  const TempFolder folder;
  fs::create_symlink("link", folder / "link");
  EXPECT_EQ(Replace(folder / "link", "new"), "Too many levels of symbolic links");
  EXPECT_THAT(folder.Names(), ElementsAre("link"));
}

TEST(FileWriter, RefusesAFolderThatIsNotThere) {
  const TempFolder folder;
  EXPECT_EQ(Replace(folder / "none/file", "new"), "No such file or directory");
  EXPECT_THAT(folder.Names(), IsEmpty());
}

TEST(FileWriter, RefusesAFolderThatVanishedMeanwhile) {
  const TempFolder folder;
  fs::create_directory(folder / "sub");
  FileWriter writer(folder / "sub/file");
  EXPECT_TRUE(writer.Write("new"));
  fs::remove_all(folder / "sub");
  EXPECT_FALSE(writer.Commit());
  EXPECT_EQ(writer.ErrorText(), "No such file or directory");
}

TEST(FileWriter, RefusesADirectory) {
  const TempFolder folder;
  fs::create_directory(folder / "sub");
  EXPECT_EQ(Replace(folder / "sub", "new"), "Is a directory");
  EXPECT_THAT(folder.Names(), ElementsAre("sub"));
}

TEST(FileWriter, RefusesADirectoryThatTookThePlaceMeanwhile) {
  const TempFolder folder;
  FileWriter writer(folder / "file");
  EXPECT_TRUE(writer.Write("new"));
  fs::create_directory(folder / "file");
  EXPECT_FALSE(writer.Commit());
  EXPECT_EQ(writer.ErrorText(), "Is a directory");
  EXPECT_THAT(folder.Names(), ElementsAre("file"));
}

TEST(FileWriter, RefusesAPathWithoutAName) {
  const TempFolder folder;
  EXPECT_FALSE(FileWriter("").Write("new"));
  EXPECT_EQ(Replace("", "new"), "No such file or directory");
  EXPECT_EQ(Replace(folder / "file/", "new"), "No such file or directory");
  EXPECT_EQ(Replace(folder / "", "new"), "Is a directory");
  EXPECT_THAT(folder.Names(), IsEmpty());
}

TEST(FileWriter, RefusesAFolderInWhichTheUserMayNotCreate) {
  const TempFolder folder;
  const auto path = folder.Put("file", "old");
  const UnprivilegedUser user;
  ASSERT_EQ(chmod(folder.Path().c_str(), 0555), 0);
  EXPECT_EQ(Replace(path, "new"), "Permission denied");
  ASSERT_EQ(chmod(folder.Path().c_str(), 0755), 0);
  EXPECT_EQ(BytesOf(path), "old");
  EXPECT_THAT(folder.Names(), ElementsAre("file"));
}

TEST(FileWriter, RefusesAFileThatTheUserMayNotWrite) {
  const TempFolder folder;
  const auto path = folder.Put("file", "old");
  const UnprivilegedUser user;
  ASSERT_EQ(chmod(path.c_str(), 0444), 0);
  EXPECT_EQ(Replace(path, "new"), "Permission denied");
  EXPECT_EQ(BytesOf(path), "old");
  EXPECT_THAT(folder.Names(), ElementsAre("file"));
}

TEST(FileWriter, AnUnprivilegedUserReplacesHisOwnFile) {
  const TempFolder folder;
  const UnprivilegedUser user;
  EXPECT_EQ(Replace(folder / "file", "old"), "ok");
  EXPECT_EQ(Replace(folder / "file", "new"), "ok");
  EXPECT_EQ(BytesOf(folder / "file"), "new");
}

/// Replaces `path` in a process whose files may have 100,000 bytes.
std::string ReplaceWithinLimit(const fs::path& path, std::size_t size) {
  return RunInChild([&]() -> std::string {
    ReportFileSizeLimitAsFailure();
    const rlimit limit{100000, RLIM_INFINITY};
    if (setrlimit(RLIMIT_FSIZE, &limit) != 0) return "no limit";
    return Replace(path, std::string(size, 'x'));
  });
}

TEST(FileWriter, AFailedWriteLeavesTheOldFile) {
  const TempFolder folder;
  const auto path = folder.Put("file", "old");
  EXPECT_EQ(ReplaceWithinLimit(path, 100001), "File too large");
  EXPECT_EQ(BytesOf(path), "old");
  EXPECT_THAT(folder.Names(), ElementsAre("file"));
}

TEST(FileWriter, AFailedWriteCreatesNothing) {
  const TempFolder folder;
  EXPECT_EQ(ReplaceWithinLimit(folder / "file", 100001), "File too large");
  EXPECT_THAT(folder.Names(), IsEmpty());
}

TEST(FileWriter, AWriteUpToTheLimitSucceeds) {
  const TempFolder folder;
  EXPECT_EQ(ReplaceWithinLimit(folder / "file", 100000), "ok");
  EXPECT_EQ(BytesOf(folder / "file").size(), 100000u);
}

TEST(FileWriter, KeepsTheFirstFailureAndTakesNothingMore) {
  const TempFolder folder;
  FileWriter writer(folder / "none/file");
  EXPECT_FALSE(writer.Write("a"));
  fs::create_directory(folder / "none");
  EXPECT_FALSE(writer.Write("b"));
  EXPECT_FALSE(writer.Commit());
  EXPECT_EQ(writer.ErrorText(), "No such file or directory");
  EXPECT_TRUE(fs::is_empty(folder / "none"));
}

TEST(FileWriter, TakesNothingMoreAlsoWhenThereIsRoomAgain) {
  const TempFolder folder;
  const auto path = folder.Put("file", "old");
  EXPECT_EQ(RunInChild([&]() -> std::string {
              ReportFileSizeLimitAsFailure();
              rlimit limit{1000, RLIM_INFINITY};
              if (setrlimit(RLIMIT_FSIZE, &limit) != 0) return "no limit";
              FileWriter writer(path);
              std::string trace = writer.Write(std::string(2000, 'x')) ? "written" : "refused";
              limit.rlim_cur = RLIM_INFINITY;
              if (setrlimit(RLIMIT_FSIZE, &limit) != 0) return "no limit";
              trace += writer.Write("more") ? ", written" : ", refused";
              trace += writer.Commit() ? ", committed" : ", not committed";
              return trace + ": " + writer.ErrorText();
            }),
            "refused, refused, not committed: File too large");
  EXPECT_EQ(BytesOf(path), "old");
  EXPECT_THAT(folder.Names(), ElementsAre("file"));
}

TEST(FileWriter, WritesADeviceDirectly) {
  EXPECT_EQ(Replace("/dev/null", "content"), "ok");
  EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST(FileWriter, AFullDeviceFails) {
  EXPECT_EQ(Replace("/dev/full", "content"), "No space left on device");
  EXPECT_TRUE(fs::is_character_file("/dev/full"));
}

TEST(FileWriter, WritesAPipeDirectly) {
  const TempFolder folder;
  const auto path = folder / "pipe";
  ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
  std::string received;
  std::thread reader([&] { received = BytesOf(path); });
  const std::string outcome = Replace(path, "content");
  reader.join();
  EXPECT_EQ(outcome, "ok");
  EXPECT_EQ(received, "content");
  EXPECT_TRUE(fs::is_fifo(path));
  EXPECT_THAT(folder.Names(), ElementsAre("pipe"));
}

TEST(FileWriter, WritesAPipeThatIsTheStandardOutput) {
  EXPECT_EQ(RunInChild([]() -> std::string {
              int ends[2];
              if (pipe(ends) != 0 || dup2(ends[1], STDOUT_FILENO) < 0) return "no pipe";
              const std::string outcome = Replace("/dev/stdout", "content");
              char bytes[100];
              const ssize_t count = read(ends[0], bytes, sizeof bytes);
              return outcome + ": " + std::string(bytes, static_cast<std::size_t>(count));
            }),
            "ok: content");
}

}  // namespace
}  // namespace mivo

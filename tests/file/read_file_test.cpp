#include "read_file.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "child_process.h"
#include "temp_folder.h"
#include "unprivileged_user.h"

#ifdef __has_feature
#define MIVO_ADDRESS_SANITIZER __has_feature(address_sanitizer)
#endif

namespace mivo {
namespace {

/// The bytes, or the error behind "error: ".
std::string Outcome(const FileResult<std::string>& result) {
  return result.Ok() ? result.Value() : "error: " + result.Error();
}

TEST(ReadFile, GivesEveryByteAsItIs) {
  const TempFolder folder;
  std::string bytes;
  for (int i = 0; i < 256; ++i) bytes.push_back(static_cast<char>(i));
  bytes += "\r\n\x1A\n";
  EXPECT_EQ(Outcome(ReadFile(folder.Put("file", bytes))), bytes);
}

TEST(ReadFile, AnEmptyFileIsNoFailure) {
  const TempFolder folder;
  const auto result = ReadFile(folder.Put("file", ""));
  ASSERT_TRUE(result.Ok());
  EXPECT_EQ(result.Value(), "");
}

TEST(ReadFile, ReadsSizesAroundItsBuffer) {
  const TempFolder folder;
  for (const std::size_t size : {65535u, 65536u, 65537u, 1000000u}) {
    std::string bytes(size, 'x');
    bytes.back() = 'y';
    EXPECT_EQ(Outcome(ReadFile(folder.Put("file", bytes))), bytes) << size;
  }
}

TEST(ReadFile, ReadsAFileThatHoldsMoreThanItsSizeSays) {
  const auto result = ReadFile("/proc/self/status");
  ASSERT_TRUE(result.Ok()) << result.Error();
  EXPECT_NE(result.Value().find("Pid:"), std::string::npos);
}

TEST(ReadFile, FollowsLinks) {
  const TempFolder folder;
  folder.Put("file", "content");
  std::filesystem::create_symlink("file", folder / "link");
  EXPECT_EQ(Outcome(ReadFile(folder / "link")), "content");
}

TEST(ReadFile, RefusesWhatIsNotThere) {
  const TempFolder folder;
  EXPECT_EQ(Outcome(ReadFile(folder / "none")), "error: No such file or directory");
}

TEST(ReadFile, RefusesADirectory) {
  const TempFolder folder;
  EXPECT_EQ(Outcome(ReadFile(folder.Path())), "error: Is a directory");
}

TEST(ReadFile, RefusesAPipeWithoutWaitingForItsWriter) {
  const TempFolder folder;
  ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
  EXPECT_EQ(Outcome(ReadFile(folder / "pipe")), "error: Not a regular file");
}

TEST(ReadFile, RefusesADevice) {
  EXPECT_EQ(Outcome(ReadFile("/dev/zero")), "error: Not a regular file");
}

TEST(ReadFile, RefusesAFileThatTheUserMayNotRead) {
  const TempFolder folder;
  const auto path = folder.Put("file", "secret");
  std::filesystem::permissions(path, std::filesystem::perms::none);
  const UnprivilegedUser user;
  EXPECT_EQ(Outcome(ReadFile(path)), "error: Permission denied");
}

// The address sanitizer ends the process before an allocation fails.
#if !defined(__SANITIZE_ADDRESS__) && !MIVO_ADDRESS_SANITIZER
TEST(ReadFile, RefusesAFileLargerThanTheMemory) {
  const TempFolder folder;
  const auto path = folder.Put("file", "");
  std::filesystem::resize_file(path, std::uintmax_t{1} << 36);
  EXPECT_EQ(RunInChild([&]() -> std::string {
              const rlimit limit{1u << 30, 1u << 30};
              if (setrlimit(RLIMIT_AS, &limit) != 0) return "no limit";
              return Outcome(ReadFile(path));
            }),
            "error: Cannot allocate memory");
}
#endif

TEST(ReadStandardInput, ReadsAPipeToItsEnd) {
  const std::string sent(100000, 'z');
  EXPECT_EQ(RunInChild([&]() -> std::string {
              int ends[2];
              if (pipe(ends) != 0) return "no pipe";
              if (fork() == 0) {
                std::size_t count = 0;
                while (count < sent.size()) {
                  const ssize_t now = write(ends[1], sent.data() + count, sent.size() - count);
                  if (now <= 0) break;
                  count += static_cast<std::size_t>(now);
                }
                _exit(0);
              }
              close(ends[1]);
              if (dup2(ends[0], STDIN_FILENO) < 0) return "no input";
              return Outcome(ReadStandardInput());
            }),
            sent);
}

TEST(ReadStandardInput, TellsWhenThereIsNone) {
  EXPECT_EQ(RunInChild([&] {
              close(STDIN_FILENO);
              return Outcome(ReadStandardInput());
            }),
            "error: Bad file descriptor");
}

}  // namespace
}  // namespace mivo

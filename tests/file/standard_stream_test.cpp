#include "standard_stream.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <string>

#include "child_process.h"
#include "temp_folder.h"

namespace mivo {
namespace {

/// Runs `action` with the standard output going to `path`.
std::string WithOutputTo(const std::filesystem::path& path, std::string (*action)()) {
  return RunInChild([&]() -> std::string {
    const int file = open(path.c_str(), O_WRONLY | O_CREAT, 0600);
    if (file < 0 || dup2(file, STDOUT_FILENO) < 0) return "no output";
    return action();
  });
}

TEST(StandardStream, WritesBytesAsTheyAre) {
  const TempFolder folder;
  EXPECT_EQ(WithOutputTo(folder / "out",
                         [] {
                           StandardStream out = StandardStream::Output();
                           const bool ok =
                               out.Write(std::string_view("a\r\n\0b", 5)) && out.Flush();
                           return std::string(ok ? "ok" : "failed");
                         }),
            "ok");
  EXPECT_EQ(BytesOf(folder / "out"), std::string("a\r\n\0b", 5));
}

TEST(StandardStream, WritesAFullBufferWithoutBeingAsked) {
  const TempFolder folder;
  EXPECT_EQ(WithOutputTo(folder / "out",
                         [] {
                           StandardStream out = StandardStream::Output();
                           const bool ok = out.Write(std::string(70000, 'x')) && out.Write("rest");
                           return std::string(ok ? "ok" : "failed");
                         }),
            "ok");
  EXPECT_EQ(BytesOf(folder / "out"), std::string(70000, 'x'));
}

TEST(StandardStream, KeepsTheFirstFailure) {
  EXPECT_EQ(WithOutputTo("/dev/full",
                         [] {
                           StandardStream out = StandardStream::Output();
                           std::string trace = out.Write("x") ? "buffered" : "refused";
                           trace += out.Flush() ? ", flushed" : ", not flushed";
                           trace += out.Write("y") ? ", buffered" : ", refused";
                           trace += out.Flush() ? ", flushed" : ", not flushed";
                           return trace + ": " + out.ErrorText();
                         }),
            "buffered, not flushed, refused, not flushed: No space left on device");
}

}  // namespace
}  // namespace mivo

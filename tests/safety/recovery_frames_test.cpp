#include "recovery_frames.h"

#include <gtest/gtest.h>

#include <string>

namespace mivo {
namespace {

/// "kind number content" of the frames that can be taken, and how many bytes are left.
std::string Taken(std::string_view bytes) {
  std::string text;
  while (const auto frame = TakeFrame(bytes)) {
    text += static_cast<char>(frame->kind);
    text += std::to_string(frame->component) + "(" + std::string(frame->content) + ")";
  }
  return text + " " + std::to_string(bytes.size());
}

std::string TwoFrames() {
  std::string bytes;
  AppendFrame(bytes, {FrameKind::Component, 4294967295u, "first\n"});
  AppendFrame(bytes, {FrameKind::Names, 0, ""});
  return bytes;
}

TEST(RecoveryFrames, AreTakenAsTheyWereAppended) {
  EXPECT_EQ(Taken(TwoFrames()), "C4294967295(first\n)N0() 0");
  EXPECT_EQ(Taken(""), " 0");
}

TEST(RecoveryFrames, ACutFileIsGoodUpToItsLastWholeFrame) {
  const std::string bytes = TwoFrames();
  std::string first;
  AppendFrame(first, {FrameKind::Component, 4294967295u, "first\n"});
  for (std::size_t size = 0; size < bytes.size(); ++size) {
    const std::string whole = size >= first.size() ? "C4294967295(first\n) " : " ";
    const std::size_t left = size >= first.size() ? size - first.size() : size;
    EXPECT_EQ(Taken(bytes.substr(0, size)), whole + std::to_string(left)) << size;
  }
}

TEST(RecoveryFrames, ADamagedByteAnywhereEndsTheFile) {
  const std::string bytes = TwoFrames();
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    for (const char damage : {'\0', '9', 'S', ' ', '\n', '\xFF'}) {
      std::string damaged = bytes;
      if (damaged[i] == damage) continue;
      damaged[i] = damage;
      EXPECT_FALSE(Taken(damaged).ends_with(" 0")) << i << " " << int{damage};
    }
  }
}

TEST(RecoveryFrames, HugeSizesAreNoWholeFrame) {
  for (const char* size : {"18446744073709551615", "99999999999999999999999", "-1", "6"}) {
    std::string bytes = "MIVO_RECOVERY_1 C1 ";
    bytes += size;
    bytes += " 5\nabc\n";
    EXPECT_EQ(Taken(bytes), " " + std::to_string(bytes.size()));
  }
}

}  // namespace
}  // namespace mivo

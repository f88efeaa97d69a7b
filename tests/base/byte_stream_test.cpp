#include "byte_stream.h"

#include <gtest/gtest.h>

#include <array>

namespace mivo {
namespace {

TEST(MemoryByteSource, HandsOutItsBytesInPieces) {
  MemoryByteSource source("abcde");
  std::array<char, 3> piece{};
  EXPECT_EQ(source.Read(piece), 3u);
  EXPECT_EQ(std::string_view(piece.data(), 3), "abc");
  EXPECT_EQ(source.Read(piece), 2u);
  EXPECT_EQ(std::string_view(piece.data(), 2), "de");
}

TEST(MemoryByteSource, StaysAtItsEnd) {
  MemoryByteSource source("a");
  std::array<char, 8> piece{};
  EXPECT_EQ(source.Read(piece), 1u);
  EXPECT_EQ(source.Read(piece), 0u);
  EXPECT_EQ(source.Read(piece), 0u);
}

TEST(MemoryByteSource, CanBeEmpty) {
  MemoryByteSource source({});
  std::array<char, 8> piece{};
  EXPECT_EQ(source.Read(piece), 0u);
}

TEST(StringByteSink, AppendsToItsTarget) {
  std::string target = "before ";
  StringByteSink sink(target);
  EXPECT_TRUE(sink.Write("one, "));
  EXPECT_TRUE(sink.Write("two"));
  EXPECT_EQ(target, "before one, two");
}

}  // namespace
}  // namespace mivo

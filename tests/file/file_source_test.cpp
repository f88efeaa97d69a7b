#include "file_source.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

#include "read_file.h"
#include "temp_folder.h"

namespace mivo {
namespace {

/// All that comes, in pieces of `pieceSize` bytes at most.
std::string ReadAll(FileSource& source, std::size_t pieceSize) {
  std::string bytes;
  std::string piece(pieceSize, '\0');
  while (const std::size_t count = source.Read(piece)) bytes.append(piece, 0, count);
  return bytes;
}

TEST(FileSource, GivesTheContentInPieces) {
  const TempFolder folder;
  std::string bytes = "\r\n\x1A";
  for (int i = 0; i < 100'000; ++i) bytes.push_back(static_cast<char>(i));
  const auto path = folder.Put("file", bytes);
  for (const std::size_t pieceSize : {1u, 4096u, 1'000'000u}) {
    FileSource source(path);
    EXPECT_EQ(source.SizeHint(), bytes.size());
    EXPECT_TRUE(ReadAll(source, pieceSize) == bytes) << pieceSize;
    EXPECT_EQ(source.Error(), "");
  }
}

TEST(FileSource, RefusesWhatReadFileRefusesInTheSameWords) {
  const TempFolder folder;
  for (const auto& path : {folder.Path(), folder.Path() / "missing"}) {
    FileSource source(path);
    EXPECT_EQ(source.Error(), ReadFile(path).Error());
    EXPECT_EQ(ReadAll(source, 10), "");
  }
}

}  // namespace
}  // namespace mivo

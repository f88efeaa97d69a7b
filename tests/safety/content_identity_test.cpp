#include "content_identity.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <set>
#include <string>
#include <string_view>

#include "byte_streams.h"

namespace mivo {
namespace {

const std::string kContent = "+TARSL_LIB_V.1.0\nVER:82\n";

TEST(ContentHash, IsTheSameHoweverTheContentIsCut) {
  for (std::size_t first = 0; first <= kContent.size(); ++first) {
    for (std::size_t second = first; second <= kContent.size(); ++second) {
      const std::string_view content = kContent;
      ContentHash hash;
      hash.Add(content.substr(0, first));
      hash.Add(content.substr(first, second - first));
      hash.Add(content.substr(second));
      ASSERT_EQ(hash.Identity(), IdentityOf(kContent)) << first << ", " << second;
    }
  }
}

TEST(ContentHash, TellsContentsApart) {
  std::set<std::uint64_t> hashes;
  std::size_t contents = 0;
  const auto take = [&](std::string_view content) {
    const ContentIdentity identity = IdentityOf(content);
    EXPECT_EQ(identity.size, content.size());
    hashes.insert(identity.hash);
    ++contents;
  };
  for (std::size_t length = 0; length <= kContent.size(); ++length) {
    take(std::string_view(kContent).substr(0, length));
    take(std::string(length + 1, '\0'));
  }
  for (std::size_t i = 0; i < kContent.size(); ++i) {
    std::string changed = kContent;
    changed[i] = static_cast<char>(changed[i] ^ 0x80);
    take(changed);
  }
  EXPECT_EQ(hashes.size(), contents);
}

TEST(IdentifyingSource, PassesTheContentOnAndKnowsAllOfIt) {
  for (const std::size_t wanted : {0u, 1u, 9u, 1000u}) {
    PieceSource source(kContent, 5);
    IdentifyingSource identifying(source);
    std::string read;
    std::array<char, 7> piece;
    while (read.size() < wanted) {
      const std::size_t count = identifying.Read(piece);
      if (count == 0) break;
      read.append(piece.data(), count);
    }
    EXPECT_EQ(read, kContent.substr(0, read.size()));
    EXPECT_GE(read.size(), std::min(wanted, kContent.size()));
    EXPECT_EQ(identifying.IdentityOfAll(), IdentityOf(kContent));
    EXPECT_EQ(identifying.Read(piece), 0u);
  }
}

}  // namespace
}  // namespace mivo

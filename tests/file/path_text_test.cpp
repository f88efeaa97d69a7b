#include "path_text.h"

#include <gtest/gtest.h>

namespace mivo {
namespace {

TEST(PathText, IsUtf8OnTheDisk) {
  EXPECT_EQ(PathFromText(u"dir/Stückliste 😀.ZLB").native(), "dir/Stückliste 😀.ZLB");
}

TEST(PathText, ReturnsAsItWas) {
  EXPECT_EQ(TextFromPath(PathFromText(u"/a b/Stückliste 😀.ZLB")), u"/a b/Stückliste 😀.ZLB");
}

TEST(PathText, ALoneSurrogateIsNoFailure) {
  EXPECT_EQ(PathFromText(std::u16string(u"a\xD800z")).native(), "a\uFFFDz");
}

TEST(PathText, ANameThatIsNotUtf8CanBeShownAndOpened) {
  const std::filesystem::path path = PathFromArgument("a\xFFz");
  EXPECT_EQ(path.native(), "a\xFFz");
  EXPECT_EQ(TextFromPath(path), u"a\uFFFDz");
}

}  // namespace
}  // namespace mivo

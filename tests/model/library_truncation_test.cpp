#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "library_testing.h"

// A file with every record in it, cut off at every byte.

namespace mivo {
namespace {

using testing::Contains;
using testing::IsEmpty;

constexpr std::string_view kEveryRecord =
    "+TARSL_LIB_V.1.0\n"
    "VER:82\n"
    "PROP:every%20record\n"
    "+PTN,N:LED \xE2\x82\xAC,X:11,Y:2\n"
    "+BMP\n"
    "OON@\n"
    "@@@@\n"
    "-BMP\n"
    "+L,W:2,S:1,CV:1,X:1,Y:2,X:3,Y:4,X:5,Y:6,X:7,Y:8,-L\n"
    "+C,W:1,S:0,F:1,X:0,Y:0,X:9,Y:9,-C\n"
    "+PG,W:1,S:0,F:-1,N:3,X:0,Y:0,X:9,Y:0,X:9,Y:9,-PG\n"
    "+AR,W:1,S:0,X:5,Y:5,R:4,B:0,E:90,-AR\n"
    "+TX,X:1,Y:1,A:5,D:0,S:50%25,FN:Sans,FS:12,FF:BI,-TX\n"
    "-PTN\n"
    "+COMP,N:LED \xE2\x82\xAC\n"
    "X:1,Y:2,B:2\n"
    "TYPE:GEN,FB:0\n"
    "R:D\n"
    "P:LED \xE2\x82\xAC\n"
    "+PIN,N:\\A,DF:%20%20%20%20%20%20%205,L:R1,T:ZSm,M:1,M:4,-PIN\n"
    "+X,unknown,-X\n"
    "NOTE:n,MFR:m,MFRPN:p,PKG:k,-COMP\n"
    "+ALIAS,A:LAMP,N:LED \xE2\x82\xAC,-ALIAS\n"
    "+COMP,N:F\n"
    "X:1,Y:1,B:1\n"
    "TYPE:FXB,FB:3\n"
    "-COMP\n"
    "-TARSL_LIB_V.1.0\n";

/// Whether a load that has read `cut` stopped before the end of the file with nothing to say.
void ExpectHonest(const LoadedLibrary& library) {
  if (library.loaded) {
    EXPECT_THAT(library.findings.Kinds(), Contains(FindingKind::DataCutOff));
  } else {
    ASSERT_FALSE(library.findings.all.empty());
    EXPECT_EQ(SeverityOf(library.findings.all.back().kind), Severity::Error);
  }
}

void ExpectCutAnywhereToLoadOrBeRefused(const std::string& file, std::size_t end) {
  const auto whole = LoadedLibrary(file).Names();
  for (std::size_t length = 0; length < end; ++length) {
    SCOPED_TRACE(length);
    const LoadedLibrary library(std::string_view(file).substr(0, length));
    ExpectHonest(library);

    // All names but the one that is cut off are those of the whole file.
    const auto names = library.Names();
    ASSERT_LE(names.size(), whole.size());
    if (library.library.Version() == 82 && !names.empty()) {
      EXPECT_TRUE(std::equal(names.begin(), names.end() - 1, whole.begin()));
    }
    EXPECT_TRUE(LoadedLibrary(Saved(library.library)).loaded);
  }
}

TEST(Truncation, StartsFromAFileThatLoads) {
  const LoadedLibrary library(kEveryRecord);
  EXPECT_TRUE(library.loaded);
  EXPECT_EQ(library.Names(), (std::vector<std::u16string>{u"LED \u20AC", u"LAMP", u"F"}));
  EXPECT_EQ(library.findings.Kinds(), std::vector{FindingKind::UnknownRecord});
}

TEST(Truncation, OfALibraryNeverCrashes) {
  // Without its last line end, or even all of its closing tag, the file is cut off; what is left
  // then counts as a tag of 32768 characters.
  ExpectCutAnywhereToLoadOrBeRefused(std::string(kEveryRecord), kEveryRecord.size() - 1);
}

TEST(Truncation, OfASchematicNeverCrashes) {
  const std::string head = "+TARSL_DATA_V.1.0\n+COMPONENT\n";
  const std::string file = head + std::string(kEveryRecord) + "X:1,-COMPONENT\n";
  ExpectCutAnywhereToLoadOrBeRefused(file, head.size() + kEveryRecord.size() - 1);
}

TEST(Truncation, OfAnOldLibraryNeverCrashes) {
  std::string file(kEveryRecord);
  file.replace(file.find("VER:82"), 6, "VER:70");
  ExpectCutAnywhereToLoadOrBeRefused(file, file.size() - 1);
}

}  // namespace
}  // namespace mivo

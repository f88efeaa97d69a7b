#include "list_command.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <string>

#include "captured_io.h"
#include "libraries.h"
#include "temp_folder.h"

namespace mivo {
namespace {

using Json = nlohmann::json;

std::string ListingOf(const std::string& content) {
  CapturedIo captured;
  captured.input = content;
  EXPECT_EQ(RunList({"-", false}, captured.io), ExitCode::Fine);
  EXPECT_EQ(captured.errors, "");
  return captured.output;
}

Json JsonOf(const std::string& content) {
  CapturedIo captured;
  captured.input = content;
  EXPECT_EQ(RunList({"-", true}, captured.io), ExitCode::Fine);
  EXPECT_EQ(captured.errors, "");
  return Json::parse(captured.output);
}

TEST(List, PrintsOneLinePerNameInListOrder) {
  EXPECT_EQ(ListingOf(kGoodLibrary),
            "7400\t0\t4x3\t2\tGEN\t1\t-\t0\n"
            "LED\t1\t2x1\t1\tFXB\t0\t1\t44\n"
            "74HC00\t0\t4x3\t2\tGEN\t1\t-\t0\n");
}

TEST(List, NamesTheBlockTypes) {
  std::string shared = ComponentRecord("S");
  shared.replace(shared.find("GEN"), 3, "SHB");
  EXPECT_EQ(ListingOf(LibraryOf(ComponentRecord("G") + shared)),
            "G\t0\t4x3\t1\tGEN\t0\t-\t0\n"
            "S\t1\t4x3\t1\tSHB\t0\t-\t0\n");
}

TEST(List, CountsTheBytesOfTheWholeBitPattern) {
  const std::string pattern = "+PTN,N:W,X:600,Y:2,+BMP,-BMP,-PTN\n";
  EXPECT_EQ(ListingOf(LibraryOf(pattern + "+COMP,N:W,X:1,Y:1,B:1,P:W,-COMP\n")),
            "W\t0\t1x1\t1\tGEN\t0\t0\t152\n");
}

TEST(List, ReadsAFile) {
  const TempFolder folder;
  CapturedIo captured;
  const auto path = folder.Put("a.ZLB", kGoodLibrary);
  EXPECT_EQ(RunList({path.string(), false}, captured.io), ExitCode::Fine);
  EXPECT_EQ(captured.output, ListingOf(kGoodLibrary));
}

TEST(List, AnEmptyLibraryHasNoLines) {
  EXPECT_EQ(ListingOf(std::string(kEmptyLibrary)), "");
}

TEST(List, ANameKeepsItsLineAndItsColumn) {
  EXPECT_EQ(ListingOf(LibraryOf(ComponentRecord("%1B[2J%09a%0Ab\\c\u00E9"))),
            "\\u001b[2J\\ta\\nb\\\\c\u00E9\t0\t4x3\t1\tGEN\t0\t-\t0\n");
}

TEST(List, WritesMoreThanOneBufferFull) {
  constexpr int kCount = 5000;
  std::string expected;
  for (int i = 0; i < kCount; ++i) {
    const std::string number = std::to_string(i);
    expected.append("N").append(number).append("\t").append(number);
    expected.append("\t4x3\t1\tGEN\t0\t-\t0\n");
  }
  EXPECT_EQ(ListingOf(LibraryOf(NumberedComponents(kCount))), expected);
}

TEST(List, AFailedLoadPrintsItsReasonAndNoName) {
  for (const bool json : {false, true}) {
    CapturedIo captured;
    captured.input = kFailingLibrary;
    EXPECT_EQ(RunList({"-", json}, captured.io), ExitCode::Findings);
    EXPECT_EQ(captured.output, "");
    EXPECT_EQ(captured.errors, "-:10: invalid value: \"X:-4\" in +COMP\n");
  }
}

TEST(List, WarningsAreNotItsBusiness) {
  EXPECT_EQ(ListingOf(LibraryOf("STRANGE:1\n" + ComponentRecord("R"))),
            "R\t0\t4x3\t1\tGEN\t0\t-\t0\n");
}

TEST(List, AFileThatCannotBeReadIsAFailure) {
  const TempFolder folder;
  CapturedIo captured;
  const std::string path = (folder / "none").string();
  EXPECT_EQ(RunList({path, false}, captured.io), ExitCode::Failure);
  EXPECT_EQ(captured.output, "");
  EXPECT_THAT(captured.errors, testing::StartsWith("mivo-cli: " + path + ": "));
}

TEST(List, AStandardInputThatCannotBeReadIsAFailure) {
  CapturedIo captured;
  captured.io.readInput = [] { return FileResult<std::string>(FileError{"Some reason"}); };
  EXPECT_EQ(RunList({"-", false}, captured.io), ExitCode::Failure);
  EXPECT_EQ(captured.errors, "mivo-cli: standard input: Some reason\n");
}

TEST(List, AnOutputThatFailsIsAFailure) {
  for (const int count : {1, 5000}) {  // with the last piece, and with one before
    for (const bool json : {false, true}) {
      CapturedIo captured;
      captured.input = LibraryOf(NumberedComponents(count));
      FailingOnceSink sink;
      const CommandIo io{captured.io.readInput, sink, captured.errorSink};
      EXPECT_EQ(RunList({"-", json}, io), ExitCode::Failure) << count << ' ' << json;
    }
  }
}

TEST(ListJson, HoldsTheSameAndTheTexts) {
  const Json expected = Json::parse(R"({
    "version": 82, "property": "Parts",
    "names": [
      {"name": "7400", "component": 0, "width": 4, "height": 3, "blocks": 2, "type": "GEN",
       "pins": 1, "patternObjects": null, "bitPatternBytes": 0, "prefix": "U",
       "note": "Four gates", "manufacturer": "Maker", "partNumber": "SN7400N",
       "package": "DIP14"},
      {"name": "LED", "component": 1, "width": 2, "height": 1, "blocks": 1, "type": "FXB",
       "pins": 0, "patternObjects": 1, "bitPatternBytes": 44, "prefix": "D",
       "note": "", "manufacturer": "", "partNumber": "", "package": ""},
      {"name": "74HC00", "component": 0, "width": 4, "height": 3, "blocks": 2, "type": "GEN",
       "pins": 1, "patternObjects": null, "bitPatternBytes": 0, "prefix": "U",
       "note": "Four gates", "manufacturer": "Maker", "partNumber": "SN7400N",
       "package": "DIP14"}]})");
  EXPECT_EQ(JsonOf(kGoodLibrary), expected);
}

TEST(ListJson, AnEmptyLibraryIsAnEmptyList) {
  EXPECT_EQ(JsonOf(std::string(kEmptyLibrary)),
            Json::parse(R"({"version": 82, "property": "", "names": []})"));
}

TEST(ListJson, GivesTextsExactly) {
  std::string library = LibraryOf(ComponentRecord("a%09b\"c\\d\u00E9%1B\U0001F600"));
  library.replace(library.find("PROP:"), 5, "PROP:\"%0A");
  const Json json = JsonOf(library);
  EXPECT_EQ(json["names"][0]["name"], "a\tb\"c\\d\u00E9\x1B\U0001F600");
  EXPECT_EQ(json["property"], "\"\n");
}

TEST(ListJson, PutsEveryNameOnALineOfItsOwn) {
  CapturedIo captured;
  captured.input = kGoodLibrary;
  EXPECT_EQ(RunList({"-", true}, captured.io), ExitCode::Fine);
  EXPECT_NE(captured.output.find(",\n{\"name\":\"LED\",\"component\":1,"), std::string::npos);
}

}  // namespace
}  // namespace mivo

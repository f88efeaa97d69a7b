// The memory does not suffice for what a file or a clipboard text holds.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "collected_findings.h"
#include "little_memory.h"
#include "mivo_doc.h"
#include "schematic_data.h"

namespace mivo {
namespace {

std::string Component(const std::string& name) {
  return "+COMP,N:" + name + "\nX:4,Y:3,B:1\nTYPE:GEN,FB:0\nR:U\nNOTE:,MFR:,MFRPN:,PKG:,-COMP\n";
}

TEST(LibraryMemory, ALibraryThatDoesNotFitIsRefused) {
  if (kHasSanitizer) GTEST_SKIP() << "a sanitizer takes memory without limit";
  std::string bytes = "+TARSL_LIB_V.1.0\nVER:82\n";
  for (int i = 0; i < 200000; ++i) bytes += Component("part" + std::to_string(i));
  bytes += "-TARSL_LIB_V.1.0\n";
  EXPECT_EQ(RunWithLittleMemory([&]() -> std::string {
              SMivoDoc doc;
              CollectedFindings findings;
              if (doc.Load(bytes, u"path", &findings)) return "loaded";
              if (findings.Kinds() != std::vector{FindingKind::OutOfMemory}) return "unsaid";
              if (!doc.Names().Entries().empty() || doc.Path()) return "refused, but not empty";
              const std::string small = "+TARSL_LIB_V.1.0\nVER:82\n" + Component("a");
              return doc.Load(small, u"path") ? "refused, and the next one loaded" : "useless";
            }),
            "refused, and the next one loaded");
}

TEST(LibraryMemory, AComponentThatDoesNotFitIsNotPasted) {
  if (kHasSanitizer) GTEST_SKIP() << "a sanitizer takes memory without limit";
  std::u16string text = u"+TARSL_DATA_V.1.0\n+TARSL_LIB_V.1.0\n+COMP,N:big\nX:255,Y:255,B:255\n";
  for (int i = 0; i < 200000; ++i) text += u"+PIN,N:A,DF:FFFFFFFF,L:L1,T:,M:1,-PIN\n";
  text += u"-COMP\n-TARSL_LIB_V.1.0\n-TARSL_DATA_V.1.0\n";
  EXPECT_EQ(RunWithLittleMemory([&]() -> std::string {
              SMivoDoc doc;
              return PasteComponentText(doc, text) == nullptr ? "refused" : "pasted";
            }),
            "refused");
}

}  // namespace
}  // namespace mivo

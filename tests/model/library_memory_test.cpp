// The memory does not suffice for what a file or a clipboard text holds.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "allocation_meter.h"
#include "collected_findings.h"
#include "little_memory.h"
#include "mivo_doc.h"
#include "schematic_data.h"
#include "text_encoding.h"

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

/// Whether every component is listed once, under a name by which it is found.
bool IsWhole(const SMivoDoc& library) {
  const auto& entries = library.Names().Entries();
  if (entries.size() != library.Components().size()) return false;
  for (std::size_t i = 0; i < entries.size(); ++i) {
    if (entries[i]->Component() != library.Components()[i].get()) return false;
    if (library.Names().Find(entries[i]->Name()) != entries[i].get()) return false;
  }
  return true;
}

TEST(LibraryMemory, APasteThatFailsAnywhereLeavesTheLibraryAsItWas) {
  for (const std::string name : {"new", "part0"}) {
    const std::u16string text = Utf8ToUtf16("+TARSL_DATA_V.1.0\n+TARSL_LIB_V.1.0\n" +
                                            Component(name) + "-TARSL_LIB_V.1.0\n");
    // Sizes at which this and that has to grow for one more.
    for (int size = 0; size < 40; ++size) {
      std::string records;
      for (int i = 0; i < size; ++i) records += Component("part" + std::to_string(i));
      SMivoDoc library;
      ASSERT_TRUE(
          library.Load("+TARSL_LIB_V.1.0\nVER:82\n" + records + "-TARSL_LIB_V.1.0\n", u"path"));
      bool isPasted = false;
      for (std::size_t good = 0; !isPasted; ++good) {
        {
          const AllocationFault fault(good);
          isPasted = PasteComponentText(library, text) != nullptr;
        }
        const auto expected = static_cast<std::size_t>(size) + (isPasted ? 1 : 0);
        ASSERT_EQ(library.Components().size(), expected) << good << " good allocations";
        ASSERT_TRUE(IsWhole(library)) << good << " good allocations";
        const bool isThere = isPasted || (name == "part0" && size > 0);
        ASSERT_EQ(library.Names().Find(Utf8ToUtf16(name)) != nullptr, isThere) << good;
      }
    }
  }
}

}  // namespace
}  // namespace mivo

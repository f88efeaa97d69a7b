#ifndef MIVO_TESTS_MODEL_LIBRARY_TESTING_H
#define MIVO_TESTS_MODEL_LIBRARY_TESTING_H

#include <string>
#include <string_view>
#include <vector>

#include "collected_findings.h"
#include "mivo_doc.h"
#include "text_encoding.h"

namespace mivo {

/// What came of loading some bytes into a new library.
struct LoadedLibrary {
  explicit LoadedLibrary(std::string_view bytes) {
    loaded = library.Load(bytes, u"test.ZLB", &findings);
  }

  [[nodiscard]] std::vector<std::u16string> Names() const {
    std::vector<std::u16string> names;
    for (const auto& entry : library.Names().Entries()) names.push_back(entry->Name());
    return names;
  }

  SMivoDoc library;
  CollectedFindings findings;
  bool loaded = false;
};

/// A library file of the current version with `records` in it, each line ended.
[[nodiscard]] inline std::string LibraryFile(std::u16string_view records) {
  return "+TARSL_LIB_V.1.0\nVER:82\nPROP:\n" + Utf16ToUtf8(records) + "-TARSL_LIB_V.1.0\n";
}

/// The record of a component of one cell without pins, with further fields.
[[nodiscard]] inline std::u16string ComponentRecord(std::u16string_view name,
                                                    std::u16string_view fields = u"") {
  std::u16string record = u"+COMP,N:";
  record.append(name).append(u",X:1,Y:1,B:1,");
  return record.append(fields).append(fields.empty() ? u"-COMP\n" : u",-COMP\n");
}

[[nodiscard]] inline std::u16string AliasRecord(std::u16string_view alias,
                                                std::u16string_view name) {
  std::u16string record = u"+ALIAS,A:";
  return record.append(alias).append(u",N:").append(name).append(u",-ALIAS\n");
}

/// The bytes of the library's file, entries in the order in which they were added.
[[nodiscard]] inline std::string Saved(const SMivoDoc& library) {
  std::string bytes;
  StringByteSink sink(bytes);
  return library.Write(sink) ? bytes : "failed";
}

}  // namespace mivo

#endif

#ifndef MIVO_TESTS_SAFETY_OPEN_DOC_H
#define MIVO_TESTS_SAFETY_OPEN_DOC_H

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "content_identity.h"
#include "library_view.h"
#include "path_text.h"
#include "recovery_records.h"
#include "temp_folder.h"

namespace mivo {

inline std::string ComponentText(const std::string& name, const std::string& note = {}) {
  return "+COMP,N:" + name +
         "\nX:4,Y:3,B:1\nTYPE:GEN,FB:0\nR:U\n"
         "+PIN,N:A,DF:FFFFFFFF,L:L1,T:,M:1,-PIN\nNOTE:" +
         note + ",MFR:,MFRPN:,PKG:,-COMP\n";
}

inline std::string LibraryText(const std::string& records, const std::string& property = {}) {
  return "+TARSL_LIB_V.1.0\nVER:82\nPROP:" + property + "\n" + records + "-TARSL_LIB_V.1.0\n";
}

/// What Save would write.
inline std::string TextOf(const LibraryView& library) {
  std::string text;
  StringByteSink sink(text);
  EXPECT_TRUE(library.doc.Write(sink, library.entries));
  return text;
}

inline std::string TextOf(const SMivoDoc& doc) {
  std::string text;
  StringByteSink sink(text);
  EXPECT_TRUE(doc.Write(sink));
  return text;
}

/// An open library as the main frame has it: the entries in an order of their own.
class OpenDoc {
 public:
  /// Loads the library from `content`, as the file at `path` if that is not empty.
  explicit OpenDoc(std::string_view content, const std::filesystem::path& path = {}) {
    if (!content.empty()) {
      EXPECT_TRUE(doc.Load(content, TextFromPath(path)));
    }
    for (const auto& entry : doc.Names().Entries()) entries.push_back(entry.get());
    start.identity = IdentityOf(content);
    if (!path.empty()) start.path = TextFromPath(path);
  }

  [[nodiscard]] LibraryView View() const { return {doc, entries}; }

  [[nodiscard]] NameEntry& Entry(std::u16string_view name) const {
    return **std::find_if(entries.begin(), entries.end(),
                          [name](const NameEntry* entry) { return entry->Name() == name; });
  }
  [[nodiscard]] SComponent& Component(std::u16string_view name) const {
    return *Entry(name).Component();
  }

  /// A copy of a component, as an edit that has not been committed would leave it.
  [[nodiscard]] SComponent WithNote(std::u16string_view name, std::u16string_view note) const {
    SComponent changed = Component(name);
    changed.note = note;
    return changed;
  }

  void Add(std::u16string_view name, std::u16string_view note = {}) {
    auto component = std::make_unique<SComponent>();
    component->SetSize({2, 2}, false, false);
    component->note = note;
    entries.push_back(doc.AddComponent(std::move(component), name));
  }
  void AddAlias(std::u16string_view name, std::u16string_view alias) {
    entries.push_back(doc.AddAlias(&Component(name), alias));
  }
  void Remove(std::u16string_view name) {
    NameEntry& entry = Entry(name);
    std::erase(entries, &entry);
    doc.Remove(entry);
  }

  SMivoDoc doc;
  std::vector<NameEntry*> entries;
  RecoveryStart start;
};

}  // namespace mivo

#endif

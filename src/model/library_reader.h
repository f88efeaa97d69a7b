#ifndef MIVO_MODEL_LIBRARY_READER_H
#define MIVO_MODEL_LIBRARY_READER_H

#include <memory>
#include <string>
#include <string_view>

#include <tsl/robin_map.h>

#include "mivo_doc.h"
#include "name_hash.h"

namespace mivo {

/// Reads library blocks into a library. Keeps the patterns of the current block, which the
/// components of that block name.
class LibraryReader {
 public:
  LibraryReader(SMivoDoc& doc, SRecordReader& reader);

  /// See SMivoDoc::ReadBody.
  [[nodiscard]] bool ReadBody(SMivoDoc::BodyExtent extent);

 private:
  [[nodiscard]] bool ReadPattern();
  void EmptyPatternPool();
  [[nodiscard]] bool ReadComponent();
  /// False when the bit patterns of the components together become too large.
  [[nodiscard]] bool GivePattern(SComponent& component, std::u16string_view name);
  [[nodiscard]] bool ReadAlias();
  void ReadKeyedField(std::u16string_view field);
  /// Reports an entry that could not be given the name that the file gives it.
  void ReportRenamed(const NameEntry& entry, std::u16string_view nameInFile);

  SMivoDoc& doc_;
  SRecordReader& reader_;
  // The first pattern of each name, which is the pattern's own. Components share it until one of
  // them is edited.
  tsl::robin_map<std::u16string_view, std::shared_ptr<SPtn>, NameHash> patterns_;
  BitPatternBudget bitPatternBudget_;
  SComponent::ReadContext component_;
};

}  // namespace mivo

#endif

#ifndef MIVO_MODEL_NAME_INDEX_H
#define MIVO_MODEL_NAME_INDEX_H

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <tsl/robin_set.h>

#include "name_hash.h"
#include "record_reader.h"

namespace mivo {

class SComponent;

/// A name under which a component is listed: its own name or an alias, which are entries of the
/// same kind. Renaming goes through NameIndex::Rename, which keeps the index true.
class NameEntry {
 public:
  NameEntry(std::u16string name, SComponent* component)
      : name_(std::move(name)), component_(component) {}

  [[nodiscard]] const std::u16string& Name() const noexcept { return name_; }
  /// Never null; owned by the library.
  [[nodiscard]] SComponent* Component() const noexcept { return component_; }

 private:
  friend class NameIndex;
  std::u16string name_;
  SComponent* component_;
};

/// The name entries of a library in the order in which they were added, found by name in constant
/// time. Entries keep their address until they are removed.
class NameIndex {
 public:
  /// Attempts of UniqueName.
  static constexpr std::int32_t kMaxAttempts = 4096;
  /// The longest name that fits into a record's field with its key "N:".
  static constexpr std::size_t kMaxNumberedLength = SRecordReader::kMaxFieldLength - 2;

  /// How full tables of names become before they grow, which takes twice the memory.
  static constexpr float kFullness = 0.8F;

  NameIndex() { byName_.max_load_factor(kFullness); }

  /// The first entry with exactly this name; null when there is none.
  [[nodiscard]] NameEntry* Find(std::u16string_view name) const;

  /// `name` when no entry has it, otherwise the first free of name(1), name(2), … (counting on from
  /// a number in parentheses at its end). After kMaxAttempts the last candidate is returned as it
  /// is, taken or not. A name to which no number can be added within kMaxNumberedLength code units
  /// is shortened before its number, since a longer one would not load again.
  [[nodiscard]] std::u16string UniqueName(std::u16string_view name);

  /// Appends an entry when no other has its name; null, with nothing added, otherwise.
  NameEntry* AddIfFree(std::u16string_view name, SComponent* component);
  /// Appends an entry; the name is taken as it is.
  NameEntry* Add(std::u16string name, SComponent* component);
  void Rename(NameEntry& entry, std::u16string name);
  void Remove(NameEntry& entry);
  void Clear();

  [[nodiscard]] const std::vector<std::unique_ptr<NameEntry>>& Entries() const noexcept {
    return entries_;
  }

 private:
  struct EntryHash : NameHash {
    using is_transparent = void;
    using NameHash::operator();
    std::size_t operator()(const NameEntry* entry) const noexcept {
      return operator()(entry->Name());
    }
  };
  struct SameName {
    using is_transparent = void;
    static std::u16string_view NameOf(std::u16string_view name) noexcept { return name; }
    static std::u16string_view NameOf(const NameEntry* entry) noexcept { return entry->Name(); }
    bool operator()(const auto& a, const auto& b) const noexcept { return NameOf(a) == NameOf(b); }
  };

  /// The first number behind `start` with which `base` is free.
  std::int32_t FirstFree(std::u16string_view base, std::int32_t start);
  /// Takes the entry's name out of the search structures.
  void Forget(const NameEntry& entry);

  std::vector<std::unique_ptr<NameEntry>> entries_;
  // The first entry of each name. With the hashes, which spare a look at most other names.
  tsl::robin_set<NameEntry*, EntryHash, SameName, std::allocator<NameEntry*>, true> byName_;
  // For each base name: numbers with which the name is known to be taken, each with a later number
  // that may be free; everything between the two is taken as well. Only additions keep this true.
  // Ordered, since a file chooses the names and numbers, and could choose those that share a hash.
  std::map<std::u16string, std::map<std::int32_t, std::int32_t>, std::less<>> taken_;
};

}  // namespace mivo

#endif

#include "recovered_library.h"

#include <algorithm>
#include <map>
#include <system_error>
#include <unordered_map>
#include <utility>

#include "path_text.h"
#include "read_file.h"
#include "recovery_frames.h"
#include "recovery_journal.h"

namespace mivo {
namespace {

namespace fs = std::filesystem;

/// A library as recovery files know it: components by number, names in list order.
struct NumberedLibrary {
  std::unordered_map<std::uint32_t, std::unique_ptr<SComponent>> components;
  RecoveryNames names;
};

NumberedLibrary NumberedFrom(std::string_view libraryBytes) {
  SMivoDoc doc;
  // What was read before a fault stays, as when the file was opened.
  static_cast<void>(doc.Load(libraryBytes, u""));
  NumberedLibrary library;
  library.names.property = doc.property;
  std::unordered_map<const SComponent*, std::uint32_t> numbers;
  for (const auto& entry : doc.Names().Entries()) {
    const auto next = static_cast<std::uint32_t>(numbers.size());
    const auto [number, isNew] = numbers.emplace(entry->Component(), next);
    if (isNew) {
      library.components.emplace(next, std::make_unique<SComponent>(*entry->Component()));
    }
    library.names.names.push_back({number->second, entry->Name()});
  }
  return library;
}

void FillDoc(NumberedLibrary library, SMivoDoc& doc) {
  doc.property = std::move(library.names.property);
  std::unordered_map<std::uint32_t, SComponent*> added;
  for (const ListedName& listed : library.names.names) {
    if (const auto known = added.find(listed.component); known != added.end()) {
      doc.AddAlias(known->second, listed.name);
    } else if (const auto found = library.components.find(listed.component);
               found != library.components.end()) {
      const NameEntry* const entry = doc.AddComponent(std::move(found->second), listed.name);
      added.emplace(listed.component, entry->Component());
    }
  }
}

/// Names with what they stand for, and the first name of what they are an alias of.
struct Listing {
  std::map<std::u16string_view, std::string> components;  // a file chooses these names
  std::vector<std::pair<std::u16string_view, std::u16string_view>> arrangement;
};

Listing ListingOf(const SMivoDoc& doc) {
  Listing listing;
  std::unordered_map<const SComponent*, std::u16string_view> firstNames;
  for (const auto& entry : doc.Names().Entries()) {
    const std::u16string_view name = entry->Name();
    const auto [first, isFirst] = firstNames.emplace(entry->Component(), name);
    listing.arrangement.emplace_back(name, first->second);
    listing.components.emplace(name, WriteOneComponent(*entry->Component()));
  }
  return listing;
}

std::optional<FoundRecovery> TakeRecovery(const fs::path& path) {
  LockedFile file;
  if (file.AcquireExisting(path) != LockedFile::Outcome::Locked) return std::nullopt;
  const FileResult<std::string> bytes = ReadFile(path);
  if (!bytes.Ok()) return std::nullopt;
  std::optional<RecoveredLibrary> library = ReadRecovery(bytes.Value());
  if (!library) {
    // Nothing was in it yet, or a person may know what to do with it.
    if (bytes.Value().empty()) {
      file.Remove();
    } else {
      fs::path aside = path;
      std::error_code ignored;
      fs::rename(path, aside += ".damaged", ignored);
    }
    return std::nullopt;
  }

  SMivoDoc onDisk;
  bool isOnDisk = false;
  if (library->file.path) {
    const FileResult<std::string> content = ReadFile(PathFromText(*library->file.path));
    isOnDisk = content.Ok() && onDisk.Load(content.Value(), u"");
  }
  RecoveryDifferences differences = CompareWithDisk(library->doc, isOnDisk ? &onDisk : nullptr);
  if (!differences.Any()) {
    file.Remove();
    return std::nullopt;
  }
  return FoundRecovery{std::move(file), *std::move(library), std::move(differences)};
}

}  // namespace

std::optional<RecoveredLibrary> ReadRecovery(std::string_view bytes) {
  const std::optional<RecoveryFrame> startFrame = TakeFrame(bytes);
  if (!startFrame || startFrame->kind != FrameKind::Start) return std::nullopt;
  std::optional<RecoveryStart> start = ReadStart(startFrame->content);
  const std::optional<RecoveryFrame> libraryFrame = TakeFrame(bytes);
  if (!start || !libraryFrame || libraryFrame->kind != FrameKind::Library) return std::nullopt;

  NumberedLibrary library = NumberedFrom(libraryFrame->content);
  while (const std::optional<RecoveryFrame> frame = TakeFrame(bytes)) {
    if (frame->kind == FrameKind::Component) {
      std::unique_ptr<SComponent> component = ReadOneComponent(frame->content);
      if (component != nullptr) library.components[frame->component] = std::move(component);
    } else if (frame->kind == FrameKind::Names) {
      std::optional<RecoveryNames> names = ReadNames(frame->content);
      if (names) library.names = *std::move(names);
    }
  }

  RecoveredLibrary recovered{*std::move(start), {}};
  FillDoc(std::move(library), recovered.doc);
  if (recovered.file.path) recovered.doc.SetPath(*recovered.file.path);
  return recovered;
}

RecoveryDifferences CompareWithDisk(const SMivoDoc& recovered, const SMivoDoc* onDisk) {
  const SMivoDoc nothing;
  const SMivoDoc& before = onDisk != nullptr ? *onDisk : nothing;
  const Listing now = ListingOf(recovered);
  const Listing then = ListingOf(before);
  RecoveryDifferences differences;
  for (const auto& [name, first] : now.arrangement) {
    const auto old = then.components.find(name);
    if (old == then.components.end()) {
      differences.added.emplace_back(name);
    } else if (old->second != now.components.at(name)) {
      differences.changed.emplace_back(name);
    }
  }
  for (const auto& [name, first] : then.arrangement) {
    if (!now.components.contains(name)) differences.removed.emplace_back(name);
  }
  differences.arrangement =
      recovered.property != before.property || now.arrangement != then.arrangement;
  return differences;
}

std::vector<FoundRecovery> FindRecoveries(const fs::path& folder) {
  std::vector<std::pair<fs::file_time_type, fs::path>> files;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error); !error && entry != fs::directory_iterator();
       entry.increment(error)) {
    if (entry->path().extension() != RecoveryJournal::kExtension) continue;
    std::error_code ignored;
    files.emplace_back(entry->last_write_time(ignored), entry->path());
  }
  std::sort(files.rbegin(), files.rend());
  std::vector<FoundRecovery> found;
  for (const auto& [time, path] : files) {
    std::optional<FoundRecovery> recovery = TakeRecovery(path);
    if (recovery) found.push_back(*std::move(recovery));
  }
  return found;
}

}  // namespace mivo

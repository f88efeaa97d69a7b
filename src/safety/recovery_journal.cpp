#include "recovery_journal.h"

#include <chrono>
#include <system_error>

#include "path_text.h"
#include "read_file.h"
#include "state_folder.h"

namespace mivo {
namespace {

namespace fs = std::filesystem;

/// Differs, nearly always, when names, their order, their components or the text differ.
std::uint64_t FingerprintOf(const LibraryView& library) {
  const auto mix = [](std::uint64_t hash, std::u16string_view text) {
    const std::string_view bytes(reinterpret_cast<const char*>(text.data()),
                                 text.size() * sizeof(char16_t));
    const ContentIdentity identity = IdentityOf(bytes);
    return (hash ^ identity.hash ^ identity.size) * 0x9E3779B97F4A7C15u + 1;
  };
  std::uint64_t hash = mix(0, library.doc.property);
  for (const NameEntry* const entry : library.entries) {
    hash = mix(hash, entry->Name()) ^ reinterpret_cast<std::uintptr_t>(entry->Component());
  }
  return hash;
}

}  // namespace

void RecoveryJournal::Begin(const LibraryView& library, const RecoveryStart& file, Origin origin) {
  file_.Remove();
  start_ = file;
  baseIsFile_ = file.path.has_value();
  Number(library, origin);
  names_ = FingerprintOf(library);
}

void RecoveryJournal::BeginUnsaved(const LibraryView& library, const RecoveryStart& file) {
  Begin(library, file, Origin::Loaded);
  baseIsFile_ = false;
  static_cast<void>(Start(library));
}

void RecoveryJournal::Number(const LibraryView& library, Origin origin) {
  numbers_.clear();
  written_.clear();
  nextNumber_ = 0;
  for (const NameEntry* const entry : library.entries) {
    // A component without a name does not get into a file.
    if (origin == Origin::Saved && entry->Name().empty()) continue;
    if (numbers_.emplace(entry->Component(), nextNumber_).second) ++nextNumber_;
  }
}

bool RecoveryJournal::CreateFile() {
  if (folder_.empty() || !CreatePrivateFolder(folder_)) return false;
  constexpr int kMostAttempts = 100;
  auto number =
      static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count());
  for (int i = 0; i < kMostAttempts; ++i, ++number) {
    const fs::path path = folder_ / (std::to_string(number) + kExtension);
    std::error_code error;
    if (fs::exists(path, error) || error) continue;
    if (file_.Acquire(path) == LockedFile::Outcome::Locked) return true;
  }
  return false;
}

std::string RecoveryJournal::Base(const LibraryView& library) {
  if (baseIsFile_) {
    FileResult<std::string> content = ReadFile(PathFromText(*start_.path));
    if (content.Ok() && IdentityOf(content.Value()) == start_.identity) {
      return std::move(content).Value();
    }
  }
  std::string bytes;
  StringByteSink sink(bytes);
  static_cast<void>(library.doc.Write(sink, library.entries));
  Number(library, Origin::Saved);
  return bytes;
}

bool RecoveryJournal::Start(const LibraryView& library) {
  if (file_.IsHeld()) return true;
  if (!CreateFile()) return false;
  size_ = 0;
  std::string bytes;
  AppendFrame(bytes, {FrameKind::Start, 0, WriteStart(start_)});
  AppendFrame(bytes, {FrameKind::Library, 0, Base(library)});
  return Write(bytes);
}

void RecoveryJournal::AppendComponent(std::string& bytes, const SComponent& component,
                                      const SComponent& now) {
  const auto [known, isNew] = numbers_.emplace(&component, nextNumber_);
  if (isNew) ++nextNumber_;
  const std::uint32_t number = known->second;
  const std::string content = WriteOneComponent(now);
  const ContentIdentity identity = IdentityOf(content);
  const auto [last, isFirst] = written_.emplace(number, identity);
  if (!isFirst && last->second == identity) return;
  last->second = identity;
  AppendFrame(bytes, {FrameKind::Component, number, content});
}

void RecoveryJournal::RecordNames(const LibraryView& library) {
  const std::uint64_t names = FingerprintOf(library);
  if (names == names_ || !Start(library)) return;

  // A component that is gone leaves its address to others, but not its number.
  std::unordered_map<const SComponent*, std::uint32_t> listed;
  std::string bytes;
  RecoveryNames record{library.doc.property, {}};
  for (const NameEntry* const entry : library.entries) {
    const SComponent* const component = entry->Component();
    if (!numbers_.contains(component)) AppendComponent(bytes, *component, *component);
    const std::uint32_t number = numbers_.at(component);
    listed.emplace(component, number);
    record.names.push_back({number, entry->Name()});
  }
  numbers_ = std::move(listed);
  AppendFrame(bytes, {FrameKind::Names, 0, WriteNames(record)});
  if (Write(bytes)) names_ = names;
}

void RecoveryJournal::RecordComponent(const LibraryView& library, const SComponent& component,
                                      const SComponent& now) {
  if (file_.IsHeld() && size_ > mostBytes_) {
    file_.Remove();
    baseIsFile_ = false;
  }
  RecordNames(library);
  if (!Start(library)) return;
  std::string bytes;
  AppendComponent(bytes, component, now);
  if (!bytes.empty()) Write(bytes);
}

bool RecoveryJournal::Write(const std::string& bytes) {
  if (file_.Write(bytes)) {
    size_ += bytes.size();
    return true;
  }
  // What follows half a frame could not be read: the next change starts over.
  file_.Remove();
  baseIsFile_ = false;
  return false;
}

}  // namespace mivo

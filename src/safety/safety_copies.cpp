#include "safety_copies.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <system_error>
#include <vector>

#include "locked_file.h"
#include "read_file.h"
#include "state_folder.h"

namespace mivo {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kOriginal = "original-";
constexpr const char* kIncoming = "incoming";
constexpr std::size_t kDigits = 4;  // and more, when they do not suffice

struct Copy {
  std::uint64_t number;
  SafetyCopies::Kind kind;
  fs::path path;
};

/// The copy that a file is; number 0 for any other file.
Copy CopyAt(const fs::path& path) {
  fs::path::string_type name = path.filename().native();
  const fs::path::string_type original = fs::path(kOriginal).native();
  Copy copy{0, SafetyCopies::Kind::Previous, path};
  if (name.starts_with(original)) {
    copy.kind = SafetyCopies::Kind::Original;
    name.erase(0, original.size());
  }
  constexpr std::size_t kMostDigits = 18;
  std::size_t i = 0;
  for (; i < name.size() && i < kMostDigits && name[i] >= '0' && name[i] <= '9'; ++i) {
    copy.number = copy.number * 10 + static_cast<std::uint64_t>(name[i] - '0');
  }
  if (i < kDigits || i == name.size() || name[i] != '-') copy.number = 0;
  return copy;
}

/// All copies in a folder, the oldest first.
std::vector<Copy> CopiesIn(const fs::path& folder) {
  std::vector<Copy> copies;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error); !error && entry != fs::directory_iterator();
       entry.increment(error)) {
    Copy copy = CopyAt(entry->path());
    if (copy.number > 0) copies.push_back(std::move(copy));
  }
  std::sort(copies.begin(), copies.end(),
            [](const Copy& a, const Copy& b) { return a.number < b.number; });
  return copies;
}

fs::path NameOf(const fs::path& file, std::uint64_t number, SafetyCopies::Kind kind) {
  std::string digits = std::to_string(number);
  digits.insert(0, kDigits - std::min(kDigits, digits.size()), '0');
  // Short enough for the front to fit too, and on Windows for the whole path to be of usual length.
  constexpr std::size_t kLongestName = 80;
  const fs::path::string_type name = file.filename().native();
  fs::path result(kind == SafetyCopies::Kind::Original ? kOriginal : std::string_view());
  result += digits + "-";
  result += name.substr(name.size() - std::min(name.size(), kLongestName));
  return result;
}

bool Holds(const fs::path& path, std::string_view content) {
  std::error_code error;
  if (fs::file_size(path, error) != content.size() || error) return false;
  const FileResult<std::string> bytes = ReadFile(path);
  return bytes.Ok() && bytes.Value() == content;
}

}  // namespace

fs::path SafetyCopies::FolderOf(const fs::path& file) const {
  return folder_ / NameForPath(file);
}

bool SafetyCopies::Keep(const fs::path& file, std::string_view content, Kind kind,
                        Durability durability) const {
  const fs::path folder = FolderOf(file);
  if (folder_.empty() || !CreatePrivateFolder(folder)) return false;
  std::vector<Copy> copies = CopiesIn(folder);
  if (!copies.empty() && copies.back().kind == kind && Holds(copies.back().path, content)) {
    return true;
  }

  // A copy gets its name once it is whole; what a killed process left of one goes here.
  LockedFile incoming;
  if (incoming.Acquire(folder / kIncoming) != LockedFile::Outcome::Locked) return false;
  incoming.Remove();
  if (incoming.Acquire(folder / kIncoming) != LockedFile::Outcome::Locked) return false;
  const bool isWhole =
      incoming.Write(content) && (durability == Durability::LeftToTheSystem || incoming.Flush());
  const std::uint64_t number = copies.empty() ? 1 : copies.back().number + 1;
  Copy kept{number, kind, folder / NameOf(file, number, kind)};
  std::error_code error;
  if (isWhole) fs::rename(incoming.Path(), kept.path, error);
  if (!isWhole || error) {
    incoming.Remove();
    return false;
  }

  copies.push_back(std::move(kept));
  std::erase_if(copies, [kind](const Copy& copy) { return copy.kind != kind; });
  for (std::size_t i = 0; i + kKept < copies.size(); ++i) fs::remove(copies[i].path, error);
  return true;
}

}  // namespace mivo

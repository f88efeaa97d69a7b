#include "settings_file.h"

#include <optional>
#include <utility>

#include "file_writer.h"
#include "read_file.h"

namespace mivo {
namespace {

/// A settings file is a page of text; something huge by that name is something else.
constexpr std::size_t kMaxBytes = std::size_t{1} << 20;

std::optional<Profile> ReadProfile(const std::filesystem::path& path) {
  const FileResult<std::string> content = ReadFile(path);
  if (!content.Ok() || content.Value().size() > kMaxBytes) return std::nullopt;
  return Profile(content.Value());
}

}  // namespace

SettingsFile::SettingsFile(std::filesystem::path path)
    : path_(std::move(path)), profile_(ReadProfile(path_).value_or(Profile())) {}

std::int32_t SettingsFile::GetInt(std::u16string_view section, std::u16string_view key,
                                  std::int32_t fallback) const {
  return profile_.GetInt(section, key, fallback);
}

std::u16string SettingsFile::GetString(std::u16string_view section, std::u16string_view key,
                                       std::u16string_view fallback) const {
  return profile_.GetString(section, key, fallback);
}

void SettingsFile::SetInt(std::u16string_view section, std::u16string_view key,
                          std::int32_t value) {
  if (!profile_.SetInt(section, key, value)) return;
  std::optional<Profile> current = ReadProfile(path_);
  if (!current || !current->SetInt(section, key, value)) return;
  FileWriter writer(path_, FileWriter::Durability::LeftToTheSystem);
  if (writer.Write(current->Bytes())) static_cast<void>(writer.Commit());
}

}  // namespace mivo

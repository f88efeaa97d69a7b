#include "state_folder.h"

#include <algorithm>
#include <cstdlib>
#include <string>
#include <string_view>
#include <system_error>

#include "canonical_path.h"
#include "content_identity.h"
#include "path_text.h"

namespace mivo {
namespace {

namespace fs = std::filesystem;

constexpr const char* kFolderName = "mivo";

#ifdef _WIN32

fs::path FolderFromEnvironment(const wchar_t* name) {
  const wchar_t* const value = _wgetenv(name);
  const fs::path folder = value != nullptr ? fs::path(value) : fs::path();
  // Not is_absolute, which knows no server.
  return folder.has_root_directory() ? folder : fs::path();
}

fs::path StateHome() {
  return FolderFromEnvironment(L"LOCALAPPDATA");
}

#else

fs::path FolderFromEnvironment(const char* name) {
  const char* const value = std::getenv(name);
  const fs::path folder = value != nullptr ? fs::path(value) : fs::path();
  return folder.is_absolute() ? folder : fs::path();
}

fs::path StateHome() {
  const fs::path state = FolderFromEnvironment("XDG_STATE_HOME");
  if (!state.empty()) return state;
  const fs::path home = FolderFromEnvironment("HOME");
  return home.empty() ? home : home / ".local" / "state";
}

#endif

std::u16string HexText(std::uint64_t number) {
  constexpr std::u16string_view kDigits = u"0123456789abcdef";
  std::u16string text(16, u'0');
  for (auto digit = text.rbegin(); digit != text.rend(); ++digit) {
    *digit = kDigits[number % 16];
    number /= 16;
  }
  return text;
}

}  // namespace

fs::path FindStateFolder() {
  const fs::path home = StateHome();
  return home.empty() ? home : home / kFolderName;
}

bool CreatePrivateFolder(const fs::path& folder) {
  std::error_code error;
  if (folder.empty()) return false;
  if (fs::is_directory(folder, error)) return true;
  if (folder.has_relative_path() && !CreatePrivateFolder(folder.parent_path())) return false;
  if (fs::create_directory(folder, error)) {
    fs::permissions(folder, fs::perms::owner_all, error);
  }
  return fs::is_directory(folder, error);
}

fs::path NameForPath(const fs::path& path) {
  // Three bytes each at the most, which leaves room in a name of 255.
  constexpr std::size_t kReadable = 70;
  const fs::path whole = CanonicalPath(path);
  std::u16string text = TextFromPath(whole);
  text.erase(0, text.size() - std::min(text.size(), kReadable));
  for (char16_t& character : text) {
    // What separates folders, and what only a path of Windows for special uses contains.
    if (std::u16string_view(u"/\\:?").find(character) != std::u16string_view::npos) {
      character = u'%';
    }
  }
  const fs::path::string_type& native = whole.native();
  const std::string_view bytes(reinterpret_cast<const char*>(native.data()),
                               native.size() * sizeof(native[0]));
  return PathFromText(text + u'-' + HexText(IdentityOf(bytes).hash));
}

}  // namespace mivo

#include "temp_folder.h"

#include <stdlib.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace mivo {

TempFolder::TempFolder() {
  std::string name = (std::filesystem::temp_directory_path() / "folder.XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("cannot create " + name);
  path_ = name;
}

TempFolder::~TempFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

std::filesystem::path TempFolder::Put(std::string_view name, std::string_view bytes) const {
  const std::filesystem::path path = path_ / name;
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  if (!file.flush()) throw std::runtime_error("cannot write " + path.string());
  return path;
}

std::vector<std::string> TempFolder::Names() const {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(path_)) {
    names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::string BytesOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

}  // namespace mivo

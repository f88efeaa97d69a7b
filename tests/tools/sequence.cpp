#include "sequence.h"

#include <algorithm>
#include <fstream>
#include <ostream>
#include <stdexcept>

namespace mivo {
namespace {

/// Without blanks around it and without a comment behind " # ".
std::string Trimmed(std::string line) {
  if (line.starts_with('#')) return {};
  line.erase(std::min(line.find(" # "), line.size()));
  const std::size_t first = line.find_first_not_of(' ');
  if (first == line.npos) return {};
  return line.substr(first, line.find_last_not_of(' ') - first + 1);
}

void LoadFile(const std::filesystem::path& file, std::vector<Sequence>& sequences) {
  constexpr std::string_view kHead = "case ";
  std::ifstream in(file);
  const std::size_t before = sequences.size();
  std::string raw;
  for (int line = 1; std::getline(in, raw); ++line) {
    const std::string text = Trimmed(raw);
    if (text.empty()) continue;
    if (raw.starts_with(kHead)) {
      sequences.push_back({file, line, text.substr(kHead.size()), {}});
    } else if (sequences.size() == before) {
      throw std::runtime_error(file.string() + ": a step before the first case");
    } else {
      sequences.back().steps.push_back({line, text});
    }
  }
}

}  // namespace

void PrintTo(const Sequence& sequence, std::ostream* out) {
  *out << sequence.file.filename().string() << ":" << sequence.line << " " << sequence.name;
}

std::vector<Sequence> LoadSequences(const std::filesystem::path& folder) {
  std::vector<std::filesystem::path> files;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    if (entry.path().extension() == ".seq") files.push_back(entry.path());
  }
  std::sort(files.begin(), files.end());
  std::vector<Sequence> sequences;
  for (const std::filesystem::path& file : files) LoadFile(file, sequences);
  return sequences;
}

}  // namespace mivo

#include <elf.h>
#include <link.h>

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <system_error>
#include <vector>

#include "elf_file.h"

namespace mivo {
namespace {

using Header = ElfW(Ehdr);
using Segment = ElfW(Phdr);

constexpr unsigned char kClass = sizeof(void*) == 8 ? ELFCLASS64 : ELFCLASS32;

/// Whether `length` bytes from `offset` on lie within a file of `size` bytes.
bool Fits(std::uint64_t offset, std::uint64_t length, std::uint64_t size) {
  return offset <= size && length <= size - offset;
}

bool IsHeader(const Header& header) {
  return std::equal(header.e_ident, &header.e_ident[SELFMAG], ELFMAG) &&
         header.e_ident[EI_CLASS] == kClass && header.e_phentsize == sizeof(Segment);
}

}  // namespace

bool IsWholeElfFile(const std::filesystem::path& path) {
  std::error_code error;
  const std::uint64_t size = std::filesystem::file_size(path, error);
  std::ifstream file(path, std::ios::binary);
  Header header{};
  if (error || !file.read(reinterpret_cast<char*>(&header), sizeof header) || !IsHeader(header) ||
      !Fits(header.e_phoff, std::uint64_t{header.e_phnum} * sizeof(Segment), size) ||
      !Fits(header.e_shoff, std::uint64_t{header.e_shnum} * header.e_shentsize, size)) {
    return false;
  }
  std::vector<Segment> segments(header.e_phnum);
  file.seekg(static_cast<std::streamoff>(header.e_phoff));
  if (!file.read(reinterpret_cast<char*>(segments.data()),
                 static_cast<std::streamsize>(segments.size() * sizeof(Segment)))) {
    return false;
  }
  return std::all_of(segments.begin(), segments.end(), [size](const Segment& segment) {
    return Fits(segment.p_offset, segment.p_filesz, size);
  });
}

}  // namespace mivo

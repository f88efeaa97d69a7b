#include "file_calls.h"

namespace mivo {

std::error_code FileCalls::OpenToWrite(const std::filesystem::path& path, NativeFile& file) {
  return NativeFile::OpenToWrite(path, file);
}

std::error_code FileCalls::Create(const std::filesystem::path& path, NativeFile::Access access,
                                  NativeFile& file) {
  const std::error_code error = NativeFile::Create(path, access, file);
  if (!error) static_cast<void>(file.TryLock());
  return error;
}

std::error_code FileCalls::TakeAccess(NativeFile& file, const NativeFile& from) {
  return file.TakeAccessFrom(from);
}

std::error_code FileCalls::Write(NativeFile& file, std::string_view bytes) {
  return file.Write(bytes);
}

std::error_code FileCalls::SetSize(NativeFile& file, std::uint64_t size) {
  return file.SetSize(size);
}

std::error_code FileCalls::Flush(NativeFile& file) {
  return file.Flush();
}

std::error_code FileCalls::Close(NativeFile& file) {
  return file.Close();
}

std::error_code FileCalls::MoveOver(const std::filesystem::path& source,
                                    const std::filesystem::path& target) {
  return mivo::MoveOver(source, target);
}

void FileCalls::FlushFolderOf(const std::filesystem::path& path) {
  mivo::FlushFolderOf(path);
}

void FileCalls::Remove(const std::filesystem::path& path) {
  RemoveFile(path);
}

FileCalls& FileCalls::OfTheSystem() {
  static FileCalls calls;
  return calls;
}

}  // namespace mivo

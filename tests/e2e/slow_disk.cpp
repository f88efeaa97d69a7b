// Loaded before the C library, this makes a slow disk: as long as the file named by MIVO_SLOW_DISK
// exists, little comes at once where much is asked for, and nothing any more once it says so.

#include <dlfcn.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <thread>

extern "C" ssize_t read(int file, void* bytes, size_t count) {
  using Read = ssize_t (*)(int, void*, size_t);
  static const auto readFast = reinterpret_cast<Read>(dlsym(RTLD_NEXT, "read"));
  static const char* const switchFile = std::getenv("MIVO_SLOW_DISK");
  constexpr size_t kMuch = size_t{1} << 15;
  constexpr size_t kLittle = 256;
  struct stat state;
  if (count < kMuch || stat(switchFile, &state) != 0) return readFast(file, bytes, count);
  if (state.st_size > 0) {
    errno = EIO;
    return -1;
  }
  std::this_thread::sleep_for(std::chrono::milliseconds(30));
  return readFast(file, bytes, kLittle);
}

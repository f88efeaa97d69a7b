#ifndef MIVO_BENCH_FILE_BYTE_SINK_H
#define MIVO_BENCH_FILE_BYTE_SINK_H

#include <fstream>
#include <string>
#include <string_view>

#include "byte_stream.h"

namespace mivo::bench {

/// A file, without any of the care that the program takes.
class FileByteSink final : public ByteSink {
 public:
  explicit FileByteSink(const std::string& path) : stream_(path, std::ios::binary) {}
  [[nodiscard]] bool Write(std::string_view bytes) override {
    return static_cast<bool>(
        stream_.write(bytes.data(), static_cast<std::streamsize>(bytes.size())));
  }

 private:
  std::ofstream stream_;
};

}  // namespace mivo::bench

#endif

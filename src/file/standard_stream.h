#ifndef MIVO_FILE_STANDARD_STREAM_H
#define MIVO_FILE_STANDARD_STREAM_H

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>

#include "byte_stream.h"

namespace mivo {

class NativeFile;

/// One of the process's own output streams, byte by byte on every platform. It has a buffer, which
/// is written when it is full and with Flush.
class StandardStream final : public ByteSink {
 public:
  [[nodiscard]] static StandardStream Output();
  [[nodiscard]] static StandardStream Error();
  StandardStream(const StandardStream&) = delete;
  StandardStream& operator=(const StandardStream&) = delete;
  /// Does not flush: a failure would go unnoticed.
  ~StandardStream() override;

  /// False from the first failure on.
  [[nodiscard]] bool Write(std::string_view bytes) override;

  /// False when this or an earlier write failed.
  [[nodiscard]] bool Flush();

  /// The system's words for the first failure; empty without one.
  [[nodiscard]] std::string ErrorText() const;

 private:
  static constexpr std::size_t kBufferBytes = std::size_t{1} << 16;

  explicit StandardStream(NativeFile file);

  std::unique_ptr<NativeFile> file_;
  std::string buffer_;
  std::error_code error_;
};

}  // namespace mivo

#endif

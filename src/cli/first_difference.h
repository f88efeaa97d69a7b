#ifndef MIVO_CLI_FIRST_DIFFERENCE_H
#define MIVO_CLI_FIRST_DIFFERENCE_H

#include <cstdint>
#include <optional>
#include <string_view>

#include "byte_stream.h"

namespace mivo {

/// Compares what is written with what is expected, without keeping it.
class FirstDifference final : public ByteSink {
 public:
  /// `expected` stays owned by the caller.
  explicit FirstDifference(std::string_view expected) : expected_(expected) {}

  [[nodiscard]] bool Write(std::string_view bytes) override;

  /// Once all is written: the line of the expected bytes, counted from 1, that holds the first
  /// difference; nothing when there is none.
  [[nodiscard]] std::optional<std::int64_t> Line() const;

 private:
  std::string_view expected_;
  std::size_t same_ = 0;  // bytes that agree, from the start on
  bool differs_ = false;
};

}  // namespace mivo

#endif

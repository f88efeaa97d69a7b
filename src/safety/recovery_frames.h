#ifndef MIVO_SAFETY_RECOVERY_FRAMES_H
#define MIVO_SAFETY_RECOVERY_FRAMES_H

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// A recovery file is a row of frames: a line that tells what follows and proves it whole, then the
// content. So a file that is cut off or damaged anywhere is good up to there.

namespace mivo {

enum class FrameKind : char {
  Start = 'S',      ///< the library's file; first of all
  Library = 'L',    ///< the library as it was at the start; second
  Component = 'C',  ///< what has become of one component
  Names = 'N',      ///< what has become of the names, their order, and the library's text
};

struct RecoveryFrame {
  FrameKind kind;
  std::uint32_t component = 0;  ///< number of the component in a frame of that kind, else 0
  std::string_view content;
};

/// Appends to `bytes`.
void AppendFrame(std::string& bytes, const RecoveryFrame& frame);

/// Takes the frame at the front off `bytes` and returns it, a view into them. Nothing when no whole
/// frame stands there.
[[nodiscard]] std::optional<RecoveryFrame> TakeFrame(std::string_view& bytes);

}  // namespace mivo

#endif

#include "recovery_frames.h"

#include <charconv>

#include "content_identity.h"

namespace mivo {
namespace {

constexpr std::string_view kMark = "MIVO_RECOVERY_1 ";
constexpr std::string_view kKinds = "SLCN";

/// The part of the front line that is proved along with the content.
std::string WhatItIs(const RecoveryFrame& frame) {
  return static_cast<char>(frame.kind) + std::to_string(frame.component);
}

std::uint64_t ProofOf(const RecoveryFrame& frame) {
  return IdentityOf(frame.content).hash ^ (IdentityOf(WhatItIs(frame)).hash * 31);
}

template <typename Number>
bool TakeNumber(std::string_view& text, char end, Number& number) {
  const auto [behind, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || behind == text.data() + text.size() || *behind != end) return false;
  text.remove_prefix(static_cast<std::size_t>(behind - text.data()) + 1);
  return true;
}

}  // namespace

void AppendFrame(std::string& bytes, const RecoveryFrame& frame) {
  bytes += kMark;
  bytes += WhatItIs(frame) + " " + std::to_string(frame.content.size()) + " " +
           std::to_string(ProofOf(frame)) + "\n";
  bytes += frame.content;
  bytes += '\n';
}

std::optional<RecoveryFrame> TakeFrame(std::string_view& bytes) {
  std::string_view rest = bytes;
  if (!rest.starts_with(kMark)) return std::nullopt;
  rest.remove_prefix(kMark.size());
  if (rest.empty() || kKinds.find(rest.front()) == std::string_view::npos) return std::nullopt;
  RecoveryFrame frame{static_cast<FrameKind>(rest.front()), 0, {}};
  rest.remove_prefix(1);
  std::size_t size = 0;
  std::uint64_t proof = 0;
  if (!TakeNumber(rest, ' ', frame.component) || !TakeNumber(rest, ' ', size) ||
      !TakeNumber(rest, '\n', proof)) {
    return std::nullopt;
  }
  if (size >= rest.size() || rest[size] != '\n') return std::nullopt;
  frame.content = rest.substr(0, size);
  if (ProofOf(frame) != proof) return std::nullopt;
  bytes = rest.substr(size + 1);
  return frame;
}

}  // namespace mivo

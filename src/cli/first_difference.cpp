#include "first_difference.h"

#include <algorithm>

namespace mivo {

bool FirstDifference::Write(std::string_view bytes) {
  if (differs_) return true;
  const std::string_view rest = expected_.substr(same_);
  const auto end = std::mismatch(bytes.begin(), bytes.end(), rest.begin(), rest.end()).first;
  same_ += static_cast<std::size_t>(end - bytes.begin());
  differs_ = end != bytes.end();
  return true;
}

std::optional<std::int64_t> FirstDifference::Line() const {
  if (!differs_ && same_ == expected_.size()) return std::nullopt;
  const std::string_view before = expected_.substr(0, same_);
  return 1 + std::count(before.begin(), before.end(), '\n');
}

}  // namespace mivo

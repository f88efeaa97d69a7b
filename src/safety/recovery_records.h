#ifndef MIVO_SAFETY_RECOVERY_RECORDS_H
#define MIVO_SAFETY_RECOVERY_RECORDS_H

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "component.h"
#include "content_identity.h"

// The contents of the frames of a recovery file, in the record format of libraries.

namespace mivo {

/// The file of the library and what it held; without a path for a library that has no file.
struct RecoveryStart {
  std::optional<std::u16string> path;
  ContentIdentity identity;
};

[[nodiscard]] std::string WriteStart(const RecoveryStart& start);
/// Nothing when the record is malformed.
[[nodiscard]] std::optional<RecoveryStart> ReadStart(std::string_view bytes);

struct ListedName {
  std::uint32_t component;  ///< its number
  std::u16string name;
};

/// All names in list order, and the library's text.
struct RecoveryNames {
  std::u16string property;
  std::vector<ListedName> names;
};

[[nodiscard]] std::string WriteNames(const RecoveryNames& names);
[[nodiscard]] std::optional<RecoveryNames> ReadNames(std::string_view bytes);

/// A library of this one component. Its name is no part of it: the names have frames of their own.
[[nodiscard]] std::string WriteOneComponent(const SComponent& component);
/// Null when there is no component in it.
[[nodiscard]] std::unique_ptr<SComponent> ReadOneComponent(std::string_view bytes);

}  // namespace mivo

#endif

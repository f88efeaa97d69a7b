// Reads any bytes as a settings file. What was not changed is written back byte for byte, and what
// was changed reads as it was set.
//
// The first byte chooses the key that is set, the next four are its value, lowest byte first.

#include <array>
#include <cstring>
#include <string>

#include "fuzz_target.h"
#include "profile.h"

namespace mivo {
namespace {

struct Key {
  std::u16string_view section;
  std::u16string_view key;
};

constexpr std::array kKeys = {Key{u"WindowPosition", u"Width"}, Key{u"LabelFont", u"FaceName"},
                              Key{u"Setting", u"A"}, Key{u"", u""}};

constexpr std::size_t kHeadSize = 5;
constexpr std::int32_t kFallback = 123456789;

}  // namespace
}  // namespace mivo

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace mivo;
  if (size < kHeadSize) return 0;
  const Key changed = kKeys[data[0] % kKeys.size()];
  std::int32_t value = 0;
  std::memcpy(&value, data + 1, sizeof value);
  const std::string_view bytes = InputBytes(data + kHeadSize, size - kHeadSize);

  const Profile before{bytes};
  Require(before.Bytes() == bytes, "a file that is only read stays as it is");
  Profile profile = before;
  const bool differs = profile.SetInt(changed.section, changed.key, value);
  const Profile after{profile.Bytes()};
  Require(differs || profile.Bytes() == bytes, "a value that is there changes nothing");
  Require(after.GetInt(changed.section, changed.key, kFallback) == value,
          "a value reads as it was set");
  Require(!Profile(after).SetInt(changed.section, changed.key, value),
          "a value that was set is there");
  for (const Key& key : kKeys) {
    if (&key == &kKeys[data[0] % kKeys.size()]) continue;
    Require(profile.GetString(key.section, key.key, u"?") ==
                before.GetString(key.section, key.key, u"?"),
            "another value stays");
    Require(profile.GetInt(key.section, key.key, kFallback) ==
                before.GetInt(key.section, key.key, kFallback),
            "another number stays");
  }
  return 0;
}

#include "font_configuration.h"

#ifdef MIVO_HAS_FONTCONFIG
#include <fontconfig/fontconfig.h>

#include <system_error>
#endif

namespace mivo {

#ifdef MIVO_HAS_FONTCONFIG

FontConfiguration::FontConfiguration() {
  try {
    reader_ = std::thread([] { FcInit(); });
  } catch (const std::system_error&) {
    // Without a thread to spare it is read when it is needed.
  }
}

void FontConfiguration::Await() {
  if (reader_.joinable()) reader_.join();
}

#else

FontConfiguration::FontConfiguration() = default;
void FontConfiguration::Await() {}

#endif

}  // namespace mivo

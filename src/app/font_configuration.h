#ifndef MIVO_APP_FONT_CONFIGURATION_H
#define MIVO_APP_FONT_CONFIGURATION_H

#include <thread>

namespace mivo {

/// Reads the system's font configuration, where it has one, beside what else happens until Await:
/// on Linux that takes as long as connecting to the display, which leaves the processor idle.
class FontConfiguration {
 public:
  FontConfiguration();
  ~FontConfiguration() { Await(); }
  FontConfiguration(const FontConfiguration&) = delete;
  FontConfiguration& operator=(const FontConfiguration&) = delete;

  /// Before the first text is measured; from then on the program has one thread.
  void Await();

 private:
  std::thread reader_;
};

}  // namespace mivo

#endif

#ifndef MIVO_TESTS_TOOLS_SEQUENCE_PLAYER_H
#define MIVO_TESTS_TOOLS_SEQUENCE_PLAYER_H

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "edit_rig.h"

namespace mivo {

/// Carries out the steps of a sequence, see sequences/README.md.
class SequencePlayer {
 public:
  /// What is wrong, for a check that fails; nothing otherwise. Throws std::invalid_argument for a
  /// step that makes no sense.
  [[nodiscard]] std::optional<std::string> Do(const std::string& step);

  [[nodiscard]] EditRig& Rig() noexcept { return rig_; }

 private:
  using Words = std::vector<std::string>;

  bool Prepare(const std::string& verb, std::string_view rest, const Words& words);
  void Open();
  bool Act(const std::string& verb, const Words& words);
  bool Mouse(const std::string& verb, const Words& words);
  void Answer(const Words& words);
  [[nodiscard]] std::optional<std::string> Actual(const std::string& verb, const Words& words);
  [[nodiscard]] std::string Asked() const;
  [[nodiscard]] std::string Front();
  [[nodiscard]] std::string UndoneToTheStart();
  [[nodiscard]] PixelPoint Pixel(std::string_view word) const;

  EditRig rig_;
  std::string loaded_;
  bool opened_ = false;
  std::string lastResult_;
};

}  // namespace mivo

#endif

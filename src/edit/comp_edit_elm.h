#ifndef MIVO_EDIT_COMP_EDIT_ELM_H
#define MIVO_EDIT_COMP_EDIT_ELM_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <utility>
#include <variant>

#include "comp_pin.h"
#include "ptn_obj.h"

namespace mivo {

/// A pin or a drawing object of the component under edit, and which operations made and removed it.
///
/// An element owns its pin or object as a smart pointer does: also a constant element hands it out
/// for changes. The pin or object keeps its address until the element is gone.
class SCompEditElm {
 public:
  /// Values are those of the variant below.
  enum class Kind { Pin = 0, Object = 1 };

  /// Neither `pin` nor `object` is null.
  SCompEditElm(std::int32_t createdBy, std::unique_ptr<SCompPin> pin)
      : createdBy_(createdBy), owned_(std::move(pin)) {}
  SCompEditElm(std::int32_t createdBy, std::unique_ptr<SPtnObj> object)
      : createdBy_(createdBy), owned_(std::move(object)) {}

  [[nodiscard]] Kind GetKind() const noexcept { return static_cast<Kind>(owned_.index()); }
  /// Null for a drawing object.
  [[nodiscard]] SCompPin* Pin() const noexcept {
    const auto* pin = std::get_if<std::unique_ptr<SCompPin>>(&owned_);
    return pin != nullptr ? pin->get() : nullptr;
  }
  /// Null for a pin.
  [[nodiscard]] SPtnObj* Object() const noexcept {
    const auto* object = std::get_if<std::unique_ptr<SPtnObj>>(&owned_);
    return object != nullptr ? object->get() : nullptr;
  }

  /// Number of the operation that made the element; 0 for what was loaded.
  [[nodiscard]] std::int32_t CreatedBy() const noexcept { return createdBy_; }
  /// Number of the operation that removed the element; negative while it is alive.
  [[nodiscard]] std::int32_t DeletedBy() const noexcept { return deletedBy_; }
  [[nodiscard]] bool IsAlive() const noexcept { return deletedBy_ < 0; }
  /// For an element of the selection: position in the element list of the element that it is a copy
  /// of; nothing for a new one.
  [[nodiscard]] std::optional<std::size_t> Source() const noexcept { return source_; }

  void MarkDeleted(std::int32_t operation) noexcept { deletedBy_ = operation; }
  void Revive() noexcept { deletedBy_ = kAlive; }

  /// A copy for the selection, made by `operation`, of the element that stands at `position`.
  [[nodiscard]] SCompEditElm PickedCopy(std::int32_t operation, std::size_t position) const {
    SCompEditElm copy = Pin() != nullptr
                            ? SCompEditElm(operation, std::make_unique<SCompPin>(*Pin()))
                            : SCompEditElm(operation, Object()->Clone());
    copy.source_ = position;
    return copy;
  }
  void ForgetSource() noexcept { source_.reset(); }

 private:
  static constexpr std::int32_t kAlive = -1;

  std::int32_t createdBy_;
  std::int32_t deletedBy_ = kAlive;
  std::optional<std::size_t> source_;
  std::variant<std::unique_ptr<SCompPin>, std::unique_ptr<SPtnObj>> owned_;
};

}  // namespace mivo

#endif

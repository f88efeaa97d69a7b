#ifndef MIVO_TESTS_EDIT_EDIT_GENERATORS_H
#define MIVO_TESTS_EDIT_EDIT_GENERATORS_H

#include <rapidcheck.h>

#include <array>
#include <iosfwd>
#include <memory>
#include <vector>

#include "edit_samples.h"

namespace mivo {

/// What a drawing object is made of, so that a failing case can be shown and made smaller.
struct ObjectRecipe {
  PtnObjType type = PtnObjType::Line;
  std::array<SPoint, 3> points;
};

/// The object; it is already in the form into which hit tests and bounding rectangles bring it, and
/// may be degenerate.
[[nodiscard]] std::unique_ptr<SPtnObj> MakeObject(const ObjectRecipe& recipe);

/// What a component is made of.
struct ComponentRecipe {
  std::vector<SPinLocation> pins;
  std::vector<ObjectRecipe> objects;
  bool drawn = true;
};

/// A component of kGeneratedSize cells.
inline constexpr SPoint kGeneratedSize{6, 4};
[[nodiscard]] SComponent MakeComponent(const ComponentRecipe& recipe);

/// One thing that a user does to the document. What the arguments mean depends on the action;
/// numbers of elements and nodes are taken modulo their count.
struct EditStep {
  enum class Action {
    PickPinAt,
    PickPinByLocation,
    PickElement,
    Band,
    Move,
    Mirror,
    Rotate,
    AddPin,
    AddObject,
    Delete,
    Release,
    EditNode,
    AddNode,
    MovePin,
    RenamePin,
    Copy,
    Paste,
    WriteBack,
    Undo,
  };
  static constexpr int kActions = 19;

  Action action = Action::Release;
  SPinLocation location;
  ObjectRecipe object;
  std::uint32_t index = 0;
};

std::ostream& operator<<(std::ostream& out, const ComponentRecipe& recipe);
std::ostream& operator<<(std::ostream& out, const EditStep& step);

}  // namespace mivo

namespace rc {

template <>
struct Arbitrary<mivo::SPoint> {
  static Gen<mivo::SPoint> arbitrary();
};
template <>
struct Arbitrary<mivo::SPinLocation> {
  static Gen<mivo::SPinLocation> arbitrary();
};
template <>
struct Arbitrary<mivo::ObjectRecipe> {
  static Gen<mivo::ObjectRecipe> arbitrary();
};
template <>
struct Arbitrary<mivo::ComponentRecipe> {
  static Gen<mivo::ComponentRecipe> arbitrary();
};
template <>
struct Arbitrary<mivo::EditStep> {
  static Gen<mivo::EditStep> arbitrary();
};

}  // namespace rc

#endif

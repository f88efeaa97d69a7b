#ifndef MIVO_EDIT_COMP_EDIT_DOC_H
#define MIVO_EDIT_COMP_EDIT_DOC_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "comp_edit_elm.h"
#include "component.h"
#include "edit_history.h"
#include "geometry.h"
#include "pin_geometry.h"
#include "text_clipboard.h"

namespace mivo {

/// The working copy of the component that is being edited: every pin and drawing object as an
/// element with a history, and a floating selection.
///
/// An element is edited by picking it: the element counts as deleted, and its copy in the selection
/// is what the user sees and changes. Releasing the selection makes a changed copy an element of
/// its own and lets go of an unchanged one without a trace. So a user's operation is: raise the
/// operation number, pick or add, change, release; and undo is a matter of numbers alone.
///
/// Points and rectangles are component units, sizes grid cells.
class SCompEditDoc {
 public:
  SCompEditDoc() = default;
  SCompEditDoc(const SCompEditDoc&) = delete;
  SCompEditDoc& operator=(const SCompEditDoc&) = delete;

  /// Forgets elements, selection, history and the last pin name and number.
  void Clear();
  /// Clears and takes copies of the component's pins and drawing objects; null only clears.
  void Load(const SComponent* component);

  /// What becomes of drawing objects farther than 15 units outside the body.
  enum class FarObjects { Drop, Keep };
  /// Releases the selection and replaces body size, block count, pins and drawing objects of
  /// `component`. Dropping objects is an operation that can be undone. The change mark stays.
  void WriteBack(SComponent& component, FarObjects farObjects);
  /// Puts into `component` what WriteBack would, far objects kept, and leaves the document alone.
  void CopyTo(SComponent& component) const;
  /// Grows with everything that may change what WriteBack gives; never starts over.
  [[nodiscard]] std::uint64_t Revision() const noexcept { return revision_; }

  // --- Operations and undo ---------------------------------------------------------------------

  /// Starts an operation: what is picked or added from now on bears a new number.
  void RaiseOperation() noexcept { history_.RaiseOperation(); }
  /// Takes the number back when the operation turned out to do nothing.
  void LowerOperation() noexcept { history_.LowerOperation(); }
  [[nodiscard]] std::int32_t Operation() const noexcept { return history_.Operation(); }

  [[nodiscard]] bool CanUndo() const noexcept { return Operation() > 0; }
  /// Releases the selection and reverses the last operation that left a trace. False, with nothing
  /// changed, when there is none.
  bool Undo();

  /// Whether the component was changed since it was loaded, or since its frame took the mark back
  /// after writing it back.
  [[nodiscard]] bool IsDirty() const noexcept { return dirty_; }
  void SetDirty(bool dirty) noexcept {
    dirty_ = dirty;
    if (dirty) ++revision_;
  }

  // --- Elements --------------------------------------------------------------------------------

  /// All elements, alive and deleted, in drawing order.
  [[nodiscard]] std::span<const SCompEditElm> Elements() const noexcept {
    return history_.Elements();
  }
  [[nodiscard]] SPoint BodySize() const noexcept { return bodySize_; }
  /// Number of blocks; new pins get that many number slots.
  [[nodiscard]] std::int32_t Blocks() const noexcept { return blocks_; }

  /// See pin_geometry.h.
  [[nodiscard]] SRect PinRect(SPinLocation location) const noexcept {
    return mivo::PinRect(location, bodySize_);
  }
  [[nodiscard]] SPoint PinPoint(SPinLocation location) const noexcept {
    return mivo::PinPoint(location, bodySize_);
  }
  [[nodiscard]] SPinLocation PinLocationFromPoint(SPoint point) const noexcept {
    return mivo::PinLocationFromPoint(point, bodySize_);
  }
  /// The first alive pin there, not counting the selection; null when the place is free.
  [[nodiscard]] const SCompPin* FindPinAtLocation(SPinLocation location) const noexcept;

  // --- Selection -------------------------------------------------------------------------------

  [[nodiscard]] std::span<const SCompEditElm> Selection() const noexcept { return selection_; }
  /// The selected element when there is exactly one, else null. Whoever changes its pin or object
  /// reports that with SetSelectionChanged.
  [[nodiscard]] const SCompEditElm* SingleSelection() const noexcept {
    return selection_.size() == 1 ? &selection_.front() : nullptr;
  }
  [[nodiscard]] bool SelectionHasPin() const noexcept;
  [[nodiscard]] bool SelectionHasObject() const noexcept;
  /// Whether `point` lies in the selection rectangle; false without a selection.
  [[nodiscard]] bool SelectionContains(SPoint point) const noexcept;

  /// One unit larger on every side than the union of the selected elements. Meaningless without a
  /// selection.
  [[nodiscard]] const SRect& SelectionRect() const noexcept { return selectionRect_; }
  /// Every operation of the document does this. Call it when the extent of a selected object
  /// changed otherwise: by drawing a text for the first time. Nothing without a selection.
  void UpdateSelectionRect();

  /// Whether the selection holds something that becomes history when it is released.
  [[nodiscard]] bool SelectionChanged() const noexcept { return selectionChanged_; }
  /// Says that a selected pin or object was changed from outside, or changed back to what it was.
  /// Updates the selection rectangle.
  void SetSelectionChanged(bool changed);

  /// Adds a copy to the selection as a change; false for null.
  bool AddPin(const SCompPin* pin);
  bool AddObject(const SPtnObj* object);
  /// Adds all of `objects`, moved by (dx, dy), to the selection: one operation, also when there are
  /// none.
  void PasteObjects(std::vector<std::unique_ptr<SPtnObj>> objects, std::int32_t dx,
                    std::int32_t dy);

  /// These release the selection and pick the first alive pin that `point` hits or that sits at
  /// `location`. False when there is none.
  bool PickPinAt(SPoint point);
  bool PickPinByLocation(SPinLocation location);
  /// Releases the selection and picks the element at `position` of Elements(). False when there is
  /// none or it is deleted.
  bool PickElement(std::size_t position);
  /// Adds to the selection all alive drawing objects that count as inside `rect`, which makes the
  /// whole selection unchanged; returns how many.
  std::size_t PickObjectsInRect(const SRect& rect);

  /// A changed selection becomes permanent, objects that are not valid excepted; an unchanged one
  /// goes back where it came from. False when there is no selection.
  bool ReleaseSelection();
  /// Deletes what is selected; what was new vanishes. False when there is no selection.
  bool DeleteSelection();

  /// These change the selected drawing objects and leave pins alone; false when there is no object.
  /// Moving by (0, 0) is no change either.
  bool MoveSelection(std::int32_t dx, std::int32_t dy);
  /// About the vertical axis, or the point, in the middle of the selection rectangle.
  bool MirrorSelection();
  bool RotateSelection();

  /// Puts the selection on the clipboard; false without a selection or without a clipboard.
  bool CopyToClipboard(TextClipboard& clipboard) const;

  /// Last entered or counted up; what the next name or number counts on from.
  std::u16string lastPinName;
  std::u16string lastPinNumber;

 private:
  void Pick(std::size_t position);
  template <typename Matches>
  bool PickFirstPin(Matches matches);
  template <typename Change>
  bool ChangeSelectedObjects(Change change);
  void DropFarObjects();

  EditHistory history_;
  std::vector<SCompEditElm> selection_;
  SRect selectionRect_;
  SPoint bodySize_{1, 1};
  std::int32_t blocks_ = 1;
  bool dirty_ = false;
  bool selectionChanged_ = false;
  std::uint64_t revision_ = 0;
};

}  // namespace mivo

#endif

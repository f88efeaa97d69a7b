#ifndef MIVO_TESTS_EDIT_SELECTION_FIXTURE_H
#define MIVO_TESTS_EDIT_SELECTION_FIXTURE_H

#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "comp_edit_doc.h"
#include "edit_samples.h"

namespace mivo {

/// A document of 6 × 4 cells in which the first operation has just begun.
class SelectionFixture : public testing::Test {
 protected:
  void LoadWith(std::vector<SCompPin> pins, Objects objects) {
    component = MakeComponent({6, 4}, 1, std::move(pins), Drawn::Yes, std::move(objects));
    doc.Load(&component);
    doc.RaiseOperation();
  }
  void LoadSample() {
    LoadWith({MakePin(PinSide::Left, 1, u"IN"), MakePin(PinSide::Right, 2, u"Q")}, OneOfEach());
  }
  const SCompEditElm& Only() { return *doc.SingleSelection(); }

  SComponent component;
  SCompEditDoc doc;
};

}  // namespace mivo

#endif

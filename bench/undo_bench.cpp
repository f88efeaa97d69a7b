// Cost of undo in a large document, beside filling and copying a 3840 × 2160 image in the same run.

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <vector>

#include "comp_edit_doc.h"
#include "component.h"
#include "median.h"
#include "ptn_obj_line.h"
#include "table_row.h"

namespace mivo::bench {
namespace {

constexpr std::size_t kElements = 10'000;
constexpr int kOperations = 1'000;
constexpr int kTracelessPicks = 1'000;
constexpr std::size_t kImagePixels = 3840 * 2160;

double FillAndCopy() {
  std::vector<std::uint32_t> image(kImagePixels);
  std::vector<std::uint32_t> copy(kImagePixels);
  std::vector<double> times;
  for (std::uint32_t round = 0; round < 9; ++round) {
    times.push_back(Milliseconds([&] {
      std::fill(image.begin(), image.end(), round);
      std::copy(image.begin(), image.end(), copy.begin());
    }));
    if (copy.back() != round) std::exit(1);
  }
  return Median(times);
}

SComponent LargeComponent() {
  SComponent component;
  component.SetSize({255, 255}, true, true);
  for (std::int32_t i = 0; i < static_cast<std::int32_t>(kElements); ++i) {
    auto line = std::make_unique<SPtnObjLine>();
    line->SetStart({i % 2550, i % 2501});
    line->SetEnd({i % 2539, i % 2549});
    component.MutablePattern()->objects.push_back(std::move(line));
  }
  return component;
}

void Measure() {
  const SComponent component = LargeComponent();
  SCompEditDoc doc;
  doc.Load(&component);
  for (int i = 0; i < kOperations; ++i) {
    doc.RaiseOperation();
    if (!doc.PickElement(static_cast<std::size_t>(i) * 7 % kElements)) std::exit(1);
    doc.MoveSelection(1, 1);
    doc.ReleaseSelection();
  }
  for (int i = 0; i < kTracelessPicks; ++i) {
    doc.RaiseOperation();
    if (!doc.PickElement(kElements - 1)) std::exit(1);
    doc.ReleaseSelection();
  }
  const double image = FillAndCopy();  // also leaves nothing of the document in the caches
  std::vector<double> times;
  const double first = Milliseconds([&] {
    if (!doc.Undo()) std::exit(1);
  });
  if (doc.Operation() != kOperations - 1) std::exit(1);
  while (doc.CanUndo()) {
    times.push_back(Milliseconds([&] { doc.Undo(); }));
  }
  PrintRow({"undo among 10,000 elements, the first", first, "ms", first / image, "fill + copy"});
  const double other = Median(times);
  PrintRow({"undo among 10,000 elements, others", other, "ms", other / image, "fill + copy"});
}

}  // namespace
}  // namespace mivo::bench

int main() {
  mivo::bench::Measure();
}

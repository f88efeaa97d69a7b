#ifndef MIVO_TESTS_EDIT_EDIT_SAMPLES_H
#define MIVO_TESTS_EDIT_EDIT_SAMPLES_H

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "comp_edit_doc.h"
#include "ptn_obj_arc.h"
#include "ptn_obj_circle.h"
#include "ptn_obj_line.h"
#include "ptn_obj_polygon.h"
#include "ptn_obj_text.h"

namespace mivo {

using Objects = std::vector<std::unique_ptr<SPtnObj>>;

[[nodiscard]] SCompPin MakePin(PinSide side, std::int32_t offset, std::u16string_view name = u"A",
                               std::u16string_view number = u"1");
[[nodiscard]] std::unique_ptr<SPtnObjLine> MakeLine(SPoint start, SPoint end);
[[nodiscard]] std::unique_ptr<SPtnObjCircle> MakeCircle(SPoint corner1, SPoint corner2);
[[nodiscard]] std::unique_ptr<SPtnObjPolygon> MakePolygon(std::vector<SPoint> points);
[[nodiscard]] std::unique_ptr<SPtnObjArc> MakeArc(SPoint center, std::int32_t radius, SPoint begin,
                                                  SPoint end);
[[nodiscard]] std::unique_ptr<SPtnObjText> MakeText(SPoint position, std::u16string_view text);

/// One object of each class, none of them in need of normalising.
[[nodiscard]] Objects OneOfEach();

enum class Drawn { Yes, No };
/// A component with `pins` and, when drawn, a pattern with `objects`.
[[nodiscard]] SComponent MakeComponent(SPoint size, std::int32_t blocks, std::vector<SCompPin> pins,
                                       Drawn drawn, Objects objects = {});

/// Body size, block count and the records of the alive pins and of the alive objects: all that a
/// user sees of the document apart from the selection. Pins are drawn before objects, so the order
/// between the two does not show.
[[nodiscard]] std::string Shown(const SCompEditDoc& doc);
/// The same of the selection.
[[nodiscard]] std::string Selected(const SCompEditDoc& doc);
[[nodiscard]] std::string RecordOf(const SPtnObj& object);
[[nodiscard]] std::string RecordOf(const SComponent& component);

/// A clipboard for one test.
class FakeClipboard final : public TextClipboard {
 public:
  bool SetText(std::u16string_view newText) override {
    if (refuses) return false;
    text = newText;
    return true;
  }
  std::optional<std::u16string> GetText() override { return text; }

  bool refuses = false;
  std::optional<std::u16string> text;
};

}  // namespace mivo

#endif

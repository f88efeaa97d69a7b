// Pastes any text as pins or drawing objects. What was read can be written, and reads as the same.
//
// The first byte is the number of blocks of the component, less one. Behind it stands the text, in
// UTF-8.

#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "clipboard_text.h"
#include "fuzz_target.h"
#include "pin_names.h"
#include "text_encoding.h"

namespace mivo {
namespace {

/// What remains of `content` when it is pasted and released.
std::vector<SCompEditElm> Pasted(ClipboardContent content) {
  std::vector<SCompEditElm> pasted;
  if (auto* const pins = std::get_if<PinText>(&content)) {
    if (pins->pin) pasted.emplace_back(0, std::make_unique<SCompPin>(*std::move(pins->pin)));
  } else if (auto* const pattern = std::get_if<PatternText>(&content)) {
    for (auto& object : pattern->objects) {
      if (object->IsValid()) pasted.emplace_back(0, std::move(object));
    }
  }
  return pasted;
}

}  // namespace
}  // namespace mivo

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace mivo;
  if (size == 0) return 0;
  const std::int32_t blocks = data[0] + 1;
  const std::u16string text = Utf8ToUtf16(InputBytes(data + 1, size - 1));
  ClipboardContent content = ReadClipboardText(text, blocks);
  Require(CanPaste(text) || std::holds_alternative<std::monostate>(content),
          "what is pasted could be pasted");

  const std::vector<SCompEditElm> pasted = Pasted(std::move(content));
  Require(pasted.size() <= text.size(), "a text holds no more objects than characters");
  bool stays = true;
  for (const SCompEditElm& element : pasted) {
    if (element.Pin() == nullptr) continue;
    Require(element.Pin()->NumberCount() == blocks, "a pin has a number slot for each block");
    const std::int32_t offset = element.Pin()->location.offset;
    Require(0 <= offset && offset <= SPinLocation::kMaxOffset, "a pin sits on the outline");
    stays = !HasPlainBackslash(element.Pin()->Name());
  }
  if (pasted.empty()) return 0;

  const std::u16string written = WriteClipboardText(pasted, {});
  Require(CanPaste(written), "what was written can be pasted");
  const std::vector<SCompEditElm> again = Pasted(ReadClipboardText(written, blocks));
  Require(again.size() == pasted.size(), "what was written reads whole");
  Require(!stays || WriteClipboardText(again, {}) == written, "what was written reads as it was");
  return 0;
}

// Pastes any text as a component into a library that has one already. What was pasted can be
// copied, and pastes as the same.
//
// The text is UTF-8.

#include <algorithm>
#include <string>

#include "fuzz_target.h"
#include "pin_names.h"
#include "record_writer.h"
#include "schematic_data.h"
#include "text_encoding.h"

namespace mivo {
namespace {

/// Finds every entry of the library by its name, unless another has the same.
void RequireNames(const SMivoDoc& library) {
  for (const auto& entry : library.Names().Entries()) {
    const NameEntry* const found = library.Names().Find(entry->Name());
    Require(found != nullptr && found->Name() == entry->Name(), "every name is found");
    Require(entry->Component() != nullptr, "every name has a component");
  }
}

bool KeepsPinNames(const SComponent& component) {
  return std::none_of(component.Pins().begin(), component.Pins().end(),
                      [](const SCompPin& pin) { return HasPlainBackslash(pin.Name()); });
}

/// The component as a file holds it, after its objects have been edited, which drops what they have
/// twice.
std::u16string RecordOf(SComponent component) {
  if (SPtn* const pattern = component.MutablePattern()) {
    std::erase_if(pattern->objects, [](const auto& object) { return !object->IsValid(); });
  }
  std::u16string text;
  SRecordWriter writer;
  writer.AttachString(text);
  component.Write(writer, u"NAME");
  return text;
}

}  // namespace
}  // namespace mivo

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace mivo;
  const std::u16string text = Utf8ToUtf16(InputBytes(data, size));
  SMivoDoc library;
  library.AddComponent(std::make_unique<SComponent>(), u"R");
  const NameEntry* const pasted = PasteComponentText(library, text);
  RequireNames(library);
  if (pasted == nullptr) return 0;

  const std::u16string copied = WriteComponentText(*pasted);
  if (copied.empty()) {
    Require(pasted->Name().empty(), "what has a name can be copied");
    return 0;
  }
  Require(CanPasteComponent(copied), "what was copied can be pasted");
  const NameEntry* const again = PasteComponentText(library, copied);
  Require(again != nullptr, "what was copied pastes");
  RequireNames(library);
  Require(!KeepsPinNames(*pasted->Component()) ||
              RecordOf(*again->Component()) == RecordOf(*pasted->Component()),
          "what was copied pastes as it was");
  return 0;
}

// Pastes any text as a component into a library that has one already. What was pasted can be
// copied, and pastes as the same.
//
// The text is UTF-8.

#include <algorithm>
#include <string>

#include "fuzz_target.h"
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

/// Copies the entry and pastes it again; null for an entry without a name, which cannot be copied.
const NameEntry* CopiedAndPasted(SMivoDoc& library, const NameEntry& entry) {
  const std::u16string copied = WriteComponentText(entry);
  Require(copied.empty() == entry.Name().empty(), "what has a name can be copied");
  if (copied.empty()) return nullptr;
  Require(CanPasteComponent(copied), "what was copied can be pasted");
  const NameEntry* const pasted = PasteComponentText(library, copied);
  Require(pasted != nullptr, "what was copied pastes");
  Require(pasted->Component()->Pins().size() == entry.Component()->Pins().size(),
          "what was copied pastes with all its pins");
  RequireNames(library);
  return pasted;
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

  // What a text may say without keeping it is gone after the first time.
  const NameEntry* const again = CopiedAndPasted(library, *pasted);
  if (again == nullptr) return 0;
  const NameEntry* const onceMore = CopiedAndPasted(library, *again);
  Require(RecordOf(*onceMore->Component()) == RecordOf(*again->Component()),
          "what was copied pastes as it was");
  return 0;
}

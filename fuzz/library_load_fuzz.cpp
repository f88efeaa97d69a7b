// Loads any bytes as a library or schematic, in UTF-8 or the old code page. Whatever came of it can
// be saved and loads again; unless a finding said so, it is then what it was.

#include <string>

#include "fuzz_target.h"
#include "mivo_doc.h"

namespace mivo {
namespace {

class CheckingSink final : public FindingSink {
 public:
  void Report(const Finding& finding) override {
    Require(finding.line >= 1 && finding.column >= 1, "a finding has a place");
    Require(!MessageOf(finding.kind).empty(), "a finding has a message");
    if (finding.kind == FindingKind::NotCanonical) saidToChange = true;
  }

  bool saidToChange = false;  ///< by saving and loading again
};

std::string Saved(const SMivoDoc& library) {
  std::string bytes;
  StringByteSink sink(bytes);
  Require(library.Write(sink), "a library saves");
  return bytes;
}

}  // namespace
}  // namespace mivo

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace mivo;
  CheckingSink sink;
  SMivoDoc library;
  const bool loaded = library.Load(InputBytes(data, size), u"fuzz.ZLB", &sink);
  Require(library.Path().has_value() == loaded, "only a load that succeeded sets the path");
  for (const auto& entry : library.Names().Entries()) {
    const NameEntry* const found = library.Names().Find(entry->Name());
    Require(found != nullptr && found->Name() == entry->Name(), "every name is found");
  }

  const std::string saved = Saved(library);
  SMivoDoc again;
  Require(again.Load(saved, u"again.ZLB"), "what was saved loads");
  Require(sink.saidToChange || Saved(again) == saved, "what was saved and loaded is what it was");
  return 0;
}

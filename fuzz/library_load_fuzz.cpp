// Loads any bytes as a library or schematic. Whatever came of it can be saved and loads again, with
// as many names and components.

#include <string>

#include "fuzz_target.h"
#include "mivo_doc.h"

namespace mivo {
namespace {

class IgnoringSink final : public FindingSink {
 public:
  void Report(const Finding& finding) override {
    Require(finding.line >= 1 && finding.column >= 1, "a finding has a place");
    Require(!MessageOf(finding.kind).empty(), "a finding has a message");
  }
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
  mivo::IgnoringSink sink;
  mivo::SMivoDoc library;
  const bool loaded = library.Load(mivo::InputBytes(data, size), u"fuzz.ZLB", &sink);
  mivo::Require(library.Path().has_value() == loaded, "only a load that succeeded sets the path");

  mivo::SMivoDoc again;
  mivo::Require(again.Load(mivo::Saved(library), u"again.ZLB", &sink), "what was saved loads");
  return 0;
}

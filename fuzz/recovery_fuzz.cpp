// Reads any bytes as a recovery file. What is read can be written, and reads as the same.

#include <string>

#include "fuzz_target.h"
#include "recovery_frames.h"
#include "recovery_records.h"

namespace mivo {
namespace {

void RequireStart(std::string_view content) {
  const std::optional<RecoveryStart> start = ReadStart(content);
  if (!start) return;
  const std::string written = WriteStart(*start);
  const std::optional<RecoveryStart> again = ReadStart(written);
  Require(again.has_value() && WriteStart(*again) == written, "a start reads as it was written");
}

void RequireNames(std::string_view content) {
  const std::optional<RecoveryNames> names = ReadNames(content);
  if (!names) return;
  const std::string written = WriteNames(*names);
  const std::optional<RecoveryNames> again = ReadNames(written);
  Require(again.has_value() && WriteNames(*again) == written, "names read as they were written");
}

void RequireComponent(std::string_view content) {
  const std::unique_ptr<SComponent> component = ReadOneComponent(content);
  if (component == nullptr) return;
  const std::unique_ptr<SComponent> again = ReadOneComponent(WriteOneComponent(*component));
  Require(again != nullptr && again->Pins().size() == component->Pins().size(),
          "a component that was written reads");
}

void RequireContent(std::string_view content) {
  RequireStart(content);
  RequireNames(content);
  RequireComponent(content);
}

}  // namespace
}  // namespace mivo

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace mivo;
  std::string_view rest = InputBytes(data, size);
  RequireContent(rest);  // a frame proves its content whole, which no fuzzer finds out
  std::string framed;
  AppendFrame(framed, {FrameKind::Component, static_cast<std::uint32_t>(size), rest});
  std::string_view framedRest = framed;
  const std::optional<RecoveryFrame> own = TakeFrame(framedRest);
  Require(own && own->content == rest && framedRest.empty(), "a frame is taken as it was made");

  while (const std::optional<RecoveryFrame> frame = TakeFrame(rest)) RequireContent(frame->content);
  return 0;
}

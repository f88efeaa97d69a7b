#include "input.h"

#include "finding_text.h"
#include "path_text.h"
#include "read_file.h"

namespace mivo {
namespace {

/// Keeps the finding that failed a load: the first, since what follows may only follow from it.
class FailureSink final : public FindingSink {
 public:
  void Report(const Finding& finding) override {
    if (!failure_ && SeverityOf(finding.kind) == Severity::Error) failure_ = finding;
  }

  [[nodiscard]] const std::optional<Finding>& Failure() const { return failure_; }

 private:
  std::optional<Finding> failure_;
};

}  // namespace

std::optional<std::string> ReadInput(const std::string& file, const CommandIo& io) {
  const bool fromStream = file == kStandardStream;
  FileResult<std::string> bytes = fromStream ? io.readInput() : ReadFile(PathFromArgument(file));
  if (bytes.Ok()) return std::move(bytes).Value();
  PrintFailure(io, fromStream ? "standard input" : file, bytes.Error());
  return std::nullopt;
}

LoadOutcome LoadInput(const std::string& file, const CommandIo& io, SMivoDoc& doc) {
  const std::optional<std::string> bytes = ReadInput(file, io);
  if (!bytes) return LoadOutcome::Unreadable;
  FailureSink sink;
  if (doc.Load(*bytes, TextFromPath(PathFromArgument(file)), &sink)) return LoadOutcome::Loaded;
  if (const auto& failure = sink.Failure()) {
    Print(io.errors, PlaceText(file, failure->line) + FindingText(*failure) + '\n');
  }
  return LoadOutcome::Partial;
}

}  // namespace mivo

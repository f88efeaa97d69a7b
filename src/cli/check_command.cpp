#include "check_command.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string_view>

#include "finding_text.h"
#include "first_difference.h"
#include "input.h"
#include "path_text.h"

namespace mivo {
namespace {

class PrintingSink final : public FindingSink {
 public:
  PrintingSink(std::string_view file, ByteSink& output) : file_(file), output_(output) {}

  void Report(const Finding& finding) override {
    Print(finding.line, SeverityOf(finding.kind), FindingText(finding));
  }

  void Print(std::int64_t line, Severity severity, std::string_view text) {
    any_ = true;
    std::string whole = PlaceText(file_, line);
    whole += severity == Severity::Error ? "error: " : "warning: ";
    whole += text;
    whole += '\n';
    mivo::Print(output_, whole);
  }

  [[nodiscard]] bool Any() const { return any_; }

 private:
  std::string_view file_;
  ByteSink& output_;
  bool any_ = false;
};

ExitCode CheckFile(const std::string& file, bool strict, const CommandIo& io) {
  const std::optional<std::string> bytes = ReadInput(file, io);
  if (!bytes) return ExitCode::Failure;
  PrintingSink sink(file, io.output);
  SMivoDoc doc;
  const bool loaded = doc.Load(*bytes, TextFromPath(PathFromArgument(file)), &sink);
  if (loaded && strict) {
    FirstDifference difference(*bytes);
    static_cast<void>(doc.Write(difference));  // which takes everything
    if (const auto line = difference.Line()) {
      sink.Print(*line, Severity::Error, "saving would change the file from here on");
    }
  }
  return loaded && !sink.Any() ? ExitCode::Fine : ExitCode::Findings;
}

}  // namespace

ExitCode RunCheck(const CheckOptions& options, const CommandIo& io) {
  ExitCode worst = ExitCode::Fine;
  for (const std::string& file : options.files) {
    worst = std::max(worst, CheckFile(file, options.strict, io));
  }
  return worst;
}

}  // namespace mivo

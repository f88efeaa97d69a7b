#include "convert_command.h"

#include <algorithm>
#include <string_view>

#include "file_writer.h"
#include "input.h"
#include "path_text.h"

namespace mivo {
namespace {

/// Whether the name ends in ".ZSC", in letters of either case.
bool IsSchematicName(std::string_view name) {
  constexpr std::string_view kExtension = ".zsc";
  if (name.size() < kExtension.size()) return false;
  name.remove_prefix(name.size() - kExtension.size());
  return std::equal(name.begin(), name.end(), kExtension.begin(), [](char c, char wanted) {
    return (c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c) == wanted;
  });
}

bool Save(const SMivoDoc& doc, const std::string& out, const CommandIo& io) {
  if (out == kStandardStream) return doc.Write(io.output);
  FileWriter writer(PathFromArgument(out));
  if (doc.Write(writer) && writer.Commit()) return true;
  PrintFailure(io, out, writer.ErrorText());
  return false;
}

}  // namespace

ExitCode RunConvert(const ConvertOptions& options, const CommandIo& io) {
  if (IsSchematicName(options.out)) {
    PrintFailure(io, options.out, "a library cannot be saved as a schematic");
    return ExitCode::Failure;
  }
  SMivoDoc doc;
  const LoadOutcome outcome = LoadInput(options.in, io, doc);
  if (outcome == LoadOutcome::Unreadable) return ExitCode::Failure;
  const bool partial = outcome == LoadOutcome::Partial;
  if (partial && !options.keepPartial) return ExitCode::Findings;
  if (!Save(doc, options.out, io)) return ExitCode::Failure;
  return partial ? ExitCode::Findings : ExitCode::Fine;
}

}  // namespace mivo

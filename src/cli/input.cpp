#include "input.h"

#include "file_source.h"
#include "finding_text.h"
#include "first_error.h"
#include "path_text.h"
#include "read_file.h"

namespace mivo {

std::optional<std::string> ReadInput(const std::string& file, const CommandIo& io) {
  const bool fromStream = file == kStandardStream;
  FileResult<std::string> bytes = fromStream ? io.readInput() : ReadFile(PathFromArgument(file));
  if (bytes.Ok()) return std::move(bytes).Value();
  PrintFailure(io, fromStream ? "standard input" : file, bytes.Error());
  return std::nullopt;
}

LoadOutcome LoadInput(const std::string& file, const CommandIo& io, SMivoDoc& doc) {
  const std::u16string path = TextFromPath(PathFromArgument(file));
  FirstError error;
  bool isLoaded = false;
  if (file == kStandardStream) {
    const std::optional<std::string> bytes = ReadInput(file, io);
    if (!bytes) return LoadOutcome::Unreadable;
    isLoaded = doc.Load(*bytes, path, &error);
  } else {
    FileSource source(PathFromArgument(file));
    isLoaded = doc.Load(source, source.SizeHint(), path, &error);
    if (!source.Error().empty()) {
      PrintFailure(io, file, source.Error());
      return LoadOutcome::Unreadable;
    }
  }
  if (isLoaded) return LoadOutcome::Loaded;
  if (const auto& finding = error.Get()) {
    Print(io.errors, PlaceText(file, finding->line) + FindingText(*finding) + '\n');
  }
  return LoadOutcome::Partial;
}

}  // namespace mivo

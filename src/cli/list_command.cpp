#include "list_command.h"

#include "input.h"
#include "library_listing.h"

namespace mivo {

ExitCode RunList(const ListOptions& options, const CommandIo& io) {
  SMivoDoc doc;
  switch (LoadInput(options.file, io, doc)) {
    case LoadOutcome::Unreadable:
      return ExitCode::Failure;
    case LoadOutcome::Partial:
      return ExitCode::Findings;
    case LoadOutcome::Loaded:
      break;
  }
  const bool written =
      options.json ? WriteJsonListing(io.output, doc) : WriteListing(io.output, doc);
  return written ? ExitCode::Fine : ExitCode::Failure;
}

}  // namespace mivo

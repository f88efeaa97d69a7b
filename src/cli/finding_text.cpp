#include "finding_text.h"

#include "printable_text.h"

namespace mivo {

std::string PlaceText(std::string_view file, std::int64_t line) {
  std::string text;
  AppendMessage(text, file);
  text += ':';
  text += std::to_string(line);
  text += ": ";
  return text;
}

std::string FindingText(const Finding& finding) {
  std::string text(MessageOf(finding.kind));
  if (!finding.text.empty()) {
    text += ": \"";
    AppendMessage(text, finding.text);
    text += '"';
  }
  if (!finding.record.empty()) {
    text += " in ";
    AppendMessage(text, finding.record);
  }
  return text;
}

}  // namespace mivo

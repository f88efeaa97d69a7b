#include "finding_text.h"

#include "printable_text.h"
#include "text_encoding.h"

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
  std::string text = Utf16ToUtf8(MessageOf(finding.kind));
  // The reader fills up a field that the end of the data cuts off.
  const std::size_t end = finding.text.find(u'\xFFFF');
  if (!finding.text.empty()) {
    text += ": \"";
    AppendMessage(text, std::u16string_view(finding.text).substr(0, end));
    text += '"';
  }
  if (!finding.record.empty()) {
    text += " in ";
    AppendMessage(text, finding.record);
  }
  if (end != std::u16string::npos) text += " (cut off by the end of the data)";
  return text;
}

}  // namespace mivo

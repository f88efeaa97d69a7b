#include "text_tool.h"

#include "property_edit.h"
#include "ptn_obj_text.h"

namespace mivo {

void TextTool::Press(EditSession& session, const Pointer& pointer) {
  if (!session.HasPattern()) return;
  session.PrepareForDialog();
  const std::optional<TextValues> values = session.ports.prompts.AskText(TextValues{});
  if (!values || values->text.empty()) return;
  SPtnObjText text;
  text.SetPosition(pointer.point);
  Apply(*values, text);
  session.AddNewObject(text);
}

}  // namespace mivo

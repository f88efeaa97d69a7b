#ifndef MIVO_TOOLS_EDIT_PORTS_H
#define MIVO_TOOLS_EDIT_PORTS_H

#include "common_font.h"
#include "drawing_surface.h"
#include "property_values.h"
#include "text_clipboard.h"
#include "view_host.h"

namespace mivo {

/// All that the editor needs of the platform and the program around it. Everything is borrowed and
/// must outlive the editor.
struct EditPorts {
  ViewHost& host;
  PropertyPrompts& prompts;
  TextClipboard& clipboard;
  SurfaceFactory& surfaces;
  const SCommonFont& commonFont;
};

}  // namespace mivo

#endif

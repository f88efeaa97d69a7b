// Work of a fixed size, whose instructions script/cost-guard counts: those of Measured and all that
// it calls. Texts are drawn as blocks, so that no toolkit and no font has a part in it.
//
//   cost_probe load|save|redraw|pick

#include <cstdlib>
#include <functional>
#include <string>
#include <string_view>

#include "block_text_surface.h"
#include "comp_editor.h"
#include "drawn_component.h"
#include "generated_library.h"
#include "mivo_doc.h"
#include "silent_ports.h"

namespace mivo::bench {

// Known by its name to script/cost-guard, so it stays a function of its own.
[[gnu::noinline]] void Measured(const std::function<void()>& work) {
  work();
}

namespace {

constexpr std::int32_t kComponents = 1000;
constexpr PixelSize kWindow{1280, 800};

std::string Library() {
  std::string bytes;
  StringByteSink sink(bytes);
  if (!WriteGeneratedLibrary(sink, kComponents, Names::Distinct)) std::exit(1);
  return bytes;
}

void Load() {
  const std::string bytes = Library();
  SMivoDoc doc;
  Measured([&] {
    if (!doc.Load(bytes, u"library")) std::exit(1);
  });
}

void Save() {
  const std::string bytes = Library();
  SMivoDoc doc;
  if (!doc.Load(bytes, u"library")) std::exit(1);
  std::string saved;
  saved.reserve(bytes.size() * 2);
  StringByteSink sink(saved);
  Measured([&] {
    if (!doc.Write(sink)) std::exit(1);
  });
}

/// An editor with a component in a window that nobody looks at.
struct Editor {
  explicit Editor(SComponent edited) : component(std::move(edited)) {
    editor.Resize(kWindow, 1.0);
    editor.SetComponent(&component);
  }

  SilentHost host;
  NoPrompts prompts;
  NoClipboard clipboard;
  BlockTextSurfaceFactory surfaces;
  SCommonFont font;
  SComponent component;
  CompEditor editor{{host, prompts, clipboard, surfaces, font}};
};

void Redraw() {
  Editor editor(MakeDrawnComponent({110, 104}, 200, 500));
  auto image = RasterImage::Create(kWindow, ImageDepth::Color);
  if (!image) std::exit(1);
  Measured([&] {
    for (int zoom = 0; zoom < 4; ++zoom) {
      editor.editor.PaintBack(*editor.surfaces.CreateSurface(*image));
      editor.editor.Execute(Command::ZoomIn);
    }
  });
}

void Pick() {
  Editor editor(MakeDrawnComponent({255, 255}, 0, 10'000));
  Measured([&] {
    for (int round = 0; round < 10; ++round) {
      const PixelPoint at{200 + 17 * round, 300 + 13 * round};
      editor.editor.PressLeft(at);
      editor.editor.ReleaseLeft(at);
    }
  });
}

}  // namespace
}  // namespace mivo::bench

int main(int argc, char** argv) {
  const std::string_view task = argc == 2 ? argv[1] : "";
  if (task == "load") {
    mivo::bench::Load();
  } else if (task == "save") {
    mivo::bench::Save();
  } else if (task == "redraw") {
    mivo::bench::Redraw();
  } else if (task == "pick") {
    mivo::bench::Pick();
  } else {
    return 2;
  }
}

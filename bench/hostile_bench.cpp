// What files cost that are made to take as much work as they can: CPU time of loading 10 MB of
// each, as a ratio to a plain look at every byte, and to loading half of it, which tells whether it
// grows with the length alone; and CPU time of drawing the worst objects at every zoom, as a ratio
// to drawing a line. Fails when one takes more than 2 seconds.

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <optional>
#include <string>

#include "block_text_surface.h"
#include "component_renderer.h"
#include "hostile_library.h"
#include "mivo_doc.h"
#include "table_row.h"
#include "view_coordinates.h"

namespace mivo::bench {
namespace {

constexpr std::size_t kBytes = 10'000'000;
constexpr double kLimitSeconds = 2;
constexpr int kRounds = 3;

/// The shortest CPU time of several runs, in seconds.
template <typename Work>
double CpuSeconds(Work work) {
  double shortest = 1e9;
  for (int round = 0; round < kRounds; ++round) {
    const std::clock_t start = std::clock();
    work();
    shortest = std::min(shortest, static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
  }
  return shortest;
}

/// Loads the file and drops it again.
double SecondsOfLoading(const std::string& file) {
  return CpuSeconds([&] {
    SMivoDoc library;
    static_cast<void>(library.Load(file, u"library"));
  });
}

double SecondsOfLooking(const std::string& file) {
  volatile std::size_t sink = 0;
  return CpuSeconds([&] {
    std::size_t state = 0;
    for (const char byte : file) state = state * 31 + static_cast<unsigned char>(byte);
    sink = sink + state;
  });
}

/// Renders the first component of the file, in a window of 1000 × 800 pixels, at every zoom.
double SecondsOfDrawing(const std::string& file) {
  SMivoDoc library;
  if (!library.Load(file, u"library")) std::exit(1);
  const SComponent& component = *library.Components().front();
  const ComponentPicture picture = ComponentPicture::Of(component);
  const SCommonFont font;
  constexpr PixelSize kWindow{1000, 800};
  std::optional<RasterImage> image = RasterImage::Create(kWindow, ImageDepth::Color);
  if (!image) std::exit(1);
  return CpuSeconds([&] {
    for (std::size_t zoom = 0; zoom < ViewCoordinates::kZoomTable.size(); ++zoom) {
      ViewCoordinates coordinates;
      coordinates.SetClientSize(kWindow);
      coordinates.SetBody(component.Size());
      coordinates.SetZoom(static_cast<std::int32_t>(zoom));
      BlockTextSurface surface(*image);
      surface.SetOrigin(coordinates.ToDevice({}));
      ComponentRenderer(surface, font).Render(&picture, coordinates.Scale());
    }
  });
}

bool DrawsInTime() {
  const double line = SecondsOfDrawing(LibraryWith(HostileObjects().front()));
  bool inTime = true;
  for (const HostileObject& object : HostileObjects()) {
    const double seconds = SecondsOfDrawing(LibraryWith(object));
    PrintRow({std::string("draw at every zoom: ") + object.name, 1000 * seconds, "ms",
              seconds / line, "a line"});
    inTime = inTime && seconds <= kLimitSeconds;
  }
  return inTime;
}

bool LoadsInTime() {
  bool inTime = true;
  for (const HostileCase& hostile : HostileCases()) {
    const std::string file = HostileLibrary(hostile, kBytes);
    const double seconds = SecondsOfLoading(file);
    const double half = SecondsOfLoading(HostileLibrary(hostile, kBytes / 2));
    const std::string what = std::string("load 10 MB of ") + hostile.name;
    PrintRow({what, 1000 * seconds, "ms", seconds / SecondsOfLooking(file), "a look"});
    PrintRow({what, 1000 * seconds, "ms", seconds / half, "half of it"});
    inTime = inTime && seconds <= kLimitSeconds;
  }
  return inTime;
}

}  // namespace
}  // namespace mivo::bench

int main() {
  const bool loads = mivo::bench::LoadsInTime();
  const bool draws = mivo::bench::DrawsInTime();
  return loads && draws ? 0 : 1;
}

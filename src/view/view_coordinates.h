#ifndef MIVO_VIEW_VIEW_COORDINATES_H
#define MIVO_VIEW_VIEW_COORDINATES_H

#include <array>
#include <cstdint>
#include <optional>

#include "geometry.h"
#include "pixel_geometry.h"
#include "view_scale.h"

namespace mivo {

/// A scroll bar: positions go from 0 to range - page, or there is only 0 when the page is the
/// larger one. Device pixels.
struct ScrollBar {
  std::int32_t position = 0;
  std::int32_t range = 0;
  std::int32_t page = 0;
  bool operator==(const ScrollBar&) const = default;
};

/// Which part of a component a window shows, and how large.
///
/// The body with a margin around it is the extent. Along an axis on which the extent fits into the
/// window, the body is centred; along the other it can be scrolled. Pixels are device pixels of the
/// window's client area, (0, 0) its top left one.
class ViewCoordinates {
 public:
  /// Pixels per component unit on a display of ordinary resolution.
  static constexpr std::array<std::int32_t, 4> kZoomTable = {1, 2, 5, 10};
  static constexpr std::int32_t kMinMargin = 50;  ///< component units
  static constexpr std::int32_t kMaxMargin = 200;
  /// How far a line of the scroll bars or a wheel notch goes, in mark pixels.
  static constexpr std::int32_t kScrollLine = 32;

  // --- What is shown ---------------------------------------------------------------------------

  /// Size of the body in grid cells; nothing when no component is open.
  void SetBody(std::optional<SPoint> cells);
  /// Border around the body in component units; limited to kMinMargin..kMaxMargin.
  void SetMargin(std::int32_t margin);
  void SetClientSize(PixelSize size);
  /// Device pixels per logical pixel of the display.
  void SetDevicePixelRatio(double ratio);
  /// Limited to the indexes of kZoomTable. The scroll positions stay, as far as they can; follow
  /// with ScrollToKeep to keep a point of the component in place.
  void SetZoom(std::int32_t index);

  [[nodiscard]] std::int32_t ZoomIndex() const noexcept { return zoomIndex_; }
  [[nodiscard]] std::int32_t Margin() const noexcept { return margin_; }
  [[nodiscard]] PixelSize ClientSize() const noexcept { return client_; }
  [[nodiscard]] const ViewScale& Scale() const noexcept { return scale_; }
  /// Body and margins in pixels.
  [[nodiscard]] PixelSize Extent() const noexcept { return extent_; }

  // --- Where -----------------------------------------------------------------------------------

  /// Component point (0, 0) is shown at pixel (-x, -y).
  [[nodiscard]] PixelPoint Origin() const noexcept { return {x_.origin, y_.origin}; }
  [[nodiscard]] ScrollBar Horizontal() const noexcept { return x_.bar; }
  [[nodiscard]] ScrollBar Vertical() const noexcept { return y_.bar; }

  /// Positions out of range become the nearest ones in it.
  void ScrollTo(PixelPoint position);
  void ScrollByLines(SPoint lines);
  /// Scrolls until component point `point` is shown at `pixel`, or as near as the ranges allow.
  void ScrollToKeep(PixelPoint pixel, SPoint point);

  // --- Conversion ------------------------------------------------------------------------------

  [[nodiscard]] PixelPoint ToDevice(SPoint point) const noexcept;
  /// Truncated toward zero.
  [[nodiscard]] SPoint ToComponent(PixelPoint pixel) const noexcept;
  [[nodiscard]] bool ClientContains(PixelPoint pixel) const noexcept;
  /// The client area in component units.
  [[nodiscard]] SRect VisibleArea() const noexcept;

 private:
  struct Axis {
    ScrollBar bar;
    std::int32_t origin = 0;
  };

  void UpdateScale();
  void UpdateExtent();
  void Place(Axis& axis, std::int64_t position, std::int32_t extent, std::int32_t client) const;
  void PlaceBoth(std::int64_t x, std::int64_t y);
  [[nodiscard]] std::int32_t MarginPixels() const noexcept { return scale_.Scaled(margin_); }

  std::optional<SPoint> body_;
  PixelSize client_;
  PixelSize extent_{10, 10};
  Axis x_;
  Axis y_;
  std::int32_t zoomIndex_ = 0;
  std::int32_t margin_ = kMinMargin;
  double devicePixelRatio_ = 1;
  ViewScale scale_;
};

}  // namespace mivo

#endif

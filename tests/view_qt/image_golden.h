#ifndef MIVO_TESTS_VIEW_QT_IMAGE_GOLDEN_H
#define MIVO_TESTS_VIEW_QT_IMAGE_GOLDEN_H

#include <gtest/gtest.h>

#include <string>

#include "common_font.h"
#include "raster_image.h"

namespace mivo {

/// The font of all kept pictures: one that Debian packages, so that every letter is the same
/// everywhere.
[[nodiscard]] const SCommonFont& GoldenFont();

/// Compares `image` pixel by pixel with the picture goldens/`name`.png, or writes that when goldens
/// are being updated (see golden.h). When they differ, the folder `actual` among the test's build
/// files gets the image, and a picture of the differences, four times enlarged.
[[nodiscard]] testing::AssertionResult MatchesImageGolden(const std::string& name,
                                                          RasterImage& image);

}  // namespace mivo

#endif

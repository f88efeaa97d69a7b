#ifndef MIVO_VIEW_COLORS_H
#define MIVO_VIEW_COLORS_H

#include "color.h"

// Every colour of the drawing, by what it is for.

namespace mivo::colors {

inline constexpr Color kBlack{0, 0, 0};
inline constexpr Color kWhite{255, 255, 255};

inline constexpr Color kBackground = kWhite;
inline constexpr Color kBitPattern{128, 255, 255};
inline constexpr Color kBody{0, 128, 0};              ///< body frame without a pattern
inline constexpr Color kPatternFrame{192, 192, 192};  ///< body frame around a pattern
inline constexpr Color kGridCell{0, 0, 255};          ///< grid points on a cell line
inline constexpr Color kGridUnit{192, 192, 192};      ///< grid points between them

inline constexpr Color kPin{0, 128, 0};
inline constexpr Color kPinName{0, 0, 255};
inline constexpr Color kPinNumber{128, 0, 128};
inline constexpr Color kPatternObject{0, 128, 0};
inline constexpr Color kHidden{220, 220, 220};  ///< hidden texts, greyed pins

inline constexpr Color kSelected{255, 0, 0};
inline constexpr Color kSelectedHidden{255, 128, 128};
inline constexpr Color kFeedback{255, 0, 0};         ///< figures while they are drawn
inline constexpr Color kGuideCircle{220, 220, 220};  ///< circle on which an arc is being drawn
inline constexpr Color kPickProbe{0, 128, 255};      ///< objects in the image that finds clicks

}  // namespace mivo::colors

#endif

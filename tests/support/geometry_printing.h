#ifndef MIVO_TESTS_SUPPORT_GEOMETRY_PRINTING_H
#define MIVO_TESTS_SUPPORT_GEOMETRY_PRINTING_H

#include <ostream>

#include "geometry.h"

// Lets failed expectations and falsified properties show points and rectangles as numbers. Every
// source of a test program that compares them includes this, or none does.

namespace mivo {

inline void PrintTo(SPoint p, std::ostream* out) {
  *out << '(' << p.x << ", " << p.y << ')';
}

inline void PrintTo(const SRect& r, std::ostream* out) {
  *out << "left " << r.left << ", top " << r.top << ", right " << r.right << ", bottom "
       << r.bottom;
}

/// What RapidCheck prints.
inline void showValue(SPoint p, std::ostream& out) {
  PrintTo(p, &out);
}

}  // namespace mivo

#endif

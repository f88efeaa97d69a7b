#ifndef MIVO_BENCH_TABLE_ROW_H
#define MIVO_BENCH_TABLE_ROW_H

#include <cstdio>
#include <string>

namespace mivo::bench {

/// A line of the table that script/bench prints, which all benchmarks fill together.
struct TableRow {
  std::string what;
  double measured = 0;
  const char* unit = "";
  double ratio = 0;           ///< to the baseline of the same run; 0 without one
  const char* baseline = "";  ///< what that is
  double limit = 0;  ///< of the ratio, or of what was measured if there is none; 0 for none
};

inline void PrintRow(const TableRow& row) {
  std::printf("%-52s %9.*f %-5s", row.what.c_str(), row.measured < 100 ? 2 : 0, row.measured,
              row.unit);
  if (row.ratio != 0) {
    std::printf(" %8.2f x %-16s", row.ratio, row.baseline);
  } else {
    std::printf(" %27s", "");
  }
  if (row.limit != 0) {
    const bool isExceeded = (row.ratio != 0 ? row.ratio : row.measured) > row.limit;
    std::printf(" %6.4g%s", row.limit, isExceeded ? "  EXCEEDED" : "");
  }
  std::printf("\n");
  std::fflush(stdout);
}

}  // namespace mivo::bench

#endif

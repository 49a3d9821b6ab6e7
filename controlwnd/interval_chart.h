// The chart of the interval: the last calculation as a picture, as a sentence and as a table.
#ifndef VAMO_CONTROLWND_INTERVAL_CHART_H_
#define VAMO_CONTROLWND_INTERVAL_CHART_H_

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "toolkit/drawing.h"

namespace vamo {

// The input of a calculation: a correlation and a sample size.
struct Calculation {
  double r = 0;
  std::int64_t N = 0;
};

// The sample sizes for which the program shows an interval.
inline constexpr std::int64_t kLowestN = 4;
inline constexpr std::int64_t kHighestN = 1000;

// All functions here are pure. `last` is empty before the first calculation. An r that is not a
// correlation counts as none, and so does an N outside that range.

// Draws the last calculation at a size in logical pixels. The upper part shows the interval on an
// axis of r. The lower part shows, for every N of the range on a logarithmic axis, the interval
// that the same r would have, and the r whose p is .05. Without N there are no bars; without r
// there is no band either.
//
// Nothing lies outside the box. The drawing is empty if a side is below 260 or infinite.
Drawing DrawIntervalChart(const std::optional<Calculation>& last, double width, double height);

// Describes the same in words: the interval, and the N from which p is below .05.
std::string DescribeIntervalChart(const std::optional<Calculation>& last);

// The same in numbers: a row of headings, then rows with N, the interval of the same r at that N,
// and p. Empty if there is no r.
std::vector<std::vector<std::string>> TabulateIntervalChart(const std::optional<Calculation>& last);

}  // namespace vamo

#endif  // VAMO_CONTROLWND_INTERVAL_CHART_H_

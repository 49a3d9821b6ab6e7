// The chart of the interval: the last calculation as a picture, a sentence and a table.
#ifndef VAMO_CONTROLWND_INTERVAL_CHART_H_
#define VAMO_CONTROLWND_INTERVAL_CHART_H_

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "toolkit/drawing.h"

namespace vamo {

// What a calculation worked with: a correlation and a sample size.
struct Calculation {
  double r = 0;
  std::int64_t N = 0;
};

// All functions here are pure; `last` is empty before the first calculation. An r that is no
// correlation counts as none, and N outside 4 to 1000 as no sample size.

// The picture of the last calculation, on so many logical pixels. Above, the interval on an axis of
// r. Below, for every N from 4 to 1000 on a logarithmic axis, the interval that the same r would
// have, and the r whose p is .05. Without an N the bars are left out, without an r the band too.
//
// Nothing lies outside of the box. One that is narrower or lower than 260, or infinite, is empty.
Drawing DrawIntervalChart(const std::optional<Calculation>& last, double width, double height);

// The same in words: the interval, and from which N on p is below .05.
std::string DescribeIntervalChart(const std::optional<Calculation>& last);

// The same in numbers: a row of headings, then N, the interval of the r at that N, and p. Empty
// where there is no r.
std::vector<std::vector<std::string>> TabulateIntervalChart(const std::optional<Calculation>& last);

}  // namespace vamo

#endif  // VAMO_CONTROLWND_INTERVAL_CHART_H_

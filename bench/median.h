// Prints a measurement in the form that script/bench reads.
#ifndef VAMO_BENCH_MEDIAN_H_
#define VAMO_BENCH_MEDIAN_H_

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

namespace vamo {

// Prints the name, a tab and the median of the values.
inline void PrintMedian(const std::string& name, std::vector<double> values) {
  std::sort(values.begin(), values.end());
  std::printf("%s\t%.8g\n", name.c_str(), values[values.size() / 2]);
  std::fflush(stdout);
}

}  // namespace vamo

#endif  // VAMO_BENCH_MEDIAN_H_

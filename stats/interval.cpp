// Fisher's z and the interval. The order of the operations is kept: the result depends on it.
#include "stats/interval.h"

#include <algorithm>

#include "toolkit/conversions.h"

namespace vamo {
namespace {

// The two-tailed 5% point of the normal distribution, to the two decimals that textbooks use.
constexpr double kStandardErrors = 1.96;

double StandardError(std::int64_t N) {
  // Every N below 3 has the root of a negative number here; 0 stands for those below 0, so that the
  // difference cannot overflow.
  const std::int64_t pairs = std::max<std::int64_t>(N, 0);
  return 1.0 / Sqrt(static_cast<double>(pairs - 3));
}

// The correlation whose Fisher's z is `z`.
double CorrelationOf(double z) {
  const double e = Exp(2.0 * z);
  return (e - 1.0) / (e + 1.0);
}

}  // namespace

double FisherZ(double r) {
  const double u = 1.0 + r;
  const double v = 1.0 - r;
  return 0.5 * Log(u / v);
}

Interval ComputeInterval(double r, std::int64_t N) {
  const double z = FisherZ(r);
  const double se = StandardError(N);
  const double zLow = z - kStandardErrors * se;
  const double zHigh = z + kStandardErrors * se;
  double lo = CorrelationOf(zLow);
  double hi = CorrelationOf(zHigh);
  // Not std::clamp: not-a-number passes, and each limit has the one end that it can reach.
  if (lo < -1.0) {
    lo = -1.0;
  }
  if (hi > 1.0) {
    hi = 1.0;
  }
  return {lo, hi};
}

}  // namespace vamo

// Fisher's z and the confidence interval. Keep the order of the operations: the last bits of the
// results depend on it.
#include "stats/interval.h"

#include <algorithm>

#include "toolkit/conversions.h"

namespace vamo {
namespace {

// The two-tailed 5% point of the normal distribution, to two decimals as in textbooks.
constexpr double kStandardErrors = 1.96;

double StandardError(double N_less_3) { return 1.0 / Sqrt(N_less_3); }

// The correlation whose Fisher's z is `z`.
double CorrelationOf(double z) {
  const double e = Exp(2.0 * z);
  return (e - 1.0) / (e + 1.0);
}

Interval IntervalAround(double z, double se) {
  const double zLow = z - kStandardErrors * se;
  const double zHigh = z + kStandardErrors * se;
  double lo = CorrelationOf(zLow);
  double hi = CorrelationOf(zHigh);
  // Not std::clamp, which does not allow not-a-number. Each limit can leave the range at one end
  // only.
  if (lo < -1.0) {
    lo = -1.0;
  }
  if (hi > 1.0) {
    hi = 1.0;
  }
  return {lo, hi};
}

}  // namespace

double FisherZ(double r) {
  const double u = 1.0 + r;
  const double v = 1.0 - r;
  return 0.5 * Log(u / v);
}

// Every N below 3 gives the root of a negative number. N below 0 counts as 0, so that the
// difference cannot overflow.
Interval ComputeInterval(double r, std::int64_t N) {
  const std::int64_t pairs = std::max<std::int64_t>(N, 0);
  return IntervalAround(FisherZ(r), StandardError(static_cast<double>(pairs - 3)));
}

Interval IntervalBetween(double r, double N) {
  return IntervalAround(FisherZ(r), StandardError(N - 3.0));
}

}  // namespace vamo

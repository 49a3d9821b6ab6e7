// Student's t and its p. Keep the order of the operations: the last bits of the results depend on
// it.
#include "stats/significance.h"

#include <algorithm>

#include "toolkit/conversions.h"

namespace vamo {
namespace {

constexpr std::int64_t kSmallestN = 4;

// A smaller t counts as 0.
constexpr double kSmallestT = 0.00001;
// The values that stand for a p too close to 0 and for the p of t = 0.
constexpr double kSmallestP = 0.00001;
constexpr double kLargestP = 0.99999;

// 1 - 2 / pi to eight places. The factor of the odd series is 2 / pi, that of the even series 1.
constexpr double kOddSeriesShortfall = 0.36338023;

// N below 0 counts as 0, which has no degrees of freedom either, so that N - 2 cannot overflow.
std::int64_t DegreesOfFreedom(std::int64_t N) { return std::max<std::int64_t>(N, 0) - 2; }

// Adds `passes` terms to `sum`, beginning with the one that follows `term`. `i` is the numerator of
// the factor of `term`; its denominator is i + 1.
//
// All terms have the same sign and never grow. So once a term is too small to change the sum, no
// later one changes it, and the sum is the same as after all passes.
double AddTerms(double sum, double term, double c, std::int64_t i, std::int64_t passes) {
  for (std::int64_t k = 1; k <= passes; ++k) {
    i += 2;
    term = (((term * c) * c) * static_cast<double>(i)) / static_cast<double>(i + 1);
    const double next = term + sum;
    if (next == sum) {
      break;
    }
    sum = next;
  }
  return sum;
}

double EvenSeries(double theta, std::int64_t df) {
  const double s = Sin(theta);
  const double c = Cos(theta);
  if (df == 2) {
    return s;
  }
  return AddTerms(s, s, c, -1, Truncate(static_cast<double>(df - 2) / 2.0));
}

double OddSeries(double theta, std::int64_t df) {
  if (df == 1) {
    return theta;
  }
  const double s = Sin(theta);
  const double c = Cos(theta);
  const double term = s * c;
  const double sum = term + theta;
  if (df == 3) {
    return sum;
  }
  return AddTerms(sum, term, c, 0, Truncate(static_cast<double>(df - 3) / 2.0));
}

// The probability of a value between -t and t.
double CentralProbability(double t, std::int64_t df) {
  const double f = static_cast<double>(df);
  const double theta = ATan(t / Sqrt(f));
  const double parity = f - 2.0 * Floor(f / 2.0);
  const double series = parity == 0.0 ? EvenSeries(theta, df) : OddSeries(theta, df);
  return (1.0 - kOddSeriesShortfall * parity) * series;
}

}  // namespace

double ComputeT(double r, std::int64_t N) {
  const double den = Sqrt(1.0 - r * r);
  const double num = r * Sqrt(static_cast<double>(DegreesOfFreedom(N)));
  double t = num / den;
  if (r <= 0.0) {
    t = 0.0;
  }
  if (N < kSmallestN) {
    t = 0.0;
  }
  return t;
}

double ComputeP(double t, std::int64_t N) {
  double p = 0.5 * (1.0 + CentralProbability(t, DegreesOfFreedom(N)));
  p = (1.0 - p) * 2.0;
  if (t < kSmallestT) {
    p = kLargestP;
  }
  if (p < kSmallestP) {
    p = kSmallestP;
  }
  return p;
}

}  // namespace vamo

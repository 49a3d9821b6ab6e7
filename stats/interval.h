// Fisher's z of a sample correlation and the 95% confidence interval of the correlation.
#ifndef VAMO_STATS_INTERVAL_H_
#define VAMO_STATS_INTERVAL_H_

#include <cstdint>

namespace vamo {

// Fisher's z transformation of the correlation `r`: artanh r, half the natural logarithm of
// (1 + r) / (1 - r). Domain: r from 0 to .99999; any r between -1 and 1 works. 1 and -1 give
// infinities; an r beyond them gives not-a-number.
double FisherZ(double r);

// The limits of a confidence interval: correlations between -1 and 1.
struct Interval {
  double lo;
  double hi;
};

// The 95% confidence interval for a correlation, where `r` is the correlation of a sample of `N`
// pairs.
//
// It is Fisher's z plus and minus 1.96 standard errors of 1 / sqrt(N - 3), transformed back to the
// scale of r. Domain: r from 0 to .99999, N of 4 or more. For N = 3 the standard error is infinite:
// lo is -1 and hi is not-a-number. For N below 3 both are not-a-number.
Interval ComputeInterval(double r, std::int64_t N);

// Computes the same in the same steps for an `N` between whole numbers, which no sample has but
// which the curve over all N needs. Domain: N above 3.
Interval IntervalBetween(double r, double N);

}  // namespace vamo

#endif  // VAMO_STATS_INTERVAL_H_

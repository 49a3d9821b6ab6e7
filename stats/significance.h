// The significance of a sample correlation: Student's t and its two-tailed p.
#ifndef VAMO_STATS_SIGNIFICANCE_H_
#define VAMO_STATS_SIGNIFICANCE_H_

#include <cstdint>

namespace vamo {

// Student's t with N - 2 degrees of freedom for the test of the correlation `r` against zero:
// t = r * sqrt(N - 2) / sqrt(1 - r * r).
//
// Domain: r from 0 to .99999, N from 4 to 1000. A correlation of 0 or less and an N below 4 give
// t = 0: the test is for positive correlations only, and fewer than four pairs say nothing about
// one. r = 1 gives infinity; r above 1 and not-a-number give not-a-number.
double ComputeT(double r, std::int64_t N);

// The two-tailed p, with N - 2 degrees of freedom, of the `t` that ComputeT returns for the same N.
//
// It is computed from the central probability of Student's t, a finite trigonometric series in the
// angle arctan(t / sqrt(N - 2)): Abramowitz and Stegun, 26.7.3 for an odd and 26.7.4 for an even
// number of degrees of freedom. The error is at most 1.2e-14 for an even number; for an odd number
// the result is up to 3.72e-9 too high, because 2 / pi is taken to eight places.
//
// The result is never below .00001, and a t below .00001 gives .99999: p is shown with five
// decimals and must not read as 0 or 1. With N below 3 there is no degree of freedom: t = 0, the
// only value that ComputeT returns then, gives .99999, and the p of any other t is meaningless.
//
// All of this holds for N up to 1000. A larger N works too; the time grows with it.
//
// Builds on one machine agree to the last bit. Between machines the C library's sine, cosine and
// arctangent differ in the last bits, and p with them by about 1e-15.
double ComputeP(double t, std::int64_t N);

}  // namespace vamo

#endif  // VAMO_STATS_SIGNIFICANCE_H_

// Other ways to the two-tailed p of Student's t, and the least that a pass of the series can cost.
#ifndef VAMO_BENCH_P_REFERENCES_H_
#define VAMO_BENCH_P_REFERENCES_H_

#include <cstdint>

namespace vamo {

// The series of ComputeP with all of its passes, even those that no longer change the sum. For N
// from 5 to 1000.
double PlainP(double t, std::int64_t N);

// The number of those passes.
std::int64_t PassesOf(std::int64_t N);

// As many multiplications by c, by c and by `numerator` and divisions by `denominator` as so many
// passes have, each on the result of the one before, from 1 on. Nothing else happens meanwhile, so
// no pass with this dependency can be faster.
double Chain(std::int64_t passes, double c, double numerator, double denominator);

// By R's stand-alone library and by Boost.Math with its default policy.
double RmathP(double t, std::int64_t N);
double BoostP(double t, std::int64_t N);

}  // namespace vamo

#endif  // VAMO_BENCH_P_REFERENCES_H_

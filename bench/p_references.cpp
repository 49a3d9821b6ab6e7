#include "p_references.h"

#include <algorithm>
#include <boost/math/distributions/students_t.hpp>
#include <cmath>

#define MATHLIB_STANDALONE
#include <Rmath.h>

namespace vamo {
namespace {

constexpr double kOddSeriesLack = 0.36338023;

}  // namespace

std::int64_t PassesOf(std::int64_t N) {
  const std::int64_t df = N - 2;
  return df % 2 == 0 ? (df - 2) / 2 : (df - 3) / 2;
}

double PlainP(double t, std::int64_t N) {
  const std::int64_t df = N - 2;
  const bool even = df % 2 == 0;
  const double theta = std::atan(t / std::sqrt(static_cast<double>(df)));
  const double s = std::sin(theta);
  const double c = std::cos(theta);
  double term = even ? s : s * c;
  double sum = even ? s : term + theta;
  std::int64_t i = even ? -1 : 0;
  for (std::int64_t k = 1; k <= PassesOf(N); ++k) {
    i += 2;
    term = (((term * c) * c) * static_cast<double>(i)) / static_cast<double>(i + 1);
    sum = term + sum;
  }
  const double central = (1.0 - kOddSeriesLack * (even ? 0.0 : 1.0)) * sum;
  const double p = (1.0 - 0.5 * (1.0 + central)) * 2.0;
  return std::max(0.00001 > t ? 0.99999 : p, 0.00001);
}

double Chain(std::int64_t passes, double c, double numerator, double denominator) {
  double link = 1.0;
  for (std::int64_t k = 1; k <= passes; ++k) {
    link = (((link * c) * c) * numerator) / denominator;
  }
  return link;
}

double RmathP(double t, std::int64_t N) {
  constexpr int kLowerTail = 0;
  constexpr int kLogarithm = 0;
  return 2.0 * pt(t, static_cast<double>(N - 2), kLowerTail, kLogarithm);
}

double BoostP(double t, std::int64_t N) {
  const boost::math::students_t distribution(static_cast<double>(N - 2));
  return 2.0 * boost::math::cdf(boost::math::complement(distribution, t));
}

}  // namespace vamo

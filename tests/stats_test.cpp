// Published values, second formulas, round trips and the limits of the ranges.
#include <gtest/gtest.h>

#include <cmath>
#include <initializer_list>
#include <string>

#include "numbers.h"
#include "stats/interval.h"
#include "stats/significance.h"
#include "toolkit/conversions.h"

namespace vamo {
namespace {

testing::Message Row(double r, std::int64_t N) {
  return testing::Message() << "r = " << r << ", N = " << N;
}

// Expects the ten significant digits of a table. If the next digit is a 5, machines may round
// either way.
void ExpectDigits(double value, double digits) {
  const double unit = digits == 0 ? 0 : std::pow(10, std::floor(std::log10(std::fabs(digits))) - 9);
  EXPECT_NEAR(value, digits, 0.50001 * unit);
}

TEST(SignificanceTest, KnownValues) {
  const struct {
    double r;
    std::int64_t N;
    double t, p;
  } rows[] = {
      {0.5, 30, 3.055050463, 0.004899933667},     {0.5, 31, 3.109126351, 0.004180642218},
      {0.7, 5, 1.697749375, 0.1881204074},        {0.3, 11, 0.943456353, 0.3700831246},
      {0.1, 1000, 3.175028831, 0.001544116107},   {0.99999, 4, 316.2253943, 0.00001},
      {0.000001, 30, 0.000005291502622, 0.99999},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(Row(row.r, row.N));
    const double t = ComputeT(row.r, row.N);
    ExpectDigits(t, row.t);
    ExpectDigits(ComputeP(t, row.N), row.p);
  }
}

TEST(SignificanceTest, TheBoundsAreStrict) {
  ExpectDigits(ComputeP(0.00001, 4), 0.9999929289);
  ExpectDigits(ComputeP(0.00001, 1000), 0.9999920232);
  EXPECT_EQ(ComputeP(std::nextafter(0.00001, 0), 4), 0.99999);
  EXPECT_EQ(ComputeP(kInfinity, 5), 0.00001);
}

TEST(SignificanceTest, NoCorrelationAndFewPairsGiveNoT) {
  for (const double r : {0.0, 0.5, 0.99999}) {
    for (const std::int64_t N :
         {kMin, kMin + 1, std::int64_t{-5}, std::int64_t{2}, std::int64_t{3}}) {
      SCOPED_TRACE(Row(r, N));
      EXPECT_EQ(ComputeT(r, N), 0.0);
      EXPECT_EQ(ComputeP(ComputeT(r, N), N), 0.99999);
    }
  }
  EXPECT_EQ(ComputeT(-0.5, 30), 0.0);
  EXPECT_GT(ComputeT(0.5, 4), 0.0);
}

TEST(SignificanceTest, ValuesOutsideTheDomainAreDefined) {
  EXPECT_EQ(ComputeT(1.0, 30), kInfinity);
  EXPECT_TRUE(std::isnan(ComputeT(1.5, 30)));
  EXPECT_TRUE(std::isnan(ComputeP(kNaN, 1000)));
  EXPECT_TRUE(std::isnan(ComputeP(1.0, 1)));
  EXPECT_TRUE(std::isnan(ComputeP(1.0, kMin)));
}

TEST(IntervalTest, FisherZIsUndoneByTheHyperbolicTangent) {
  for (int k = 0; k <= 99'999; k += 11) {
    const double r = k / 100'000.0;
    ASSERT_NEAR(std::tanh(FisherZ(r)), r, 4e-16) << r;
  }
}

TEST(IntervalTest, HalfWidthOnTheScaleOfZ) {
  for (const double r : {0.0, 0.06, 0.5, 0.9}) {
    for (const std::int64_t N : {4, 5, 10, 100, 999, 1000}) {
      SCOPED_TRACE(Row(r, N));
      const Interval interval = ComputeInterval(r, N);
      const double half = 1.96 / std::sqrt(static_cast<double>(N) - 3.0);
      EXPECT_NEAR(std::atanh(interval.lo), std::atanh(r) - half, 1e-13);
      EXPECT_NEAR(std::atanh(interval.hi), std::atanh(r) + half, 1e-13);
    }
  }
}

TEST(IntervalTest, FewPairs) {
  for (const double r : {0.0, 0.5, 0.99999}) {
    EXPECT_EQ(ComputeInterval(r, 3).lo, -1.0);
    EXPECT_TRUE(std::isnan(ComputeInterval(r, 3).hi));
    for (const std::int64_t N : {std::int64_t{2}, std::int64_t{1}, std::int64_t{0}, kMin}) {
      SCOPED_TRACE(Row(r, N));
      EXPECT_TRUE(std::isnan(ComputeInterval(r, N).lo));
      EXPECT_TRUE(std::isnan(ComputeInterval(r, N).hi));
    }
  }
  EXPECT_NEAR(ComputeInterval(0.5, kMax).hi, 0.5, 1e-8);
}

// The texts are the same on every machine, to the last digit. The digest covers
// four million texts, so a machine that differs in a single digit fails.
TEST(GridTest, EveryTextIsTheSameOnEveryMachine) {
  std::uint64_t digest = Digest("");
  const auto add = [&](const std::string& text) { digest = Digest(text + "\n", digest); };
  for (std::int64_t N = 0; N <= 1000; ++N) {
    for (int thousandths = 0; thousandths < 1000; ++thousandths) {
      const double r = thousandths / 1000.0;
      const double t = ComputeT(r, N);
      const Interval interval = ComputeInterval(r, N);
      add(Format(t, "#####.00"));
      add(Format(ComputeP(t, N), ".00000"));
      add(Format(interval.lo, "+.000") + " to " + Format(interval.hi, "+.000"));
      if (N == 0) add(Format(FisherZ(r), "##0.000"));
    }
  }
  EXPECT_EQ(digest, 4993734908978243483U);
}

}  // namespace
}  // namespace vamo

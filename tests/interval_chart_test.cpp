// Compares the positions in the chart of the interval with the numbers.
#include "controlwnd/interval_chart.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "numbers.h"
#include "stats/interval.h"
#include "stats/significance.h"

namespace vamo {
namespace {

constexpr double kWidth = 420;
constexpr double kHeight = 425;

template <class Mark>
std::vector<Mark> All(const Drawing& drawing) {
  std::vector<Mark> marks;
  for (const auto& mark : drawing.marks) {
    if (const auto* found = std::get_if<Mark>(&mark)) marks.push_back(*found);
  }
  return marks;
}

// The bars of the interval: only their lines are 3 pixels wide.
std::vector<Drawing::Line> Bars(const Drawing& drawing) {
  std::vector<Drawing::Line> bars = All<Drawing::Line>(drawing);
  std::erase_if(bars, [](const Drawing::Line& line) { return line.pen.width != 3; });
  return bars;
}

// Converts a position back to its number.
double RAcross(double x) { return (x - 44) / (kWidth - 22 - 44) * 2 - 1; }
double RUp(double y) { return (kHeight - 46 - y) / (kHeight - 46 - 152) * 2 - 1; }
double NAt(double x) { return 4 * std::pow(250, (x - 44) / (kWidth - 22 - 44)); }

// The x at which a line crosses the height y, as N.
double Crossing(const std::vector<Drawing::Point>& line, double y) {
  const auto next = std::adjacent_find(line.begin(), line.end(), [&](const auto& a, const auto& b) {
    return (a.y - y) * (b.y - y) <= 0;
  });
  if (next == line.end()) return 0;
  const double part = (y - next->y) / ((next + 1)->y - next->y);
  return NAt(next->x + part * ((next + 1)->x - next->x));
}

TEST(IntervalChartTest, BarsAndDotsStandAtTheNumbers) {
  for (const Calculation& last : {Calculation{.37, 30}, {.06, 1000}, {.9, 6}, {0, 4}}) {
    const Drawing drawing = DrawIntervalChart(last, kWidth, kHeight);
    const Interval interval = ComputeInterval(last.r, last.N);
    const auto bars = Bars(drawing);
    const auto dots = All<Drawing::Dot>(drawing);
    ASSERT_EQ(bars.size(), 6U);
    ASSERT_EQ(dots.size(), 2U);
    EXPECT_NEAR(RAcross(bars[0].from.x), interval.lo, 1e-9);
    EXPECT_NEAR(RAcross(bars[0].to.x), interval.hi, 1e-9);
    EXPECT_NEAR(RAcross(dots[0].middle.x), last.r, 1e-9);
    EXPECT_NEAR(RUp(bars[3].from.y), interval.lo, 1e-9);
    EXPECT_NEAR(RUp(bars[3].to.y), interval.hi, 1e-9);
    EXPECT_NEAR(RUp(dots[1].middle.y), last.r, 1e-9);
    EXPECT_NEAR(NAt(dots[1].middle.x), static_cast<double>(last.N), 1e-6);
  }
}

TEST(IntervalChartTest, TheBandLeavesZeroWhereTheCurveCrossesR) {
  const auto lines =
      All<Drawing::Polyline>(DrawIntervalChart(Calculation{.37, 30}, kWidth, kHeight));
  ASSERT_EQ(lines.size(), 3U) << "the lower and the upper edge, the curve";
  const double zero = 152 + (kHeight - 46 - 152) / 2;
  EXPECT_NEAR(Crossing(lines[0].points, zero), 28.5, .5);
  EXPECT_NEAR(Crossing(lines[2].points, zero - .37 * (zero - 152)), 28.5, .5);
}

TEST(IntervalChartTest, NothingLiesOutsideTheBox) {
  for (const double width : {260.0, kWidth}) {
    for (const double r : {0.0, .06, .3, .37, .9, .98, .99999}) {
      for (const std::int64_t N : {4, 5, 30, 400, 1000}) {
        const Drawing drawing = DrawIntervalChart(Calculation{r, N}, width, kHeight);
        double to_edge = kInfinity;
        const auto take = [&](const Drawing::Point& at, double left, double right) {
          to_edge = std::min({to_edge, at.x - left, width - at.x - right, at.y, kHeight - at.y});
        };
        // The band has the points of its edges.
        for (const auto& line : All<Drawing::Polyline>(drawing))
          for (const auto& point : line.points) take(point, 1, 1);
        for (const auto& [from, to, pen] : All<Drawing::Line>(drawing))
          for (const auto& end : {from, to}) take(end, pen.width / 2, pen.width / 2);
        for (const auto& dot : All<Drawing::Dot>(drawing)) {
          take(dot.middle, dot.radius + dot.rim, dot.radius + dot.rim);
        }
        for (const auto& text : All<Drawing::Text>(drawing)) {
          const double length = .72 * text.size * static_cast<double>(text.text.size());
          const double before = text.alignment == TextAlignment::kLeft     ? 0
                                : text.alignment == TextAlignment::kCentre ? length / 2
                                                                           : length;
          take(text.base, before, length - before);
        }
        EXPECT_TRUE(to_edge >= 0 && to_edge < width) << to_edge << ' ' << r << ' ' << N;
      }
    }
  }
}

TEST(IntervalChartTest, LeavesOutWhatIsNotThere) {
  for (const auto& [last, bars, bands] : {std::tuple{std::optional<Calculation>(), 0U, 0U},
                                          {Calculation{.37, 3}, 0U, 1U},
                                          {Calculation{.37, 1001}, 0U, 1U},
                                          {Calculation{kNaN, 30}, 0U, 0U},
                                          {Calculation{.37, 4}, 6U, 1U}}) {
    const Drawing drawing = DrawIntervalChart(last, kWidth, kHeight);
    EXPECT_EQ(Bars(drawing).size(), bars);
    EXPECT_EQ(All<Drawing::Polygon>(drawing).size(), bands);
    EXPECT_EQ(DescribeIntervalChart(last) == "No result yet.", bars == 0);
  }
  for (const double size : {0.0, -1.0, 259.0, kNaN, kInfinity}) {
    EXPECT_TRUE(DrawIntervalChart(Calculation{.37, 30}, size, kHeight).marks.empty());
    EXPECT_TRUE(DrawIntervalChart(Calculation{.37, 30}, kWidth, size).marks.empty());
  }
}

TEST(IntervalChartTest, SaysFromWhichNOnPIsBelowTheLimit) {
  EXPECT_EQ(DescribeIntervalChart(Calculation{.37, 30}),
            "95% CI of r +.011 to +.644 at r = .370 and N = 30. p is below .05 from N = 29 on.");
  EXPECT_EQ(
      DescribeIntervalChart(Calculation{.06, 1000}),
      "95% CI of r -.002 to +.122 at r = .060 and N = 1000. p stays above .05 up to N = 1000.");
  for (int i = 7; i < 100; i += 3) {
    const double r = i / 100.0;
    std::int64_t N = 4;
    while (ComputeP(ComputeT(r, N), N) >= .05) ++N;
    const std::string said = DescribeIntervalChart(Calculation{r, 4});
    EXPECT_NE(said.find("from N = " + std::to_string(N) + " on"), std::string::npos) << said;
  }
}

}  // namespace
}  // namespace vamo

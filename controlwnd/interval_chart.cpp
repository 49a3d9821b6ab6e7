#include "controlwnd/interval_chart.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <string_view>
#include <utility>

#include "controlwnd/colours.h"
#include "stats/interval.h"
#include "stats/significance.h"
#include "toolkit/conversions.h"

namespace vamo {
namespace {

using Point = Drawing::Point;
using Pen = Drawing::Pen;

constexpr double kSmallestBox = 260;
constexpr double kSignificantP = .05;

constexpr Colour kPaleRed{0xF0, 0xDE, 0xDE};
constexpr Colour kBlue{0x1F, 0x5F, 0x8F};
constexpr Colour kFrameGrey{0xC4, 0xC4, 0xC4};
constexpr Colour kEdgeGrey{0xA0, 0xA0, 0xA0};

constexpr Pen kAxisPen{kDarkGrey};
constexpr Pen kFramePen{kFrameGrey};
constexpr Pen kZeroPen{kBlack};
constexpr Pen kBarPen{kDarkRed, 3};
constexpr Pen kBandPen{kDarkRed, 1.5};
constexpr Pen kRPen{kDarkRed, 1, 2, 3};
constexpr Pen kNPen{kBlack, 1, 1, 2};
constexpr Pen kPPen{kBlue, 1.5, 6, 3};

constexpr double kTitleX = 20;
constexpr double kTick = 5;
constexpr double kLabelBelowAxis = 18;
// The distance from the middle of a label beside a tick down to its baseline.
constexpr double kHalfLetter = 4;
// Half the width of a limit's text.
constexpr double kHalfText = 24;

// Whether p of the correlation is below .05 at that N.
bool IsSignificant(double r, std::int64_t N) { return ComputeP(ComputeT(r, N), N) < kSignificantP; }

// The smallest correlation that is significant at that N, to the last bit.
double SmallestSignificantR(std::int64_t N) {
  double below = 0;
  double above = 1;
  while (true) {
    const double middle = (below + above) / 2;
    if (middle == below || middle == above) return above;
    (IsSignificant(middle, N) ? above : below) = middle;
  }
}

// The position of N along its axis, from 0 to 1.
double Along(double N) {
  constexpr auto kLowest = static_cast<double>(kLowestN);
  return Log(N / kLowest) / Log(static_cast<double>(kHighestN) / kLowest);
}

// The sample sizes, whole or not, of the points of the band. They are evenly spaced along the axis.
constexpr std::size_t kStations = 121;
const std::array<double, kStations>& Stations() {
  static const std::array<double, kStations> stations = [] {
    std::array<double, kStations> result{};
    const double step =
        Log(static_cast<double>(kHighestN) / static_cast<double>(kLowestN)) / (kStations - 1);
    for (std::size_t i = 0; i < kStations; ++i) {
      result[i] = static_cast<double>(kLowestN) * Exp(static_cast<double>(i) * step);
    }
    return result;
  }();
  return stations;
}

// A point of the curve where p is .05.
struct Threshold {
  std::int64_t N;
  double along;
  double r;
};

// The thresholds at the whole numbers nearest to the stations: every N up to 21, then fewer and
// fewer. They take milliseconds to compute, so this is done once.
const std::vector<Threshold>& Thresholds() {
  static const std::vector<Threshold> thresholds = [] {
    std::vector<Threshold> result;
    for (const double station : Stations()) {
      const std::int64_t N = Truncate(station + .5);
      if (!result.empty() && result.back().N == N) continue;
      result.push_back({N, Along(static_cast<double>(N)), SmallestSignificantR(N)});
    }
    return result;
  }();
  return thresholds;
}

// The smallest N at which p of the correlation is below .05; nothing if there is none up to 1000.
std::optional<std::int64_t> SmallestSignificantN(double r) {
  const std::vector<Threshold>& thresholds = Thresholds();
  const auto found = std::partition_point(thresholds.begin(), thresholds.end(),
                                          [&](const auto& threshold) { return r < threshold.r; });
  if (found == thresholds.end()) return std::nullopt;
  if (found == thresholds.begin()) return kLowestN;
  std::int64_t below = std::prev(found)->N;
  std::int64_t above = found->N;
  while (above - below > 1) {
    const std::int64_t middle = (below + above) / 2;
    (IsSignificant(r, middle) ? above : below) = middle;
  }
  return above;
}

std::optional<double> ROf(const std::optional<Calculation>& last) {
  const bool is_correlation = last.has_value() && last->r > -1 && last->r < 1;
  return is_correlation ? std::optional(last->r) : std::nullopt;
}

std::optional<std::int64_t> NOf(const std::optional<Calculation>& last) {
  const bool has_interval = ROf(last).has_value() && last->N >= kLowestN && last->N <= kHighestN;
  return has_interval ? std::optional(last->N) : std::nullopt;
}

std::string LimitText(double limit) { return Format(limit, "+.000"); }

// Draws one chart. Its operations add marks in the order of drawing, and the texts last.
class Painter {
 public:
  Painter(const std::optional<Calculation>& last, double width, double height)
      : r_(ROf(last)),
        N_(NOf(last)),
        right_(width - 22),
        bottom_(height - 46),
        drawing_{width, height, kWhite, {}} {
    drawing_.marks.reserve(64);
  }

  Drawing Draw() && {
    AddLine({.5, 0}, {.5, drawing_.height}, {kEdgeGrey});
    AddInterval();
    AddPlot();
    for (Drawing::Text& text : texts_) Add(std::move(text));
    return std::move(drawing_);
  }

 private:
  static constexpr double kLeft = 44;
  static constexpr double kAxisY = 84;
  static constexpr double kTop = 152;

  double AcrossR(double r) const { return kLeft + (r + 1) / 2 * (right_ - kLeft); }
  double UpR(double r) const { return bottom_ - (r + 1) / 2 * (bottom_ - kTop); }
  // `along` is the position on the axis of N, from 0 to 1.
  double Across(double along) const { return kLeft + along * (right_ - kLeft); }
  double AcrossN(std::int64_t N) const { return Across(Along(static_cast<double>(N))); }

  void Add(Drawing::Mark mark);
  void AddLine(Point from, Point to, const Pen& pen) { Add(Drawing::Line{from, to, pen}); }
  void AddText(Point base, TextAlignment alignment, std::string text, Colour colour,
               double size = 11, bool bold = false) {
    texts_.push_back({base, alignment, std::move(text), size, bold, colour});
  }
  void AddTitle(double y, std::string text) {
    AddText({kTitleX, y}, TextAlignment::kLeft, std::move(text), kDarkRed, 12, /*bold=*/true);
  }
  // Adds the bar of the interval from one point to another, with a stroke across each end, and the
  // dot of r.
  void AddBar(Point from, Point to, Point end, Point r) {
    AddLine(from, to, kBarPen);
    for (const Point& at : {from, to}) {
      AddLine({at.x - end.x, at.y - end.y}, {at.x + end.x, at.y + end.y}, kBarPen);
    }
    Add(Drawing::Dot{r, 5.5, 1.5, kDarkRed});
  }

  void AddInterval();
  void AddLimits(const Interval& interval);
  void AddPlot();
  void AddRAxes();
  void AddNAxis();
  void AddBand();
  void AddCurve();
  void AddN();

  const std::optional<double> r_;
  const std::optional<std::int64_t> N_;
  const double right_;
  const double bottom_;
  Drawing drawing_;
  std::vector<Drawing::Text> texts_;
};

void Painter::Add(Drawing::Mark mark) { drawing_.marks.push_back(std::move(mark)); }

void Painter::AddInterval() {
  constexpr double kBarY = 62;
  AddTitle(22, N_.has_value() ? "95% CI of r at N = " + Str(*N_, "") : "95% CI of r");
  AddRAxes();
  AddLine({AcrossR(0), kAxisY - 36}, {AcrossR(0), kAxisY}, kZeroPen);
  if (!N_.has_value()) return;
  const Interval interval = ComputeInterval(*r_, *N_);
  AddBar({AcrossR(interval.lo), kBarY}, {AcrossR(interval.hi), kBarY}, {0, 8},
         {AcrossR(*r_), kBarY});
  AddLimits(interval);
}

// Puts the limits above the ends of the bar or, if these are close together, side by side around
// its middle.
void Painter::AddLimits(const Interval& interval) {
  constexpr double kY = 48;
  double lo = AcrossR(interval.lo);
  double hi = AcrossR(interval.hi);
  if (hi - lo < 2 * kHalfText) {
    const double middle = std::min((lo + hi) / 2, drawing_.width - 2 * kHalfText);
    lo = middle - kHalfText;
    hi = middle + kHalfText;
  }
  hi = std::min(hi, drawing_.width - kHalfText);
  lo = std::min(lo, hi - 2 * kHalfText);
  AddText({lo, kY}, TextAlignment::kCentre, LimitText(interval.lo), kBlack);
  AddText({hi, kY}, TextAlignment::kCentre, LimitText(interval.hi), kBlack);
}

// The axis of the upper part runs from left to right, that of the plot upwards.
void Painter::AddRAxes() {
  AddLine({kLeft, kAxisY}, {right_, kAxisY}, kAxisPen);
  constexpr std::pair<double, const char*> kLabels[] = {
      {-1, "-1"}, {-.5, "-.5"}, {0, "0"}, {.5, ".5"}, {1, "1"}};
  for (const auto& [r, label] : kLabels) {
    const double x = AcrossR(r);
    AddLine({x, kAxisY}, {x, kAxisY + kTick}, kAxisPen);
    AddText({x, kAxisY + kLabelBelowAxis}, TextAlignment::kCentre, label, kDarkGrey);
    const double y = UpR(r);
    AddLine({kLeft - kTick, y}, {kLeft, y}, kAxisPen);
    AddText({kLeft - 8, y + kHalfLetter}, TextAlignment::kRight, label, kDarkGrey);
  }
  AddText({12, UpR(.25) + kHalfLetter}, TextAlignment::kCentre, "r", kBlack, 12, /*bold=*/true);
}

void Painter::AddNAxis() {
  for (const std::int64_t N : {4, 10, 30, 100, 300, 1000}) {
    const double x = AcrossN(N);
    AddLine({x, bottom_}, {x, bottom_ + kTick}, kAxisPen);
    AddText({x, bottom_ + kLabelBelowAxis}, TextAlignment::kCentre, Str(N, ""), kDarkGrey);
  }
  AddText({(kLeft + right_) / 2, drawing_.height - 10}, TextAlignment::kCentre, "N", kBlack, 12,
          /*bold=*/true);
}

void Painter::AddPlot() {
  AddTitle(134, "The same r at every N");
  AddNAxis();
  for (const double x : {kLeft, right_}) AddLine({x, kTop}, {x, bottom_}, kFramePen);
  for (const double y : {kTop, bottom_}) AddLine({kLeft, y}, {right_, y}, kFramePen);
  if (r_.has_value()) AddBand();
  if (r_.has_value()) AddLine({kLeft, UpR(*r_)}, {right_, UpR(*r_)}, kRPen);
  AddLine({kLeft, UpR(0)}, {right_, UpR(0)}, kZeroPen);
  AddCurve();
  if (N_.has_value()) AddN();
}

void Painter::AddBand() {
  std::vector<Point> upper(kStations);
  std::vector<Point> lower(kStations);
  // The outline of the band.
  std::vector<Point> outline(2 * kStations);
  for (std::size_t i = 0; i < kStations; ++i) {
    const Interval interval = IntervalBetween(*r_, Stations()[i]);
    const double x = Across(static_cast<double>(i) / (kStations - 1));
    outline[i] = upper[i] = {x, UpR(interval.hi)};
    outline[2 * kStations - 1 - i] = lower[i] = {x, UpR(interval.lo)};
  }
  Add(Drawing::Polygon{std::move(outline), kPaleRed});
  Add(Drawing::Polyline{std::move(lower), kBandPen});
  Add(Drawing::Polyline{std::move(upper), kBandPen});
}

// Adds the curve of the r whose p is .05, and its label, which leaves room for the band of a small
// r.
void Painter::AddCurve() {
  constexpr double kSmallR = .3;
  std::vector<Point> curve;
  curve.reserve(Thresholds().size());
  for (const Threshold& threshold : Thresholds()) {
    curve.push_back({Across(threshold.along), UpR(threshold.r)});
  }
  const bool has_room_above = r_.has_value() && *r_ >= kSmallR;
  const double y = has_room_above ? curve.back().y - 8 : UpR(0) + 22;
  AddText({right_ - 4, y}, TextAlignment::kRight, "p = .05", kBlue);
  Add(Drawing::Polyline{std::move(curve), kPPen});
}

void Painter::AddN() {
  const double x = AcrossN(*N_);
  AddLine({x, kTop}, {x, bottom_}, kNPen);
  std::string label = "N = " + Str(*N_, "");
  constexpr double kHalfLetterWidth = 3.6;
  const double half = kHalfLetterWidth * static_cast<double>(label.size());
  AddText({std::clamp(x, kLeft + half, right_ - half), bottom_ - 6}, TextAlignment::kCentre,
          std::move(label), kBlack, 11, /*bold=*/true);
  const Interval interval = ComputeInterval(*r_, *N_);
  AddBar({x, UpR(interval.lo)}, {x, UpR(interval.hi)}, {6, 0}, {x, UpR(*r_)});
}

bool IsDrawable(double length) { return std::isfinite(length) && length >= kSmallestBox; }

}  // namespace

Drawing DrawIntervalChart(const std::optional<Calculation>& last, double width, double height) {
  if (!IsDrawable(width) || !IsDrawable(height)) return {};
  return Painter(last, width, height).Draw();
}

std::string DescribeIntervalChart(const std::optional<Calculation>& last) {
  const std::optional<std::int64_t> N = NOf(last);
  if (!N.has_value()) return "No result yet.";
  const Interval interval = ComputeInterval(last->r, *N);
  const std::optional<std::int64_t> from = SmallestSignificantN(last->r);
  // As many decimals as the field of r can hold.
  return "95% CI of r " + LimitText(interval.lo) + " to " + LimitText(interval.hi) +
         " at r = " + Format(last->r, ".000##") + " and N = " + Str(*N, "") + ". " +
         (from.has_value() ? "p is below .05 from N = " + Str(*from, "") + " on."
                           : "p stays above .05 up to N = " + Str(kHighestN, "") + ".");
}

std::vector<std::vector<std::string>> TabulateIntervalChart(
    const std::optional<Calculation>& last) {
  const std::optional<double> r = ROf(last);
  if (!r.has_value()) return {};
  std::vector<std::vector<std::string>> rows{{"N", "95% CI of r", "p"}};
  for (const std::int64_t N : {10, 30, 100, 300, 1000}) {
    const Interval interval = ComputeInterval(*r, N);
    rows.push_back({Str(N, ""), LimitText(interval.lo) + " to " + LimitText(interval.hi),
                    Format(ComputeP(ComputeT(*r, N), N), ".00000")});
  }
  return rows;
}

}  // namespace vamo

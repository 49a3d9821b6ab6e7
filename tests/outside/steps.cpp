// What the tests from outside do again and again.
#include "steps.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace vamo {
namespace {

const Key kEscapeKey = Key::Character(std::string(1, kEscape));

std::string Number(const char* format, double number) {
  char text[64];
  std::snprintf(text, sizeof text, format, number);
  return text;
}

// The same without the 0 in front of the point, behind a sign or not.
std::string Decimals(const char* format, double number) {
  std::string text = Number(format, number);
  const std::size_t first = text.find_first_not_of("+-");
  if (text.compare(first, 2, "0.") == 0) text.erase(first, 1);
  return text;
}

// The share of Student's density within -t and t: in the angle of which t is the tangent times
// sqrt(df), the density is a power of the cosine. Simpson's rule, relative to the whole.
double CentralShare(double t, double df) {
  constexpr int kSteps = 4000;
  constexpr double kRightAngle = 1.57079632679489661923;
  const auto area = [&](double to) {
    const double step = to / kSteps;
    double sum = 0;
    for (int i = 0; i <= kSteps; ++i) {
      const int weight = i == 0 || i == kSteps ? 1 : (i % 2 == 1 ? 4 : 2);
      sum += weight * std::pow(std::cos(i * step), df - 1);
    }
    return sum * step / 3;
  };
  return area(std::atan(t / std::sqrt(df))) / area(kRightAngle);
}

}  // namespace

std::ostream& operator<<(std::ostream& stream, const Results& results) {
  return stream << "t = " << results.t << ", p = " << results.p
                << ", interval = " << results.interval << ", z = " << results.z;
}

Results ExpectedResults(double r, std::int64_t n) {
  const auto df = static_cast<double>(n - 2);
  const double t = r * std::sqrt(df / (1 - r * r));
  const double p = r == 0 ? .99999 : std::max(1 - CentralShare(t, df), .00001);
  const double z = std::atanh(r);
  const double half = 1.96 / std::sqrt(static_cast<double>(n - 3));
  return {Decimals("%.2f", t), Decimals("%.5f", p),
          Decimals("%+.3f", std::tanh(z - half)) + " to " + Decimals("%+.3f", std::tanh(z + half)),
          Number("%.3f", z)};
}

Results ShownResults(OutsideUser& user) {
  return {user.FindDescribed("Student's t").Text(), user.FindDescribed("two-tailed p").Text(),
          user.FindDescribed("95% confidence interval of r").Text(), FieldText(user, "Fisher's z")};
}

std::string FieldText(OutsideUser& user, std::string_view field) {
  return user.Find(Role::kText, field).Text();
}

bool Warned(OutsideUser& user) {
  return user.FindDescribed("range of N").HasState(ATSPI_STATE_SHOWING);
}

void Retype(OutsideUser& user, std::string_view field, std::string_view text) {
  user.Click(Role::kText, field);
  user.PressKey(Key::Command("a"));
  user.Type(text);
}

int InControlWindow(const Environment& settings, const std::function<void(OutsideUser&)>& journey,
                    const std::vector<std::string>& command) {
  bool completed = false;
  const auto dismiss_splash_and_go_on = [&](OutsideUser& user) {
    user.PressKey(kEscapeKey);
    ASSERT_EQ(user.ActiveTitle(), "Vamo");
    journey(user);
    completed = true;
  };
  const int status = RunProgramWith(settings, dismiss_splash_and_go_on, command);
  EXPECT_TRUE(completed);
  return status;
}

}  // namespace vamo

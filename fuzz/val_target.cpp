// Val of any text, against the C library's reading of the part that counts.
#include <cmath>
#include <cstdlib>
#include <limits>
#include <string>
#include <string_view>

#include "target.h"
#include "toolkit/conversions.h"

namespace vamo {
namespace {

// The part of a text that is the number, as the C library would be given it.
std::string NumberIn(std::string_view text) {
  std::size_t at = 0;
  while (at < text.size() && std::string_view(" \t\r\n").find(text[at]) != std::string_view::npos) {
    ++at;
  }
  std::string number;
  if (at < text.size() && (text[at] == '-' || text[at] == '+')) number += text[at++];
  bool point = false;
  for (; at < text.size(); ++at) {
    if (text[at] == '.' ? point : text[at] < '0' || text[at] > '9') break;
    point = point || text[at] == '.';
    number += text[at];
  }
  return number;
}

// This process never sets a locale, so the decimal mark is the point.
double Expected(std::string_view text) {
  constexpr double kLargest = std::numeric_limits<double>::max();
  const double value = std::strtod(NumberIn(text).c_str(), nullptr);
  if (value == 0) return 0;
  return std::isinf(value) ? std::copysign(kLargest, value) : value;
}

void CheckTruncate(double value) {
  const auto whole = static_cast<double>(Truncate(value));
  if (std::fabs(value) > 9e18) return Require(std::fabs(whole) >= 9e18, "held to the limits");
  Require(std::fabs(value - whole) < 1 && std::fabs(whole) <= std::fabs(value), "toward zero");
}

}  // namespace

void TryInput(Input input) {
  const std::string_view text = input.Rest();
  const double value = Val(text);
  Require(std::isfinite(value), "finite");
  Require(value == Expected(text), "the number at the start of the text");
  Require(value != 0 || !std::signbit(value), "no negative zero");
  CheckTruncate(value);
}

}  // namespace vamo

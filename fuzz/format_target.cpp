// Format of any number under any mask: what holds of the text, and that it reads back.
#include <algorithm>
#include <bit>
#include <cmath>
#include <string>
#include <string_view>

#include "target.h"
#include "toolkit/conversions.h"

namespace vamo {
namespace {

constexpr auto kNone = std::string_view::npos;

// What a mask asks for behind the point.
struct Decimals {
  std::size_t least = 0;
  std::size_t most = 0;
};

Decimals DecimalsOf(std::string_view mask) {
  Decimals decimals;
  const std::size_t point = mask.find('.');
  if (point == kNone) return decimals;
  for (const char c : mask.substr(point)) {
    if (c == '#' || c == '0') ++decimals.most;
    if (c == '0') decimals.least = decimals.most;
  }
  return decimals;
}

void CheckShape(double value, std::string_view mask, std::string_view text) {
  Require(text.find_first_not_of("+-.0123456789") == kNone, "digits, a point and a sign");
  Require(text.find_last_of("+-") == kNone || text.find_last_of("+-") == 0, "one sign, in front");
  const char first = text.empty() ? '0' : text[0];
  Require(first != '-' || value < 0, "a minus for a negative value alone");
  const bool wanted = mask.find('+') != kNone;
  Require(first != '+' || (value > 0 && wanted), "a plus where it is wanted");
  Require(!wanted || (value != 0) == (first == '+' || first == '-'), "the side of zero");
  constexpr std::size_t kMostWholeDigits = 309;
  Require(text.size() <= mask.size() + kMostWholeDigits + 1, "no longer than number and mask");

  const std::size_t point = text.find('.');
  Require((point == kNone) == (mask.find('.') == kNone), "the point of the mask");
  const std::size_t decimals = point == kNone ? 0 : text.size() - point - 1;
  const auto [least, most] = DecimalsOf(mask);
  Require(decimals >= least && decimals <= most, "as many decimals as the mask has");
}

// Where a double has all the digits of the text, the text says the value to half a unit, and the
// text of what it says is the text itself.
void CheckReadingBack(double value, std::string_view mask, const std::string& text) {
  const std::size_t most = DecimalsOf(mask).most;
  const double read = Val(text);
  if (most > 15 || std::fabs(value) * std::pow(10.0, static_cast<double>(most)) > 1e15) return;
  const double half = 0.5 * std::pow(10.0, -static_cast<double>(most));
  Require(std::fabs(read - value) <= half + std::fabs(value) * 1e-15, "rounded to its decimals");
  if (read != 0) Require(Format(read, mask) == text, "the same text once more");
}

void CheckInteger(std::int64_t value, std::string_view mask) {
  const std::string text = Str(value, mask);
  if (mask.empty()) Require(text == std::to_string(value), "plain digits without a mask");
}

}  // namespace

void TryInput(Input input) {
  const std::uint64_t number = input.Number(8);
  const auto value = std::bit_cast<double>(number);
  const std::string_view mask = input.Rest();
  const std::string text = Format(value, mask);
  CheckInteger(static_cast<std::int64_t>(number), mask);
  if (std::isnan(value)) {
    Require(text == "n/a", "not-a-number");
  } else if (std::isinf(value)) {
    const std::string_view plus = mask.find('+') == kNone ? "" : "+";
    Require(text == std::string(value < 0 ? "-" : plus) + "inf", "infinity");
  } else {
    CheckShape(value, mask, text);
    CheckReadingBack(value, mask, text);
  }
}

}  // namespace vamo

// The conversions. They use only the digits that the C library reads and writes, never its decimal
// mark, the one thing that depends on the process's locale.
#include "toolkit/conversions.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <limits>

#include "toolkit/utf8.h"

namespace vamo {
namespace {

// No double has more decimals than this; any further ones are zeros.
constexpr std::size_t kMostDecimals = 1074;

// No double, and no tie between two of them, has more significant digits than this.
constexpr std::size_t kMostSignificantDigits = 768;

struct Layout {
  std::size_t least_whole = 0;
  std::size_t least_decimals = 0;
  std::size_t decimals = 0;
  bool point = false;
  bool sign = false;
};

Layout ParseMask(std::string_view mask) {
  Layout layout;
  for (const char c : mask) {
    if (c == '.') {
      layout.point = true;
    } else if (c == '+') {
      layout.sign = true;
    } else if (c == '0' || c == '#') {
      if (layout.point) {
        ++layout.decimals;
        if (c == '0') {
          layout.least_decimals = layout.decimals;
        }
      } else if (c == '0' || layout.least_whole > 0) {
        ++layout.least_whole;
      }
    }
  }
  return layout;
}

struct Digits {
  std::string whole;  // empty for 0
  std::string decimals;
};

Digits RoundToDecimals(double magnitude, std::size_t decimals) {
  // Room for the 309 whole digits of the largest double, a decimal mark of several bytes and the
  // decimals.
  std::array<char, 309 + 17 + kMostDecimals> buffer{};
  const std::size_t exact = std::min(decimals, kMostDecimals);
  const int length =
      std::snprintf(buffer.data(), buffer.size(), "%.*f", static_cast<int>(exact), magnitude);
  const std::string_view text(buffer.data(), static_cast<std::size_t>(length));
  const std::string_view whole = text.substr(0, text.find_first_not_of("0123456789"));
  Digits digits{std::string(whole == "0" ? "" : whole),
                std::string(text.substr(text.size() - exact))};
  digits.decimals.resize(decimals, '0');
  return digits;
}

bool IsZero(const Digits& digits) {
  return digits.whole.empty() && digits.decimals.find_first_not_of('0') == std::string::npos;
}

void DropTrailingZeros(std::string& decimals, std::size_t least) {
  const std::size_t last = decimals.find_last_not_of('0');
  const std::size_t needed = last == std::string::npos ? 0 : last + 1;
  decimals.resize(std::max(needed, least));
}

std::string_view SignText(bool negative, bool plus_shown) {
  if (negative) {
    return "-";
  }
  return plus_shown ? "+" : "";
}

// An unsigned decimal number while it is read, digit by digit.
class Decimal {
 public:
  void Append(char digit, bool after_point) {
    if (after_point) {
      --exponent_;
    }
    if (digit == '0' && digits_.empty()) {
      return;
    }
    if (digits_.size() < kMostSignificantDigits) {
      digits_.push_back(digit);
    } else {
      ++exponent_;
      rest_ = rest_ || digit != '0';
    }
  }

  double Value() const {
    if (digits_.empty()) {
      return 0.0;
    }
    // Rounding only needs to know whether any of the omitted digits is not zero.
    const std::string text = digits_ + (rest_ ? "1e" : "0e") + std::to_string(exponent_ - 1);
    return std::min(std::strtod(text.c_str(), nullptr), std::numeric_limits<double>::max());
  }

 private:
  std::string digits_;
  std::int64_t exponent_ = 0;
  bool rest_ = false;
};

double UnsignedVal(std::string_view text) {
  Decimal decimal;
  bool point = false;
  for (const char c : text) {
    if (c == '.' && !point) {
      point = true;
    } else if (c >= '0' && c <= '9') {
      decimal.Append(c, point);
    } else {
      break;
    }
  }
  return decimal.Value();
}

// Returns U+FFFD if the text does not start with a well-formed character.
std::int64_t FirstCodePoint(std::string_view text) {
  const std::size_t length = SequenceLength(text);
  if (length == 0) {
    return 0xFFFD;
  }
  const auto byte = [&](std::size_t i) -> std::int64_t {
    return static_cast<unsigned char>(text[i]);
  };
  if (length == 1) {
    return byte(0);
  }
  std::int64_t code = byte(0) & (0x7F >> length);
  for (std::size_t i = 1; i < length; ++i) {
    code = code << 6 | (byte(i) & 0x3F);
  }
  return code;
}

}  // namespace

std::string Format(double value, std::string_view mask) {
  if (std::isnan(value)) {
    return "n/a";
  }
  const Layout layout = ParseMask(mask);
  if (std::isinf(value)) {
    return std::string(SignText(value < 0, layout.sign)) + "inf";
  }

  Digits digits = RoundToDecimals(std::fabs(value), layout.decimals);
  const bool has_sign = layout.sign ? value != 0 : !IsZero(digits);
  std::string text(has_sign ? SignText(value < 0, layout.sign) : "");
  DropTrailingZeros(digits.decimals, layout.least_decimals);
  if (digits.whole.size() < layout.least_whole) {
    text.append(layout.least_whole - digits.whole.size(), '0');
  }
  text += digits.whole;
  if (layout.point) {
    text += '.';
  }
  return text + digits.decimals;
}

double Val(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(" \t\r\n"), text.size()));
  if (text.empty()) {
    return 0.0;
  }
  const bool negative = text.front() == '-';
  if (negative || text.front() == '+') {
    text.remove_prefix(1);
  }
  const double magnitude = UnsignedVal(text);
  return negative ? 0.0 - magnitude : magnitude;  // never a negative zero
}

std::string Str(std::int64_t value, std::string_view mask) {
  return mask.empty() ? std::to_string(value) : Format(static_cast<double>(value), mask);
}

std::int64_t Asc(std::string_view text) { return text.empty() ? -1 : FirstCodePoint(text); }

std::int64_t Truncate(double value) {
  constexpr double kTwoTo63 = 9223372036854775808.0;
  if (std::isnan(value)) {
    return 0;
  }
  if (value >= kTwoTo63) {
    return std::numeric_limits<std::int64_t>::max();
  }
  if (value < -kTwoTo63) {
    return std::numeric_limits<std::int64_t>::min();
  }
  return static_cast<std::int64_t>(value);
}

double Sqrt(double value) { return std::sqrt(value); }
double Log(double value) { return std::log(value); }
double Exp(double value) { return std::exp(value); }
double Sin(double value) { return std::sin(value); }
double Cos(double value) { return std::cos(value); }
double ATan(double value) { return std::atan(value); }
double Floor(double value) { return std::floor(value); }

}  // namespace vamo

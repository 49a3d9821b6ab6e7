// Conversions between numbers and text, and the mathematical functions of the calculation.
#ifndef VAMO_TOOLKIT_CONVERSIONS_H_
#define VAMO_TOOLKIT_CONVERSIONS_H_

#include <cstdint>
#include <string>
#include <string_view>

namespace vamo {

// All functions here are pure: they have no state, raise no exception for any value or text, and do
// not depend on the locale. The decimal mark is always a point.

// Formats `value` under `mask`, rounded to the mask's decimals from the exact binary value, ties to
// even. The characters of a mask:
//   0  a digit that is always written; # a digit written only if the number has one. So the first 0
//      before the point sets the minimum of whole digits, and the last 0 after it that of decimals.
//   .  the point, always written; only the first one counts.
//   +  a sign in front, "+" as well as "-".
// Other characters are skipped. With a +, the sign is that of the value, not of its rounded digits,
// so that the text tells on which side of zero the value lies: "-.000" just below zero, ".000" for
// zero itself. Without a +, a negative value has a "-" unless it rounds to zero. Whole digits for
// which the mask has no position are written all the same: 1 under "+.000" is "+1.000".
// Not-a-number is "n/a"; the infinities are "inf" ("+inf" with a +) and "-inf".
std::string Format(double value, std::string_view mask);

// Reads the number at the start of `text`: blanks, one sign, digits with at most one point. The
// first other character ends it; exponents are not read. The result is correctly rounded. Without a
// digit it is 0; for a number too large for a double it is the largest finite one.
double Val(std::string_view text);

// Returns the decimal digits of `value` or, if the mask is not empty, Format of the nearest double.
std::string Str(std::int64_t value, std::string_view mask);

// Returns the code point of the first character of UTF-8 `text`: -1 if the text is empty, U+FFFD if
// it does not start with a well-formed character.
std::int64_t Asc(std::string_view text);

// Truncates toward zero and clamps to the range of the integer; not-a-number gives 0.
std::int64_t Truncate(double value);

// Functions on IEEE 754 numbers; angles are in radians. Outside its domain a function gives
// not-a-number or an infinity, and not-a-number gives not-a-number.
double Sqrt(double value);
double Log(double value);
double Exp(double value);
double Sin(double value);
double Cos(double value);
double ATan(double value);
double Floor(double value);

}  // namespace vamo

#endif  // VAMO_TOOLKIT_CONVERSIONS_H_

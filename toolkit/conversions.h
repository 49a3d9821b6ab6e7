// Numbers to text, text to numbers, and the mathematics that the calculation rests on.
#ifndef VAMO_TOOLKIT_CONVERSIONS_H_
#define VAMO_TOOLKIT_CONVERSIONS_H_

#include <cstdint>
#include <string>
#include <string_view>

namespace vamo {

// All functions here are pure: no state, no exception for any value or text, and no result depends
// on a locale. The decimal mark is the point in both directions.

// The text of `value` under `mask`, rounded to the mask's decimals from the exact binary value, a
// tie to the even digit. The characters of a mask:
//   0  a digit that is always there; # a digit only where the number has one. So the first 0 before
//      the point sets the fewest whole digits and the last 0 after it the fewest decimals.
//   .  the point, always written; the first one counts.
//   +  a sign in front, "+" as well as "-".
// Other characters are skipped. Under a mask with a +, the sign follows the value and not its
// rounded digits, so that the text tells on which side of zero it lies: "-.000" just below it,
// ".000" for zero itself. Without one, a negative value has its "-" unless it rounds to zero. Whole
// digits for which the mask has no position are written all the same: 1 under "+.000" is "+1.000".
// Not-a-number is "n/a"; the infinities are "inf" ("+inf" with a +) and
// "-inf".
std::string Format(double value, std::string_view mask);

// The number at the start of `text`: blanks, one sign, digits with at most one point. The first
// other character ends it; there is no exponent. Correctly rounded. No digit at all gives 0, and a
// number too large for a double gives the largest finite one.
double Val(std::string_view text);

// The decimal digits of `value`; with a mask that is not empty, Format of the nearest double.
std::string Str(std::int64_t value, std::string_view mask);

// The code point of the first character of UTF-8 `text`: -1 for the empty text, U+FFFD where the
// text does not start with a well-formed character.
std::int64_t Asc(std::string_view text);

// Toward zero. Held to the limits of the integer; not-a-number gives 0.
std::int64_t Truncate(double value);

// The functions of IEEE 754 arithmetic, angles in radians. Outside its domain a function gives
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

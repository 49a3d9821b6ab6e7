// What a text becomes that reaches a field as a whole or with another script's digits.
#ifndef VAMO_TOOLKIT_TEXT_RECEIVED_TEXT_H_
#define VAMO_TOOLKIT_TEXT_RECEIVED_TEXT_H_

#include <string>
#include <string_view>

namespace vamo {

// All of these take valid UTF-8 and are linear in its length.

// Decimal digits of every script as 0 to 9, and the Arabic decimal separator as a point.
std::string WithAsciiDigits(std::string_view text);

// Tabs, line breaks and spaces of every width as plain spaces: a tab would push the rest of the
// text out of a narrow field.
std::string WithPlainSpaces(std::string_view text);

// A point for the comma of a text that is a number with one comma and no point, between spaces
// perhaps; any other text as it is.
std::string WithDecimalPoint(std::string text);

}  // namespace vamo

#endif  // VAMO_TOOLKIT_TEXT_RECEIVED_TEXT_H_

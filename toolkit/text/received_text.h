// Converts text that reaches a field as a whole or with digits of another script.
#ifndef VAMO_TOOLKIT_TEXT_RECEIVED_TEXT_H_
#define VAMO_TOOLKIT_TEXT_RECEIVED_TEXT_H_

#include <string>
#include <string_view>

namespace vamo {

// All functions take valid UTF-8 and linear time.

// Replaces the decimal digits of every script with 0 to 9, and the Arabic decimal separator with a
// point.
std::string WithAsciiDigits(std::string_view text);

// Replaces tabs, line breaks and spaces of every width with plain spaces: a tab would push the rest
// of the text out of a narrow field.
std::string WithPlainSpaces(std::string_view text);

// Replaces the comma with a point if the text is a number with one comma and no point, with or
// without spaces around it; leaves any other text as it is.
std::string WithDecimalPoint(std::string text);

}  // namespace vamo

#endif  // VAMO_TOOLKIT_TEXT_RECEIVED_TEXT_H_

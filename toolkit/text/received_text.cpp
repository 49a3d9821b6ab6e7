#include "toolkit/text/received_text.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>

#include "toolkit/conversions.h"
#include "toolkit/utf8.h"

namespace vamo {
namespace {

// The zeros of the scripts that have their own decimal digits, in the order of their code points,
// as of Unicode 15. The other nine digits follow each zero.
constexpr std::int64_t kZeros[] = {
    0x00660, 0x006F0, 0x007C0, 0x00966, 0x009E6, 0x00A66, 0x00AE6, 0x00B66, 0x00BE6, 0x00C66,
    0x00CE6, 0x00D66, 0x00DE6, 0x00E50, 0x00ED0, 0x00F20, 0x01040, 0x01090, 0x017E0, 0x01810,
    0x01946, 0x019D0, 0x01A80, 0x01A90, 0x01B50, 0x01BB0, 0x01C40, 0x01C50, 0x0A620, 0x0A8D0,
    0x0A900, 0x0A9D0, 0x0A9F0, 0x0AA50, 0x0ABF0, 0x0FF10, 0x104A0, 0x10D30, 0x11066, 0x110F0,
    0x11136, 0x111D0, 0x112F0, 0x11450, 0x114D0, 0x11650, 0x116C0, 0x11730, 0x118E0, 0x11950,
    0x11C50, 0x11D50, 0x11DA0, 0x11F50, 0x16A60, 0x16AC0, 0x16B50, 0x1D7CE, 0x1D7D8, 0x1D7E2,
    0x1D7EC, 0x1D7F6, 0x1E140, 0x1E2F0, 0x1E4D0, 0x1E950, 0x1FBF0};
constexpr std::int64_t kArabicDecimalSeparator = 0x66B;

// Replaces each character for which `replacement` returns a character other than 0.
template <class Replacement>
std::string Replaced(std::string_view text, const Replacement& replacement) {
  std::string result;
  result.reserve(text.size());
  for (const std::string_view character : Characters(text)) {
    const char plain = replacement(Asc(character));
    if (plain != 0) {
      result += plain;
    } else {
      result += character;
    }
  }
  return result;
}

char AsciiDigit(std::int64_t code) {
  if (code < kZeros[0]) return 0;
  if (code == kArabicDecimalSeparator) return '.';
  const auto* const above = std::upper_bound(std::begin(kZeros), std::end(kZeros), code);
  const std::int64_t value = code - *(above - 1);
  return value < 10 ? static_cast<char>('0' + value) : '\0';
}

char PlainSpace(std::int64_t code) {
  const bool control = (code >= 0x09 && code <= 0x0D) || code == 0x85;
  const bool wide = (code >= 0x2000 && code <= 0x200A) || code == 0x3000;
  const bool separator = code == 0x2028 || code == 0x2029;
  const bool other = code == 0xA0 || code == 0x1680 || code == 0x202F || code == 0x205F;
  return control || wide || separator || other ? ' ' : 0;
}

}  // namespace

std::string WithAsciiDigits(std::string_view text) { return Replaced(text, AsciiDigit); }

std::string WithPlainSpaces(std::string_view text) { return Replaced(text, PlainSpace); }

std::string WithDecimalPoint(std::string text) {
  constexpr std::string_view kDigits = "0123456789";
  const std::size_t comma = text.find(',');
  if (comma == std::string::npos) return text;
  std::string_view number = text;
  number.remove_prefix(std::min(number.find_first_not_of(' '), number.size()));
  number.remove_suffix(number.size() - 1 - number.find_last_not_of(' '));
  if (number.starts_with('+') || number.starts_with('-')) number.remove_prefix(1);
  std::string digits(number);
  digits.erase(digits.find(','), 1);
  if (!digits.empty() && digits.find_first_not_of(kDigits) == std::string::npos) text[comma] = '.';
  return text;
}

}  // namespace vamo

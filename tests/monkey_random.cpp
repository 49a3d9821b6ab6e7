// What a monkey's choices come from.
#include "monkey_random.h"

namespace vamo {
namespace {

using std::string_view_literals::operator""sv;

constexpr std::string_view kPieces[] = {
    "0"sv,    "1"sv,    "5"sv,    "9"sv,      "."sv,        "-"sv,    "+"sv,    " "sv,
    "\t"sv,   "\r\n"sv, "\n"sv,   "\r"sv,     "\0"sv,       ","sv,    "e5"sv,   "abc"sv,
    "1000"sv, "1001"sv, ".999"sv, ".99999"sv, "1e300"sv,    "½"sv,    "é"sv,    "漢"sv,
    "😀"sv,    "\xFF"sv, "\xC3"sv, "\x80"sv,   "\xED\xA0"sv, "\x7F"sv, "\x1B"sv, "123456789"sv,
};

}  // namespace

std::string Random::Number() {
  switch (Below(6)) {
    case 0:
      return std::to_string(Between(-2, 6));
    case 1:
      return std::to_string(Between(995, 1005));
    case 2:
      return std::to_string(Between(4, 1000));
    case 3:
      return "." + std::to_string(Between(0, 999999));
    case 4:
      return std::to_string(Between(-1, 1)) + "." + std::to_string(Between(0, 999));
    default:
      return std::to_string(Between(0, 9)) + std::string(Below(25), '9');
  }
}

std::string Random::OddText() {
  if (OneIn(3)) return Number();
  std::string text;
  if (OneIn(50)) {
    const std::string_view piece = Pick(kPieces);
    for (std::size_t count = Below(1000); count > 0; --count) text += piece;
    return text;
  }
  for (std::size_t count = Below(5) + 1; count > 0; --count) text += Pick(kPieces);
  return text;
}

}  // namespace vamo

#include "input.h"

#include <cstdlib>
#include <iostream>

namespace vamo {
namespace {

using std::string_view_literals::operator""sv;

constexpr std::string_view kPieces[] = {
    "0"sv,          "1"sv,    "5"sv,    "9"sv,      "."sv,        "-"sv,    "+"sv,    " "sv,
    "\t"sv,         "\r\n"sv, "\n"sv,   "\r"sv,     "\0"sv,       ","sv,    "e5"sv,   "abc"sv,
    "1000"sv,       "1001"sv, ".999"sv, ".99999"sv, "1e300"sv,    "½"sv,    "é"sv,    "\u6F22"sv,
    "\U0001F600"sv, "\xFF"sv, "\xC3"sv, "\x80"sv,   "\xED\xA0"sv, "\x7F"sv, "\x1B"sv, "123456789"sv,
};

// A range of whole numbers, and the texts before and after them. Three decimals that end with a
// zero are what the program itself writes for a position of r's slider.
struct NumberKind {
  std::string_view before;
  std::int64_t least;
  std::int64_t greatest;
  std::string_view behind;
};
constexpr NumberKind kNumbers[] = {
    {"", -2, 6, ""},    {"", 995, 1005, ""},  {"", 4, 1000, ""}, {"", 0, 9, "99999999999999999999"},
    {".", 10, 99, "0"}, {".", 0, 9999, "99"}, {".", 0, 999, ""}, {"0.", 0, 999, ""},
    {"-", 0, 2, ".5"},  {"1.", 0, 999, ""}};

}  // namespace

void Require(bool holds, std::string_view what) {
  if (holds) return;
  std::cerr << "does not hold: " << what << std::endl;
  std::abort();
}

std::string_view Input::Take(std::size_t count) {
  const std::string_view taken = rest_.substr(0, count);
  rest_.remove_prefix(taken.size());
  return taken;
}

std::uint8_t Input::Byte() {
  const std::string_view byte = Take(1);
  return byte.empty() ? std::uint8_t{0} : static_cast<std::uint8_t>(byte[0]);
}

std::uint64_t Input::Number(int bytes) {
  std::uint64_t number = 0;
  for (; bytes > 0; --bytes) number = number << 8U | Byte();
  return number;
}

std::string Input::WrittenNumber() {
  const auto [before, least, greatest, behind] = Pick(kNumbers);
  return std::string(before) + std::to_string(Between(least, greatest)) + std::string(behind);
}

std::string Input::OddText() {
  constexpr std::size_t kMostPieces = 5;
  constexpr std::size_t kMuch = 1000;
  const std::size_t kind = Below(32);
  if (kind < 10) return WrittenNumber();
  if (kind < 14) return std::string(Take(Below(32)));
  std::string text;
  if (kind == 14) {
    const std::string_view piece = Pick(kPieces);
    for (std::size_t count = Below(kMuch); count > 0; --count) text += piece;
  } else {
    for (std::size_t count = Below(kMostPieces) + 1; count > 0; --count) text += Pick(kPieces);
  }
  return text;
}

}  // namespace vamo

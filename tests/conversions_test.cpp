// How numbers become the texts of labels and fields, and how texts are read as numbers.
#include "toolkit/conversions.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <string>

#include "numbers.h"
#include "toolkit/object/property_stream.h"

namespace vamo {
namespace {

constexpr double kLargest = std::numeric_limits<double>::max();
constexpr double kTiniest = std::numeric_limits<double>::denorm_min();

// `head`, then `digit` `count` times, then `tail`.
std::string Long(std::string_view head, std::size_t count, char digit, std::string_view tail = "") {
  std::string text(head);
  text.append(count, digit);
  return text.append(tail);
}

std::uint64_t Bits(double value) { return BitCast<std::uint64_t>(value); }

TEST(FormatTest, WritesANumberUnderAMask) {
  const struct {
    double value;
    std::string mask, text;
  } rows[] = {
      // A sign position shows the sign of the value, not of its rounded digits.
      {-0.0, "+.000", ".000"},
      {0.0004, "+.000", "+.000"},
      {-0.0004, "+.000", "-.000"},
      {-0.0004, ".000", ".000"},
      {-0.5, ".000", "-.500"},
      {-0.25, ".0+0", "-.25"},
      // Whole digits beyond the mask are kept.
      {-1, "+.000", "-1.000"},
      {0.9996, ".000", "1.000"},
      {0x1p70, ".", "1180591620717411303424."},
      // The exact binary value is rounded, a tie to the even digit.
      {0.125, ".00", ".12"},
      {0.375, ".00", ".38"},
      {2.5, "0", "2"},
      {1.005, ".00", "1.00"},  // lies below its decimal text
      {0.1, Long(".", 60, '0'), ".100000000000000005551115123125782702118158340454101562500000"},
      {kNaN, "", "n/a"},
      {-kNaN, "+.000", "n/a"},
      {kInfinity, ".000", "inf"},
      {kInfinity, "+.000", "+inf"},
      {-kInfinity, ".000", "-inf"},
      {7, "000", "007"},
      {7, "0#", "07"},
      {0, "##", ""},
      {1.5, "0.#0#", "1.50"},
      {12.34, "0.0.0", "12.34"},
      {1234.5, "#,##0.0 %\xC3", "1234.5"},
      {12.3, "", "12"},
      {0.5, Long(".", 200'000, '0'), Long(".5", 199'999, '0')},
      {3, Long("", 200'000, '0'), Long("", 199'999, '0', "3")},
  };
  for (const auto& [value, mask, text] : rows) {
    EXPECT_EQ(Format(value, mask), text) << value << " under " << mask.substr(0, 20);
  }
  EXPECT_EQ(Format(kTiniest, Long(".", 2000, '#')).size(), 1u + 1074u);
  EXPECT_EQ(Format(-kLargest, ".0").size(), 1u + 309u + 2u);
}

TEST(ValTest, ReadsTheNumberAtTheStart) {
  const struct {
    std::string text;
    double value;
  } rows[] = {
      {"1000", 1000},
      {"5.", 5},
      {Long("", 900, '0', "7"), 7},
      {"  \t.25", 0.25},
      {"-.2", -0.2},
      {"+3", 3},
      {"- 3", 0},
      {"--3", 0},
      {"1e5", 1},
      {".5.5", 0.5},
      {"1,5", 1},
      {"0x10", 0},
      {"inf", 0},
      {"", 0},
      {"..5", 0},
      {"7\xC3\x28", 7},
      {{"1\0002", 3}, 1},
      // 2^53 + 1 lies half-way between two doubles; any further digit above 0 decides.
      {Long("9007199254740993.", 900, '0'), 9007199254740992.0},
      {Long("9007199254740993.", 900, '0', "1"), 9007199254740994.0},
      {Long("2.2250738585072011", 400, '0'), 2.2250738585072011},
      {Long(".", 323, '0', "3"), kTiniest},
      {Long(".", 323, '0', "2"), 0},
      {Long("1", 308, '0'), 1e308},
      {Long("-2", 308, '0'), -kLargest},
  };
  for (const auto& [text, value] : rows) {
    EXPECT_EQ(Bits(Val(text)), Bits(value)) << "\"" << text << "\"";
  }
  EXPECT_EQ(Bits(Val("-.000")), Bits(0.0)) << "zero has no sign";
}

TEST(RoundTripTest, EveryDoubleHasATextThatGivesItBack) {
  std::mt19937_64 random(1);
  const std::string mask = Long("0.", 1074, '#');
  for (int i = 0; i < 2000; ++i) {
    const double value = BitCast<double>(random());
    if (!std::isfinite(value)) continue;
    ASSERT_EQ(Bits(Val(Format(value, mask))), Bits(value)) << value;
  }
}

TEST(StrTest, DigitsOrMask) {
  EXPECT_EQ(Str(kMin, ""), "-9223372036854775808");
  EXPECT_EQ(Str(7, "+000.0"), "+007.0");
}

TEST(AscTest, CodeOfTheFirstCharacter) {
  EXPECT_EQ(Asc(""), -1);
  EXPECT_EQ(Asc({"\0", 1}), 0);
  EXPECT_EQ(Asc("9x"), 57);
  EXPECT_EQ(Asc("\xC2\x80"), 0x80);
  EXPECT_EQ(Asc("\xE2\x82\xAC!"), 0x20AC);
  EXPECT_EQ(Asc("\xF4\x8F\xBF\xBF"), 0x10FFFF);
  EXPECT_EQ(Asc("\xE2\x82"), 0xFFFD);
}

TEST(TruncateTest, TowardZeroAndSaturating) {
  EXPECT_EQ(Truncate(-9.7), -9);
  EXPECT_EQ(Truncate(0.9), 0);
  EXPECT_EQ(Truncate(kNaN), 0);
  EXPECT_EQ(Truncate(0x1p63), kMax);
  EXPECT_EQ(Truncate(std::nextafter(0x1p63, 0)), 9223372036854774784);
  EXPECT_EQ(Truncate(-kInfinity), kMin);
}

}  // namespace
}  // namespace vamo

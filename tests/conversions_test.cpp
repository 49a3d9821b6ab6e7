// Tests of the conversions: what the labels and fields show, and what is read back from them.
#include "toolkit/conversions.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <chrono>
#include <clocale>
#include <cmath>
#include <limits>
#include <locale>
#include <random>
#include <string>
#include <vector>

namespace vamo {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kLargest = std::numeric_limits<double>::max();
constexpr double kTiniest = std::numeric_limits<double>::denorm_min();
constexpr std::int64_t kMax = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t kMin = std::numeric_limits<std::int64_t>::min();

// `head`, then `digit` `count` times, then `tail`.
std::string Long(std::string_view head, std::size_t count, char digit, std::string_view tail = "") {
  std::string text(head);
  text.append(count, digit);
  return text.append(tail);
}

std::uint64_t Bits(double value) { return std::bit_cast<std::uint64_t>(value); }

struct FormatRow {
  double value;
  std::string mask;
  std::string text;
};

void ExpectFormats(const std::vector<FormatRow>& rows) {
  for (const FormatRow& row : rows) {
    EXPECT_EQ(Format(row.value, row.mask), row.text) << row.value << " under " << row.mask;
  }
}

TEST(FormatTest, MasksOfTheWindow) {
  ExpectFormats({
      {0, ".000", ".000"},
      {0.07, ".000", ".070"},
      {0.99, ".000", ".990"},
      {0, "##0.000", "0.000"},
      {0.5493061443, "##0.000", "0.549"},
      {6.1030338228, "##0.000", "6.103"},
      {0, "#####.00", ".00"},
      {3.0550504633, "#####.00", "3.06"},
      {7063.9402249, "#####.00", "7063.94"},
      {0.00001, ".00000", ".00001"},
      {0.99999, ".00000", ".99999"},
      {0.9999929289, ".00000", ".99999"},
      {0.5, "+.000", "+.500"},
      {-0.25, "+.000", "-.250"},
  });
}

TEST(FormatTest, ASignPositionFollowsTheValueAndNotItsDigits) {
  ExpectFormats({
      {-0.0, "+.000", ".000"},
      {0.0004, "+.000", "+.000"},
      {-0.0004, "+.000", "-.000"},
      {-0.0004, ".000", ".000"},
      {-0.0006, "+.000", "-.001"},
      {0.0006, "+.000", "+.001"},
      {-0.5, ".000", "-.500"},
      {-0.25, ".0+0", "-.25"},
  });
}

TEST(FormatTest, WholeDigitsBeyondTheMaskAreKept) {
  ExpectFormats({
      {1, "+.000", "+1.000"},
      {-1, "+.000", "-1.000"},
      {0.9999886782, "+.000", "+1.000"},
      {0.9996, ".000", "1.000"},
      {1234.5, "#.0", "1234.5"},
      {0x1p70, ".", "1180591620717411303424."},
  });
}

TEST(FormatTest, RoundsTheExactBinaryValue) {
  ExpectFormats({
      {0.125, ".00", ".12"},
      {0.375, ".00", ".38"},
      {0.5, "0", "0"},
      {1.5, "0", "2"},
      {2.5, "0", "2"},
      {1.005, ".00", "1.00"},  // lies below its decimal text
      {0.1, Long(".", 60, '0'), ".100000000000000005551115123125782702118158340454101562500000"},
  });
}

TEST(FormatTest, NotANumberAndInfinity) {
  for (const char* mask : {".000", "##0.000", "+.000", ""}) {
    EXPECT_EQ(Format(kNaN, mask), "n/a");
  }
  ExpectFormats({
      {-kNaN, "+.000", "n/a"},
      {kInfinity, ".000", "inf"},
      {kInfinity, "+.000", "+inf"},
      {-kInfinity, ".000", "-inf"},
      {-kInfinity, "+.000", "-inf"},
  });
}

TEST(FormatTest, OtherMasks) {
  ExpectFormats({
      {7, "000", "007"},
      {7, "0#", "07"},
      {0, "##", ""},
      {12.5, "0.0##", "12.5"},
      {0.25, "0.###", "0.25"},
      {0, "#.#", "."},
      {1.5, "0.#0#", "1.50"},
      {12.34, "0.0.0", "12.34"},
      {1234.5, "#,##0.0 %\xC3", "1234.5"},
      {12.3, "", "12"},
  });
}

TEST(FormatTest, LongMasks) {
  EXPECT_EQ(Format(0.5, Long(".", 200'000, '0')), Long(".5", 199'999, '0'));
  EXPECT_EQ(Format(3, Long("", 200'000, '0')), Long("", 199'999, '0', "3"));
  EXPECT_EQ(Format(kTiniest, Long(".", 2000, '#')).size(), 1u + 1074u);
  EXPECT_EQ(Format(-kLargest, ".0").size(), 1u + 309u + 2u);
}

TEST(ValTest, ReadsTheNumberAtTheStart) {
  const struct {
    std::string text;
    double value;
  } rows[] = {
      {".000", 0},
      {".5", 0.5},
      {".99999", 0.99999},
      {"1000", 1000},
      {"9.7", 9.7},
      {"5.", 5},
      {"007", 7},
      {"  \t.25", 0.25},
      {"-.2", -0.2},
      {"+3", 3},
      {"- 3", 0},
      {"--3", 0},
      {"1e5", 1},
      {".5.5", 0.5},
      {"1,5", 1},
      {"12 3", 12},
      {"0x10", 0},
      {"inf", 0},
      {"nan", 0},
      {"abc", 0},
      {"", 0},
      {" ", 0},
      {"-", 0},
      {".", 0},
      {"..5", 0},
      {"7\xC3\x28", 7},
      {"\xFF", 0},
      {{"1\0002", 3}, 1},
      {{"\0001", 2}, 0},
      {"1e", 1},
      {"0.0000", 0},
      {"00000.00010", 0.0001},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(Val(row.text), row.value) << "\"" << row.text << "\"";
  }
}

TEST(ValTest, ZeroHasNoSign) {
  for (const char* text : {"-", "-0", "-.000", "-x"}) {
    EXPECT_EQ(Bits(Val(text)), Bits(0.0)) << text;
  }
}

TEST(ValTest, RoundsCorrectly) {
  // 2^53 + 1 lies half-way between two doubles; anything more than nothing behind it decides.
  EXPECT_EQ(Val("9007199254740993"), 9007199254740992.0);
  EXPECT_EQ(Val(Long("9007199254740993.", 900, '0')), 9007199254740992.0);
  EXPECT_EQ(Val(Long("9007199254740993.", 900, '0', "1")), 9007199254740994.0);
  EXPECT_EQ(Val(Long("2.2250738585072011", 400, '0')), 2.2250738585072011);
  EXPECT_EQ(Val(Long(".", 323, '0', "3")), kTiniest);
  EXPECT_EQ(Val(Long(".", 323, '0', "2")), 0.0);
  EXPECT_EQ(Val(Long(".", 307, '0', "22250738585072011")), 2.2250738585072011e-308);
}

TEST(ValTest, TooLargeIsTheLargestFiniteNumber) {
  EXPECT_EQ(Val(Long("1", 308, '0')), 1e308);
  EXPECT_EQ(Val(Long("1", 309, '0')), kLargest);
  EXPECT_EQ(Val(Long("-2", 308, '0')), -kLargest);
}

TEST(ValTest, LongTextsTakeLinearTime) {
  constexpr std::size_t kLength = 4'000'000;
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(Val(Long("", kLength, '9')), kLargest);
  EXPECT_EQ(Val(Long(".", kLength, '3')), 1.0 / 3.0);
  EXPECT_EQ(Val(Long(".", kLength, '0', "1")), 0.0);
  EXPECT_EQ(Val(Long("", kLength, '0', "5.")), 5.0);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
}

TEST(RoundTripTest, SliderPositions) {
  for (int k = 0; k < 100; ++k) {
    const std::string text = Format(k / 100.0, ".000");
    std::string wanted = std::to_string(1000 + 10 * k);
    wanted[0] = '.';
    EXPECT_EQ(text, wanted);
    EXPECT_EQ(Bits(Val(text)), Bits(k / 100.0)) << text;
  }
}

TEST(RoundTripTest, EveryDoubleHasATextThatGivesItBack) {
  std::mt19937_64 random(1);
  const std::string mask = Long("0.", 1074, '#');
  for (int i = 0; i < 2000; ++i) {
    const double value = std::bit_cast<double>(random());
    if (!std::isfinite(value)) {
      continue;
    }
    ASSERT_EQ(Bits(Val(Format(value, mask))), Bits(value)) << value;
  }
}

TEST(StrTest, DigitsOrMask) {
  EXPECT_EQ(Str(4, ""), "4");
  EXPECT_EQ(Str(1000, ""), "1000");
  EXPECT_EQ(Str(-7, ""), "-7");
  EXPECT_EQ(Str(kMin, ""), "-9223372036854775808");
  EXPECT_EQ(Str(7, "+000.0"), "+007.0");
}

TEST(AscTest, CodeOfTheFirstCharacter) {
  const struct {
    std::string text;
    std::int64_t code;
  } rows[] = {
      {".", 46},
      {"0", 48},
      {"9x", 57},
      {{"\0", 1}, 0},
      {"", -1},
      {"\x7F", 0x7F},
      {"\xC2\x80", 0x80},
      {"\xE2\x82\xAC!", 0x20AC},
      {"\xEF\xBF\xBF", 0xFFFF},
      {"\xF0\x9F\x98\x80", 0x1F600},
      {"\xF4\x8F\xBF\xBF", 0x10FFFF},
      {"\x80", 0xFFFD},              // continuation without a lead
      {"\xE2\x82", 0xFFFD},          // cut off
      {"\xC3(", 0xFFFD},             // lead without a continuation
      {"\xC1\xBF", 0xFFFD},          // longer than need be
      {"\xE0\x9F\xBF", 0xFFFD},      //
      {"\xF0\x8F\xBF\xBF", 0xFFFD},  //
      {"\xED\xA0\x80", 0xFFFD},      // surrogate
      {"\xF4\x90\x80\x80", 0xFFFD},  // beyond the last code point
      {"\xFF\xBF\xBF\xBF", 0xFFFD},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(Asc(row.text), row.code) << testing::PrintToString(row.text);
  }
}

TEST(TruncateTest, TowardZeroAndSaturating) {
  EXPECT_EQ(Truncate(9.7), 9);
  EXPECT_EQ(Truncate(-9.7), -9);
  EXPECT_EQ(Truncate(0.9), 0);
  EXPECT_EQ(Truncate(kNaN), 0);
  EXPECT_EQ(Truncate(1e300), kMax);
  EXPECT_EQ(Truncate(-kInfinity), kMin);
  EXPECT_EQ(Truncate(0x1p63), kMax);
  EXPECT_EQ(Truncate(std::nextafter(0x1p63, 0)), 9223372036854774784);
  EXPECT_EQ(Truncate(-0x1p63), kMin);
}

TEST(MathematicsTest, ValuesAndEdges) {
  EXPECT_EQ(Sqrt(2.25), 1.5);
  EXPECT_DOUBLE_EQ(Log(3.0), 1.0986122886681098);
  EXPECT_DOUBLE_EQ(Exp(1.0), 2.718281828459045);
  EXPECT_DOUBLE_EQ(Sin(0.5), 0.479425538604203);
  EXPECT_DOUBLE_EQ(Cos(0.5), 0.8775825618903728);
  EXPECT_DOUBLE_EQ(ATan(1.0), 0.7853981633974483);
  EXPECT_EQ(Floor(1.5), 1.0);
  EXPECT_EQ(Floor(2.0), 2.0);
  EXPECT_EQ(Floor(-0.5), -1.0);
  EXPECT_TRUE(std::isnan(Sqrt(-1.0)));
  EXPECT_TRUE(std::isnan(Log(-1.0)));
  EXPECT_EQ(Log(0.0), -kInfinity);
  EXPECT_EQ(Exp(-kInfinity), 0.0);
  EXPECT_EQ(Exp(kInfinity), kInfinity);
  for (double (*function)(double) : {Sqrt, Log, Exp, Sin, Cos, ATan, Floor}) {
    EXPECT_TRUE(std::isnan(function(kNaN)));
  }
}

// Puts both locales of the process back after a test that changes them.
class LocaleTest : public testing::Test {
 protected:
  ~LocaleTest() override {
    std::locale::global(old_global_);
    std::setlocale(LC_ALL, old_c_.c_str());
  }

  static void ExpectPoints() {
    EXPECT_EQ(Format(1234567.5, "#,##0.00"), "1234567.50");
    EXPECT_EQ(Format(-0.25, "+.000"), "-.250");
    EXPECT_EQ(Val("1234567.25"), 1234567.25);
    EXPECT_EQ(Val("1,5"), 1.0);
    EXPECT_EQ(Str(1234567, ""), "1234567");
    EXPECT_EQ(Str(1234567, "0.0"), "1234567.0");
  }

 private:
  std::string old_c_ = std::setlocale(LC_ALL, nullptr);
  std::locale old_global_;
};

class CommaFacet : public std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

TEST_F(LocaleTest, GlobalStreamLocaleHasNoInfluence) {
  std::locale::global(std::locale(std::locale::classic(), new CommaFacet));
  ExpectPoints();
}

TEST_F(LocaleTest, DecimalCommaOfTheCLibraryHasNoInfluence) {
  const std::array names{"de_DE.UTF-8", "de_DE.utf8", "fr_FR.UTF-8", "nl_NL.UTF-8", "de-DE"};
  for (const char* name : names) {
    if (std::setlocale(LC_ALL, name) == nullptr) {
      continue;
    }
    ASSERT_STREQ(std::localeconv()->decimal_point, ",");
    ExpectPoints();
    return;
  }
  GTEST_SKIP() << "this machine has no locale with a decimal comma";
}

}  // namespace
}  // namespace vamo

// From outside: which keys the fields let in.
#include <gtest/gtest.h>

#include "steps.h"

namespace vamo {
namespace {

// Every key of a keyboard that types a character other than those.
std::string PrintableBut(std::string_view those) {
  std::string all;
  for (char character = ' '; character <= '~'; ++character) {
    if (those.find(character) == std::string_view::npos) all += character;
  }
  return all;
}

// Each of the keys is swallowed with a beep of its own.
void ExpectRefused(OutsideUser& user, std::string_view field, std::string_view refused) {
  const std::string before = FieldText(user, field);
  const int beeps = user.Beeps();
  user.Type(refused);
  EXPECT_EQ(user.Beeps(), beeps + static_cast<int>(refused.size())) << refused;
  EXPECT_EQ(FieldText(user, field), before);
}

constexpr char kControlKeys[] = "\r\x1b\x7f";

TEST(Keys, OfR) {
  InControlWindow({}, [](OutsideUser& user) {
    for (char digit = '0'; digit <= '9'; ++digit) {
      user.PressKey(Key::Command("a"));
      user.Type(std::string(1, digit));
      EXPECT_EQ(FieldText(user, "r"), std::string(".") + digit);
    }
    user.PressKey(Key::Command("a"));
    user.Type(".");
    EXPECT_EQ(FieldText(user, "r"), ".");
    user.Type("25\b");
    EXPECT_EQ(FieldText(user, "r"), ".2");
    EXPECT_EQ(user.Beeps(), 0);
    ExpectRefused(user, "r", PrintableBut("0123456789."));
    ExpectRefused(user, "r", kControlKeys);
    user.Type("\t");
    EXPECT_EQ(user.Focused().name, "N");
  });
}

TEST(Keys, OfN) {
  InControlWindow({}, [](OutsideUser& user) {
    user.Type("\t");
    for (char digit = '0'; digit <= '9'; ++digit) {
      const int beeps = user.Beeps();
      user.PressKey(Key::Command("a"));
      user.Type(std::string(1, digit));
      EXPECT_EQ(FieldText(user, "N"), std::string(1, digit));
      EXPECT_EQ(user.Beeps(), beeps + (digit < '4' ? 1 : 0)) << "for a number below 4, not a key";
    }
    user.PressKey(Key::Command("a"));
    user.Type("456\b");
    EXPECT_EQ(FieldText(user, "N"), "45");
    ExpectRefused(user, "N", PrintableBut("0123456789"));
    ExpectRefused(user, "N", kControlKeys);
    user.Type("\t");
    EXPECT_EQ(user.Focused().role, Role::kSlider);
  });
}

}  // namespace
}  // namespace vamo

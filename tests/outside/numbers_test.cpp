// From outside: which texts the window shows for which r and N.
#include <gtest/gtest.h>

#include "steps.h"

namespace vamo {
namespace {

std::string SliderText(std::int64_t position) {
  return (position < 10 ? ".0" : ".") + std::to_string(position) + "0";
}

TEST(Numbers, OfTypedRAndN) {
  struct Case {
    const char *r, *n, *t, *p, *interval;
  };
  const Case kCases[] = {
      {".5", "30", "3.06", ".00490", "+.170 to +.729"},
      {".5", "31", "3.11", ".00418", "+.177 to +.726"},
      {".3", "10", ".89", ".39969", "-.406 to +.782"},
      {".7", "4", "1.39", ".30000", "-.798 to +.993"},
      {".7", "5", "1.70", ".18812", "-.477 to +.978"},
      {".5", "4", ".82", ".50000", "-.888 to +.987"},
      {".06", "1000", "1.90", ".05787", "-.002 to +.122"},
      {".1", "1000", "3.18", ".00154", "+.038 to +.161"},
      {".5", "1000", "18.24", ".00001", "+.452 to +.545"},
      {".99", "1000", "221.70", ".00001", "+.989 to +.991"},
      {".001", "4", ".00", ".99900", "-.961 to +.961"},
      {".0", "4", ".00", ".99999", "-.961 to +.961"},
      {".0", "30", ".00", ".99999", "-.360 to +.360"},
      {".0", "1000", ".00", ".99999", "-.062 to +.062"},
  };
  InControlWindow({}, [&](OutsideUser& user) {
    for (const Case& test : kCases) {
      if (FieldText(user, "N") != test.n) Retype(user, "N", test.n);
      if (FieldText(user, "r") != test.r) Retype(user, "r", test.r);
      const Results shown = ShownResults(user);
      EXPECT_EQ(shown.t, test.t) << test.r << ", " << test.n;
      EXPECT_EQ(shown.p, test.p) << test.r << ", " << test.n;
      EXPECT_EQ(shown.interval, test.interval) << test.r << ", " << test.n;
      EXPECT_EQ(FieldText(user, "r") + FieldText(user, "N"), std::string(test.r) + test.n);
      EXPECT_FALSE(Warned(user));
    }
  });
}

TEST(Numbers, OfAPastedRAreHeldInItsLimits) {
  InControlWindow({}, [](OutsideUser& user) {
    Retype(user, "N", "1000");
    user.Click(Role::kText, "r");
    for (const char* high : {".99999", "1.5"}) {
      user.PressKey(Key::Command("a"));
      user.Paste(high);
      EXPECT_EQ(FieldText(user, "r"), ".99999");
      EXPECT_EQ(ShownResults(user), (Results{"7063.94", ".00001", "+1.000 to +1.000", "6.103"}));
    }
    user.PressKey(Key::Command("a"));
    user.Paste("-.2");
    EXPECT_EQ(FieldText(user, "r"), ".000");
    EXPECT_EQ(ShownResults(user), (Results{".00", ".99999", "-.062 to +.062", "0.000"}));
  });
}

TEST(Numbers, FollowTheKeysThroughAllOfR) {
  InControlWindow({}, [](OutsideUser& user) {
    Retype(user, "N", "30");
    Retype(user, "r", ".0");
    user.PressKey(Key::Character("\t"));
    user.PressKey(Key::Character("\t"));
    for (std::int64_t position = 1; position <= 99; ++position) {
      user.PressNamed("Right");
      EXPECT_EQ(FieldText(user, "r"), SliderText(position));
      EXPECT_EQ(ShownResults(user), ExpectedResults(static_cast<double>(position) / 100, 30))
          << "at position " << position;
    }
    user.PressNamed("Right");
    EXPECT_EQ(FieldText(user, "r"), ".990");
    user.PressNamed("Home");
    EXPECT_EQ(FieldText(user, "r"), ".000");
    EXPECT_EQ(ShownResults(user), ExpectedResults(0, 30));
  });
}

TEST(Numbers, FollowADragThroughAllOfR) {
  InControlWindow({}, [](OutsideUser& user) {
    Retype(user, "N", "100");
    user.PressKnob("r", 0);
    for (std::int64_t position = 1; position <= 99; ++position) {
      user.MoveKnob("r", position);
      EXPECT_EQ(FieldText(user, "r"), SliderText(position));
      EXPECT_EQ(ShownResults(user), ExpectedResults(static_cast<double>(position) / 100, 100))
          << "at position " << position;
    }
    user.ReleaseKnob();
    user.MoveKnob("r", 50);
    EXPECT_EQ(FieldText(user, "r"), ".990") << "the knob has been let go";
  });
}

TEST(Numbers, OfNAtTheEndsOfItsRange) {
  struct Case {
    const char* n;
    bool warned;
    Results results;
  };
  const Case kCases[] = {
      {"3", true, {".00", ".99999", "-1.000 to n/a", "0.549"}},
      {"4", false, {".82", ".50000", "-.888 to +.987", "0.549"}},
      {"1000", false, {"18.24", ".00001", "+.452 to +.545", "0.549"}},
      {"1001", true, {"", "", "", "0.549"}},
      {"0004", false, {".82", ".50000", "-.888 to +.987", "0.549"}},
      {"9999", true, {"", "", "", "0.549"}},
      {"0", true, {".00", ".99999", "n/a to n/a", "0.549"}},
  };
  InControlWindow({}, [&](OutsideUser& user) {
    Retype(user, "r", ".5");
    for (const Case& test : kCases) {
      Retype(user, "N", test.n);
      EXPECT_EQ(ShownResults(user), test.results) << test.n;
      EXPECT_EQ(Warned(user), test.warned) << test.n;
      EXPECT_EQ(FieldText(user, "N"), test.n);
    }
  });
}

}  // namespace
}  // namespace vamo

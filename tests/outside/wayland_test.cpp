// From outside: the program on a Wayland compositor, as far as that differs from an X server.
#include <gtest/gtest.h>

#include "steps.h"

namespace vamo {
namespace {

// Nothing tells when a program has dealt with a key.
template <class Value, class Look>
void ExpectSoon(const Value& expected, const Look& look) {
  EXPECT_TRUE(Await([&] { return look() == expected; })) << look();
}

TEST(Wayland, TheProgramIsWorkedAsOnAnXServer) {
  const auto journey = [](OutsideUser& user) {
    user.Click(Role::kText, "N");
    user.Type("30");
    user.Click(Role::kText, "r");
    user.Type(".5");
    const std::string results = "3.06 | .00490 | +.170 to +.729";
    ExpectSoon(results, [&] { return ResultLine(user); });
    user.PressKey(Key::Command("a"));
    user.PressKey(Key::Command("c"));
    ExpectSoon(std::string(".5"), [&] { return user.Clipboard(); });
    user.Paste(".25");
    ExpectSoon(std::string(".25"), [&] { return FieldText(user, "r"); });
    user.DragSlider("r", {12, 80, 37});
    ExpectSoon(std::string(".370"), [&] { return FieldText(user, "r"); });
    user.Click(Role::kButton, "Info");
    ExpectSoon(std::string("Info"), [&] { return user.ActiveTitle(); });
    user.Close("Info");
    ExpectSoon(std::string("Vamo"), [&] { return user.ActiveTitle(); });
    EXPECT_TRUE(user.Choose("Help/About Vamo"));
    ExpectSoon(std::string(), [&] { return user.ActiveTitle(); });
    user.PressKey(Key::Character(" "));
    ExpectSoon(std::string("Vamo"), [&] { return user.ActiveTitle(); });
    user.Close("Vamo");
    EXPECT_TRUE(Await([&] { return !user.Running(); }));
  };
  EXPECT_EQ(InControlWindow({}, journey), 0);
}

}  // namespace
}  // namespace vamo

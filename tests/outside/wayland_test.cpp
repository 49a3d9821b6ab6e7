// From outside: the program on a Wayland compositor, where it differs from an X server.
#include <gtest/gtest.h>

#include <string>

#include "steps.h"

namespace vamo {
namespace {

// Waits for the text, because a Wayland client cannot learn when another program has handled a key.
template <class Look>
void ExpectSoon(const std::string& expected, const Look& look) {
  EXPECT_TRUE(Await([&] { return look() == expected; })) << look();
}

TEST(Wayland, TheProgramWorksAsOnAnXServer) {
  const auto journey = [](OutsideUser& user) {
    user.Click(Role::kText, "N");
    user.Type("30");
    user.Click(Role::kText, "r");
    user.Type(".5");
    ExpectSoon("3.06 | .00490 | +.170 to +.729", [&] { return ResultLine(user); });
    user.PressKey(Key::Command("a"));
    user.PressKey(Key::Command("c"));
    ExpectSoon(".5", [&] { return user.Clipboard(); });
    user.Paste(".25");
    ExpectSoon(".25", [&] { return FieldText(user, "r"); });
    user.DragSlider("r", {12, 80, 37});
    ExpectSoon(".370", [&] { return FieldText(user, "r"); });
    user.Click(Role::kButton, "Info");
    ExpectSoon("Info", [&] { return user.ActiveTitle(); });
    user.Close("Info");
    ExpectSoon("Vamo", [&] { return user.ActiveTitle(); });
    EXPECT_TRUE(user.Choose("Help/About Vamo"));
    ExpectSoon("", [&] { return user.ActiveTitle(); });
    user.PressKey(Key::Character(" "));
    ExpectSoon("Vamo", [&] { return user.ActiveTitle(); });
    user.Close("Vamo");
    EXPECT_TRUE(Await([&] { return !user.Running(); }));
  };
  EXPECT_EQ(InControlWindow(journey), 0);
}

}  // namespace
}  // namespace vamo

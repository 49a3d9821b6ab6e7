// From outside: the program with other desktop settings, its window positions and its ends.
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "steps.h"

namespace vamo {
namespace {

// The same actions must give the same texts wherever the program runs.
void WorkTheWindow(OutsideUser& user) {
  Retype(user, "N", "30");
  Retype(user, "r", ".5");
  EXPECT_EQ(ResultLine(user), "3.06 | .00490 | +.170 to +.729");
  EXPECT_EQ(FieldText(user, "Fisher's z"), "0.549");
  user.PressKey(Key::Command("a"));
  user.Paste(".25");
  EXPECT_EQ(ResultLine(user), "1.37 | .18273 | -.121 to +.560");
  user.DragSlider("r", {12, 80, 37});
  user.DragSlider("N", {600, 31});
  EXPECT_EQ(ResultLine(user), "2.14 | .04048 | +.018 to +.640");
  user.Click(Role::kButton, "Info");
  EXPECT_EQ(user.ActiveTitle(), "Info");
}

TEST(Desktop, ChangesNothingButTheSizeOfTheWindows) {
  const char* const german = "LC_ALL=de_DE.UTF-8";
  const char* const locales = "LOCPATH=" VAMO_LOCALES;
  EXPECT_EQ(Output({"env", german, locales, "locale", "decimal_point"}), ",\n");
  const std::pair<CommandLine, int> kCases[] = {
      {{"env", german, locales, ProgramPath()}, 500},
      {{"env", "QT_SCALE_FACTOR=2", ProgramPath()}, 1000},
      {{ProgramPath(), "-platform", "nonsense", "-reverse"}, 500},
  };
  for (const auto& [command, width] : kCases) {
    SCOPED_TRACE(command[1]);
    const auto journey = [expected = width](OutsideUser& user) {
      EXPECT_EQ(user.WindowTitled("Vamo").width, expected);
      WorkTheWindow(user);
    };
    InControlWindow(journey, command);
  }
}

TEST(Desktop, TheMenusOpenByTheirMnemonics) {
  InControlWindow([](OutsideUser& user) {
    Retype(user, "r", ".5");
    user.PressKey(Key::Command("a"));
    user.PressNamed("alt+e");
    user.PressNamed("t");
    EXPECT_EQ(FieldText(user, "r"), "") << "cut by the letters of the menu and its entry";
    EXPECT_EQ(user.Clipboard(), ".5");
    user.Choose("Edit/Undo");
    EXPECT_EQ(FieldText(user, "r"), ".5");
  });
}

TEST(Desktop, TheMiddleButtonPastesTheSelectionOfAnotherProgram) {
  InControlWindow([](OutsideUser& user) {
    Retype(user, "N", "30");
    user.PasteSelection(Role::kText, "r", "1.5");
    EXPECT_EQ(FieldText(user, "r"), ".99999");
    user.PasteSelection(Role::kText, "Fisher's z", "7");
    EXPECT_EQ(FieldText(user, "Fisher's z"), "6.103");
    EXPECT_EQ(FieldText(user, "r"), ".99999");
  });
}

void ExpectOnScreen(OutsideUser& user, const WindowOnScreen& window) {
  EXPECT_GE(window.x, 0);
  EXPECT_GE(window.y, window.frame_top);
  EXPECT_LE(window.x + window.width + window.frame_right, user.ScreenWidth());
  EXPECT_LE(window.y + window.height, user.ScreenHeight());
}

TEST(Desktop, KeysEnlargeAndReduceTheWindows) {
  InControlWindow([](OutsideUser& user) {
    for (const auto& [key, width] : {std::pair{"ctrl+minus", 450},
                                     {"ctrl+0", 500},
                                     {"ctrl+plus", 625},
                                     {"ctrl+equal", 750},
                                     // The plus of the keypad, by its code: xdotool may
                                     // add Alt to its name.
                                     {"ctrl+86", 875}}) {
      user.PressNamed(key);
      EXPECT_EQ(user.WindowTitled("Vamo").width, width) << key;
    }
    EXPECT_EQ(user.Beeps(), 0);
    WorkTheWindow(user);
    for (int step = 0; step < 9; ++step) user.PressNamed("ctrl+plus");
    for (const char* title : {"Vamo", "Info"}) ExpectOnScreen(user, user.WindowTitled(title));
  });
}

void ExpectSameMiddle(const WindowOnScreen& window, const WindowOnScreen& other) {
  // The tolerance allows for menu bars and frames of any height.
  EXPECT_NEAR(window.x + window.width / 2, other.x + other.width / 2, 2);
  EXPECT_NEAR(window.y + window.height / 2, other.y + other.height / 2, 20);
}

TEST(Desktop, WindowsOpenWhereTheUserLooks) {
  const auto journey = [](OutsideUser& user) {
    const WindowOnScreen splash = user.WindowTitled("");
    EXPECT_NEAR(splash.x + splash.width / 2, user.ScreenWidth() / 2, 2);
    user.PressNamed("space");
    ExpectSameMiddle(user.WindowTitled("Vamo"), splash);
    user.MoveWindow("Vamo", 10, 500);
    user.Choose("Window/About Vamo");
    const WindowOnScreen control = user.WindowTitled("Vamo");
    ExpectSameMiddle(user.WindowTitled(""), control);
    EXPECT_EQ(user.WindowTitled("").stays_with, control.id);
    user.PressNamed("space");

    user.Click(Role::kButton, "Info");
    WindowOnScreen info = user.WindowTitled("Info");
    EXPECT_EQ(info.x, control.x + control.width + control.frame_right + info.frame_right);
    ExpectOnScreen(user, info);
    user.Close("Info");
    user.MoveWindow("Vamo", user.ScreenWidth() - 510, 0);
    user.Click(Role::kButton, "Info");
    info = user.WindowTitled("Info");
    EXPECT_EQ(info.x + info.width + 2 * info.frame_right, user.WindowTitled("Vamo").x);
    user.Close("Info");
    user.MoveWindow("Vamo", user.ScreenWidth() / 2 - 250, 0);
    user.Click(Role::kButton, "Info");
    info = user.WindowTitled("Info");
    ExpectOnScreen(user, info);
    EXPECT_EQ(info.x + info.width + info.frame_right, user.ScreenWidth())
        << "as far to the right as the screen allows";
  };
  RunProgramWith(journey, {ProgramPath()});
}

TEST(Desktop, TheCloseButtonEndsTheProgram) {
  const auto journey = [](OutsideUser& user) {
    user.Click(Role::kButton, "Info");
    user.ClickCloseButton("Info");
    EXPECT_EQ(user.Windows(), std::vector<std::string>{"Vamo"});
    user.ClickCloseButton("Vamo");
    EXPECT_FALSE(user.Running());
  };
  EXPECT_EQ(InControlWindow(journey), 0);
}

}  // namespace
}  // namespace vamo

// A user's journeys from window to window, to the end of the program. They run on every display.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "journeys/journey_steps.h"

namespace vamo {
namespace {

using std::chrono_literals::operator""ms;

TEST(WindowJourney, TheControlWindowReplacesTheSplashAfterFourSeconds) {
  FromTheStart([](User& user) {
    user.LetTimePass(3000ms);
    EXPECT_EQ(user.Windows(), std::vector<std::string>{""});
    user.LetTimePass(1100ms);
    // A window manager may take a while.
    for (int i = 0; i < 10 && user.ActiveTitle() != "Vamo"; ++i) user.LetTimePass(500ms);
    EXPECT_EQ(user.Windows(), std::vector<std::string>{"Vamo"});
    EXPECT_EQ(user.ActiveTitle(), "Vamo");
  });
}

TEST(WindowJourney, APressOnTheSplashOpensTheControlWindow) {
  FromTheStart([](User& user) {
    user.Click(Role::kLabel, "Vamo");
    EXPECT_EQ(user.Windows(), std::vector<std::string>{"Vamo"});
  });
}

TEST(WindowJourney, AboutStaysUntilItIsDismissed) {
  InControlWindow([](User& user) {
    user.LetTimePass(5000ms);
    for (const char* item : {"Window/About Vamo", "Help/About Vamo"}) {
      user.Choose(item);
      user.LetTimePass(200ms);
      EXPECT_EQ(user.Windows(), (std::vector<std::string>{"", "Vamo"})) << item;
      EXPECT_EQ(user.ActiveTitle(), "") << item;
      user.PressKey(Key::Character("x"));
      EXPECT_EQ(user.Windows(), std::vector<std::string>{"Vamo"}) << item;
    }
  });
}

TEST(WindowJourney, TheTimerOfTheSplashTakesTheFocusFromNoWindow) {
  InControlWindow([](User& user) {
    user.Click(Role::kButton, "Info");
    user.LetTimePass(4500ms);
    EXPECT_EQ(user.ActiveTitle(), "Info");
  });
}

TEST(WindowJourney, InfoIsOneWindowThatCanBeReopened) {
  InControlWindow([](User& user) {
    user.Click(Role::kButton, "Info");
    EXPECT_EQ(user.ActiveTitle(), "Info");
    user.ActivateWindow("Vamo");
    user.PressByAssistiveTechnology("Info");
    EXPECT_EQ(user.Windows(), (std::vector<std::string>{"Info", "Vamo"}));
    EXPECT_EQ(user.ActiveTitle(), "Info");
    user.Close("Info");
    EXPECT_EQ(user.Windows(), std::vector<std::string>{"Vamo"});
    user.ActivateWindow("Vamo");
    user.Click(Role::kButton, "Info");
    EXPECT_EQ(user.Windows(), (std::vector<std::string>{"Info", "Vamo"}));
  });
}

TEST(WindowJourney, TheMenusOfferWhatTheWindowInFrontAllows) {
  InControlWindow([](User& user) {
    user.Type("5");
    user.PressKey(Key::Command("a"));
    EXPECT_TRUE(user.CanChoose("Edit/Copy"));
    for (const char* item : {"File/Quit", "Window/About Vamo", "Help/About Vamo"}) {
      EXPECT_TRUE(user.CanChoose(item)) << item;
    }
    EXPECT_FALSE(user.CanChoose("Window/Control"));
    user.Click(Role::kButton, "Info");
    EXPECT_TRUE(user.CanChoose("Edit/Copy"));
    EXPECT_FALSE(user.CanChoose("Edit/Paste"));
    EXPECT_FALSE(user.CanChoose("Window/About Vamo"));
  });
}

TEST(WindowJourney, TheInfoTextIsReadAndCopiedByKeysButNotChanged) {
  InControlWindow([](User& user) {
    user.PressKey(Arrow(KeyCode::kHelp, /*shift=*/true));
    EXPECT_EQ(user.ActiveTitle(), "Vamo") << "with shift it is another key";
    user.PressKey(Arrow(KeyCode::kHelp));
    EXPECT_EQ(user.Focused().name, "Info");
    EXPECT_EQ(user.Focused().selected_text, "");
    user.Type("x");
    user.PressKey(kBackspaceKey);
    user.PressKey(Key::Command("c"));
    const std::string copied = user.Clipboard();
    EXPECT_EQ(copied.rfind("Vamo simulates how the 95% confidence interval", 0), 0U);
    EXPECT_EQ(copied.substr(copied.rfind(' ') - 4), "this software.");
    EXPECT_NE(copied.find(".\n\nCopyright"), std::string::npos) << "the lines of the platform";
    EXPECT_EQ(copied.find('\r'), std::string::npos);
    user.PressKey(Arrow(KeyCode::kRight, /*shift=*/true));
    user.PressKey(Key::Command("c"));
    EXPECT_EQ(user.Clipboard(), "V") << "the caret starts at the beginning";
    user.PressKey(Key::Character(std::string(1, kEscape)));
    EXPECT_EQ(user.Windows(), std::vector<std::string>{"Vamo"});
    user.ActivateWindow("Vamo");
    user.PressKey(Key::Command("w"));
    user.Click(Role::kButton, "Info");
    user.PressKey(Key::Command("w"));
    EXPECT_EQ(user.Windows(), std::vector<std::string>{"Vamo"}) << "but the control window stays";
  });
}

TEST(WindowJourney, AnyKeyEndsTheSplash) {
  for (const Key& key : {Arrow(KeyCode::kLeft), Key::Command("c"), Arrow(KeyCode::kOther)}) {
    FromTheStart([&](User& user) {
      user.PressKey(key);
      EXPECT_EQ(user.ActiveTitle(), "Vamo");
    });
  }
}

TEST(WindowJourney, ComingBackResetsTheModelBehindUnchangedControls) {
  InControlWindow([](User& user) {
    Retype(user, "N", "30");
    Retype(user, "r", ".5");
    user.Click(Role::kButton, "Info");
    user.Close("Info");
    user.ActivateWindow("Vamo");
    EXPECT_EQ(FieldText(user, "r") + FieldText(user, "N") + FieldText(user, "Fisher's z"),
              ".5300.549");
    EXPECT_EQ(ResultLine(user), "3.06 | .00490 | +.170 to +.729");
    // A change of N calculates with the r of 0 that was set internally, until r itself changes.
    Retype(user, "N", "31");
    EXPECT_EQ(FieldText(user, "r"), ".5");
    EXPECT_EQ(ResultLine(user), ".00 | .99999 | -.354 to +.354");
    user.PressKey({KeyCode::kCharacter, std::string(1, kTab), /*shift=*/true});
    user.Type("5");
    EXPECT_EQ(FieldText(user, "r"), ".5") << "the same text, and yet the user has set r";
    EXPECT_EQ(ResultLine(user), "3.11 | .00418 | +.177 to +.726");
  });
}

TEST(EndJourney, TheProgramEndsWithStatusZero) {
  EXPECT_EQ(InControlWindow([](User& user) {
              user.Click(Role::kButton, "Info");
              user.Close("Vamo");
            }),
            0);
  EXPECT_EQ(InControlWindow([](User& user) { user.Choose("File/Quit"); }), 0);
  EXPECT_EQ(InControlWindow([](User& user) { user.PressKey(Key::Command("q")); }), 0);
  EXPECT_EQ(FromTheStart([](User& user) {
              user.PressKey(Key::Command("q"));
              user.LetTimePass(5000ms);
            }),
            0)
      << "the shortcuts work on the splash too";
}

}  // namespace
}  // namespace vamo

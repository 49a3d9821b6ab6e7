// The journeys of a user through the program. The same list runs on every display.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "user.h"

namespace vamo {
namespace {

using std::chrono_literals::operator""ms;

const Key kEscapeKey = Key::Character(std::string(1, kEscape));
const Key kTabKey = Key::Character(std::string(1, kTab));
const Key kBackTabKey{KeyCode::kCharacter, std::string(1, kTab), true, false};
const Key kBackspaceKey = Key::Character(std::string(1, kBackspace));
const Key kDeleteKey = Key::Character(std::string(1, kForwardDelete));

Key Arrow(KeyCode code, bool shift = false) { return {code, "", shift, false}; }

// What the window shows of a result, as one line.
std::string Results(User& user) {
  return user.SeesDescribed("Student's t").text + " | " + user.SeesDescribed("two-tailed p").text +
         " | " + user.SeesDescribed("95% confidence interval of r").text;
}
std::string FieldText(User& user, std::string_view name) {
  return user.Sees(Role::kText, name).text;
}
bool Warned(User& user) { return user.SeesDescribed("range of N").visible; }

// Empties a field, which gets the keys, and types into it.
void Retype(User& user, std::string_view field, std::string_view text) {
  user.Click(Role::kText, field);
  user.PressKey(Arrow(KeyCode::kHome));
  user.PressKey(Arrow(KeyCode::kEnd, /*shift=*/true));
  user.PressKey(kBackspaceKey);
  user.Type(text);
}

// A journey from the start. One that breaks off, since something is not on the screen, has failed.
int FromTheStart(const std::function<void(User&)>& journey) {
  bool completed = false;
  const int status = RunProgram([&](User& user) {
    journey(user);
    completed = true;
  });
  EXPECT_TRUE(completed);
  return status;
}

// A journey through the control window: the splash has been dismissed by a key.
int InControlWindow(const std::function<void(User&)>& journey) {
  return FromTheStart([&](User& user) {
    user.PressKey(kEscapeKey);
    ASSERT_EQ(user.ActiveTitle(), "Vamo");
    journey(user);
  });
}

constexpr char kNoResults[] = " |  | ";

TEST(ControlWindowJourney, OpensEmptyWithTheKeysInR) {
  InControlWindow([](User& user) {
    EXPECT_EQ(FieldText(user, "r") + FieldText(user, "N") + FieldText(user, "Fisher's z"), "");
    EXPECT_EQ(Results(user), kNoResults);
    EXPECT_EQ(user.Sees(Role::kSlider, "r").position, 0);
    EXPECT_EQ(user.Sees(Role::kSlider, "N").position, 4);
    EXPECT_FALSE(Warned(user));
    EXPECT_FALSE(user.Sees(Role::kText, "Fisher's z").enabled);
    EXPECT_EQ(user.Focused().role, Role::kText);
    EXPECT_EQ(user.Focused().name, "r");
    EXPECT_EQ(user.Sees(Role::kText, "r").labelled_by, "r =");
    EXPECT_EQ(user.Sees(Role::kSlider, "r").labelled_by, "r =");
    EXPECT_EQ(user.Sees(Role::kSlider, "N").labelled_by, "N =");
    EXPECT_EQ(user.Sees(Role::kText, "Fisher's z").labelled_by, "Fisher's z =");
  });
}

TEST(ControlWindowJourney, TypingRAndNShowsTheResults) {
  InControlWindow([](User& user) {
    Retype(user, "N", "30");
    EXPECT_EQ(Results(user), ".00 | .99999 | -.360 to +.360");
    Retype(user, "r", ".5");
    EXPECT_EQ(Results(user), "3.06 | .00490 | +.170 to +.729");
    EXPECT_EQ(FieldText(user, "Fisher's z"), "0.549");
    EXPECT_EQ(FieldText(user, "r"), ".5");
    user.Type("55");
    EXPECT_EQ(FieldText(user, "r"), ".555");
    const int beeps = user.Beeps();
    user.Type("5");
    EXPECT_EQ(FieldText(user, "r"), ".555");
    EXPECT_EQ(user.Beeps(), beeps + 1);
    // Typing moves no slider.
    EXPECT_EQ(user.Sees(Role::kSlider, "r").position, 0);
    EXPECT_EQ(user.Sees(Role::kSlider, "N").position, 4);
  });
}

TEST(ControlWindowJourney, DraggingTheSlidersShowsTheResults) {
  InControlWindow([](User& user) {
    user.DragSlider("r", {12, 50, 37});
    EXPECT_EQ(FieldText(user, "r"), ".370");
    EXPECT_EQ(FieldText(user, "Fisher's z"), "0.388");
    EXPECT_EQ(Results(user), ".00 | .99999 | n/a to n/a");
    EXPECT_FALSE(Warned(user));
    user.DragSlider("N", {30});
    EXPECT_EQ(FieldText(user, "N"), "30");
    EXPECT_EQ(Results(user), "2.11 | .04416 | +.011 to +.644");
    user.DragSlider("r", {99});
    user.DragSlider("N", {1000});
    EXPECT_EQ(FieldText(user, "r") + FieldText(user, "N"), ".9901000");
    EXPECT_EQ(Results(user), "221.70 | .00001 | +.989 to +.991");
    EXPECT_EQ(user.Beeps(), 0);
  });
}

TEST(ControlWindowJourney, APressInTheGrooveTakesTheKnobThere) {
  InControlWindow([](User& user) {
    user.PressGroove("r", 80, 80);
    EXPECT_EQ(FieldText(user, "r"), ".800");
    user.PressGroove("r", 20, 35);
    EXPECT_EQ(FieldText(user, "r"), ".350");
  });
}

TEST(ControlWindowJourney, SlidersFollowTheKeysAndTheWheel) {
  InControlWindow([](User& user) {
    user.DragSlider("r", {37});
    EXPECT_EQ(user.Focused().role, Role::kSlider);
    user.PressKey(Arrow(KeyCode::kRight));
    EXPECT_EQ(FieldText(user, "r"), ".380");
    user.PressKey(Arrow(KeyCode::kPageDown));
    user.PressKey(Arrow(KeyCode::kLeft));
    EXPECT_EQ(FieldText(user, "r"), ".360");
    user.PressKey(Arrow(KeyCode::kEnd));
    user.PressKey(Arrow(KeyCode::kUp));
    EXPECT_EQ(FieldText(user, "r"), ".990");
    user.PressKey(Arrow(KeyCode::kHome));
    EXPECT_EQ(FieldText(user, "r"), ".000");
    user.TurnWheel("r", 2);
    EXPECT_EQ(user.Sees(Role::kSlider, "r").position, 2);
    EXPECT_EQ(FieldText(user, "r"), ".020");
    user.TurnWheel("N", -1);
    EXPECT_EQ(FieldText(user, "N"), "") << "the slider was at its end and has not moved";
    // A slider knows nothing of what was typed.
    Retype(user, "N", "500");
    user.TurnWheel("N", 1);
    EXPECT_EQ(FieldText(user, "N"), "5");
  });
}

TEST(ControlWindowJourney, KeyFiltersBeepAndSwallow) {
  InControlWindow([](User& user) {
    Retype(user, "r", ".5");
    int beeps = user.Beeps();
    for (const char* refused : {"-", ",", "a", " ", "=", "\r", "\x1b", "."}) {
      user.Type(refused);
      EXPECT_EQ(FieldText(user, "r"), ".5") << refused;
      EXPECT_EQ(user.Beeps(), ++beeps) << refused;
    }
    Retype(user, "N", "12");
    beeps = user.Beeps();
    user.Type(".");
    user.PressKey(kDeleteKey);
    EXPECT_EQ(FieldText(user, "N"), "12");
    EXPECT_EQ(user.Beeps(), beeps + 2);
  });
}

TEST(ControlWindowJourney, TheWarningFollowsN) {
  InControlWindow([](User& user) {
    user.DragSlider("r", {50});
    Retype(user, "N", "2");
    EXPECT_TRUE(Warned(user));
    EXPECT_EQ(Results(user), ".00 | .99999 | n/a to n/a");
    const int beeps = user.Beeps();
    user.Type("5");
    EXPECT_FALSE(Warned(user));
    EXPECT_EQ(user.Beeps(), beeps);
    Retype(user, "N", "3");
    EXPECT_EQ(Results(user), ".00 | .99999 | -1.000 to n/a");
    Retype(user, "N", "1000");
    EXPECT_EQ(Results(user), "18.24 | .00001 | +.452 to +.545");
    Retype(user, "N", "9999");
    EXPECT_TRUE(Warned(user));
    EXPECT_EQ(Results(user), kNoResults);
    // Each change of r beeps and empties the results again.
    const int before = user.Beeps();
    user.TurnWheel("r", 1);
    EXPECT_GT(user.Beeps(), before);
    EXPECT_EQ(Results(user), kNoResults);
    user.DragSlider("N", {4});
    user.TurnWheel("N", 1);
    EXPECT_FALSE(Warned(user));
    EXPECT_EQ(FieldText(user, "N"), "5");
  });
}

TEST(ControlWindowJourney, PastesGoInAsTheyAre) {
  struct Case {
    std::string paste, field, z;
  };
  const Case kCases[] = {
      {"1.5", ".99999", "6.103"},    {"-.2", ".000", "0.000"},    {".99999", ".99999", "6.103"},
      {"abc", "abc", "0.000"},       {"1e5", ".99999", "6.103"},  {".5\n5\r\n", ".55", "0.618"},
      {"  .25x", "  .25x", "0.255"}, {"0.5.5", "0.5.5", "0.549"}, {"½ é 漢", "½ é 漢", "0.000"},
  };
  InControlWindow([&](User& user) {
    Retype(user, "N", "30");
    for (const Case& test : kCases) {
      Retype(user, "r", "");
      const int beeps = user.Beeps();
      user.Paste(test.paste);
      EXPECT_EQ(FieldText(user, "r"), test.field);
      EXPECT_EQ(FieldText(user, "Fisher's z"), test.z) << test.paste;
      EXPECT_EQ(user.Beeps(), beeps) << test.paste;
    }
    Retype(user, "N", "");
    user.Paste("30.9");
    EXPECT_EQ(Results(user), ".00 | .99999 | -.360 to +.360");
    Retype(user, "N", "");
    user.Paste("-7");
    EXPECT_TRUE(Warned(user));
    Retype(user, "N", "");
    user.Paste(std::string(20, '9'));
    EXPECT_TRUE(Warned(user));
    EXPECT_EQ(Results(user), kNoResults);
  });
}

TEST(ControlWindowJourney, StandsAHugePaste) {
  InControlWindow([](User& user) {
    Retype(user, "N", "30");
    Retype(user, "r", "");
    user.Paste("." + std::string(1'000'000, '3'));
    EXPECT_EQ(FieldText(user, "r").size(), 1'000'001U);
    EXPECT_EQ(FieldText(user, "Fisher's z"), "0.347");
    user.PressKey(kBackspaceKey);
    EXPECT_EQ(FieldText(user, "r").size(), 1'000'000U);
    Retype(user, "r", "5");
    EXPECT_EQ(FieldText(user, "r"), ".5");
  });
}

TEST(ControlWindowJourney, TheCaretAndTheSelectionAreTheUsers) {
  InControlWindow([](User& user) {
    Retype(user, "r", ".1");
    user.Type("3");
    user.PressKey(Arrow(KeyCode::kLeft));
    user.Type("2");
    EXPECT_EQ(FieldText(user, "r"), ".123");
    user.PressKey(Arrow(KeyCode::kHome));
    user.PressKey(kBackspaceKey);
    EXPECT_EQ(FieldText(user, "r"), ".123");
    user.PressKey(Arrow(KeyCode::kEnd, /*shift=*/true));
    EXPECT_EQ(user.Sees(Role::kText, "r").selected_text, ".123");
    user.PressKey(Key::Command("c"));
    EXPECT_EQ(user.Clipboard(), ".123");
    user.Type("7");
    EXPECT_EQ(FieldText(user, "r"), ".7");
    EXPECT_EQ(FieldText(user, "Fisher's z"), "0.867");
    user.PressKey(Key::Command("z"));
    EXPECT_EQ(FieldText(user, "r"), ".123");
    EXPECT_EQ(FieldText(user, "Fisher's z"), "0.124");
    user.Click(Role::kText, "N");
    user.Paste("40");
    user.PressKey(kBackTabKey);
    EXPECT_EQ(user.Sees(Role::kText, "r").selected_text, ".123") << "entered by Tab";
    user.PressKey(Key::Command("x"));
    EXPECT_EQ(FieldText(user, "r"), "");
    EXPECT_EQ(Results(user), ".00 | .99999 | -.312 to +.312");
  });
}

TEST(ControlWindowJourney, AWordIsDeletedOrLeftAsItWas) {
  InControlWindow([](User& user) {
    Key word = kDeleteKey;
    word.word = true;
    Retype(user, "N", "500");
    user.PressKey(Arrow(KeyCode::kHome));
    const int beeps = user.Beeps();
    user.PressKey(word);
    EXPECT_EQ(user.Beeps(), beeps + 1) << "the filter of N refuses it";
    user.Type("1");
    EXPECT_EQ(FieldText(user, "N"), "1500");
    user.PressKey(Arrow(KeyCode::kEnd));
    word.text = kBackspace;
    user.PressKey(word);
    EXPECT_EQ(FieldText(user, "N"), "");
  });
}

TEST(ControlWindowJourney, TabGoesAroundFieldsAndSliders) {
  InControlWindow([](User& user) {
    const std::pair<Role, const char*> kStops[] = {
        {Role::kText, "N"}, {Role::kSlider, "r"}, {Role::kSlider, "N"}, {Role::kText, "r"}};
    for (const auto& [role, name] : kStops) {
      user.PressKey(kTabKey);
      EXPECT_EQ(user.Focused().role, role);
      EXPECT_EQ(user.Focused().name, name);
    }
    user.PressKey(kBackTabKey);
    EXPECT_EQ(user.Focused().role, Role::kSlider);
    EXPECT_EQ(user.Focused().name, "N");
    EXPECT_EQ(user.Beeps(), 0);
  });
}

TEST(WindowJourney, TheSplashMakesWayAfterFourSeconds) {
  FromTheStart([](User& user) {
    EXPECT_EQ(user.Windows(), std::vector<std::string>{""});
    user.Wait(4100ms);
    // A window manager takes its time.
    for (int i = 0; i < 10 && user.ActiveTitle() != "Vamo"; ++i) user.Wait(500ms);
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
    user.Wait(5000ms);
    for (const char* item : {"Window/About Vamo", "Help/About Vamo"}) {
      user.Choose(item);
      user.Wait(200ms);
      EXPECT_EQ(user.Windows(), (std::vector<std::string>{"", "Vamo"})) << item;
      EXPECT_EQ(user.ActiveTitle(), "") << item;
      user.PressKey(Key::Character("x"));
      EXPECT_EQ(user.Windows(), std::vector<std::string>{"Vamo"}) << item;
    }
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
    EXPECT_TRUE(user.CanChoose("Edit/Copy"));
    user.Close("Info");
    EXPECT_EQ(user.Windows(), std::vector<std::string>{"Vamo"});
    user.ActivateWindow("Vamo");
    user.Click(Role::kButton, "Info");
    EXPECT_EQ(user.Windows(), (std::vector<std::string>{"Info", "Vamo"}));
  });
}

TEST(WindowJourney, TheInfoTextCanBeSelectedAndCopiedButNotChanged) {
  InControlWindow([](User& user) {
    user.Click(Role::kButton, "Info");
    user.Click(Role::kText, "About Vamo");
    user.PressKey(Key::Command("a"));
    user.Type("x");
    user.PressKey(kBackspaceKey);
    user.PressKey(Key::Command("c"));
    const std::string copied = user.Clipboard();
    EXPECT_EQ(copied.rfind("Vamo simulates how the 95% confidence interval", 0), 0U);
    EXPECT_EQ(copied.substr(copied.rfind(' ') - 4), "this software.");
  });
}

TEST(WindowJourney, AnyKeyEndsTheSplash) {
  for (const Key& key : {Arrow(KeyCode::kLeft), Key::Command("b"), Arrow(KeyCode::kOther)}) {
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
    EXPECT_EQ(Results(user), "3.06 | .00490 | +.170 to +.729");
    // A change of N computes with the r of 0 that is behind it now, until r itself changes.
    Retype(user, "N", "31");
    EXPECT_EQ(FieldText(user, "r"), ".5");
    EXPECT_EQ(Results(user), ".00 | .99999 | -.354 to +.354");
    Retype(user, "r", ".5");
    EXPECT_EQ(Results(user), "3.11 | .00418 | +.177 to +.726");
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
              user.Wait(5000ms);
            }),
            0)
      << "the shortcuts work on the splash too";
}

}  // namespace
}  // namespace vamo

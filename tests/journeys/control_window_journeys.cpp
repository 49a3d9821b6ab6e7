// A user's journeys through the control window: setting r and N and reading the results. They run
// on every display.
#include <gtest/gtest.h>

#include <chrono>
#include <string>

#include "journeys/journey_steps.h"

namespace vamo {
namespace {

constexpr char kNoResults[] = " |  | ";

TEST(ControlWindowJourney, OpensEmptyWithTheFocusInR) {
  InControlWindow([](User& user) {
    EXPECT_EQ(FieldText(user, "r") + FieldText(user, "N") + FieldText(user, "Fisher's z"), "");
    EXPECT_EQ(ResultLine(user), kNoResults);
    EXPECT_EQ(user.Sees(Role::kSlider, "r").position, 0);
    EXPECT_EQ(user.Sees(Role::kSlider, "N").position, 4);
    EXPECT_FALSE(Warned(user));
    EXPECT_FALSE(user.Sees(Role::kText, "Fisher's z").enabled);
    EXPECT_EQ(user.Focused().role, Role::kText);
    EXPECT_EQ(user.Focused().name, "r");
    EXPECT_EQ(user.Sees(Role::kText, "r").labelled_by, "r =");
    EXPECT_EQ(user.Sees(Role::kSlider, "r").labelled_by, "r =");
    EXPECT_EQ(user.Sees(Role::kText, "N").labelled_by, "N =");
    EXPECT_EQ(user.Sees(Role::kSlider, "N").labelled_by, "N =");
    EXPECT_EQ(user.Sees(Role::kText, "Fisher's z").labelled_by, "Fisher's z =");
    EXPECT_EQ(user.SeesDescribed("Student's t").labelled_by, "t =");
    EXPECT_EQ(user.SeesDescribed("two-tailed p").labelled_by, "p =");
    EXPECT_EQ(user.SeesDescribed("95% confidence interval of r").labelled_by, "95% CI of r =");
  });
}

TEST(ControlWindowJourney, TypingRAndNShowsTheResults) {
  InControlWindow([](User& user) {
    Retype(user, "N", "30");
    EXPECT_EQ(ResultLine(user), ".00 | .99999 | -.360 to +.360");
    Retype(user, "r", ".5");
    EXPECT_EQ(ResultLine(user), "3.06 | .00490 | +.170 to +.729");
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

TEST(ControlWindowJourney, AScreenReaderSpeaksTheResultsAndTheWarning) {
  InControlWindow([](User& user) {
    PasteOver(user, "N", "30");
    PasteOver(user, "r", ".5");
    user.LetTimePass(std::chrono::milliseconds(500));
    EXPECT_TRUE(Heard(user,
                      "Student's t 3.06, two-tailed p .00490, 95% confidence interval of r +.170 "
                      "to +.729, Fisher's z 0.549"));
    Retype(user, "N", "");
    user.LetTimePass(std::chrono::milliseconds(500));
    EXPECT_TRUE(Heard(user,
                      "Student's t .00, two-tailed p .99999, 95% confidence interval of r n/a to "
                      "n/a, range of N (4 - 1,1000)"));
  });
}

TEST(ControlWindowJourney, DraggingTheSlidersShowsTheResults) {
  InControlWindow([](User& user) {
    user.DragSlider("r", {12, 50, 37});
    EXPECT_EQ(FieldText(user, "r"), ".370");
    EXPECT_EQ(user.Sees(Role::kSlider, "r").value, .37);
    EXPECT_EQ(FieldText(user, "Fisher's z"), "0.388");
    EXPECT_EQ(ResultLine(user), ".00 | .99999 | n/a to n/a");
    EXPECT_FALSE(Warned(user));
    user.DragSlider("N", {30});
    EXPECT_EQ(FieldText(user, "N"), "30");
    EXPECT_EQ(ResultLine(user), "2.11 | .04416 | +.011 to +.644");
    user.DragSlider("r", {99});
    user.DragSlider("N", {1000});
    EXPECT_EQ(FieldText(user, "r") + FieldText(user, "N"), ".9901000");
    EXPECT_EQ(ResultLine(user), "221.70 | .00001 | +.989 to +.991");
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
    user.PressKey(Arrow(KeyCode::kPageUp));
    EXPECT_EQ(FieldText(user, "r"), ".370");
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
    // Typing does not move a slider.
    Retype(user, "N", "500");
    user.TurnWheel("N", 1);
    EXPECT_EQ(FieldText(user, "N"), "5");
  });
}

TEST(ControlWindowJourney, TheWarningFollowsN) {
  InControlWindow([](User& user) {
    user.DragSlider("r", {50});
    Retype(user, "N", "2");
    EXPECT_TRUE(Warned(user));
    EXPECT_EQ(user.Beeps(), 1);
    EXPECT_EQ(ResultLine(user), ".00 | .99999 | n/a to n/a");
    const int beeps = user.Beeps();
    user.Type("5");
    EXPECT_FALSE(Warned(user));
    EXPECT_EQ(user.Beeps(), beeps);
    Retype(user, "N", "3");
    EXPECT_TRUE(Warned(user));
    EXPECT_EQ(ResultLine(user), ".00 | .99999 | -1.000 to n/a");
    Retype(user, "N", "1001");
    EXPECT_TRUE(Warned(user));
    EXPECT_EQ(ResultLine(user), kNoResults);
    // Each change of r beeps and empties the results again.
    const int before = user.Beeps();
    user.TurnWheel("r", 1);
    EXPECT_GT(user.Beeps(), before);
    EXPECT_EQ(ResultLine(user), kNoResults);
    user.DragSlider("N", {4});
    user.TurnWheel("N", 1);
    EXPECT_FALSE(Warned(user));
    EXPECT_EQ(FieldText(user, "N"), "5");
  });
}

// The size changes only on a display with zoom. The results must be the same on every display.
TEST(ControlWindowJourney, AtTwiceTheSizeAllIsAsBefore) {
  InControlWindow([](User& user) {
    for (int step = 0; step < 4; ++step) user.PressKey(Key::Command("+"));
    Retype(user, "N", "30");
    Retype(user, "r", ".5");
    user.DragSlider("r", {12, 37});
    EXPECT_EQ(ResultLine(user), "2.11 | .04416 | +.011 to +.644");
    user.PressGroove("r", 80, 80);
    EXPECT_EQ(FieldText(user, "r"), ".800");
    user.Click(Role::kButton, "Info");
    EXPECT_EQ(user.ActiveTitle(), "Info");
    user.Choose("Help/About Vamo");
    user.PressKey(Key::Command("0"));
    EXPECT_EQ(user.ActiveTitle(), "Vamo") << "any key ends the splash";
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

}  // namespace
}  // namespace vamo

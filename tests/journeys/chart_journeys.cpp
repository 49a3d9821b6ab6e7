// A user's journeys with the chart. They run on every display.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "journeys/journey_steps.h"

namespace vamo {
namespace {

const Key kF9Key{KeyCode::kF9, ""};
constexpr const char* kOf370 =
    "95% CI of r +.011 to +.644 at r = .370 and N = 30. p is below .05 from N = 29 on.";

// The chart's description for a screen reader; empty while it is closed.
std::string Chart(User& user) {
  const ShownControl chart = user.Sees(Role::kChart, "Chart");
  return chart.visible ? chart.description : "";
}

TEST(ChartJourney, TheMenuAndAKeyOpenItAndItFollowsTheResults) {
  InControlWindow([](User& user) {
    user.Choose("View/Chart");
    EXPECT_EQ(Chart(user), "No result yet.");
    EXPECT_TRUE(Heard(user, "Chart shown. No result yet."));
    EXPECT_EQ(user.Focused().name, "r") << "it does not take the focus";
    Retype(user, "N", "30");
    user.DragSlider("r", {37});
    EXPECT_EQ(Chart(user), kOf370);
    Retype(user, "N", "2");
    EXPECT_EQ(Chart(user), "No result yet.");
    Retype(user, "N", "1001");
    EXPECT_EQ(Chart(user), "No result yet.");
    user.PressKey(kF9Key);
    EXPECT_EQ(Chart(user), "");
    EXPECT_TRUE(Heard(user, "Chart hidden"));
    Retype(user, "N", "30");
    user.PressKey(kF9Key);
    EXPECT_EQ(Chart(user), kOf370);
    EXPECT_TRUE(Heard(user, std::string("Chart shown. ") + kOf370));
  });
}

TEST(ChartJourney, EveryWindowExceptTheSplashCanOpenIt) {
  InControlWindow([](User& user) {
    Retype(user, "N", "30");
    Retype(user, "r", ".37");
    user.PressKey(Arrow(KeyCode::kHelp));
    EXPECT_TRUE(user.Choose("View/Chart"));
    EXPECT_EQ(user.ActiveTitle(), "Info");
    user.ActivateWindow("Vamo");
    EXPECT_EQ(Chart(user), kOf370) << "the results stay although r was reset to 0";
    user.Choose("Window/About Vamo");
    user.PressKey(kF9Key);
    EXPECT_EQ(user.Windows(), std::vector<std::string>({"Info", "Vamo"}));
    user.ActivateWindow("Vamo");
    EXPECT_EQ(Chart(user), kOf370) << "on the splash F9 is a key like any other";
    Retype(user, "N", "31");
    EXPECT_EQ(Chart(user),
              "95% CI of r -.354 to +.354 at r = .000 and N = 31. p stays above .05 up to "
              "N = 1000.");
  });
}

}  // namespace
}  // namespace vamo

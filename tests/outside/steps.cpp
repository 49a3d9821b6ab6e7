// What the tests from outside do again and again, beside the steps of the journeys.
#include "steps.h"

#include <gtest/gtest.h>

namespace vamo {

int InControlWindow(const Environment& settings, const std::function<void(OutsideUser&)>& journey,
                    const std::vector<std::string>& command) {
  bool completed = false;
  const auto dismiss_splash_and_go_on = [&](OutsideUser& user) {
    user.PressKey(Key::Character(std::string(1, kEscape)));
    ASSERT_EQ(user.ActiveTitle(), "Vamo");
    journey(user);
    completed = true;
  };
  const int status = RunProgramWith(settings, dismiss_splash_and_go_on, command);
  EXPECT_TRUE(completed);
  return status;
}

}  // namespace vamo

#include "steps.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace vamo {

std::string ProgramPath() {
  const char* program = std::getenv("VAMO_PROGRAM");
  return program != nullptr ? program : VAMO_DEFAULT_PROGRAM;
}

int RunProgram(const std::function<void(User&)>& journey) {
  return RunProgramWith(journey, {ProgramPath()});
}

int FromTheStart(const std::function<void(OutsideUser&)>& journey, const CommandLine& command) {
  bool completed = false;
  const auto journey_to_its_end = [&](OutsideUser& user) {
    journey(user);
    completed = true;
  };
  const int status = RunProgramWith(journey_to_its_end, command);
  EXPECT_TRUE(completed);
  return status;
}

int InControlWindow(const std::function<void(OutsideUser&)>& journey, const CommandLine& command) {
  const auto dismiss_splash_and_go_on = [&](OutsideUser& user) {
    user.PressKey(Key::Character(std::string(1, kEscape)));
    ASSERT_EQ(user.ActiveTitle(), "Vamo");
    journey(user);
  };
  return FromTheStart(dismiss_splash_and_go_on, command);
}

}  // namespace vamo

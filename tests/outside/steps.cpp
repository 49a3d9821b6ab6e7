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

int InControlWindow(const std::function<void(OutsideUser&)>& journey, const CommandLine& command) {
  const auto dismiss_splash_and_go_on = [&](OutsideUser& user) {
    user.PressKey(Key::Character(std::string(1, kEscape)));
    ASSERT_EQ(user.ActiveTitle(), "Vamo");
    journey(user);
  };
  return RunProgramWith(dismiss_splash_and_go_on, command);
}

}  // namespace vamo

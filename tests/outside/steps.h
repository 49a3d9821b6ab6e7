// Steps that the tests from outside share, in addition to those of the journeys.
#ifndef VAMO_TESTS_OUTSIDE_STEPS_H_
#define VAMO_TESTS_OUTSIDE_STEPS_H_

#include <functional>
#include <string>

#include "journeys/journey_steps.h"
#include "outside_user.h"

namespace vamo {

// The path of the program: VAMO_PROGRAM in the environment, or else the program of this build.
std::string ProgramPath();

// Runs a journey through the control window, after a key has dismissed the splash. Returns the
// result of RunProgramWith.
int InControlWindow(const std::function<void(OutsideUser&)>& journey,
                    const CommandLine& command = {ProgramPath()});

}  // namespace vamo

#endif  // VAMO_TESTS_OUTSIDE_STEPS_H_

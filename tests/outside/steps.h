// What the tests from outside do again and again, beside the steps of the journeys.
#ifndef VAMO_TESTS_OUTSIDE_STEPS_H_
#define VAMO_TESTS_OUTSIDE_STEPS_H_

#include <functional>
#include <string>
#include <vector>

#include "journeys/journey_steps.h"
#include "outside_user.h"

namespace vamo {

// Where the program is: VAMO_PROGRAM in the environment, or else that of this build.
std::string ProgramPath();

// A journey from the start, with settings in the program's environment. One that breaks off has
// failed. Gives what RunProgramWith gives, as does the next one.
int FromTheStart(const Environment& settings, const std::function<void(OutsideUser&)>& journey,
                 const std::vector<std::string>& command = {ProgramPath()});
// A journey through the control window, by a user who has dismissed the splash with a key.
int InControlWindow(const Environment& settings, const std::function<void(OutsideUser&)>& journey,
                    const std::vector<std::string>& command = {ProgramPath()});

}  // namespace vamo

#endif  // VAMO_TESTS_OUTSIDE_STEPS_H_

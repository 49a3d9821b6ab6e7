// What the tests from outside do again and again, beside the steps of the journeys.
#ifndef VAMO_TESTS_OUTSIDE_STEPS_H_
#define VAMO_TESTS_OUTSIDE_STEPS_H_

#include <functional>
#include <string>
#include <vector>

#include "journeys/journey_steps.h"
#include "outside_user.h"

namespace vamo {

// A journey through the control window, by a user who has dismissed the splash with a key. One that
// breaks off has failed. Gives what RunProgramWith gives.
int InControlWindow(const Environment& settings, const std::function<void(OutsideUser&)>& journey,
                    const std::vector<std::string>& command = {ProgramPath()});

}  // namespace vamo

#endif  // VAMO_TESTS_OUTSIDE_STEPS_H_

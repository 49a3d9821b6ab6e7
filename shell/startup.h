// The process from its entry to the event loop and back.
#ifndef VAMO_SHELL_STARTUP_H_
#define VAMO_SHELL_STARTUP_H_

#include <functional>
#include <memory>
#include <string_view>

#include "toolkit/runtime/display.h"

namespace vamo {

// Told the name of each step before the step runs. An exception that it throws makes the step fail.
using StepObserver = std::function<void(std::string_view step)>;

// Runs the program on a display, from the start of the run time to its end. The result is the exit
// status of the process: the argument of Quit, or 1 after an unhandled exception.
int Main(std::unique_ptr<Display> display, StepObserver observer = nullptr);

}  // namespace vamo

#endif  // VAMO_SHELL_STARTUP_H_

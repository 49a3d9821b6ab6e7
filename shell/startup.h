// The process from its entry to the event loop and back.
#ifndef VAMO_SHELL_STARTUP_H_
#define VAMO_SHELL_STARTUP_H_

#include <functional>
#include <memory>
#include <string_view>

#include "toolkit/runtime/display.h"

namespace vamo {

// Called with the name of each step before the step runs. If it throws, the step fails.
using StepObserver = std::function<void(std::string_view step)>;

class Runtime;

// The program on a display, from the start of the run time to its end.
class Process {
 public:
  // Runs the start-up steps and then the event loop, unless the platform owns the loop.
  explicit Process(std::unique_ptr<Display> display, StepObserver observer = nullptr);
  ~Process();
  Process(const Process&) = delete;
  Process& operator=(const Process&) = delete;

  // Call this once, when the event loop has ended. Returns the exit status of the process: the
  // argument of Quit, or 1 after an unhandled exception.
  int Finish();

 private:
  const std::unique_ptr<Runtime> runtime_;
};

// Runs the program on a display that runs its own event loop, and returns the exit status.
int Main(std::unique_ptr<Display> display, StepObserver observer = nullptr);

}  // namespace vamo

#endif  // VAMO_SHELL_STARTUP_H_
